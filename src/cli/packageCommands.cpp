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
    if (isStorePath(storeRoot(context.root), file))
        throw Refusal(file, "a package can't stand among the themes, their settings or the work in tmp/");
    if (!theme->exportTo(file, context.progress("export")))
        throw Refusal(file, "the package couldn't be written");
    return 0;
}

int importCommand(const Context& context, const std::string& file, bool replace) {
    if (!pathExists(file))
        throw Refusal(file, wordsFor(ImportFailure::missing));
    const std::string name = stem(file);
    const ChangeLock lock(context);
    requireNoStranger(context, name);
    if (!replace && isListed(context, name))
        throw Refusal(name, "there is a theme of that name already; --replace puts the package in its place");
    std::string imported;
    ImportFailure failure = ImportFailure::none;
    if (!ThemeResource::importTheme(file, imported, context.root, &failure, context.progress("import")))
        throw Refusal(file, wordsFor(failure));
    context.print(imported);
    return 0;
}

} // namespace zdt
