#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <string>

namespace zdt::test {

/// A picture's bytes as a PNG file.
inline std::string pngBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

inline std::string plainPng(int width, int height, const QColor& colour = Qt::red) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    return pngBytes(image);
}

/// A nine-patch before it is compiled: a square whose middle third is marked.
inline std::string rawNinePatch(int side = 12) {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    for (int at = 0; at < side; ++at) {
        const QRgb mark = at > side / 3 && at < side * 2 / 3 ? qRgba(0, 0, 0, 255) : 0;
        for (const QPoint& edge : {QPoint(at, 0), QPoint(at, side - 1), QPoint(0, at), QPoint(side - 1, at)})
            image.setPixel(edge, mark);
    }
    return pngBytes(image);
}

} // namespace zdt::test
