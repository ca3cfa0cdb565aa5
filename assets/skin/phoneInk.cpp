#include "assets/skin/phoneInk.h"

#include "assets/art/palette.h"
#include "assets/art/shapes.h"
#include "assets/art/softShape.h"

#include <QPainter>

namespace zdt::assets {

QColor PhoneInk::colour(double strength) const {
    QColor ink = _tone == Tone::tint ? palette::colour(palette::paper) : palette::colour(palette::ink);
    ink.setAlphaF(static_cast<float>(strength));
    return ink;
}

void PhoneInk::fill(const QPainterPath& shape, double strength, double reach) {
    if (_tone == Tone::tint)
        paintGlow(_painter, shape.translated(0, reach / 4), qRgba(0, 0, 0, qRound(80 * strength)), reach);
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
    fill(signOutline(sign, squareAt(middle, side)), strength);
}

void PhoneInk::glass(const QRectF& area, double radius, const QColor& colour) {
    _painter.fillPath(roundedPath(area, radius), colour);
}

} // namespace zdt::assets
