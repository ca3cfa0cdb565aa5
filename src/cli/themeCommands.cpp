#include "cli/commands.h"
#include "model/template.h"
#include "modules/themeNode.h"
#include "store/themeLayout.h"
#include "support/files.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

namespace zdt {

namespace {

constexpr const char* settingsNotWritten = "its settings couldn't be written";

const char* generationName(unsigned index) {
    static constexpr std::array<const char*, generationCount + 1> names{"5", "8", "9", "none"};
    return names.at(index);
}

const char* onOff(bool on) {
    return on ? "on" : "off";
}

} // namespace

std::string maskText(TypeMask mask) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "0x%08x", mask);
    return text.data();
}

bool isListed(const Context& context, const std::string& name) {
    const std::vector<std::string> names = ThemeResource::listThemes(context.root);
    return std::find(names.begin(), names.end(), name) != names.end();
}

void requireNoStranger(const Context& context, const std::string& name) {
    const std::string place = parentPath(themeFolder(storeRoot(context.root), name));
    if (isThemeName(name) && isTaken(place) && !isListed(context, name))
        throw Refusal(name, "something stands in its place that is no theme: " + place);
}

void requireListed(const Context& context, const std::string& name) {
    if (!isListed(context, name))
        throw Refusal(name, "there is no theme of that name");
}

ChangeLock::ChangeLock(const Context& context)
    : _lock(themesFolder(storeRoot(context.root))) {
    if (!_lock.isHeld())
        throw Refusal(context.root, "the store can't be written to");
}

std::unique_ptr<ThemeResource> openListed(const Context& context, const std::string& name) {
    requireListed(context, name);
    try {
        return ThemeResource::openTheme(name, ThemeResource::hasChineseSettings(name, context.root), context.root);
    } catch (const std::invalid_argument& error) {
        throw Refusal(name, error.what());
    }
}

int listCommand(const Context& context) {
    if (!isFolder(context.root))
        throw Refusal(context.root, "there is no such folder");
    const std::vector<std::string> names = ThemeResource::listThemes(context.root);
    context.print(names, names);
    return 0;
}

int newCommand(const Context& context, const NewTheme& request) {
    if (!isThemeName(request.name))
        throw Refusal(request.name, returnCode::notAllowed);
    const ChangeLock lock(context);
    if (isListed(context, request.name))
        throw Refusal(request.name, "there is a theme of that name already");
    requireNoStranger(context, request.name);
    const std::string source = locateTemplate(storeRoot(context.root), request.versionIndex);
    if (!isFolder(source))
        throw Refusal(request.name, "there is no template " + source);
    auto theme = ThemeResource::createTheme(request.name, request.versionIndex, request.small ? 1 : 0, false,
                                            !request.english, context.root);
    if (!theme)
        throw Refusal(request.name, "the template couldn't be copied into the store");
    if (!theme->saveSettings()) {
        // Without its settings a small theme would open as a big one.
        theme.reset();
        static_cast<void>(ThemeResource::deleteTheme(request.name, context.root));
        throw Refusal(request.name, settingsNotWritten);
    }
    return 0;
}

int infoCommand(const Context& context, const std::string& name) {
    const auto theme = openListed(context, name);
    const std::uint64_t bytes = ThemeResource::themeSize(name, context.root);
    Json description = Json::object();
    std::vector<std::string> lines{"name: " + name, std::string("generation: ") + generationName(theme->version()),
                                   "mask: " + maskText(theme->tree().typeMask()),
                                   std::string("kind: ") + (theme->isBigTheme() ? "big" : "small"),
                                   std::string("language: ") + (theme->isChinese() ? "Chinese" : "other")};
    for (const DescriptionField& field : descriptionFields) {
        const std::string key(field.key);
        description[key] = theme->getValue({}, key);
        lines.push_back(key + ": " + theme->getValue({}, key));
    }
    const bool calendar = theme->hasDynamicIcon(DynamicIcon::calendar);
    const bool clock = theme->hasDynamicIcon(DynamicIcon::clock);
    const bool weather = theme->hasDynamicIcon(DynamicIcon::weather);
    lines.push_back("bytes: " + std::to_string(bytes));
    lines.push_back(std::string("dynamic icons: calendar ") + onOff(calendar) + ", clock " + onOff(clock) +
                    ", weather " + onOff(weather));
    context.print({{"name", name},
                   {"generation", theme->version()},
                   {"mask", maskText(theme->tree().typeMask())},
                   {"big", theme->isBigTheme()},
                   {"chinese", theme->isChinese()},
                   {"description", description},
                   {"bytes", bytes},
                   {"dynamic", {{"calendar", calendar}, {"deskclock", clock}, {"weather", weather}}}},
                  lines);
    return 0;
}

int deleteCommand(const Context& context, const std::string& name) {
    requireListed(context, name);
    const ChangeLock lock(context);
    if (!ThemeResource::deleteTheme(name, context.root))
        throw Refusal(name, "not all of it could be removed");
    return 0;
}

int generationCommand(const Context& context, const std::string& name, unsigned versionIndex) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    if (!theme->changeGeneration(versionIndex))
        throw Refusal(name, "its description or settings couldn't be written");
    std::vector<Problem> problems;
    static_cast<void>(theme->checkFiles(problems));
    printProblems(context, problems);
    return 0;
}

int dynamicCommand(const Context& context, const std::string& name, DynamicIcon icon, bool has) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    theme->setDynamicIcon(icon, has);
    if (!theme->saveSettings())
        throw Refusal(name, settingsNotWritten);
    return 0;
}

} // namespace zdt
