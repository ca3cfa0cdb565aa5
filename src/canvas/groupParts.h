#pragma once

#include "canvas/canvasGeometry.h"
#include "lockscreen/lockDesign.h"

#include <cstddef>
#include <vector>

namespace zdt {

class Workbench;

/// How many children of an element follow it as the parts of a group.
inline constexpr std::size_t maxGroupParts = 10;

/// A part of a group: which child of its element it is, and where it lies.
struct GroupPart {
    std::size_t child = 0;
    EdgeRect rect;

    friend bool operator==(const GroupPart&, const GroupPart&) = default;
};

/// The parts of the groups in a lock screen's document.
class GroupParts {
public:
    GroupParts() = default;
    virtual ~GroupParts();
    GroupParts(const GroupParts&) = delete;
    GroupParts& operator=(const GroupParts&) = delete;

    /// Those among the first `maxGroupParts` children that have a place of their own.
    [[nodiscard]] virtual std::vector<GroupPart> read(const ElementPath& group) const = 0;
    /// Gives parts other places: all of them, or none and false.
    [[nodiscard]] virtual bool write(const ElementPath& group, const std::vector<GroupPart>& parts) = 0;
};

/// Those of the open theme. What is written reaches disk when the page applies the block of the design.
class StoreGroupParts : public GroupParts {
public:
    explicit StoreGroupParts(Workbench& bench)
        : _bench(bench) {}

    [[nodiscard]] std::vector<GroupPart> read(const ElementPath& group) const override;
    [[nodiscard]] bool write(const ElementPath& group, const std::vector<GroupPart>& parts) override;

private:
    Workbench& _bench;
};

/// Lets the parts of a group follow it from one place to another: moved with it, or resized if its size changed.
[[nodiscard]] std::vector<GroupPart> followingParts(std::vector<GroupPart> parts, const EdgeRect& before,
                                                    const EdgeRect& after);

/// The same for a single rectangle.
[[nodiscard]] EdgeRect followingPart(const EdgeRect& part, const EdgeRect& before, const EdgeRect& after);

} // namespace zdt
