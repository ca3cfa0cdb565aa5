#include "cli/commands.h"
#include "store/keyText.h"

namespace zdt {

namespace {

Json describe(const ThemeResource& theme, const KeyPath& group, const std::string& item) {
    Json sources = Json::array();
    for (const ResNode* each : theme.simpleSources(group, item))
        sources.push_back(keyTextOf(*each));
    return {{"module", group[0]},
            {"group", group[1]},
            {"item", item},
            {"value", theme.simpleValue(group, item)},
            {"sources", sources}};
}

/// Calls `take` with the group's path and the name of each item, in the tree's order.
template <typename Take>
void forItems(const ThemeResource& theme, Take take) {
    for (const std::string& module : theme.simpleNames({})) {
        for (const std::string& group : theme.simpleNames({module})) {
            for (const std::string& item : theme.simpleNames({module, group}))
                take(KeyPath{module, group}, item);
        }
    }
}

void requireSettable(const ThemeResource& theme, const SharedSetting& setting, const std::string& text) {
    if (theme.simpleSources(setting.group, setting.item).empty())
        throw Refusal(text, "there is no such setting; \"zdt simple NAME\" lists them (" +
                                std::to_string(returnCode::notFound) + ")");
    if (!theme.simpleTakesPart(setting.group, setting.item))
        throw takesNoPart(text);
}

} // namespace

int simpleCommand(const Context& context, const std::string& name) {
    const auto theme = openListed(context, name);
    Json list = Json::array();
    std::vector<std::string> lines;
    forItems(*theme, [&](const KeyPath& group, const std::string& item) {
        if (context.json)
            list.push_back(describe(*theme, group, item));
        else
            lines.push_back(
                group[0] + "\t" + group[1] + "\t" + item + "\t" +
                (theme->simpleTakesPart(group, item) ? theme->simpleValue(group, item) : "(not in this theme)"));
    });
    context.print(list, lines);
    return 0;
}

int setSimpleCommand(const Context& context, const std::string& name, const SharedSetting& setting) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    const std::string text = joinKeyPath(setting.group) + "/" + setting.item;
    requireSettable(*theme, setting, text);
    requireKeepable(text, setting.value);
    const int code = theme->changeSimpleValue(setting.group, setting.item, setting.value);
    if (code == returnCode::copyFailed)
        throw Refusal(text, "it couldn't be written everywhere, and is as it was");
    if (code != returnCode::success)
        throw Refusal(text, code);
    return 0;
}

} // namespace zdt
