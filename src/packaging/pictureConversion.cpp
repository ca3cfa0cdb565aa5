#include "packaging/pictureConversion.h"

#include "packaging/pictureReader.h"
#include "support/atomicFile.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>

namespace zdt {

namespace {

constexpr int maxQuality = 100;

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

QImage loadPicture(const std::string& path) {
    return PictureReader(path).read();
}

QImage loadThumbnail(const std::string& path, const QSize& bounds) {
    PictureReader reader(path);
    reader.shrinkInto(bounds);
    // Pictures of one bit and of palettes are drawn with the painter's colours, or slowly.
    const QImage picture = reader.read();
    return picture.isNull() ? picture : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool isWholeJpeg(std::string_view bytes) {
    // Behind the last scan's begin: an embedded small picture has an end of its own.
    const std::size_t scan = bytes.rfind("\xFF\xDA");
    const std::size_t end = bytes.rfind("\xFF\xD9");
    return scan != std::string_view::npos && end != std::string_view::npos && end > scan;
}

std::string jpegBytes(const QImage& image, int quality) {
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(std::clamp(quality, 0, maxQuality));
    const QImage opaque = flattened(image);
    return opaque.isNull() || !writer.write(opaque) ? std::string() : buffer.data().toStdString();
}

bool writeJpeg(const std::string& path, const QImage& image, int quality) {
    const std::string bytes = jpegBytes(image, quality);
    return !bytes.empty() && writeFile(path, bytes);
}

bool EncodeJpegInPlace(const std::string& path, int quality) {
    return writeJpeg(path, loadPicture(path), quality);
}

bool ScaleJpegInPlace(const std::string& path, int width, int height) {
    if (width < minScaledWidth || height < minScaledHeight ||
        static_cast<std::int64_t>(width) * height > maxPicturePixels)
        return false;
    const QImage source = flattened(loadPicture(path)).convertToFormat(QImage::Format_RGB32);
    return !source.isNull() &&
           writeJpeg(path, source.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                     ordinaryJpegQuality);
}

} // namespace zdt
