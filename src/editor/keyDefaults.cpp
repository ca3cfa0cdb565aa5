#include "editor/keyDefaults.h"

#include "lockscreen/unlockConfigNode.h"
#include "modules/themeNode.h"
#include "store/themeResource.h"

#include <map>

namespace zdt {

namespace {

constexpr const char* lockConfig = "unlock/config";
constexpr const char* lockStyle = "style";

} // namespace

ResNode& defaultsFor(const ThemeResource& theme) {
    static std::map<TypeMask, ThemeNode> trees;
    const TypeMask mask = theme.tree().typeMask();
    return trees.try_emplace(mask, mask, std::string()).first->second;
}

std::string defaultTextOf(const std::string& block, const std::string& name, const ResNode* standing) {
    if (block == lockConfig && name == lockStyle)
        return unlockType::amazing; // The lock of a new theme, which the tree of none doesn't know.
    return standing ? standing->value() : std::string();
}

std::string defaultTextOf(const ThemeResource& theme, const ResNode& leaf) {
    if (!leaf.parent())
        return {};
    const KeyPath path = leaf.parent()->keyPath();
    const ResNode* block = defaultsFor(theme).findByPath(path);
    // Namesakes stand in the same order in both.
    const ResNode* standing = block ? block->findChild(leaf.name()) : nullptr;
    const ResNode* counted = leaf.parent()->findChild(leaf.name());
    for (; standing && counted != &leaf; counted = leaf.parent()->findChild(leaf.name(), counted))
        standing = block->findChild(leaf.name(), standing);
    return defaultTextOf(joinKeyPath(path), leaf.name(), standing);
}

} // namespace zdt
