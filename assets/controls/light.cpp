#include "assets/controls/light.h"

#include "assets/art/softShape.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zdt::assets {

namespace {

/// The colour, as much of it in each pixel as `part` tells from what the shape and its blurred copy cover.
template <typename Part>
void paintCast(QPainter& painter, QSize size, const QPainterPath& shape, const Cast& cast, const Part& part) {
    const QRect area(QPoint(), size);
    Mask mask = softCoverageOf(shape.translated(cast.dx, cast.dy), area, cast.sigma);
    const Mask own = coverageOf(shape, area);
    for (int y = 0; y < size.height(); ++y)
        std::transform(own.row(y), own.row(y) + size.width(), mask.row(y), mask.row(y), part);
    painter.drawImage(0, 0, tinted(mask, cast.colour));
}

} // namespace

Cast scaled(const Cast& cast, double scale) {
    return {cast.dx * scale, cast.dy * scale, cast.sigma * scale, cast.colour};
}

int reachOf(const Cast& cast) {
    return blurReach(cast.sigma) + static_cast<int>(std::ceil(std::max(std::abs(cast.dx), std::abs(cast.dy))));
}

void castOutside(QPainter& painter, QSize size, const QPainterPath& shape, std::span<const Cast> casts) {
    for (const Cast& cast : casts)
        paintCast(painter, size, shape, cast, [](float own, float copy) { return copy * (1 - own); });
}

void castInside(QPainter& painter, QSize size, const QPainterPath& shape, std::span<const Cast> casts) {
    for (const Cast& cast : casts)
        paintCast(painter, size, shape, cast, [](float own, float copy) { return own * (1 - copy); });
}

} // namespace zdt::assets
