#include "canvas/tint.h"

#include "canvas/inkMask.h"

#include <QImage>

namespace zdt {

TintTable tintTable(QRgb colour) {
    TintTable table{};
    for (std::size_t alpha = 0; alpha < table.size(); ++alpha) {
        const int result = static_cast<int>(alpha) * qAlpha(colour) / 255;
        table[alpha] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), result));
    }
    return table;
}

QImage tinted(const InkMask& shape, QRgb colour) {
    QImage image(shape.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(0);
    const TintTable table = tintTable(colour);
    const QRect& ink = shape.ink();
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        const std::uint8_t* alphas = shape.row(y);
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y)) + ink.left();
        for (int x = 0; x < ink.width(); ++x)
            pixels[x] = table[alphas[x]];
    }
    return image;
}

} // namespace zdt
