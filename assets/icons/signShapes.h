#pragma once

#include "assets/art/shapes.h"

#include <QPainterPath>
#include <QPolygonF>

#include <span>
#include <string_view>

/// The outlines that signs are made of, on an icon's side.
namespace zdt::assets {

/// A line along an outline, with round ends and joints.
[[nodiscard]] QPainterPath thickLine(std::string_view outline, double width);

/// The path, with its corners rounded by a line around it; it grows by half of `width`.
[[nodiscard]] QPainterPath swollen(const QPainterPath& path, double width);

[[nodiscard]] QPainterPath turned(const QPainterPath& path, double degrees);

/// Where shapes together seem to have their middle: between that of their bounds and that of what they cover.
[[nodiscard]] QPointF opticalCentre(std::span<const QPainterPath> shapes);

/// The path scaled so that it looks as large as others, full ones becoming smaller than open ones, with its optical
/// centre in the middle of the icon.
/// @param side that no dimension exceeds
[[nodiscard]] QPainterPath balanced(const QPainterPath& path, double side);

/// A cloud about the middle, 104 wide and 69 high.
[[nodiscard]] QPainterPath cloudShape();

/// The path without its holes, which are the lines that run against the largest.
[[nodiscard]] QPainterPath silhouette(const QPainterPath& path);

} // namespace zdt::assets
