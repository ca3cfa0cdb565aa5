#include "lockscreen/geometry.h"
#include "lockscreen/imageRules.h"
#include "lockscreen/lockDesign.h"
#include "lockscreen/pictureNames.h"
#include "support/pattern.h"
#include "support/text.h"

#include <algorithm>
#include <set>
#include <utility>

/// Changing a design.
namespace zdt {

namespace {

constexpr int success = 0;

/// A file name that stands for itself in a `src`, and at any time of day.
bool isPlainPicture(const std::string& file) {
    return isBareFileName(file) && !changesWithTime(file) && file.find_first_of("'+") == std::string::npos &&
           isXmlText(file) && expandSource(file).has_value();
}

bool areWritable(const AmazingChild::Attributes& attributes) {
    static const Pattern& name = Pattern::of("[A-Za-z_][A-Za-z0-9_.-]*");
    return std::all_of(attributes.begin(), attributes.end(),
                       [](const auto& entry) { return name.matches(entry.first) && isXmlText(entry.second); });
}

bool isWritable(const AmazingChild& element, int depth) {
    return depth > 0 && areWritable({{element.name(), ""}}) && areWritable(element.attributes()) &&
           std::all_of(element.children().begin(), element.children().end(),
                       [&](const auto& child) { return isWritable(*child, depth - 1); });
}

bool isAllowed(const DesignRect& rect) {
    constexpr int farthest = 100000;
    const auto isNear = [](int pixel) { return pixel >= -farthest && pixel <= farthest; };
    return isNear(rect.x) && isNear(rect.y) && rect.width >= 0 && isNear(rect.width) && rect.height >= 0 &&
           isNear(rect.height);
}

void place(AmazingChild& element, const DesignRect& rect, std::uint32_t height) {
    const std::array<int, 4> pixels{rect.x, rect.y, rect.width, rect.height};
    for (std::size_t index = 0; index < geometryKeys.size(); ++index) {
        const char* const key = geometryKeys[index];
        element.setAttribute(key, movedTo(element.attribute(key), pixels[index], height));
    }
}

void change(AmazingChild& element, const AmazingChild::Attributes& attributes) {
    for (const auto& [key, value] : attributes) {
        if (value.empty())
            element.removeAttribute(key);
        else
            element.setAttribute(key, value);
    }
}

} // namespace

AmazingChild* LockDesign::child(const ElementPath& path) {
    return const_cast<AmazingChild*>(std::as_const(*this).find(path));
}

void LockDesign::insert(std::size_t index, std::unique_ptr<AmazingChild> element) {
    _elements.insert(_elements.begin() + static_cast<std::ptrdiff_t>(index), std::move(element));
    settle();
}

void LockDesign::append(AmazingChild element) {
    insert(_elements.size(), std::make_unique<AmazingChild>(std::move(element)));
}

void LockDesign::erase(std::size_t index) {
    _elements.erase(_elements.begin() + static_cast<std::ptrdiff_t>(index));
    settle();
}

int LockDesign::erase(const AmazingChild* element) {
    const std::size_t index = indexOf(element);
    if (!element || index == _elements.size())
        return designCode::missingElement;
    erase(index);
    return success;
}

std::optional<DesignRect> LockDesign::rectOf(const ElementPath& path) const {
    const AmazingChild* element = find(path);
    std::array<int, 4> pixels{};
    for (std::size_t index = 0; index < geometryKeys.size(); ++index) {
        const auto pixel = element ? pixelOf(element->attribute(geometryKeys[index]), _height) : std::nullopt;
        if (!pixel)
            return std::nullopt;
        pixels[index] = *pixel;
    }
    return DesignRect{pixels[0], pixels[1], pixels[2], pixels[3]};
}

int LockDesign::tryChange(const ElementPath& path, const AmazingChild::Attributes& attributes) {
    AmazingChild* element = child(path);
    if (!element)
        return designCode::unknownId;
    const AmazingChild& top = *_elements[path.front()];
    const ElementKind before = kindOf(top);
    const AmazingChild::Attributes old = element->attributes();
    change(*element, attributes);
    findElements();
    if (kindOf(top) == before && kindsAgree())
        return success;
    element->setAttributes(old);
    findElements();
    return designCode::notAllowed;
}

bool LockDesign::kindsAgree() const {
    ImageRules rules;
    return std::all_of(_elements.begin(), _elements.end(), [&](const auto& element) {
        return element->name() != imageTag || isOfKind(*element, rules.next(*element));
    });
}

int LockDesign::setRect(const ElementPath& path, const DesignRect& rect) {
    const AmazingChild* element = find(path);
    if (!element)
        return designCode::unknownId;
    if (!isAllowed(rect))
        return designCode::notAllowed;
    AmazingChild moved("", element->attributes());
    place(moved, rect, _height);
    return tryChange(path, moved.attributes());
}

int LockDesign::setAttributes(const ElementPath& path, const AmazingChild::Attributes& attributes) {
    const AmazingChild* element = find(path);
    if (!element)
        return designCode::unknownId;
    // The files of a wallpaper are listed when it is made.
    const bool isStale = dynamic_cast<const LockWallPaper*>(element) && attributes.contains("src");
    return areWritable(attributes) && !isStale ? tryChange(path, attributes) : designCode::notAllowed;
}

int LockDesign::setDecorationChildren(std::size_t index, const std::vector<AmazingChild>& children) {
    constexpr int deepest = 96; // A document is read to a depth of 98, and two levels lie above.
    if (!isDecoration(index))
        return designCode::unknownId;
    AmazingChild::Children copies;
    for (const AmazingChild& each : children) {
        if (!isWritable(each, deepest))
            return designCode::notAllowed;
        copies.push_back(std::make_unique<AmazingChild>(each));
    }
    _elements[index]->setChildren(std::move(copies));
    return success;
}

int LockDesign::moveElement(std::size_t from, std::size_t to) {
    if (from >= _elements.size() || to >= _elements.size())
        return designCode::unknownId;
    std::unique_ptr<AmazingChild> element = std::move(_elements[from]);
    _elements.erase(_elements.begin() + static_cast<std::ptrdiff_t>(from));
    insert(to, std::move(element));
    return success;
}

int LockDesign::removeElement(std::size_t index) {
    if (index >= _elements.size())
        return designCode::unknownId;
    switch (kindOf(*_elements[index])) {
    case ElementKind::hour1:
    case ElementKind::hour2:
    case ElementKind::min1:
    case ElementKind::min2:
    case ElementKind::clock:
    case ElementKind::music:
    case ElementKind::button:
        return designCode::notAllowed;
    case ElementKind::wallpaper:
    case ElementKind::decoration:
    case ElementKind::text:
    case ElementKind::unlocker:
    case ElementKind::plain:
        break;
    }
    erase(index);
    return success;
}

int LockDesign::addDecoration(const std::string& file, const DesignRect& rect,
                              const AmazingChild::Attributes& attributes, std::size_t& index) {
    if (!isPlainPicture(file) || !isAllowed(rect) || !areWritable(attributes) || attributes.contains("src"))
        return designCode::notAllowed;
    auto decoration = std::make_unique<Decoration>(imageTag, AmazingChild::Attributes{{"src", file}});
    place(*decoration, rect, _height);
    change(*decoration, attributes);
    const AmazingChild* const added = decoration.get();
    insert(_elements.size(), std::move(decoration));
    index = indexOf(added);
    return success;
}

int LockDesign::setDecorationFile(std::size_t index, const std::string& file) {
    if (!isDecoration(index))
        return designCode::unknownId;
    return isPlainPicture(file) ? tryChange({index}, {{"src", file}}) : designCode::notAllowed;
}

int LockDesign::removeDecoration(std::size_t index) {
    if (index >= _elements.size())
        return designCode::unknownId;
    if (!isDecoration(index))
        return designCode::missingElement;
    erase(index);
    return success;
}

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
