#include "assets/controls/light.h"

#include "assets/art/picture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace zdt::assets {

namespace {

/// Values of 0 to 1, row by row.
struct Plane {
    int width;
    int height;
    std::vector<float> values;
};

/// Where the distribution is cut off: what lies beyond is less than half a step of any colour here.
int kernelRadius(double sigma) {
    return static_cast<int>(std::ceil(3 * sigma));
}

std::vector<float> kernelOf(double sigma) {
    const int radius = kernelRadius(sigma);
    std::vector<float> kernel;
    float sum = 0;
    for (int at = -radius; at <= radius; ++at) {
        kernel.push_back(radius == 0 ? 1 : static_cast<float>(std::exp(-at * at / (2 * sigma * sigma))));
        sum += kernel.back();
    }
    for (float& weight : kernel)
        weight /= sum;
    return kernel;
}

/// How much of each pixel a shape covers, with `margin` pixels around the picture.
Plane coverageOf(const QPainterPath& shape, QSize size, int margin) {
    Canvas canvas(size.grownBy({margin, margin, margin, margin}));
    canvas.painter().translate(margin, margin);
    canvas.painter().fillPath(shape, Qt::white);
    const QImage image = canvas.finish();
    Plane plane{image.width(), image.height(), {}};
    plane.values.reserve(static_cast<std::size_t>(plane.width) * static_cast<std::size_t>(plane.height));
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::transform(row, row + image.width(), std::back_inserter(plane.values),
                       [](QRgb pixel) { return static_cast<float>(qAlpha(pixel)) / 255; });
    }
    return plane;
}

/// Blurs the rows and turns them into columns, so that a second time does the rest. The kernel's radius is lost at both
/// ends of each row.
Plane blurredAndTurned(const Plane& plane, const std::vector<float>& kernel) {
    const int width = plane.width - static_cast<int>(kernel.size()) + 1;
    Plane turned{plane.height, width, {}};
    turned.values.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(plane.height));
    std::vector<float> sums(static_cast<std::size_t>(width));
    for (int y = 0; y < plane.height; ++y) {
        const float* row = plane.values.data() + static_cast<std::ptrdiff_t>(y) * plane.width;
        std::fill(sums.begin(), sums.end(), 0.0F);
        for (std::size_t at = 0; at < kernel.size(); ++at) {
            for (std::size_t x = 0; x < sums.size(); ++x)
                sums[x] += kernel[at] * row[x + at];
        }
        for (std::size_t x = 0; x < sums.size(); ++x)
            turned.values[x * static_cast<std::size_t>(plane.height) + static_cast<std::size_t>(y)] = sums[x];
    }
    return turned;
}

Plane blurred(const QPainterPath& shape, QSize size, double sigma) {
    const std::vector<float> kernel = kernelOf(sigma);
    return blurredAndTurned(blurredAndTurned(coverageOf(shape, size, kernelRadius(sigma)), kernel), kernel);
}

/// The colour, as much of it in each pixel as `part` tells from what the shape and its blurred copy cover.
template <typename Part>
void paintCast(QPainter& painter, QSize size, const QPainterPath& shape, const Cast& cast, const Part& part) {
    const Plane own = coverageOf(shape, size, 0);
    const Plane copy = blurred(shape.translated(cast.dx, cast.dy), size, cast.sigma);
    QImage image(size, QImage::Format_ARGB32);
    auto at = own.values.begin();
    auto copyAt = copy.values.begin();
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const float alpha = static_cast<float>(qAlpha(cast.colour)) * part(*at++, *copyAt++);
            row[x] = (cast.colour & RGB_MASK) | (static_cast<QRgb>(std::lround(std::clamp(alpha, 0.0F, 255.0F))) << 24);
        }
    }
    painter.drawImage(0, 0, image);
}

} // namespace

Cast scaled(const Cast& cast, double scale) {
    return {cast.dx * scale, cast.dy * scale, cast.sigma * scale, cast.colour};
}

int reachOf(const Cast& cast) {
    return kernelRadius(cast.sigma) + static_cast<int>(std::ceil(std::max(std::abs(cast.dx), std::abs(cast.dy))));
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
