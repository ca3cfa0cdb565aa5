#include "kit/shadow.h"

#include <QPainter>
#include <QPainterPath>

namespace zdt {

namespace {

/// The darkness of `distance` (0 at the outer end, 1 at the inner one) in a blur: smooth at both ends.
double darkness(double distance) {
    return distance * distance * (3 - 2 * distance);
}

} // namespace

void paintShadow(QPainter& painter, const QRect& card, int radius, const token::Shadow& shadow) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF base = QRectF(card).translated(0, shadow.offset);
    const int steps = shadow.blur;
    double before = 0;
    // Rings from far to near, each as much darker as the blur is there; half of a blur lies inside the shape.
    for (int step = 1; step <= steps; ++step) {
        const double reach = shadow.blur / 2.0 - step + 0.5;
        const double now = darkness(static_cast<double>(step) / steps) * shadow.alpha / 255.0;
        QColor colour(Qt::black);
        colour.setAlphaF(static_cast<float>((now - before) / (1 - before)));
        before = now;
        painter.setBrush(colour);
        const double corner = qMax(1.0, radius + reach);
        painter.drawRoundedRect(base.adjusted(-reach, -reach, reach, reach), corner, corner);
    }
    painter.restore();
}

} // namespace zdt
