#include "assets/controls/signs.h"

#include "assets/art/outline.h"
#include "assets/art/palette.h"
#include "assets/art/picture.h"

#include <cmath>

namespace zdt::assets {

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
                  const ControlStyle& style) {
    constexpr double grid = 48;
    // The path is scaled rather than the painter, so that the pen keeps its width.
    const double scale = box.width() / grid;
    const QTransform place = QTransform().translate(box.x(), box.y()).scale(scale, scale);
    const auto cap = style.join == Qt::MiterJoin ? Qt::FlatCap : Qt::RoundCap;
    const QPen pen(palette::colour(colour), lineWidth, Qt::SolidLine, cap, style.join);
    painter.setPen(pen);
    painter.setBrush(palette::colour(colour));
    painter.drawPath(place.map(readOutline(sign.areas)));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(place.map(readOutline(sign.lines)));
    painter.setPen(Qt::NoPen);
}

} // namespace zdt::assets
