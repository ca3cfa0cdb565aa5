#include "canvas/screenImage.h"

#include "canvas/layerPainting.h"
#include "canvas/previewComposition.h"

#include <algorithm>
#include <cmath>

namespace zdt {

namespace {

QRgb faded(QRgb pixel, double part) {
    return qPremultiply(qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), qRound(part * 255)));
}

} // namespace

QRegion ScreenImage::follow(PreviewComposition& composition, const QSize& size, double radius, double pixelRatio) {
    if (size.isEmpty())
        return {};
    if (_scaler.target() != size || _radius != radius) {
        _scaler = FrameScaler(previewFrame.size(), size);
        _image = QImage(size, QImage::Format_ARGB32_Premultiplied);
        _radius = radius;
        forget();
    }
    if (_image.devicePixelRatio() != pixelRatio)
        _image.setDevicePixelRatio(pixelRatio);
    const QImage& frame = composition.frame();
    QRegion reach;
    for (const QRect& piece : composition.changedSince(_serial))
        reach += _scaler.reachOf(piece);
    for (const QRect& area : reach) {
        _scaler.scale(frame, _image, area);
        roundCorners(area);
    }
    _serial = composition.serial();
    return reach;
}

/// Fades the pixels of `area` that lie in a corner; they must be opaque.
void ScreenImage::roundCorners(const QRect& area) {
    const int side = static_cast<int>(std::ceil(_radius));
    const FrameLines lines(_image);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        if (y >= side && y < _image.height() - side)
            continue;
        const double below = std::max(_radius - (y + 0.5), y + 0.5 - (_image.height() - _radius));
        for (int x = area.left(); x <= area.right(); ++x) {
            const double beside = std::max(_radius - (x + 0.5), x + 0.5 - (_image.width() - _radius));
            if (below <= 0 || beside <= 0)
                continue;
            const double seen = std::clamp(_radius - std::hypot(beside, below) + 0.5, 0.0, 1.0);
            lines.line(y)[x] = faded(lines.line(y)[x], seen);
        }
    }
}

} // namespace zdt
