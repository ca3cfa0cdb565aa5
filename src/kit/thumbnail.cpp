#include "kit/thumbnail.h"

#include "kit/tokens.h"
#include "support/plainFile.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <cstdint>

namespace zdt {

namespace {

/// As many as a picture that is uploaded may have.
constexpr std::int64_t maxPixels = 64LL * 1024 * 1024;

bool fits(const QSize& size, const QSize& bounds) {
    return size.width() <= bounds.width() && size.height() <= bounds.height();
}

} // namespace

QImage readThumbnail(const std::string& path, const QSize& bounds) {
    const PlainFile file(path);
    QFile device;
    if (!file.isOpen() || !device.open(file.descriptor(), QIODevice::ReadOnly))
        return {};
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    const bool isKnown = reader.format() == "png" || reader.format() == "jpeg";
    if (!isKnown || size.isEmpty() || static_cast<std::int64_t>(size.width()) * size.height() > maxPixels)
        return {};
    if (!fits(size, bounds))
        reader.setScaledSize(size.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

void paintChecker(QPainter& painter, const QRectF& place, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(place, radius, radius);
    painter.setClipPath(shape);
    painter.fillRect(place, token::checkerLight);
    constexpr int square = token::checkerSquare;
    for (int row = 0; row * square < place.height(); ++row) {
        for (int column = row % 2; column * square < place.width(); column += 2)
            painter.fillRect(QRectF(place.left() + column * square, place.top() + row * square, square, square),
                             token::checkerDark);
    }
    painter.restore();
}

} // namespace zdt
