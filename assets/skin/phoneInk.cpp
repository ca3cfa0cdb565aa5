#include "assets/skin/phoneInk.h"

#include "assets/art/palette.h"

#include <QPainter>

#include <cmath>

namespace zdt::assets {

namespace {

/// A blurred outline: strokes that grow by a pixel, each a little darker where it lies over the others.
void drawShadow(QPainter& painter, const QPainterPath& shape, double strength, double reach) {
    constexpr double darkest = 0.25;
    const int strokes = static_cast<int>(std::ceil(reach));
    QColor shadow(Qt::black);
    shadow.setAlphaF(static_cast<float>(darkest * strength / strokes));
    for (int each = 1; each <= strokes; ++each) {
        const QPen pen(shadow, 2 * reach * each / strokes, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        painter.strokePath(shape.translated(0, reach / 4), pen);
    }
}

} // namespace

QColor PhoneInk::colour(double strength) const {
    QColor ink = _tone == Tone::tint ? palette::colour(palette::paper) : palette::colour(palette::ink);
    ink.setAlphaF(static_cast<float>(strength));
    return ink;
}

void PhoneInk::fill(const QPainterPath& shape, double strength, double reach) {
    if (_tone == Tone::tint)
        drawShadow(_painter, shape, strength, reach);
    _painter.fillPath(shape, colour(strength));
}

void PhoneInk::text(const Lettering& lettering, QPointF anchor, const QString& words) {
    const QPainterPath outline = textOutline(lettering.face, lettering.pixels, words);
    const double digits = textOutline(lettering.face, lettering.pixels, "0").boundingRect().height();
    const QRectF bounds = outline.boundingRect();
    double x = bounds.left();
    switch (lettering.anchor) {
    case Side::left:
        break;
    case Side::middle:
        x = bounds.center().x();
        break;
    case Side::right:
        x = bounds.right();
        break;
    }
    fill(outline.translated(anchor.x() - x, anchor.y() + digits / 2), lettering.strength, 6 + lettering.pixels / 20.0);
}

void PhoneInk::sign(char32_t sign, QPointF middle, double side, double strength) {
    fill(signOutline(sign, {middle.x() - side / 2, middle.y() - side / 2, side, side}), strength);
}

void PhoneInk::glass(const QRectF& area, double radius, const QColor& colour) {
    QPainterPath shape;
    shape.addRoundedRect(area, radius, radius);
    _painter.fillPath(shape, colour);
}

} // namespace zdt::assets
