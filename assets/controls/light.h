#pragma once

#include <QPainterPath>
#include <QRgb>
#include <QSize>

#include <span>

class QPainter;

namespace zdt::assets {

/// A shadow or a light that a shape casts: the shape's blurred copy, moved. Pixels.
struct Cast {
    double dx;
    double dy;
    double sigma; ///< Of the normal distribution that blurs it; 0 for a hard edge.
    QRgb colour;
};

/// The cast of a shape `scale` times as far above the ground.
[[nodiscard]] Cast scaled(const Cast& cast, double scale);

/// How many pixels away from an edge the cast depends on the edge; farther off, it is the same all along a straight
/// one.
[[nodiscard]] int reachOf(const Cast& cast);

/// Paints what falls beside a shape, and nothing on it, so that the ground doesn't darken translucent shapes. Draw the
/// shape itself with `QPainter::CompositionMode_Plus` to close the seam.
/// @param size of the whole picture
void castOutside(QPainter& painter, QSize size, const QPainterPath& shape, std::span<const Cast> casts);

/// Paints what the edge around a hole of this shape casts into it; on the picture's border there is no edge if the
/// shape goes on beyond it.
void castInside(QPainter& painter, QSize size, const QPainterPath& shape, std::span<const Cast> casts);

} // namespace zdt::assets
