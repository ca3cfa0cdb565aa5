#include "canvas/previewLayer.h"

#include "canvas/imagePoints.h"
#include "canvas/inkMask.h"
#include "canvas/ninePatch.h"
#include "canvas/scaledPictures.h"
#include "packaging/pictureConversion.h"

#include <QDebug>

#include <cstdlib>
#include <optional>
#include <utility>

namespace zdt {

namespace {

/// The furthest that a layer reaches in any direction: a place beyond comes from a damaged description.
constexpr int maxReach = 8 * previewFrame.height();

bool isSane(const PreviewPart& part) {
    return std::abs(part.x) <= maxReach && std::abs(part.y) <= maxReach && part.width >= 0 && part.height >= 0 &&
           part.width <= maxReach && part.height <= maxReach;
}

/// The part's place, whose missing sides are the picture's.
QRect placeOf(const PreviewPart& part, const QSize& picture) {
    return {part.x, part.y, part.width == 0 ? picture.width() : part.width,
            part.height == 0 ? picture.height() : part.height};
}

bool isWallpaperSize(const QSize& size) {
    constexpr int wide = 2 * previewFrame.width();
    constexpr int low = 1920;
    return (size.width() == previewFrame.width() || size.width() == wide) &&
           (size.height() == low || size.height() == previewFrame.height());
}

/// The middle of a picture, as wide as the place is for the picture's whole height.
QRect middleColumn(const QSize& picture, const QSize& place) {
    const int wanted = qRound(static_cast<double>(picture.height()) * place.width() / place.height());
    const int width = std::min(wanted, picture.width());
    return {(picture.width() - width) / 2, 0, width, picture.height()};
}

QImage scaledTo(const QImage& picture, const QSize& size) {
    return picture.size() == size ? picture : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// As the phone shows it in the place; null for a size that no wallpaper has.
QImage wallpaperIn(const QImage& picture, const QSize& place) {
    if (!isWallpaperSize(picture.size()) || place.isEmpty())
        return {};
    return scaledTo(picture.copy(middleColumn(picture.size(), place)), place);
}

QImage covering(const QImage& picture, const QSize& size) {
    const QImage large = picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return large.copy(QRect(QPoint((large.width() - size.width()) / 2, (large.height() - size.height()) / 2), size));
}

/// What a part's picture looks like in its place, and the place. Nothing for one that can't be read.
std::optional<std::pair<QImage, QRect>> pictureOf(const PreviewPart& part) {
    if (hasNinePatchName(part.picture)) {
        const NinePatch patch = readNinePatch(part.picture);
        const QRect place = placeOf(part, patch.picture.size());
        return std::pair(stretched(patch, place.size()), place);
    }
    const QImage picture = loadPicture(part.picture);
    if (picture.isNull())
        return std::nullopt;
    const QRect place =
        part.isWallpaper && (part.width == 0 || part.height == 0) ? previewFrame : placeOf(part, picture.size());
    const QImage drawn = part.isWallpaper ? wallpaperIn(picture, place.size()) : scaledTo(picture, place.size());
    return std::pair(drawn, place);
}

/// A mask in the size of its place.
std::shared_ptr<const InkMask> shapeOf(const PreviewPart& part, ImagePoints& points) {
    if (hasNinePatchName(part.picture)) {
        const auto drawn = pictureOf(part);
        return drawn ? std::make_shared<const InkMask>(InkMask::ofImage(drawn->first)) : nullptr;
    }
    auto shape = points.of(part.picture);
    if (!shape)
        return nullptr;
    const QSize wanted = placeOf(part, shape->size()).size();
    // A shape that is far too large is refused by its place, and needn't be scaled for that.
    if (wanted == shape->size() || !previewFrame.contains(QRect(QPoint(), wanted)))
        return shape;
    return std::make_shared<const InkMask>(shape->scaledTo(wanted));
}

} // namespace

PreviewLayer::PreviewLayer(const PreviewPart& part, ImagePoints& points)
    : _colour(part.colour()) {
    if (!isSane(part))
        return;
    if (part.isColorFill && part.picture.empty() && _colour != 0) {
        _kind = Kind::fill;
        _ink = part.place() & previewFrame;
    } else if (part.isColorFill && !part.picture.empty() && _colour != 0) {
        readShape(part, points);
    } else if (!part.picture.empty()) {
        readPicture(part);
    }
}

PreviewLayer PreviewLayer::background(const std::string& picture) {
    PreviewLayer layer;
    const QImage loaded = picture.empty() ? QImage() : loadPicture(picture);
    if (!loaded.isNull()) {
        const QSize size = previewFrame.size();
        layer.take(isWallpaperSize(loaded.size()) ? wallpaperIn(loaded, size) : covering(loaded, size), QPoint());
    }
    return layer;
}

void PreviewLayer::readShape(const PreviewPart& part, ImagePoints& points) {
    const std::shared_ptr<const InkMask> shape = shapeOf(part, points);
    if (!shape || shape->size().isEmpty())
        return;
    if (!previewFrame.contains(placeOf(part, shape->size()))) {
        qDebug().noquote() << QStringLiteral("\r\n 尺寸存在问题图片 ") + QString::fromStdString(part.picture);
        return;
    }
    _kind = Kind::shape;
    _shape = shape;
    _origin = QPoint(part.x, part.y);
    _table = tintTable(_colour);
    _ink = shape->ink().translated(_origin);
}

void PreviewLayer::readPicture(const PreviewPart& part) {
    if (const auto drawn = pictureOf(part))
        take(drawn->first, drawn->second.topLeft());
}

void PreviewLayer::take(QImage image, const QPoint& origin) {
    const QRect seen = image.rect().translated(origin) & previewFrame;
    if (image.isNull() || seen.isEmpty())
        return;
    _image = paintable(seen.size() == image.size() ? std::move(image) : image.copy(seen.translated(-origin)));
    _origin = seen.topLeft();
    _kind = Kind::picture;
    _ink = _image.hasAlphaChannel() ? InkMask::ofImage(_image).ink().translated(_origin) : seen;
}

std::size_t PreviewLayer::bytes() const {
    // A shape in its picture's own size is shared with those who keep it for all.
    const bool isAlone = _shape && _shape.use_count() == 1;
    return static_cast<std::size_t>(_image.sizeInBytes()) + (isAlone ? _shape->bytes() : 0);
}

bool PreviewLayer::setColour(QRgb colour) {
    if ((_kind != Kind::fill && _kind != Kind::shape) || colour == 0)
        return false;
    _colour = colour;
    if (_kind == Kind::shape)
        _table = tintTable(colour);
    return true;
}

bool PreviewLayer::hides(const QRect& area) const {
    switch (_kind) {
    case Kind::nothing:
        return false;
    case Kind::fill:
        return qAlpha(_colour) == 255 && _ink.contains(area);
    case Kind::shape:
        return qAlpha(_colour) == 255 && _shape->core().translated(_origin).contains(area);
    case Kind::picture:
        return !_image.hasAlphaChannel() && _ink.contains(area);
    }
    return false;
}

bool PreviewLayer::paintsAt(const QPoint& point) const {
    if (!_ink.contains(point))
        return false;
    switch (_kind) {
    case Kind::nothing:
        return false;
    case Kind::fill:
        return qAlpha(_colour) != 0;
    case Kind::shape:
        return qAlpha(_table[static_cast<std::size_t>(_shape->alphaAt(point - _origin))]) != 0;
    case Kind::picture:
        return qAlpha(_image.pixel(point - _origin)) != 0;
    }
    return false;
}

void PreviewLayer::paint(const FrameLines& frame, const QRect& area) const {
    const QRect seen = _ink & area;
    if (seen.isEmpty())
        return;
    switch (_kind) {
    case Kind::nothing:
        break;
    case Kind::fill:
        paintFill(frame, seen, _colour);
        break;
    case Kind::shape:
        paintShape(frame, seen, *_shape, _table, _origin);
        break;
    case Kind::picture:
        paintImage(frame, seen, _image, _origin);
        break;
    }
}

} // namespace zdt
