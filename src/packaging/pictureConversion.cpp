#include "packaging/pictureConversion.h"

#include "packaging/pictureReader.h"
#include "support/atomicFile.h"

#include <QBuffer>
#include <QByteArray>
#include <QColorSpace>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>

namespace zdt {

namespace {

constexpr int maxQuality = 100;

/// The whole picture, with its file closed again.
QImage load(const std::string& path) {
    return PictureReader(path).read();
}

/// On white: a JPEG knows no transparency, and would show whatever colour lies in transparent pixels.
QImage flattened(const QImage& image) {
    if (!image.hasAlphaChannel())
        return image;
    QImage canvas(image.size(), QImage::Format_RGB32);
    if (canvas.isNull())
        return canvas;
    canvas.setColorSpace(image.colorSpace());
    canvas.fill(Qt::white);
    QPainter(&canvas).drawImage(0, 0, image);
    return canvas;
}

} // namespace

bool writeJpeg(const std::string& path, const QImage& image, int quality) {
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(std::clamp(quality, 0, maxQuality));
    const QImage opaque = flattened(image);
    if (opaque.isNull() || !writer.write(opaque))
        return false;
    const QByteArray& bytes = buffer.data();
    return writeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

bool EncodeJpegInPlace(const std::string& path, int quality) {
    return writeJpeg(path, load(path), quality);
}

bool ScaleJpegInPlace(const std::string& path, int width, int height) {
    if (width < minScaledWidth || height < minScaledHeight ||
        static_cast<std::int64_t>(width) * height > maxPicturePixels)
        return false;
    const QImage source = flattened(load(path)).convertToFormat(QImage::Format_RGB32);
    return !source.isNull() &&
           writeJpeg(path, source.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                     ordinaryJpegQuality);
}

} // namespace zdt
