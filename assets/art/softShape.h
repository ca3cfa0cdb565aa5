#pragma once

#include "assets/art/field.h"

#include <QImage>
#include <QPainterPath>
#include <QRect>
#include <QRgb>

#include <span>

class QPainter;

/// Shadows and lights: what a shape covers, blurred or drawn out, in a colour. All in pixels.
namespace zdt::assets {

/// How many pixels away from an edge a blur of the normal distribution `sigma` is still seen.
[[nodiscard]] int blurReach(double sigma);

/// The part of `area` that a shape covers.
[[nodiscard]] Mask coverageOf(const QPainterPath& shape, const QRect& area);
/// The same of the shape blurred by the normal distribution; 0 for a hard edge. It may lie partly outside of the area.
[[nodiscard]] Mask softCoverageOf(const QPainterPath& shape, const QRect& area, double sigma);

/// The colour, as much of it as the mask covers.
[[nodiscard]] QImage tinted(const Mask& mask, QRgb colour);

/// Fills the blurred shape.
void paintSoft(QPainter& painter, const QPainterPath& shape, QRgb colour, double sigma);

/// Fills the shape and what is around it, in all of the colour at its edge and gone at `reach` pixels from it. So thin
/// lines shine as strongly as wide shapes, which a blur would make fainter.
void paintGlow(QPainter& painter, const QPainterPath& shape, QRgb colour, double reach);

/// The hard shadow that a sign of paper throws to the lower right, no farther than its tile goes and weaker on its way.
/// @param shapes that the sign is made of
void paintLongShadow(QPainter& painter, std::span<const QPainterPath> shapes, const QPainterPath& tile, QRgb colour);

} // namespace zdt::assets
