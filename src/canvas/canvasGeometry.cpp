#include "canvas/canvasGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zdt {

namespace {

constexpr int farthest = 1'000'000;

int limited(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, -farthest, farthest));
}

/// Before the cast: a document may give an item any ratio, and what it leads to need not fit a whole number.
int rounded(double value) {
    return static_cast<int>(std::lround(std::clamp<double>(value, -farthest, farthest)));
}

bool isLeft(Corner corner) {
    return corner == Corner::topLeft || corner == Corner::bottomLeft;
}

bool isTop(Corner corner) {
    return corner == Corner::topLeft || corner == Corner::topRight;
}

/// Whether `value` is within the reach of an edge of a side of that length.
bool isNear(int value, int edge, int side) {
    return std::abs(value - edge) < std::min(cornerReach, side / 3);
}

EdgeRect freelyResized(EdgeRect rect, Corner corner, const QPoint& way) {
    if (isLeft(corner))
        rect.left = std::min(rect.left + way.x(), rect.right - minItemSide);
    else
        rect.right = std::max(rect.right + way.x(), rect.left + minItemSide);
    if (isTop(corner))
        rect.top = std::min(rect.top + way.y(), rect.bottom - minItemSide);
    else
        rect.bottom = std::max(rect.bottom + way.y(), rect.top + minItemSide);
    return rect;
}

/// A rectangle of that size whose corner opposite to `corner` stays.
EdgeRect withSize(EdgeRect rect, Corner corner, int width, int height) {
    (isLeft(corner) ? rect.left : rect.right) = isLeft(corner) ? rect.right - width : rect.left + width;
    (isTop(corner) ? rect.top : rect.bottom) = isTop(corner) ? rect.bottom - height : rect.top + height;
    return rect;
}

EdgeRect resizedInRatio(const EdgeRect& rect, const ResizeRule& rule, int wantedWidth, const DesignSpace& space) {
    const double width = rect.width();
    const double height = rule.ratio > 0 ? width * rule.ratio : rect.height();
    const double room = isTop(rule.corner) ? rect.bottom : space.height - rect.top;
    // What is below the smallest side already isn't made larger by a hand that makes it smaller.
    const double least = std::min(1.0, std::max(minItemSide / width, minItemSide / height));
    const double factor = std::max(least, std::min(wantedWidth / width, room / height));
    return withSize(rect, rule.corner, rounded(width * factor), rounded(height * factor));
}

} // namespace

bool EdgeRect::contains(const QPoint& point) const {
    return point.x() >= left && point.x() < right && point.y() >= top && point.y() < bottom;
}

EdgeRect EdgeRect::grownBy(int margin) const {
    return {left - margin, top - margin, right + margin, bottom + margin};
}

EdgeRect EdgeRect::movedBy(const QPoint& way) const {
    const std::int64_t x = way.x();
    const std::int64_t y = way.y();
    return {limited(left + x), limited(top + y), limited(right + x), limited(bottom + y)};
}

EdgeRect bounded(const EdgeRect& rect) {
    return {limited(rect.left), limited(rect.top), limited(rect.right), limited(rect.bottom)};
}

EdgeRect edgesOf(const DesignRect& rect) {
    return {limited(rect.x), limited(rect.y), limited(std::int64_t{rect.x} + rect.width),
            limited(std::int64_t{rect.y} + rect.height)};
}

DesignRect designRectOf(const EdgeRect& rect) {
    return {rect.left, rect.top, rect.width(), rect.height()};
}

bool overlap(const EdgeRect& one, const EdgeRect& other) {
    return std::max(one.left, other.left) < std::min(one.right, other.right) &&
           std::max(one.top, other.top) < std::min(one.bottom, other.bottom);
}

QRect screenIn(const QSize& control, const DesignSpace& space) {
    if (control.isEmpty())
        return {};
    const QSize size = space.size().scaled(control, Qt::KeepAspectRatio);
    return {QPoint((control.width() - size.width()) / 2, (control.height() - size.height()) / 2), size};
}

QPoint toDesign(const QPoint& point, const QRect& screen, const DesignSpace& space) {
    if (screen.isEmpty())
        return {};
    const int x = std::clamp(point.x() - screen.x(), 0, screen.width());
    const int y = std::clamp(point.y() - screen.y(), 0, screen.height());
    return {limited(std::int64_t{x} * DesignSpace::width / screen.width()),
            limited(std::int64_t{y} * space.height / screen.height())};
}

QPoint wayInDesign(const QPoint& way, const QRect& screen, const DesignSpace& space) {
    if (screen.isEmpty())
        return {};
    return {static_cast<int>(way.x() * double{DesignSpace::width} / screen.width()),
            static_cast<int>(way.y() * static_cast<double>(space.height) / screen.height())};
}

Corner cornerAt(const EdgeRect& rect, const QPoint& point) {
    const bool left = isNear(point.x(), rect.left, rect.width());
    const bool right = isNear(point.x(), rect.right, rect.width());
    const bool top = isNear(point.y(), rect.top, rect.height());
    const bool bottom = isNear(point.y(), rect.bottom, rect.height());
    if (top && (left || right))
        return left ? Corner::topLeft : Corner::topRight;
    if (bottom && (left || right))
        return left ? Corner::bottomLeft : Corner::bottomRight;
    return Corner::none;
}

int itemAt(const std::vector<HitArea>& items, const QPoint& point) {
    for (int index = static_cast<int>(items.size()) - 1; index >= 0; --index) {
        const HitArea& item = items[static_cast<std::size_t>(index)];
        const bool byHandle = item.hasHandles && cornerAt(item.rect, point) != Corner::none;
        if ((byHandle ? item.rect.grownBy(handleMargin) : item.rect).contains(point))
            return index;
    }
    return -1;
}

EdgeRect resized(const EdgeRect& rect, const ResizeRule& rule, const QPoint& way, const DesignSpace& space) {
    if (rule.corner == Corner::none)
        return rect;
    const EdgeRect free = bounded(freelyResized(rect, rule.corner, way));
    if (!rule.ratioLocked || rect.width() <= 0 || rect.height() <= 0)
        return free;
    return bounded(resizedInRatio(rect, rule, free.width(), space));
}

EdgeRect resizedPart(const EdgeRect& part, const EdgeRect& groupBefore, const EdgeRect& groupAfter) {
    if (part.width() <= 0 || groupBefore.width() <= 0)
        return part;
    const double factor = static_cast<double>(groupAfter.width()) / groupBefore.width();
    const int width = rounded(part.width() * factor);
    const int height = rounded(part.height() * factor);
    const int left = groupAfter.left + (groupAfter.width() - width) / 2;
    const int top = groupAfter.top + (groupAfter.height() - height) / 2;
    return bounded({left, top, left + width, top + height});
}

QRectF fittedPlace(const QSize& picture, const EdgeRect& rect) {
    if (picture.isEmpty() || rect.width() <= 0 || rect.height() <= 0)
        return {};
    const double factor = std::min({1.0, static_cast<double>(rect.width()) / picture.width(),
                                    static_cast<double>(rect.height()) / picture.height()});
    const QSizeF size = QSizeF(picture) * factor;
    return {QPointF(rect.left + (rect.width() - size.width()) / 2, rect.top + (rect.height() - size.height()) / 2),
            size};
}

} // namespace zdt
