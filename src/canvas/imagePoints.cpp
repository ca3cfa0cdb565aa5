#include "canvas/imagePoints.h"

#include "model/pictureSize.h"
#include "packaging/pictureConversion.h"
#include "support/fileComparison.h"

#include <QImage>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

/// Of all shapes that are kept; those in use live on with those who use them.
constexpr std::size_t maxHeldBytes = std::size_t{64} << 20;

} // namespace

ImagePoints::ImagePoints(SkinRoots roots)
    : _roots(std::move(roots))
    , _file(_roots) {}

std::string ImagePoints::fileOf(const std::string& picture) const {
    std::string file = resolveSkinPath(picture, _roots);
    return file.empty() ? picture : file;
}

std::string ImagePoints::storedName(const std::string& picture) const {
    const std::size_t at = picture.rfind("/skin/");
    const std::string name = at == std::string::npos ? std::string() : picture.substr(at + 1);
    // Another folder of that name isn't the skin's: its record would be taken for that of a picture of the skin.
    const bool isOurs = !name.empty() && name.size() <= maxPointPath && resolveSkinPath(name, _roots) == picture;
    return isOurs ? name : std::string();
}

std::shared_ptr<const InkMask> ImagePoints::read(const std::string& picture) {
    const std::string name = storedName(picture);
    const PictureSize size = name.empty() ? PictureSize{} : pngSize(picture);
    const QSize bounds(static_cast<int>(size.width), static_cast<int>(size.height));
    if (auto known = _file.find(name, picture, bounds))
        return std::make_shared<const InkMask>(std::move(*known));
    const QImage image = loadPicture(picture);
    if (image.isNull())
        return nullptr;
    auto mask = std::make_shared<const InkMask>(InkMask::ofImage(image));
    // What isn't measured by its head, such as another kind of picture, would never be found again.
    if (!name.empty() && bounds == mask->size())
        _file.append(name, picture, *mask);
    return mask;
}

std::shared_ptr<const InkMask> ImagePoints::of(const std::string& path) {
    const std::string picture = fileOf(path);
    const std::string stamp = fileStamp(picture);
    Held& held = _held[picture];
    held.usedAt = ++_uses;
    if (!held.isRead || held.stamp != stamp) {
        held.mask = read(picture);
        held.stamp = stamp;
        held.isRead = true;
        _bytes -= held.bytes;
        held.bytes = picture.size() + (held.mask ? held.mask->bytes() : 0);
        _bytes += held.bytes;
    }
    auto mask = held.mask;
    trim();
    return mask;
}

void ImagePoints::trim() {
    while (_bytes > maxHeldBytes) {
        const auto oldest = std::min_element(_held.begin(), _held.end(), [](const auto& one, const auto& other) {
            return one.second.usedAt < other.second.usedAt;
        });
        _bytes -= oldest->second.bytes;
        _held.erase(oldest);
    }
}

ImagePoints& imagePoints() {
    static ImagePoints points;
    return points;
}

} // namespace zdt
