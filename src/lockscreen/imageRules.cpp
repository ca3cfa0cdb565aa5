#include "lockscreen/imageRules.h"

#include "lockscreen/amazingElements.h"
#include "support/pattern.h"

#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace zdt {

namespace {

constexpr unsigned otherPictureBit = 16;
constexpr unsigned allDigits = 15;

const Pattern& digitPattern() {
    static const Pattern& pattern = Pattern::of(R"('.+'\+system\.time\.((?:hour)|(?:min))([12])\+'\.png')");
    return pattern;
}

} // namespace

ImageKind ImageRules::take(unsigned bit, ImageKind kind) {
    const bool isFirst = (_clockBits & bit) == 0;
    _clockBits |= bit;
    return isFirst ? kind : ImageKind::plain;
}

ImageKind ImageRules::next(const AmazingChild& image) {
    if (isWallpaper(image))
        return ImageKind::wallpaper;
    const std::string src = image.src();
    const bool clockIsComplete = (_clockBits & otherPictureBit) != 0 || (_clockBits & allDigits) == allDigits;
    if (!changesWithTime(src) && (_clockBits == 0 || clockIsComplete))
        return ImageKind::decoration;
    std::vector<std::string> groups;
    if (digitPattern().matches(src, groups)) {
        const bool isFirstDigit = groups[1] == "1";
        if (groups[0] == "hour")
            return isFirstDigit ? take(1, ImageKind::hour1) : take(2, ImageKind::hour2);
        return isFirstDigit ? take(4, ImageKind::min1) : take(8, ImageKind::min2);
    }
    return src.ends_with(".png") ? take(otherPictureBit, ImageKind::clock) : ImageKind::plain;
}

std::unique_ptr<AmazingChild> asKind(ImageKind kind, std::unique_ptr<AmazingChild> image) {
    switch (kind) {
    case ImageKind::wallpaper:
        return std::make_unique<LockWallPaper>(std::move(*image));
    case ImageKind::decoration:
        return std::make_unique<Decoration>(std::move(*image));
    case ImageKind::hour1:
    case ImageKind::hour2:
    case ImageKind::min1:
    case ImageKind::min2:
    case ImageKind::clock:
        return std::make_unique<TimeAboutImage>(std::move(*image));
    case ImageKind::plain:
        break;
    }
    return std::make_unique<AmazingChild>(std::move(*image));
}

bool isOfKind(const AmazingChild& image, ImageKind kind) {
    const std::type_info& type = typeid(image);
    switch (kind) {
    case ImageKind::wallpaper:
        return type == typeid(LockWallPaper);
    case ImageKind::decoration:
        return type == typeid(Decoration);
    case ImageKind::hour1:
    case ImageKind::hour2:
    case ImageKind::min1:
    case ImageKind::min2:
    case ImageKind::clock:
        return type == typeid(TimeAboutImage);
    case ImageKind::plain:
        break;
    }
    return type == typeid(AmazingChild);
}

} // namespace zdt
