#include "lockscreen/designEditing.h"
#include "lockscreen/geometry.h"
#include "lockscreen/imageRules.h"
#include "lockscreen/lockDesign.h"
#include "lockscreen/pictureNames.h"
#include "support/text.h"

#include <algorithm>
#include <set>
#include <utility>

/// The parts of a lock screen: wallpaper, clock, charging, music, texts and unlockers.
namespace zdt {

namespace {

constexpr int success = 0;

} // namespace

int LockDesign::setWallpaperSource(const std::string& src) {
    if (!changesWithTime(src) || !isXmlText(src) || !expandSource(src))
        return designCode::notAllowed;
    const std::vector<std::string> tokens = splitSource(src);
    const bool hasBothHeights = std::find(tokens.begin(), tokens.end(), heightToken) != tokens.end();
    const std::string height = hasBothHeights ? std::string(screenHeightVariable) : std::to_string(_height);
    auto image = std::make_unique<AmazingChild>(
        _wallpaper ? AmazingChild(*_wallpaper)
                   : layoutDefaults::placed(AmazingChild(imageTag), layoutDefaults::wallpaper));
    image->setAttribute("h", height);
    image->setAttribute("src", src);
    const std::size_t index = _wallpaper ? indexOf(_wallpaper) : 0;
    if (_wallpaper)
        _elements.erase(_elements.begin() + static_cast<std::ptrdiff_t>(index));
    insert(index, asKind(ImageKind::wallpaper, std::move(image)));
    return success;
}

std::size_t LockDesign::clockEnd() const {
    std::size_t end = _clockPicture ? indexOf(_clockPicture) + 1 : 0;
    for (const TimeAboutImage* digit : _digits)
        end = digit ? std::max(end, indexOf(digit) + 1) : end;
    return end > 0 ? end : _elements.size();
}

void LockDesign::addClock() {
    for (std::size_t index = 0; index < layoutDefaults::clock.size(); ++index) {
        const bool isColon = index == layoutDefaults::colonIndex;
        const std::size_t digit = index > layoutDefaults::colonIndex ? index - 1 : index;
        if (isColon ? _clockPicture != nullptr : _digits[digit] != nullptr)
            continue;
        insert(clockEnd(), std::make_unique<TimeAboutImage>(layoutDefaults::makeImage(layoutDefaults::clock[index])));
    }
}

int LockDesign::removeClock() {
    if (clockBits() == 0)
        return designCode::missingElement;
    // A second picture of a digit takes the place of the first as that goes.
    while (clockBits() != 0) {
        std::set<const AmazingChild*> pictures(_digits.begin(), _digits.end());
        pictures.insert(_clockPicture);
        std::erase_if(_elements, [&](const auto& element) { return pictures.contains(element.get()); });
        settle();
    }
    return success;
}

int LockDesign::removeClockPicture() {
    return erase(_clockPicture);
}

int LockDesign::setChargePicture(std::size_t index, const std::string& file, const DesignRect& rect) {
    if (index >= _charge.size())
        return designCode::unknownId;
    if (const Decoration* picture = _charge[index])
        return setDecorationFile(indexOf(picture), file);
    std::size_t place = 0;
    return addDecoration(file, rect, {{"visible", std::string(chargeConditions[index])}}, place);
}

int LockDesign::setChargePicture(const std::string& condition, const std::string& file, const DesignRect& rect) {
    const std::optional<std::size_t> index = chargeIndexOf(condition);
    return index ? setChargePicture(*index, file, rect) : designCode::unknownCondition;
}

int LockDesign::removeChargePicture(std::size_t index) {
    return index < _charge.size() ? erase(_charge[index]) : designCode::unknownId;
}

void LockDesign::addMusic() {
    if (!_musicButtons[0])
        append(layoutDefaults::makeMusicButton(true));
    if (!_musicButtons[1])
        append(layoutDefaults::makeMusicButton(false));
    if (!_musicControl)
        append(layoutDefaults::makeMusicControl());
}

int LockDesign::removeMusic() {
    const std::set<const AmazingChild*> parts{_musicControl, _musicButtons[0], _musicButtons[1]};
    const std::size_t erased =
        std::erase_if(_elements, [&](const auto& element) { return parts.contains(element.get()); });
    settle();
    return erased > 0 ? success : designCode::missingElement;
}

int LockDesign::addText(const std::string& src) {
    const auto* const row = std::find_if(layoutDefaults::texts.begin(), layoutDefaults::texts.end(),
                                         [&](const layoutDefaults::Text& each) { return each.src == src; });
    if (row == layoutDefaults::texts.end())
        return designCode::unknownId;
    if (!text(src))
        append(layoutDefaults::makeText(*row));
    return success;
}

int LockDesign::removeText(const std::string& src) {
    return erase(text(src));
}

std::string LockDesign::freeUnlockerName() const {
    std::set<std::string> taken;
    for (const auto& element : _elements) {
        if (dynamic_cast<const UnlockerData*>(element.get()))
            taken.insert(element->attribute("name"));
    }
    std::string name = "unlocker";
    for (int number = 2; taken.contains(name); ++number)
        name = "unlocker" + std::to_string(number);
    return name;
}

void LockDesign::addUnlocker(UnlockerKind kind) {
    if (unlocker(kind))
        return;
    auto added = std::make_unique<UnlockerData>(layoutDefaults::makeUnlocker(freeUnlockerName()));
    if (kind == UnlockerKind::moving) {
        layoutDefaults::setPlace(*added->startPoints().front(), layoutDefaults::moveUpStart);
        layoutDefaults::setPlace(*added->endPoints().front(), layoutDefaults::moveUpEnd);
    }
    insert(_elements.size(), std::move(added));
}

int LockDesign::removeUnlocker(UnlockerKind kind) {
    return erase(unlocker(kind));
}

int LockDesign::setStartPoint(UnlockerKind kind, const DesignRect& rect) {
    return setPoint(kind, true, rect);
}

int LockDesign::setEndPoint(UnlockerKind kind, const DesignRect& rect) {
    return setPoint(kind, false, rect);
}

int LockDesign::setPoint(UnlockerKind kind, bool isStart, const DesignRect& rect) {
    const auto* const standing = unlocker(kind);
    if (!standing)
        return designCode::missingElement;
    if (!isAllowed(rect))
        return designCode::notAllowed;
    AmazingChild& start = *standing->startPoints().front();
    AmazingChild& end = *standing->endPoints().front();
    const AmazingChild::Attributes oldStart = start.attributes();
    const AmazingChild::Attributes oldEnd = end.attributes();
    if (isStart || kind == UnlockerKind::inPlace)
        place(start, rect, _height);
    if (!isStart || kind == UnlockerKind::inPlace)
        place(end, rect, _height);
    if (standing->unlockerKind() == static_cast<int>(kind))
        return success;
    start.setAttributes(oldStart);
    end.setAttributes(oldEnd);
    return designCode::notAllowed;
}

int LockDesign::setUnlockMode(int mode) {
    constexpr int both = 3;
    if (mode < 1 || mode > both)
        return designCode::unknownId;
    for (const UnlockerKind kind : {UnlockerKind::inPlace, UnlockerKind::moving}) {
        if ((mode & static_cast<int>(kind)) != 0)
            addUnlocker(kind);
        else
            while (removeUnlocker(kind) == success) {
            }
    }
    return success;
}

void LockDesign::addSmartIcon() {
    const bool hasOne = std::any_of(_elements.begin(), _elements.end(), [](const auto& element) {
        return element->name() == layoutDefaults::smartIconTag;
    });
    if (!hasOne)
        append(layoutDefaults::makeSmartIcon());
}

} // namespace zdt
