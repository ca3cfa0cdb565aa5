#include "cli/keyText.h"

#include "modules/themeNode.h"
#include "store/themeResource.h"
#include "support/pattern.h"

#include <charconv>
#include <vector>

namespace zdt {

namespace {

ResNode* firstApplicable(const ResNode& block, const std::string& name) {
    ResNode* const first = block.findChild(name);
    for (ResNode* node = first; node; node = block.findChild(name, node)) {
        if (node->isApplicable())
            return node;
    }
    return first;
}

/// Takes a number off the end of a name: false if it has none.
bool splitNumber(std::string& name, int& number) {
    std::vector<std::string> groups;
    if (!matchesPattern(name, R"((.+)#(\d{1,4}))", groups))
        return false;
    std::from_chars(groups[1].data(), groups[1].data() + groups[1].size(), number);
    name = groups[0];
    return true;
}

ResNode* nthNamesake(const ResNode& block, const std::string& name, int number) {
    ResNode* node = number > 0 ? block.findChild(name) : nullptr;
    for (int counted = 1; node && counted < number; ++counted)
        node = block.findChild(name, node);
    return node;
}

} // namespace

Key findKey(const ThemeResource& theme, const std::string& text) {
    Key key;
    key.block = splitKeyPath(text);
    if (key.block.empty())
        return key;
    key.name = key.block.back();
    key.block.pop_back();
    const ResNode* block = theme.tree().findByPath(key.block);
    if (!block)
        return key;
    key.node = firstApplicable(*block, key.name);
    if (!key.node && splitNumber(key.name, key.number))
        key.node = nthNamesake(*block, key.name, key.number);
    return key;
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
