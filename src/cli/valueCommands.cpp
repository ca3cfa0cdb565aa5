#include "cli/commands.h"
#include "model/fileResNode.h"
#include "model/textResNode.h"
#include "modules/themeNode.h"
#include "store/keyText.h"
#include "support/text.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <typeinfo>

namespace zdt {

namespace {

/// The name of a node's class, without its namespace.
std::string classNameOf(const ResNode& node) {
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(typeid(node).name(), nullptr, nullptr, nullptr), &std::free);
    const std::string full = name ? name.get() : typeid(node).name();
    return full.substr(full.rfind(':') + 1);
}

void addFileRules(Json& entry, const FileResNode& file) {
    entry["kinds"] = file.allowedKinds();
    entry["maxBytes"] = file.maxBytes();
    entry["sizes"] = Json::array();
    for (const SizeRange& range : file.sizeRanges())
        entry["sizes"].push_back({range.minWidth, range.widthLimit, range.minHeight, range.heightLimit});
}

Json describe(const ResNode& node) {
    Json entry{{"key", keyTextOf(node)},
               {"class", classNameOf(node)},
               {"mask", maskText(node.typeMask())},
               {"applicable", node.isApplicable()},
               {"value", node.value()},
               {"path", node.path()},
               {"leaf", node.isLeaf()}};
    if (const auto* file = dynamic_cast<const FileResNode*>(&node))
        addFileRules(entry, *file);
    if (const auto* text = dynamic_cast<const TextResNode*>(&node))
        entry["regex"] = text->regex();
    if (const auto* colour = dynamic_cast<const ColorTextResNode*>(&node))
        entry["maxAlpha"] = colour->maxAlpha();
    return entry;
}

/// Looks a key up and refuses one that the theme doesn't have.
Key requireKey(const ThemeResource& theme, const std::string& text) {
    Key key = findKey(theme, text);
    if (!key.node)
        throw Refusal(text, returnCode::notFound);
    if (!key.node->isApplicable())
        throw takesNoPart(text);
    return key;
}

void setOne(ThemeResource& theme, const std::string& text, const std::string& value, std::vector<KeyPath>& touched) {
    if (text == "unlock/config" || text.starts_with("unlock/config/"))
        throw Refusal(text, "it follows the kind of lock screen");
    const Key key = requireKey(theme, text);
    const bool isText = dynamic_cast<const TextResNode*>(key.node) != nullptr;
    if (!isText && !dynamic_cast<const FileResNode*>(key.node))
        throw Refusal(text, "it isn't a single value");
    if (isText)
        requireKeepable(text, value);
    const int code = key.number > 0 ? theme.setValueNth(key.namesakes(), key.number, value)
                                    : theme.setValue(key.block, key.name, value);
    if (code != returnCode::success)
        throw Refusal(text, code);
    if (isText && std::find(touched.begin(), touched.end(), key.block) == touched.end())
        touched.push_back(key.block);
}

/// Applies all of them, and then tells the first that failed.
void applyBlocks(ThemeResource& theme, const std::vector<KeyPath>& blocks) {
    std::vector<KeyPath> failed = blocks;
    std::erase_if(failed, [&](const KeyPath& block) { return theme.applyNode(block); });
    if (!failed.empty())
        throw Refusal(failed.front().empty() ? "description" : joinKeyPath(failed.front()), "it couldn't be written");
}

} // namespace

void requireKeepable(const std::string& key, const std::string& value) {
    if (!isUtf8(value))
        throw Refusal(key, "the value isn't UTF-8");
    if (!isXmlText(value))
        throw Refusal(key, "the value holds a control character");
    if (!value.empty() && value.find_first_not_of(" \t\n") == std::string::npos)
        throw Refusal(key, "the value is nothing but blanks");
}

Refusal takesNoPart(const std::string& key) {
    return {key, "the key takes no part in this theme (" + std::to_string(returnCode::notFound) + ")"};
}

int treeCommand(const Context& context, const std::string& name) {
    const auto theme = openListed(context, name);
    Json list = Json::array();
    std::vector<std::string> lines;
    for (const ResNode* node : theme->tree().nodesInOrder()) {
        if (node == &theme->tree())
            continue;
        if (context.json)
            list.push_back(describe(*node));
        else
            lines.push_back(keyTextOf(*node) + "\t" + (node->isApplicable() ? "" : "-") + "\t" + node->value());
    }
    context.print(list, lines);
    return 0;
}

int getCommand(const Context& context, const std::string& name, const std::string& key) {
    const auto theme = openListed(context, name);
    context.print(requireKey(*theme, key).node->value());
    return 0;
}

int setCommand(const Context& context, const std::string& name, const std::vector<std::string>& pairs) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    std::vector<KeyPath> touched;
    try {
        for (std::size_t index = 0; index + 1 < pairs.size(); index += 2)
            setOne(*theme, pairs[index], pairs[index + 1], touched);
    } catch (const Refusal&) {
        applyBlocks(*theme, touched); // What came before the refusal counts.
        throw;
    }
    applyBlocks(*theme, touched);
    return 0;
}

int resetCommand(const Context& context, const std::string& name, const std::string& key) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    ResNode* node = requireKey(*theme, key).node;
    if (!dynamic_cast<const FileResNode*>(node))
        throw Refusal(key, "only a file can be put back to the template's");
    if (const int code = theme->restoreDefault(node))
        throw Refusal(key, code);
    return 0;
}

} // namespace zdt
