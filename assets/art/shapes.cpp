#include "assets/art/shapes.h"

#include <QPainterPathStroker>

namespace zdt::assets {

QRectF squareAt(QPointF middle, double side) {
    return {middle.x() - side / 2, middle.y() - side / 2, side, side};
}

QPainterPath discOutline(QPointF middle, double radius) {
    QPainterPath path;
    path.addEllipse(middle, radius, radius);
    return path;
}

QPainterPath roundedPath(const QRectF& area, double radius) {
    QPainterPath path;
    path.addRoundedRect(area, radius, radius);
    return path;
}

QPen roundPen(const QBrush& brush, double width) {
    return {brush, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPainterPath thickLine(const QPainterPath& path, double width) {
    QPainterPath line = QPainterPathStroker(roundPen(Qt::black, width)).createStroke(path);
    line.setFillRule(Qt::WindingFill);
    return line;
}

} // namespace zdt::assets
