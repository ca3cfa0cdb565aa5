#pragma once

#include "assets/art/palette.h"

#include <QPainter>
#include <QPainterPath>

/// What most pictures are made of.
namespace zdt::assets {

/// A rectangle with rounded corners, filled and, unless `edge` is clear, with a line of `edgeWidth` inside its border.
inline void drawRounded(QPainter& painter, const QRectF& area, double radius, QRgb fill, QRgb edge = palette::clear,
                        double edgeWidth = 0) {
    // The line runs in its own middle; inset so, its outer side has the asked radius.
    const double inset = qAlpha(edge) ? edgeWidth / 2 : 0;
    painter.setBrush(palette::colour(fill));
    painter.setPen(qAlpha(edge) ? QPen(palette::colour(edge), edgeWidth) : QPen(Qt::NoPen));
    painter.drawRoundedRect(area.marginsRemoved({inset, inset, inset, inset}), radius - inset, radius - inset);
    painter.setPen(Qt::NoPen);
}

inline void drawDisc(QPainter& painter, QPointF middle, double radius, QRgb fill) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::colour(fill));
    painter.drawEllipse(middle, radius, radius);
}

[[nodiscard]] QRectF squareAt(QPointF middle, double side);
[[nodiscard]] QPainterPath discOutline(QPointF middle, double radius);
[[nodiscard]] QPainterPath roundedPath(const QRectF& area, double radius);

[[nodiscard]] QPen roundPen(const QBrush& brush, double width);
/// A line along a path, with round ends and joints.
[[nodiscard]] QPainterPath thickLine(const QPainterPath& path, double width);

} // namespace zdt::assets
