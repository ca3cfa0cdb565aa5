#include "lockscreen/designEditing.h"
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

/// Whether an element of that name may have the attributes: a picture's `src` leads nowhere but to the design's own.
bool mayHave(const std::string& name, const AmazingChild::Attributes& attributes) {
    const auto names = AmazingChild(name, attributes).resources();
    return areWritable(attributes) && names && std::all_of(names->begin(), names->end(), isBareFileName);
}

bool isWritable(const AmazingChild& element, int depth) {
    return depth > 0 && areWritable({{element.name(), ""}}) && mayHave(element.name(), element.attributes()) &&
           std::all_of(element.children().begin(), element.children().end(),
                       [&](const auto& child) { return isWritable(*child, depth - 1); });
}

/// 0 for what isn't an unlocker.
int unlockerKindOf(const AmazingChild& element) {
    const auto* unlocker = dynamic_cast<const UnlockerData*>(&element);
    return unlocker ? unlocker->unlockerKind() : 0;
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

bool isAllowed(const DesignRect& rect) {
    constexpr int farthest = 100000;
    const auto isNear = [](int pixel) { return pixel >= -farthest && pixel <= farthest; };
    return isNear(rect.x) && isNear(rect.y) && rect.width >= 0 && isNear(rect.width) && rect.height >= 0 &&
           isNear(rect.height);
}

void place(AmazingChild& element, const DesignRect& rect, std::uint32_t height) {
    const std::array<int, 4> pixels{rect.x, rect.y, rect.width, rect.height};
    for (std::size_t index = 0; index < geometryKeys.size(); ++index) {
        const std::string key = geometryKeys[index];
        // What an element doesn't say is 0 already.
        if (pixels[index] != 0 || element.attributes().contains(key))
            element.setAttribute(key, movedTo(element.attribute(key), pixels[index], height));
    }
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
    for (std::size_t index = 0; element && index < geometryKeys.size(); ++index) {
        const std::string text = element->attribute(geometryKeys[index]);
        const std::optional<int> pixel = text.empty() ? 0 : pixelOf(text, _height);
        if (!pixel)
            return std::nullopt;
        pixels[index] = *pixel;
    }
    if (!element)
        return std::nullopt;
    return DesignRect{pixels[0], pixels[1], pixels[2], pixels[3]};
}

bool LockDesign::isStill(std::size_t index, ElementKind kind, int unlockerKind) const {
    if (kindOf(*_elements[index]) != kind || unlockerKindOf(*_elements[index]) != unlockerKind)
        return false;
    ImageRules rules;
    return std::all_of(_elements.begin(), _elements.end(), [&](const auto& element) {
        return element->name() != imageTag || isOfKind(*element, rules.next(*element));
    });
}

int LockDesign::tryChange(const ElementPath& path, const AmazingChild::Attributes& attributes) {
    AmazingChild* element = findIn(_elements, path);
    if (!element)
        return designCode::unknownId;
    const AmazingChild& top = *_elements[path.front()];
    const ElementKind kind = kindOf(top);
    const int unlockerKind = unlockerKindOf(top);
    const AmazingChild::Attributes old = element->attributes();
    change(*element, attributes);
    findElements();
    if (isStill(path.front(), kind, unlockerKind))
        return success;
    element->setAttributes(old);
    findElements();
    return designCode::notAllowed;
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
    return mayHave(element->name(), attributes) && !isStale ? tryChange(path, attributes) : designCode::notAllowed;
}

int LockDesign::setChildren(const ElementPath& path, const std::vector<AmazingChild>& children) {
    constexpr int deepestLevel = 98; // to which a document is read, its root included
    const int deepest = deepestLevel - 1 - static_cast<int>(path.size());
    AmazingChild* element = findIn(_elements, path);
    if (!element)
        return designCode::unknownId;
    AmazingChild::Children copies;
    for (const AmazingChild& each : children) {
        if (!isWritable(each, deepest))
            return designCode::notAllowed;
        copies.push_back(std::make_unique<AmazingChild>(each));
    }
    const AmazingChild& top = *_elements[path.front()];
    const int unlockerKind = unlockerKindOf(top);
    AmazingChild::Children old = element->takeChildren();
    element->setChildren(std::move(copies));
    if (isStill(path.front(), kindOf(top), unlockerKind))
        return success;
    element->setChildren(std::move(old));
    return designCode::notAllowed;
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

} // namespace zdt
