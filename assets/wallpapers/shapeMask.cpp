#include "assets/wallpapers/shapeMask.h"

#include <QPainter>

namespace zdt::assets {

Mask maskOf(QSize size, const QPainterPath& outline) {
    QImage picture(size, QImage::Format_Grayscale8);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size.width() / 2.0, 0);
    painter.scale(size.height(), size.height());
    QPainterPath whole = outline;
    whole.setFillRule(Qt::WindingFill);
    painter.fillPath(whole, Qt::white);
    painter.end();
    Mask mask(size);
    for (int y = 0; y < size.height(); ++y)
        std::transform(picture.constScanLine(y), picture.constScanLine(y) + size.width(), mask.row(y),
                       [](uchar value) { return static_cast<float>(value) / 255; });
    return mask;
}

void fill(DeepImage& image, const Mask& mask, const Tint& tint) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.at(x, y) = mix(image.at(x, y), tint, mask.at(x, y));
    }
}

void shade(DeepImage& image, const Mask& mask, const Tint& tint, float strength) {
    const Tint taken = Tint{1, 1, 1} - tint;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.at(x, y) = image.at(x, y) * (Tint{1, 1, 1} - taken * (strength * mask.at(x, y)));
    }
}

} // namespace zdt::assets
