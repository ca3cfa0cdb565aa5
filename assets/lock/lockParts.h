#pragma once

#include "assets/art/generation.h"
#include "assets/art/shapes.h"
#include "assets/art/softShape.h"
#include "assets/lock/lockLook.h"

#include <QBrush>
#include <QPainter>
#include <QPainterPath>

/// What the pictures of the lock screens are made of.
namespace zdt::assets {

[[nodiscard]] inline QSize sizeOf(const Cell& cell) {
    return {cell.width, cell.height};
}

/// An angle with its point upwards.
[[nodiscard]] QPainterPath chevronUp(QPointF point, double halfWidth, double height);

/// From one colour above to another below.
[[nodiscard]] QBrush downwards(const QRectF& area, QRgb top, QRgb bottom);

/// A surface in the material of the language, above its shadow, for which `area` leaves `shadowRoom` on each side.
void drawCard(QPainter& painter, const QRectF& area, double radius, const Generation& generation);

/// A knob or button that is on: paper tile, sun or light, with a sign on it.
void drawAccent(QPainter& painter, const QRectF& area, char32_t sign, double signSide, const Generation& generation);

} // namespace zdt::assets
