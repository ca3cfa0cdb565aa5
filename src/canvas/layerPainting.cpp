#include "canvas/layerPainting.h"

#include "canvas/inkMask.h"

#include <QImage>

#include <algorithm>
#include <array>
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

/// `over` for one colour, channel by channel: what compilers make wide instructions of.
void coverRun(QRgb* pixels, int count, QRgb colour) {
    constexpr int step = 4;
    constexpr int channels = step * 4;
    std::array<std::uint8_t, channels> added{};
    for (int i = 0; i < step; ++i)
        std::memcpy(added.data() + i * 4, &colour, 4);
    const auto kept = static_cast<std::uint16_t>(255 - qAlpha(colour));
    int x = 0;
    for (; x + step <= count; x += step) {
        auto* bytes = reinterpret_cast<std::uint8_t*>(pixels + x);
        for (int i = 0; i < channels; ++i) {
            const auto product = static_cast<std::uint16_t>(bytes[i] * kept);
            const auto rounded = static_cast<std::uint16_t>(product + (product >> 8) + 128);
            bytes[i] = static_cast<std::uint8_t>(added[static_cast<std::size_t>(i)] + (rounded >> 8));
        }
    }
    for (; x < count; ++x)
        pixels[x] = over(colour, pixels[x]);
}

/// One premultiplied colour over a run of pixels.
void blendRun(QRgb* pixels, int count, QRgb colour) {
    if (qAlpha(colour) == 255)
        std::fill_n(pixels, count, colour);
    else if (qAlpha(colour) != 0)
        coverRun(pixels, count, colour);
}

constexpr int wordSize = 8;

/// How many of the first `count` alphas are `value`, in steps of eight.
int runLength(const std::uint8_t* alphas, int count, std::uint64_t value) {
    int length = 0;
    for (; length + wordSize <= count; length += wordSize) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, alphas + length, wordSize);
        if (eight != value)
            break;
    }
    return length;
}

void blendShapeRow(QRgb* pixels, const std::uint8_t* alphas, int count, const TintTable& table) {
    int x = 0;
    while (x < count) {
        // Most of a shape is nothing or all.
        x += runLength(alphas + x, count - x, 0);
        const int full = runLength(alphas + x, count - x, ~std::uint64_t{0});
        blendRun(pixels + x, full, table[255]);
        x += full;
        const int end = std::min(count, x + wordSize);
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
