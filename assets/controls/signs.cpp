#include "assets/controls/signs.h"

#include "assets/art/outline.h"
#include "assets/art/palette.h"
#include "assets/art/picture.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace zdt::assets {

namespace {

QPointF towards(QPointF from, QPointF to, double way) {
    const QLineF line(from, to);
    return line.length() > 0 ? line.pointAt(std::min(way / line.length(), 0.5)) : from;
}

/// Curves begin `way` before each corner, at most half an edge.
QPainterPath roundCorners(const QPainterPath& path, double way) {
    QPainterPath rounded;
    for (QPolygonF line : path.toSubpathPolygons()) {
        const bool isClosed = line.isClosed();
        if (isClosed)
            line.removeLast();
        const qsizetype count = line.size();
        const qsizetype first = isClosed ? 0 : 1;
        rounded.moveTo(isClosed ? towards(line[0], line[count - 1], way) : line[0]);
        for (qsizetype index = first; index < count - first; ++index) {
            rounded.lineTo(towards(line[index], line[(index + count - 1) % count], way));
            rounded.quadTo(line[index], towards(line[index], line[(index + 1) % count], way));
        }
        if (isClosed)
            rounded.closeSubpath();
        else
            rounded.lineTo(line[count - 1]);
    }
    return rounded;
}

} // namespace

void drawSign(QPainter& painter, QSize size, char32_t sign, const QRectF& box, QRgb colour, const ControlStyle& style) {
    const QPainterPath path = signOutline(sign, box);
    const double gain = style.signWeight * std::min(box.width(), box.height());
    // On a layer of its own, from which a lighter sign's edge can be taken away.
    Canvas layer(size);
    layer.painter().fillPath(path, palette::colour(colour));
    if (gain < 0)
        layer.painter().setCompositionMode(QPainter::CompositionMode_DestinationOut);
    layer.painter().strokePath(
        path, QPen(palette::colour(colour), 2 * std::abs(gain), Qt::SolidLine, Qt::FlatCap, style.join));
    painter.drawImage(0, 0, layer.finish());
}

void drawLineSign(QPainter& painter, const LineSign& sign, const QRectF& box, QRgb colour, double lineWidth,
                  const ControlStyle& style, double corner) {
    constexpr double grid = 48;
    // The path is scaled rather than the painter, so that the pen keeps its width.
    const double scale = box.width() / grid;
    const QTransform place = QTransform().translate(box.x(), box.y()).scale(scale, scale);
    const auto cap = style.join == Qt::MiterJoin ? Qt::FlatCap : Qt::RoundCap;
    const QPen pen(palette::colour(colour), lineWidth, Qt::SolidLine, cap, style.join);
    painter.setPen(pen);
    painter.setBrush(palette::colour(colour));
    const auto outline = [&](std::string_view text) {
        const QPainterPath path = place.map(readOutline(text));
        return corner > 0 ? roundCorners(path, corner) : path;
    };
    painter.drawPath(outline(sign.areas));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline(sign.lines));
    painter.setPen(Qt::NoPen);
}

} // namespace zdt::assets
