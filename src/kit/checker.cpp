#include "kit/checker.h"

#include "kit/tokens.h"

#include <QPainter>
#include <QPainterPath>

namespace zdt {

void paintChecker(QPainter& painter, const QRectF& place, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(place, radius, radius);
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.fillRect(place, token::checkerLight);
    constexpr int square = token::checkerSquare;
    for (int row = 0; row * square < place.height(); ++row) {
        for (int column = row % 2; column * square < place.width(); column += 2)
            painter.fillRect(QRectF(place.left() + column * square, place.top() + row * square, square, square),
                             token::checkerDark);
    }
    painter.restore();
}

} // namespace zdt
