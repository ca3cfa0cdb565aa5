#include "assets/controls/symbols.h"

#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/controls/symbolTable.h"

#include <QPainterPath>

#include <algorithm>

namespace zdt::assets {

namespace {

/// A gradient around the middle: `inner` at the part `start` of the radius, nothing at the edge.
void drawFade(QPainter& painter, const QRectF& area, QRgb colour, double start, bool hollow) {
    QColor faint = palette::colour(colour);
    faint.setAlpha(0);
    QColor strong = palette::colour(colour);
    strong.setAlphaF(0.55F);
    QRadialGradient fade(area.center(), area.width() / 2);
    fade.setColorAt(0, hollow ? faint : strong);
    if (hollow)
        fade.setColorAt(start - 0.25, faint);
    fade.setColorAt(start, strong);
    fade.setColorAt(1, faint);
    painter.setBrush(fade);
    painter.drawEllipse(area);
}

void drawDrop(QPainter& painter, const QRectF& area, QRgb colour) {
    // The two sides of the tip are tangents, at a right angle to each other.
    constexpr double root2 = 1.41421356;
    const double radius = area.width() / (1 + root2) - 1;
    const QPointF middle(area.left() + radius + 1, area.center().y());
    const double side = radius / root2;
    QPainterPath drop;
    drop.addEllipse(middle, radius, radius);
    QPainterPath tip;
    tip.addPolygon(QPolygonF(
        {middle + QPointF(radius * root2, 0), middle + QPointF(side, side), middle, middle + QPointF(side, -side)}));
    tip.closeSubpath();
    painter.setBrush(palette::colour(colour));
    painter.drawPath(drop.united(tip));
}

/// The part of the picture in which the glyph stands.
QRectF signArea(const SymbolRow& row, const QRectF& area) {
    const double side = area.width();
    if (row.shape == SymbolShape::bare)
        return area;
    if (row.shape == SymbolShape::drop)
        return {side * 0.2, side * 0.28, side * 0.43, side * 0.43};
    return {side * 0.22, side * 0.22, side * 0.56, side * 0.56};
}

void drawGround(QPainter& painter, const SymbolRow& row, const QRectF& area) {
    const double side = area.width();
    switch (row.shape) {
    case SymbolShape::bare:
        break;
    case SymbolShape::disc:
        drawDisc(painter, area.center(), side * 0.48, row.ground);
        // A disc with a second colour and no glyph is a knob.
        if (row.glyph == Glyph::none && qAlpha(row.sign))
            drawDisc(painter, area.center(), side * 0.2, row.sign);
        break;
    case SymbolShape::card:
        drawRounded(painter, area.marginsRemoved({8, 8, 8, 8}), side * 0.22, row.ground, row.sign, 3);
        break;
    case SymbolShape::drop:
        drawDrop(painter, area, row.ground);
        break;
    case SymbolShape::glow:
        drawFade(painter, area, row.ground, 0.4, false);
        break;
    case SymbolShape::ring:
        drawFade(painter, area, row.ground, 0.75, true);
        break;
    }
}

} // namespace

QImage drawSymbol(std::string_view name, QSize size, bool mirrored, const Generation&) {
    const auto* row =
        std::find_if(symbolTable.begin(), symbolTable.end(), [&](const auto& each) { return each.name == name; });
    if (row == symbolTable.end())
        return {};
    Canvas canvas(size.isEmpty() ? QSize(row->side, row->side) : size);
    drawGround(canvas.painter(), *row, canvas.area());
    drawGlyph(canvas.painter(), row->glyph, signArea(*row, canvas.area()), row->sign);
    const QImage picture = canvas.finish();
    return mirrored ? picture.mirrored(true, false) : picture;
}

} // namespace zdt::assets
