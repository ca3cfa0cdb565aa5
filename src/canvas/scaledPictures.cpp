#include "canvas/scaledPictures.h"

#include <cstdint>
#include <utility>

namespace zdt {

namespace {

constexpr int keptKilobytes = 96 * 1024;
constexpr std::int64_t maxPixels = 8LL * 1024 * 1024;

int kilobytes(const QImage& picture) {
    return static_cast<int>(picture.sizeInBytes() / 1024) + 1;
}

} // namespace

ScaledPictures::ScaledPictures()
    : _pictures(keptKilobytes) {}

bool ScaledPictures::canHold(const QSize& size) {
    return std::int64_t{size.width()} * size.height() <= maxPixels;
}

QImage ScaledPictures::scaled(const QImage& picture, const QRect& part, const QSize& size) {
    if (part == picture.rect() && size == picture.size())
        return picture;
    const Key key{picture.cacheKey(), part, size};
    if (const QImage* known = _pictures.object(key))
        return *known;
    const QImage source = part == picture.rect() ? picture : picture.copy(part);
    QImage made = paintable(source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    _pictures.insert(key, new QImage(made), kilobytes(made));
    return made;
}

std::size_t qHash(const ScaledPictures::Key& key, std::size_t seed) noexcept {
    return qHashMulti(seed, key.picture, key.part.x(), key.part.y(), key.part.width(), key.part.height(),
                      key.size.width(), key.size.height());
}

QImage paintable(const QImage& picture) {
    if (picture.isNull())
        return picture;
    return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                             : QImage::Format_RGB32);
}

} // namespace zdt
