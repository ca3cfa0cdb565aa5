#include "store/keyText.h"

#include "model/resNode.h"
#include "store/themeResource.h"
#include "support/pattern.h"

#include <charconv>
#include <vector>

namespace zdt {

namespace {

/// Takes a number off the end of a name; false if it has none.
bool splitNumber(std::string& name, int& number) {
    std::vector<std::string> groups;
    if (!matchesPattern(name, R"((.+)#(\d{1,4}))", groups))
        return false;
    std::from_chars(groups[1].data(), groups[1].data() + groups[1].size(), number);
    name = groups[0];
    return true;
}

} // namespace

Key findKey(const ThemeResource& theme, const std::string& text) {
    Key key;
    key.block = splitKeyPath(text);
    if (key.block.empty())
        return key;
    key.name = key.block.back();
    key.block.pop_back();
    key.node = theme.findLeaf(key.block, key.name);
    if (!key.node && splitNumber(key.name, key.number))
        key.node = theme.findNthNode(key.namesakes(), key.number);
    return key;
}

KeyPath Key::namesakes() const {
    KeyPath path = block;
    path.push_back(name);
    return path;
}

std::string keyTextOf(const ResNode& node) {
    std::string text = joinKeyPath(node.keyPath());
    int number = 1;
    const ResNode* namesake = node.parent() ? node.parent()->findChild(node.name()) : &node;
    for (; namesake != &node; namesake = node.parent()->findChild(node.name(), namesake))
        ++number;
    return number == 1 ? text : text + "#" + std::to_string(number);
}

} // namespace zdt
