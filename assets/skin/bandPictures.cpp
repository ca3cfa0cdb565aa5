#include "assets/skin/bandPictures.h"

#include "kit/tokens.h"

#include <QPainter>

#include <cmath>

namespace zdt::assets {

namespace {

/// Of the dashes. A screen that is designed is shown at less than a quarter of its size.
constexpr double weight = 6;

/// Half a dash at both ends, so that the corners of a frame are closed.
void drawDashes(QPainter& painter, QPointF from, QPointF to, QColor colour) {
    constexpr double wanted = 40;
    constexpr double dash = 0.6;
    const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
    const double period = length / std::round(length / wanted);
    QPen pen(colour, weight, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({period * dash / weight, period * (1 - dash) / weight});
    pen.setDashOffset(period * dash / 2 / weight);
    painter.setPen(pen);
    painter.drawLine(from, to);
}

void paintBand(QPainter& painter, const QRectF& area, QColor fill, QColor line) {
    painter.fillRect(area, fill);
    const QRectF frame = area.adjusted(weight / 2, weight / 2, -weight / 2, -weight / 2);
    drawDashes(painter, {area.left(), frame.top()}, {area.right(), frame.top()}, line);
    drawDashes(painter, {area.left(), frame.bottom()}, {area.right(), frame.bottom()}, line);
    drawDashes(painter, {frame.left(), area.top()}, {frame.left(), area.bottom()}, line);
    drawDashes(painter, {frame.right(), area.top()}, {frame.right(), area.bottom()}, line);
}

} // namespace

void paintUnlockBand(QPainter& painter, const QRectF& area) {
    paintBand(painter, area, token::outlineFill, token::accent);
}

void paintBottomBand(QPainter& painter, const QRectF& area) {
    paintBand(painter, area, token::outsideFill, token::outsideLine);
}

} // namespace zdt::assets
