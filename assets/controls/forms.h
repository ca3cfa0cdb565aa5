#pragma once

#include "assets/art/generation.h"

#include <QPainterPath>
#include <QRectF>

/// The outlines of controls.
namespace zdt::assets {

/// The corners of a box. Pixels.
struct Corner {
    double radius; ///< Of the arc that cuts off as much.
    double extent; ///< How far it runs along the sides: the radius for an arc, more for a softer start.

    /// That of a box whose sides lie this far inside.
    [[nodiscard]] Corner inset(double by) const;
};

[[nodiscard]] QPainterPath roundedBox(const QRectF& box, const Corner& corner);

/// The ground of a sign: a rounded square, a disc or a superellipse.
[[nodiscard]] QPainterPath tileForm(const QRectF& box, Language language);

/// A small ground, such as a knob: as a tile, but a disc where that is a superellipse.
[[nodiscard]] QPainterPath knobForm(const QRectF& box, Language language);

/// A message whose tail, `tailWidth` wide, lies at the left of its body and reaches down to its lower edge.
[[nodiscard]] QPainterPath bubbleForm(const QRectF& body, const Corner& corner, double tailWidth, Language language);

/// A label that points to the right. Its body's middle is left of the box's.
[[nodiscard]] QPainterPath pointerForm(const QRectF& box, Language language);
/// The square on which a letter or sign stands in such a label.
[[nodiscard]] QRectF pointerBody(const QRectF& box);

} // namespace zdt::assets
