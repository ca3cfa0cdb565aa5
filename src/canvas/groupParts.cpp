#include "canvas/groupParts.h"

#include "kit/workbench.h"
#include "store/themeResource.h"

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

ElementPath childPath(ElementPath group, std::size_t child) {
    group.push_back(child);
    return group;
}

bool place(ThemeResource& theme, const ElementPath& group, const GroupPart& part) {
    return theme.setLockElementRect(childPath(group, part.child), designRectOf(part.rect)) == 0;
}

} // namespace

GroupParts::~GroupParts() = default;

std::vector<GroupPart> StoreGroupParts::read(const ElementPath& group) const {
    std::vector<GroupPart> parts;
    const ThemeResource* theme = _bench.theme();
    const AmazingChild* element = theme ? theme->amazingNode().design().find(group) : nullptr;
    if (!element)
        return parts;
    const std::size_t count = std::min(element->children().size(), maxGroupParts);
    for (std::size_t child = 0; child < count; ++child) {
        const auto rect = theme->amazingNode().design().rectOf(childPath(group, child));
        // Animations and triggers are children too, and lie nowhere.
        if (rect && rect->width > 0 && rect->height > 0)
            parts.push_back({child, edgesOf(*rect)});
    }
    return parts;
}

bool StoreGroupParts::write(const ElementPath& group, const std::vector<GroupPart>& parts) {
    ThemeResource* theme = _bench.theme();
    if (!theme)
        return parts.empty();
    const std::vector<GroupPart> before = read(group);
    const auto failed = std::ranges::find_if(parts, [&](const GroupPart& part) { return !place(*theme, group, part); });
    if (failed == parts.end())
        return true;
    for (const GroupPart& part : before)
        static_cast<void>(place(*theme, group, part));
    return false;
}

EdgeRect followingPart(const EdgeRect& part, const EdgeRect& before, const EdgeRect& after) {
    if (before.width() == after.width() && before.height() == after.height())
        return part.movedBy({after.left - before.left, after.top - before.top});
    return resizedPart(part, before, after);
}

std::vector<GroupPart> followingParts(std::vector<GroupPart> parts, const EdgeRect& before, const EdgeRect& after) {
    for (GroupPart& part : parts)
        part.rect = followingPart(part.rect, before, after);
    return parts;
}

} // namespace zdt
