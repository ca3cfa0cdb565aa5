#include "cli/commands.h"
#include "cli/words.h"
#include "store/themeLayout.h"
#include "support/files.h"

namespace zdt {

int checkCommand(const Context& context, const std::string& name) {
    const auto theme = openListed(context, name);
    std::vector<Problem> problems;
    static_cast<void>(theme->checkFiles(problems));
    return printProblems(context, problems) ? 1 : 0;
}

int exportCommand(const Context& context, const std::string& name, const std::string& file) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    if (theme->version() == unknownGeneration)
        throw Refusal(name, "it has no generation; \"zdt generation\" gives it one");
    std::vector<Problem> problems;
    if (!theme->checkFiles(problems))
        throw Refusal(name, "it isn't ready for an export; \"zdt check\" lists what is missing, " +
                                std::to_string(problems.size()) + " in all");
    if (pathExists(file) && !isPlainFile(file))
        throw Refusal(file, "something stands there that is no file");
    const std::string root = storeRoot(context.root);
    if (isInside(file, themesFolder(root)) || isInside(file, settingsFolder(root)))
        throw Refusal(file, "a package can't stand among the themes or their settings");
    if (!theme->exportTo(file, context.progress("export")))
        throw Refusal(file, "the package couldn't be written");
    return 0;
}

int importCommand(const Context& context, const std::string& file, bool replace) {
    const std::string name = stem(file);
    const std::string place = parentPath(themeFolder(storeRoot(context.root), name));
    if (!replace && pathExists(file) && isThemeName(name) && pathExists(place))
        throw Refusal(name, "there is a theme of that name already; --replace puts the package in its place");
    const ChangeLock lock(context);
    std::string imported;
    ImportFailure failure = ImportFailure::none;
    if (!ThemeResource::importTheme(file, imported, context.root, &failure, context.progress("import")))
        throw Refusal(file, wordsFor(failure));
    context.print(imported);
    return 0;
}

} // namespace zdt
