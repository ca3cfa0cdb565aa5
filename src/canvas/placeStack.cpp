#include "canvas/placeStack.h"

#include "canvas/previewComposition.h"
#include "canvas/screens/screenLayer.h"

#include <algorithm>
#include <set>

namespace zdt {

namespace {

/// Logical pixels within which a hand that doesn't mean to move stays.
constexpr int nearby = 4;

std::vector<std::string> keysOf(const PreviewComposition& composition, const std::vector<std::size_t>& parts) {
    std::vector<std::string> keys;
    for (const std::size_t part : parts)
        keys.push_back(composition.parts()[part].key);
    return keys;
}

/// Whether a point means a small part whose strokes it may miss: that of a text or a sign.
bool isAround(const QRect& ink, const QPoint& at) {
    constexpr int air = 9;
    constexpr int largest = phoneWidth * phoneHeight / 24;
    if (ink.isEmpty() || ink.width() * ink.height() > largest)
        return false;
    return ink.adjusted(-air, -air, air, air).contains(at);
}

/// Leaves the first part of each key, and none without one.
void keepFirstOfKeys(const PreviewComposition& composition, std::vector<std::size_t>& parts) {
    std::set<std::string> met;
    const auto isNew = [&](std::size_t part) {
        const std::string& key = composition.parts()[part].key;
        return !key.empty() && met.insert(key).second;
    };
    std::erase_if(parts, [&](std::size_t part) { return !isNew(part); });
}

} // namespace

std::optional<std::size_t> PlaceStack::pick(PreviewComposition& composition, const QPoint& click, const QPoint& at) {
    const std::vector<std::size_t> parts = keyedPartsAt(composition, at);
    std::vector<std::string> keys = keysOf(composition, parts);
    const bool isAgain = isAtClick(click) && keys == _keys;
    _click = isAgain ? _click : click;
    _depth = isAgain && !keys.empty() ? (_depth + 1) % keys.size() : 0;
    _keys = std::move(keys);
    return parts.empty() ? std::nullopt : std::optional(parts[_depth]);
}

bool PlaceStack::isAtClick(const QPoint& point) const {
    return _click && (*_click - point).manhattanLength() <= nearby;
}

std::vector<std::size_t> keyedPartsAt(PreviewComposition& composition, const QPoint& at) {
    const std::vector<std::size_t> painted = composition.partsAt(at);
    std::vector<std::size_t> parts;
    for (std::size_t part = composition.parts().size(); part-- > 0;) {
        if (std::find(painted.begin(), painted.end(), part) != painted.end() || isAround(composition.inkOf(part), at))
            parts.push_back(part);
    }
    keepFirstOfKeys(composition, parts);
    return parts;
}

std::vector<std::size_t> walkOf(PreviewComposition& composition) {
    std::vector<std::size_t> parts;
    std::vector<QRect> inks;
    for (std::size_t part = 0; part < composition.parts().size(); ++part) {
        inks.push_back(composition.inkOf(part));
        if (!inks.back().isEmpty())
            parts.push_back(part);
    }
    std::stable_sort(parts.begin(), parts.end(), [&inks](std::size_t one, std::size_t other) {
        return std::pair(inks[one].top(), inks[one].left()) < std::pair(inks[other].top(), inks[other].left());
    });
    keepFirstOfKeys(composition, parts);
    return parts;
}

} // namespace zdt
