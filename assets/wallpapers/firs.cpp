#include "assets/wallpapers/firs.h"

#include "assets/wallpapers/deepImage.h"
#include "assets/wallpapers/noise.h"

#include <QPolygonF>

#include <cmath>

namespace zdt::assets {

namespace {

/// One side of a fir from its top down: boughs that hang, longer from each to the next. `side` is -1 or 1.
QPolygonF boughs(QPointF foot, double tall, int side, std::uint32_t seed) {
    constexpr int count = 19;
    QPolygonF line;
    for (int bough = 1; bough <= count; ++bough) {
        const auto index = static_cast<std::uint32_t>(side * bough + count);
        const double part = static_cast<double>(bough) / count;
        const double reach = tall * 0.19 * std::pow(part, 0.85) * (0.5 + 0.75 * chance(index, 0, seed));
        const double y = foot.y() - tall * (1 - 0.93 * part);
        const double hang = tall * (0.012 + 0.035 * part) * chance(index, 1, seed);
        line << QPointF(foot.x() + side * reach * 0.45, y - tall * 0.012) << QPointF(foot.x() + side * reach, y + hang);
    }
    const double trunk = side * tall * 0.012;
    return line << foot + QPointF(trunk, -tall * 0.05) << foot + QPointF(trunk, tall * 0.1);
}

QPolygonF fir(QPointF foot, double tall, std::uint32_t seed) {
    QPolygonF outline{{foot.x(), foot.y() - tall}};
    outline += boughs(foot, tall, 1, seed);
    const QPolygonF left = boughs(foot, tall, -1, seed);
    for (auto point = left.rbegin(); point != left.rend(); ++point)
        outline << *point;
    return outline;
}

float bankAt(const FirRow& row, float x, float half) {
    return row.bank - row.rise * (x / half) * (x / half) + 0.012F * fractalNoise(x * 9, 0.5F, 3, row.seed);
}

} // namespace

QPainterPath firOutline(const FirRow& row, float half) {
    QPolygonF bank{{-half - 0.01, 1.1}};
    constexpr int steps = 128;
    for (int step = 0; step <= steps; ++step) {
        const float x = mix(-half - 0.01F, half + 0.01F, static_cast<float>(step) / steps);
        bank << QPointF(x, bankAt(row, x, half));
    }
    QPainterPath outline;
    outline.addPolygon(bank << QPointF(half + 0.01, 1.1));
    float x = -half - row.spacing;
    for (std::uint32_t index = 0; x < half + row.spacing; ++index) {
        x += row.spacing * (0.35F + 1.3F * chance(index, 0, row.seed));
        const float edge = std::min(1.F, std::abs(x) / half);
        const float groups = 0.75F + 0.5F * noise(x * 11, 7.5F, row.seed);
        const float tall = row.tall * (1 + edge * edge) * groups * (0.55F + 0.6F * chance(index, 1, row.seed));
        outline.addPolygon(fir({x, bankAt(row, x, half) + 0.003}, tall, hashOf(index, 2, row.seed)));
    }
    return outline;
}

} // namespace zdt::assets
