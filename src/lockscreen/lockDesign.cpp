#include "lockscreen/lockDesign.h"

#include "lockscreen/geometry.h"
#include "lockscreen/imageRules.h"
#include "support/assertion.h"

#include <algorithm>
#include <utility>

/// Telling the elements of a design apart, and keeping them so that a reader tells the same again.
namespace zdt {

namespace {

constexpr const char* unlockerTag = "unlocker";
constexpr const char* musicTag = "MusicControl";
constexpr const char* buttonTag = "button";
constexpr std::array<ImageKind, 4> digitKinds{ImageKind::hour1, ImageKind::hour2, ImageKind::min1, ImageKind::min2};

bool isImage(const AmazingChild& element) {
    return element.name() == imageTag;
}

bool isClockImage(const AmazingChild& element) {
    return isImage(element) && isOfKind(element, ImageKind::clock);
}

void foldPlace(AmazingChild& element, std::uint32_t height) {
    for (const char* key : geometryKeys) {
        const std::string text = element.attribute(key);
        if (std::string folded = foldGeometry(text, height); folded != text)
            element.setAttribute(key, std::move(folded));
    }
}

std::unique_ptr<AmazingChild> classify(std::unique_ptr<AmazingChild> element, ImageRules& rules) {
    if (isImage(*element)) {
        const ImageKind kind = rules.next(*element);
        return asKind(kind, std::move(element));
    }
    if (element->name() == unlockerTag)
        return std::make_unique<UnlockerData>(std::move(*element));
    return element;
}

/// The images inside the unlockers of a design that has both kinds are told apart like those of the top level.
void classifyParts(UnlockerData& unlocker, ImageRules& rules) {
    AmazingChild::Children parts = unlocker.takeChildren();
    for (auto& part : parts)
        part = classify(std::move(part), rules);
    unlocker.setChildren(std::move(parts));
}

template <typename Item>
void rotateTo(std::vector<Item>& list, std::size_t from, std::size_t to) {
    const auto at = [&](std::size_t index) { return list.begin() + static_cast<std::ptrdiff_t>(index); };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
}

} // namespace

LockDesign::LockDesign(LayoutElements elements, std::uint32_t height)
    : _elements(std::move(elements))
    , _height(height) {
    ImageRules rules;
    for (auto& element : _elements) {
        foldPlace(*element, height);
        element = classify(std::move(element), rules);
    }
    constexpr int bothKinds = 3;
    if (unlockMode() == bothKinds) {
        ImageRules partRules;
        for (UnlockerData* unlocker : unlockers())
            classifyParts(*unlocker, partRules);
    }
    findElements();
}

LockDesign LockDesign::makeDefault(std::uint32_t height) {
    LockDesign design;
    design._height = height;
    for (const layoutDefaults::Text& row : layoutDefaults::texts)
        design.append(layoutDefaults::makeText(row));
    design.addClock();
    design.addUnlocker(UnlockerKind::moving);
    return design;
}

void LockDesign::findElements() {
    _wallpaper = nullptr;
    _digits.fill(nullptr);
    _clockPicture = nullptr;
    _charge.fill(nullptr);
    _musicControl = nullptr;
    _musicButtons.fill(nullptr);
    const auto takeFirst = [](auto*& slot, auto* element) { slot = slot ? slot : element; };

    ImageRules rules;
    for (const auto& element : _elements) {
        const std::string name = element->attribute("name");
        if (element->name() == musicTag)
            takeFirst(_musicControl, element.get());
        else if (element->name() == buttonTag && name == layoutDefaults::musicShowName)
            takeFirst(_musicButtons[0], element.get());
        else if (element->name() == buttonTag && name == layoutDefaults::musicHideName)
            takeFirst(_musicButtons[1], element.get());
        if (!isImage(*element))
            continue;
        const ImageKind kind = rules.next(*element);
        if (auto* wallpaper = dynamic_cast<LockWallPaper*>(element.get()))
            takeFirst(_wallpaper, wallpaper);
        else if (const auto* digit = std::find(digitKinds.begin(), digitKinds.end(), kind); digit != digitKinds.end())
            _digits[static_cast<std::size_t>(digit - digitKinds.begin())] =
                dynamic_cast<TimeAboutImage*>(element.get());
        else if (kind == ImageKind::clock)
            _clockPicture = dynamic_cast<TimeAboutImage*>(element.get());
        else if (auto* decoration = dynamic_cast<Decoration*>(element.get())) {
            if (const auto charge = chargeIndexOf(decoration->attribute("visible")))
                _charge[*charge] = decoration;
        }
    }
}

ElementKind LockDesign::kindOf(const AmazingChild& element) const {
    constexpr std::array<ElementKind, 4> kindOfDigit{ElementKind::hour1, ElementKind::hour2, ElementKind::min1,
                                                     ElementKind::min2};
    for (std::size_t digit = 0; digit < _digits.size(); ++digit) {
        if (_digits[digit] == &element)
            return kindOfDigit[digit];
    }
    if (&element == _clockPicture)
        return ElementKind::clock;
    if (&element == _musicButtons[0] || &element == _musicButtons[1])
        return ElementKind::button;
    if (dynamic_cast<const LockWallPaper*>(&element))
        return ElementKind::wallpaper;
    if (dynamic_cast<const Decoration*>(&element))
        return ElementKind::decoration;
    if (dynamic_cast<const UnlockerData*>(&element))
        return ElementKind::unlocker;
    if (element.name() == musicTag)
        return ElementKind::music;
    return element.name() == "text" ? ElementKind::text : ElementKind::plain;
}

void LockDesign::settle() {
    // A picture among the digits, which a reader would take for the clock's, goes below them; the clock's own, outside
    // of them, goes back between them. Each round puts one right, so that there are no more rounds than elements.
    for (std::size_t round = 0; round < _elements.size() && settleOne(); ++round) {
    }
    ImageRules rules;
    for (auto& element : _elements) {
        if (!isImage(*element))
            continue;
        const ImageKind kind = rules.next(*element);
        if (!isOfKind(*element, kind))
            element = asKind(kind, std::move(element));
    }
    findElements();
}

bool LockDesign::settleOne() {
    ImageRules rules;
    std::optional<std::size_t> firstOfClock;
    for (std::size_t index = 0; index < _elements.size(); ++index) {
        const AmazingChild& element = *_elements[index];
        if (!isImage(element))
            continue;
        const ImageKind kind = rules.next(element);
        if (kind != ImageKind::decoration && isDecoration(index) && firstOfClock) {
            rotateTo(_elements, index, *firstOfClock);
            return true;
        }
        if (kind == ImageKind::decoration && isClockImage(element)) {
            const std::optional<std::size_t> digit = firstOfClock ? firstOfClock : nextDigit(index);
            if (digit) {
                rotateTo(_elements, index, *digit < index ? *digit + 1 : *digit);
                return true;
            }
        }
        if (!firstOfClock && rules.clockBits() != 0)
            firstOfClock = index;
    }
    return false;
}

std::optional<std::size_t> LockDesign::nextDigit(std::size_t index) const {
    for (std::size_t next = index + 1; next < _elements.size(); ++next) {
        if (isClockImage(*_elements[next]) && changesWithTime(_elements[next]->src()))
            return next;
    }
    return std::nullopt;
}

const AmazingChild* LockDesign::find(const ElementPath& path) const {
    return findIn(_elements, path);
}

AmazingChild* LockDesign::findIn(const LayoutElements& elements, const ElementPath& path) {
    const LayoutElements* level = &elements;
    AmazingChild* found = nullptr;
    for (const std::size_t index : path) {
        if (index >= level->size())
            return nullptr;
        found = (*level)[index].get();
        level = &found->children();
    }
    return found;
}

const TimeAboutImage* LockDesign::clockDigit(ClockDigit digit) const {
    return _digits.at(static_cast<std::size_t>(digit));
}

const AmazingChild* LockDesign::musicButton(MusicButton button) const {
    return _musicButtons.at(static_cast<std::size_t>(button));
}

const AmazingChild* LockDesign::text(const std::string& src) const {
    const auto found = std::find_if(_elements.begin(), _elements.end(), [&](const auto& element) {
        return element->name() == "text" && element->src() == src;
    });
    return found == _elements.end() ? nullptr : found->get();
}

const UnlockerData* LockDesign::unlocker(UnlockerKind kind) const {
    for (const UnlockerData* unlocker : unlockers()) {
        if (unlocker->unlockerKind() == static_cast<int>(kind))
            return unlocker;
    }
    return nullptr;
}

const Decoration* LockDesign::chargePicture(std::size_t index) const {
    ZDT_ASSERT(index < _charge.size(), "amazingUnlockNode");
    return _charge[index];
}

std::vector<std::size_t> LockDesign::decorations() const {
    std::vector<std::size_t> indexes;
    for (std::size_t index = 0; index < _elements.size(); ++index) {
        if (isDecoration(index))
            indexes.push_back(index);
    }
    return indexes;
}

std::vector<UnlockerData*> LockDesign::unlockers() const {
    std::vector<UnlockerData*> found;
    for (const UnlockerKind kind : {UnlockerKind::inPlace, UnlockerKind::moving}) {
        for (const auto& element : _elements) {
            auto* unlocker = dynamic_cast<UnlockerData*>(element.get());
            if (unlocker && unlocker->unlockerKind() == static_cast<int>(kind))
                found.push_back(unlocker);
        }
    }
    return found;
}

std::vector<const AmazingChild*> LockDesign::unlockerParts() const {
    std::vector<const AmazingChild*> parts;
    for (const UnlockerData* unlocker : unlockers()) {
        for (const auto& part : unlocker->children())
            parts.push_back(part.get());
    }
    return parts;
}

void LockDesign::lookUpWallpaperFiles(const std::string& directory) {
    const auto lookUp = [&](const LayoutElements& elements) {
        for (const auto& element : elements) {
            if (auto* wallpaper = dynamic_cast<LockWallPaper*>(element.get()))
                wallpaper->lookUpFiles(directory);
        }
    };
    lookUp(_elements);
    for (const UnlockerData* unlocker : unlockers())
        lookUp(unlocker->children());
}

int LockDesign::unlockMode() const {
    constexpr int none = -1;
    const int mode = (unlocker(UnlockerKind::inPlace) ? 1 : 0) + (unlocker(UnlockerKind::moving) ? 2 : 0);
    return mode == 0 ? none : mode;
}

unsigned LockDesign::clockBits() const {
    unsigned bits = _clockPicture ? 16 : 0;
    for (std::size_t digit = 0; digit < _digits.size(); ++digit)
        bits |= _digits[digit] ? 1U << digit : 0;
    return bits;
}

bool LockDesign::isDecoration(std::size_t index) const {
    return index < _elements.size() && dynamic_cast<const Decoration*>(_elements[index].get());
}

std::size_t LockDesign::indexOf(const AmazingChild* element) const {
    const auto found =
        std::find_if(_elements.begin(), _elements.end(), [&](const auto& each) { return each.get() == element; });
    return static_cast<std::size_t>(found - _elements.begin());
}

} // namespace zdt
