#pragma once

#include "canvas/tint.h"

#include <QPoint>
#include <QRect>
#include <QRgb>

class QImage;

/// Layers put on an opaque frame, pixel by pixel alike whatever rectangle of it is drawn. A frame is an image of 32
/// bits a pixel, `area` lies in it, and what is drawn is clipped to `area`.
namespace zdt {

class InkMask;

/// The lines of a frame, looked up once.
struct FrameLines {
    explicit FrameLines(QImage& frame);

    [[nodiscard]] QRgb* line(int y) const { return first + static_cast<std::ptrdiff_t>(y) * step; }

    QRgb* first;
    std::ptrdiff_t step; ///< Pixels from a line to the next.
};

/// A colour that isn't premultiplied.
void paintFill(const FrameLines& frame, const QRect& area, QRgb colour);

/// A shape in the colour of `table`; `origin` is where the shape's picture begins.
void paintShape(const FrameLines& frame, const QRect& area, const InkMask& shape, const TintTable& table,
                const QPoint& origin);

/// An image, premultiplied or opaque, that begins at `origin`.
void paintImage(const FrameLines& frame, const QRect& area, const QImage& image, const QPoint& origin);

} // namespace zdt
