#include "canvas/layerPainting.h"

#include "canvas/inkMask.h"

#include <QImage>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace zdt {

namespace {

/// Every channel by `alpha` of 255, rounded; two channels at a time.
inline QRgb scaled(QRgb pixel, unsigned alpha) {
    constexpr QRgb odd = 0x00ff00ff;
    constexpr QRgb half = 0x00800080;
    QRgb low = (pixel & odd) * alpha;
    low = ((low + ((low >> 8) & odd) + half) >> 8) & odd;
    QRgb high = ((pixel >> 8) & odd) * alpha;
    high = (high + ((high >> 8) & odd) + half) & ~odd;
    return low | high;
}

inline QRgb over(QRgb above, QRgb below) {
    return above + scaled(below, 255U - static_cast<unsigned>(qAlpha(above)));
}

/// One premultiplied colour over a run of pixels.
void blendRun(QRgb* pixels, int count, QRgb colour) {
    if (qAlpha(colour) == 255) {
        std::fill_n(pixels, count, colour);
    } else if (qAlpha(colour) != 0) {
        for (int x = 0; x < count; ++x)
            pixels[x] = over(colour, pixels[x]);
    }
}

void blendShapeRow(QRgb* pixels, const std::uint8_t* alphas, int count, const TintTable& table) {
    constexpr int step = 8;
    int x = 0;
    while (x < count) {
        if (count - x >= step) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, alphas + x, step);
            // Most of a shape is nothing or all.
            if (eight == 0 || eight == ~std::uint64_t{0}) {
                if (eight != 0)
                    blendRun(pixels + x, step, table[255]);
                x += step;
                continue;
            }
        }
        const int end = std::min(count, x + step);
        for (; x < end; ++x) {
            if (alphas[x] != 0)
                pixels[x] = over(table[alphas[x]], pixels[x]);
        }
    }
}

void blendRow(QRgb* pixels, const QRgb* above, int count) {
    for (int x = 0; x < count; ++x) {
        const int alpha = qAlpha(above[x]);
        if (alpha == 255)
            pixels[x] = above[x];
        else if (alpha != 0)
            pixels[x] = over(above[x], pixels[x]);
    }
}

} // namespace

FrameLines::FrameLines(QImage& frame)
    : first(reinterpret_cast<QRgb*>(frame.bits()))
    , step(frame.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb))) {}

void paintFill(const FrameLines& frame, const QRect& area, QRgb colour) {
    const QRgb premultiplied = qPremultiply(colour);
    for (int y = area.top(); y <= area.bottom(); ++y)
        blendRun(frame.line(y) + area.left(), area.width(), premultiplied);
}

void paintShape(const FrameLines& frame, const QRect& area, const InkMask& shape, const TintTable& table,
                const QPoint& origin) {
    const QRect ink = shape.ink().translated(origin);
    const QRect seen = ink & area;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const std::uint8_t* alphas = shape.row(y - origin.y()) + (seen.left() - ink.left());
        blendShapeRow(frame.line(y) + seen.left(), alphas, seen.width(), table);
    }
}

void paintImage(const FrameLines& frame, const QRect& area, const QImage& image, const QPoint& origin) {
    const QRect seen = image.rect().translated(origin) & area;
    const bool isOpaque = !image.hasAlphaChannel();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const QRgb* above =
            reinterpret_cast<const QRgb*>(image.constScanLine(y - origin.y())) + (seen.left() - origin.x());
        if (isOpaque)
            std::memcpy(frame.line(y) + seen.left(), above, static_cast<std::size_t>(seen.width()) * sizeof(QRgb));
        else
            blendRow(frame.line(y) + seen.left(), above, seen.width());
    }
}

} // namespace zdt
