#pragma once

#include "canvas/frameScaler.h"

#include <QImage>
#include <QRegion>
#include <QSize>

#include <cstdint>

namespace zdt {

class PreviewComposition;

/// A composed preview in the size of a view, its corners rounded. After a change what is different alone is scaled.
class ScreenImage {
public:
    /// Follows the composition, and tells what of the image is different now. `size` and `radius` are device pixels,
    /// `pixelRatio` of which are one of the view's.
    QRegion follow(PreviewComposition& composition, const QSize& size, double radius, double pixelRatio);

    /// Lets all be scaled anew, for another composition.
    void forget() { _serial = 0; }

    [[nodiscard]] const QImage& image() const { return _image; }

private:
    void roundCorners(const QRect& area);

    FrameScaler _scaler;
    QImage _image; ///< Premultiplied.
    double _radius = 0;
    std::uint64_t _serial = 0;
};

} // namespace zdt
