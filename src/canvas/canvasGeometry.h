#pragma once

#include "lockscreen/lockDesign.h"

#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <vector>

/// Where things lie on the canvas, and what a hand does to them: all without a widget. Lengths are pixels of the design
/// space, unless control pixels are said, and rectangles end before their right and bottom edge.
namespace zdt {

/// The space in which a lock screen is designed.
struct DesignSpace {
    static constexpr int width = 1080;
    static constexpr int lowHeight = 1920;
    static constexpr int highHeight = 2160;

    int height = lowHeight;
    bool isMode2 = false; ///< Whether the theme is of the generation with the high screen.

    [[nodiscard]] QSize size() const { return {width, height}; }
    friend bool operator==(const DesignSpace&, const DesignSpace&) = default;
};

/// A rectangle by its four edges. A width or height may be 0, and below 0 for what a document says wrongly.
struct EdgeRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] int width() const { return right - left; }
    [[nodiscard]] int height() const { return bottom - top; }
    [[nodiscard]] bool contains(const QPoint& point) const;
    [[nodiscard]] EdgeRect grownBy(int margin) const;
    [[nodiscard]] EdgeRect movedBy(const QPoint& way) const;
    friend bool operator==(const EdgeRect&, const EdgeRect&) = default;
};

/// The edges of an element. Whatever its numbers, they lie within a million of the corner, so that any sum of theirs
/// fits.
[[nodiscard]] EdgeRect edgesOf(const DesignRect& rect);
[[nodiscard]] EdgeRect bounded(const EdgeRect& rect);
[[nodiscard]] DesignRect designRectOf(const EdgeRect& rect);

/// Whether both share area: edges that touch don't.
[[nodiscard]] bool overlap(const EdgeRect& one, const EdgeRect& other);

/// The largest place of the space's proportions in the middle of a control, in control pixels; empty if it has no area.
[[nodiscard]] QRect screenIn(const QSize& control, const DesignSpace& space);

/// A point of the control, first brought into `screen`, in the design space. The corner of it on an empty screen.
[[nodiscard]] QPoint toDesign(const QPoint& point, const QRect& screen, const DesignSpace& space);

/// A way of the hand in control pixels, in those of the design space, without their fractions; none on an empty screen.
[[nodiscard]] QPoint wayInDesign(const QPoint& way, const QRect& screen, const DesignSpace& space);

/// Where an item is taken hold of.
struct HitArea {
    EdgeRect rect;
    bool hasHandles = false; ///< Its corners can be taken hold of from `handleMargin` outside.
};

enum class Corner { none, topLeft, topRight, bottomLeft, bottomRight };

/// How near a corner takes hold of it, exclusive, in x and in y.
inline constexpr int cornerReach = 40;
/// How far beyond its edges a selected item is taken hold of at its corners.
inline constexpr int handleMargin = 10;
/// The smallest width and height that a hand can give.
inline constexpr int minItemSide = 25;

/// The corner near a point, `none` in a rectangle's middle. On a side shorter than three reaches a corner has a third
/// of it, so that what is small can still be moved.
[[nodiscard]] Corner cornerAt(const EdgeRect& rect, const QPoint& point);

/// The last of the items, which are in the order of painting, that a point hits; -1 for none.
[[nodiscard]] int itemAt(const std::vector<HitArea>& items, const QPoint& point);

/// What a resize by a corner may do.
struct ResizeRule {
    Corner corner = Corner::none;
    bool ratioLocked = false;
    double ratio = 0; ///< Height by width to be kept; that of the rectangle itself for 0.
};

/// A rectangle with the edges of a corner moved. An edge is held `minItemSide` from the opposite one. With a locked
/// ratio the height follows the width, which is less where the height would leave the space.
[[nodiscard]] EdgeRect resized(const EdgeRect& rect, const ResizeRule& rule, const QPoint& way,
                               const DesignSpace& space);

/// A part of a group that was resized: as much wider as the group, of its own ratio, in the middle of the group.
[[nodiscard]] EdgeRect resizedPart(const EdgeRect& part, const EdgeRect& groupBefore, const EdgeRect& groupAfter);

/// Where a picture is drawn in a rectangle: in its middle, no larger than it and in its own proportions, never
/// enlarged. Empty for a picture or rectangle without area.
[[nodiscard]] QRectF fittedPlace(const QSize& picture, const EdgeRect& rect);

} // namespace zdt
