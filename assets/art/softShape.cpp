#include "assets/art/softShape.h"

#include "assets/art/shapes.h"

#include <QPainter>

#include <cmath>
#include <vector>

namespace zdt::assets {

namespace {

std::vector<float> kernelOf(double sigma) {
    const int radius = blurReach(sigma);
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

/// Blurs the rows and turns them into columns, so that a second time does the rest. The kernel's radius is lost at both
/// ends of each row.
Mask blurredAndTurned(const Mask& mask, const std::vector<float>& kernel) {
    const int width = mask.width() - static_cast<int>(kernel.size()) + 1;
    Mask turned(QSize(mask.height(), width));
    std::vector<float> sums(static_cast<std::size_t>(width));
    for (int y = 0; y < mask.height(); ++y) {
        const float* row = mask.row(y);
        std::fill(sums.begin(), sums.end(), 0.0F);
        for (std::size_t at = 0; at < kernel.size(); ++at) {
            for (std::size_t x = 0; x < sums.size(); ++x)
                sums[x] += kernel[at] * row[x + at];
        }
        for (int x = 0; x < width; ++x)
            turned.at(y, x) = sums[static_cast<std::size_t>(x)];
    }
    return turned;
}

Mask blurred(const Mask& mask, double sigma) {
    const std::vector<float> kernel = kernelOf(sigma);
    return blurredAndTurned(blurredAndTurned(mask, kernel), kernel);
}

QRect grown(const QRect& area, int margin) {
    return area.adjusted(-margin, -margin, margin, margin);
}

/// What `paint` covers of an area, in as many pixels to each of the area's as `scale`.
template <typename Paint>
Mask maskPainted(const QRect& area, int scale, Paint paint) {
    QImage image(area.size() * scale, QImage::Format_Alpha8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(-area.topLeft());
    paint(painter);
    painter.end();
    Mask mask(image.size());
    for (int y = 0; y < image.height(); ++y)
        std::transform(image.constScanLine(y), image.constScanLine(y) + image.width(), mask.row(y),
                       [](uchar value) { return static_cast<float>(value) / 255; });
    return mask;
}

/// The painter may have a scale of its own.
void paintTinted(QPainter& painter, const QRectF& area, const Mask& mask, QRgb colour) {
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(area, tinted(mask, colour));
    painter.restore();
}

} // namespace

int blurReach(double sigma) {
    return static_cast<int>(std::ceil(3 * sigma)); // What lies beyond is less than half a step of any colour here.
}

Mask coverageOf(const QPainterPath& shape, const QRect& area) {
    return maskPainted(area, 1, [&](QPainter& painter) { painter.fillPath(shape, Qt::black); });
}

Mask softCoverageOf(const QPainterPath& shape, const QRect& area, double sigma) {
    return blurred(coverageOf(shape, grown(area, blurReach(sigma))), sigma);
}

QImage tinted(const Mask& mask, QRgb colour) {
    QImage image(mask.size(), QImage::Format_ARGB32);
    const auto alpha = static_cast<float>(qAlpha(colour));
    for (int y = 0; y < image.height(); ++y)
        std::transform(mask.row(y), mask.row(y) + image.width(), reinterpret_cast<QRgb*>(image.scanLine(y)),
                       [&](float part) {
                           const auto own = static_cast<QRgb>(std::clamp(alpha * part, 0.F, 255.F) + 0.5F);
                           return (colour & RGB_MASK) | (own << 24);
                       });
    return image;
}

void paintSoft(QPainter& painter, const QPainterPath& shape, QRgb colour, double sigma) {
    const QRect area = grown(shape.boundingRect().toAlignedRect(), blurReach(sigma));
    paintTinted(painter, area, softCoverageOf(shape, area, sigma), colour);
}

void paintGlow(QPainter& painter, const QPainterPath& shape, QRgb colour, double reach) {
    // The shape grown by one deviation of the blur: what reaches beyond that has faded after three more.
    const double sigma = reach / 4;
    const QRect area = grown(shape.boundingRect().toAlignedRect(), static_cast<int>(std::ceil(reach)));
    const Mask mask = maskPainted(grown(area, blurReach(sigma)), 1, [&](QPainter& grower) {
        grower.fillPath(shape, Qt::black);
        grower.strokePath(shape, roundPen(Qt::black, 2 * sigma));
    });
    paintTinted(painter, area, blurred(mask, sigma), colour);
}

void paintLongShadow(QPainter& painter, std::span<const QPainterPath> shapes, const QPainterPath& tile, QRgb colour) {
    constexpr int fineness = 2; // For even edges.
    const QRect area = tile.boundingRect().toAlignedRect();
    Mask mask = maskPainted(area, fineness, [&](QPainter& cutter) {
        for (const QPainterPath& shape : shapes)
            cutter.fillPath(shape, Qt::black);
    });
    // Each pixel hands its shadow on to the lower right, a little weaker; after three quarters of the tile it is gone.
    const float step = 4 / (3 * static_cast<float>(mask.width()));
    for (int y = 1; y < mask.height(); ++y) {
        for (int x = 1; x < mask.width(); ++x)
            mask.at(x, y) = std::max(mask.at(x, y), mask.at(x - 1, y - 1) - step);
    }
    painter.save();
    painter.setClipPath(tile, Qt::IntersectClip);
    paintTinted(painter, area, mask, colour);
    painter.restore();
}

} // namespace zdt::assets
