#pragma once

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSize>

#include <cstdint>

namespace zdt::assets {

/// A transparent picture with a painter on it.
class Canvas {
public:
    explicit Canvas(QSize size);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    [[nodiscard]] QPainter& painter() { return _painter; }
    [[nodiscard]] QRectF area() const { return QRectF(QPointF(), QSizeF(_image.size())); }
    /// Ends the painting and gives the picture.
    [[nodiscard]] QImage finish();

private:
    QImage _image;
    QPainter _painter;
};

/// The picture as a PNG with no texts in it; empty if that fails.
[[nodiscard]] QByteArray encodePng(const QImage& picture);
/// The picture as a JPEG of the best of a few qualities that needs at most `maxBytes`; empty if none does.
[[nodiscard]] QByteArray encodeJpeg(const QImage& picture, std::uint64_t maxBytes);

} // namespace zdt::assets
