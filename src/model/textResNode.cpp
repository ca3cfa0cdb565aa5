#include "model/textResNode.h"

#include "model/returnCode.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace zdt {

namespace {

constexpr int plainTextKind = 1;
constexpr int colourKind = 2;
constexpr int notAColour = -1;

const Pattern& colourPattern() {
    static const Pattern& pattern = Pattern::of(std::string(colorRegularPattern));
    return pattern;
}

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// What `colorRegularPattern` says, told without it: opening a theme asks this a thousand times.
bool isColour(std::string_view text) {
    constexpr std::size_t withoutAlpha = 7;
    constexpr std::size_t withAlpha = 9;
    return (text.size() == withoutAlpha || text.size() == withAlpha) && text.front() == '#' &&
           std::all_of(text.begin() + 1, text.end(), isHexDigit);
}

} // namespace

TextResNode::TextResNode(std::string name, std::string value)
    : ResNode(std::move(name), std::move(value)) {
    setValueKind(plainTextKind);
}

TextResNode::TextResNode(TypeMask mask, std::string name, std::string value)
    : ResNode(mask, std::move(name), std::move(value)) {
    setValueKind(plainTextKind);
}

int TextResNode::validate(const std::string& value) {
    if (!_regex)
        return 0;
    if (value.empty())
        return fail(returnCode::emptyValue);
    return _regex->matches(value) ? 0 : fail(returnCode::patternMismatch);
}

int TextResNode::setValue(const std::string& value) {
    const int code = validate(value);
    if (code == 0)
        setRawValue(value);
    return code;
}

ColorTextResNode::ColorTextResNode(std::string name, std::string value)
    : TextResNode(std::move(name), std::move(value)) {
    becomeColour();
}

ColorTextResNode::ColorTextResNode(TypeMask mask, std::string name, std::string value)
    : TextResNode(mask, std::move(name), std::move(value)) {
    becomeColour();
}

void ColorTextResNode::becomeColour() {
    setValueKind(colourKind);
    setRegex(&colourPattern());
    const int alpha = alphaOf(splitColour(value()).first);
    if (alpha >= 0)
        _maxAlpha = static_cast<std::uint8_t>(alpha);
}

int ColorTextResNode::validate(const std::string& value) {
    return hasRule(colourPattern()) && isColour(value) ? 0 : TextResNode::validate(value);
}

std::pair<std::string, std::string> ColorTextResNode::splitColour(const std::string& value) const {
    constexpr std::size_t digits = 6;
    if (!isColour(value))
        return {};
    return {value.substr(1, value.size() - digits - 1), value.substr(value.size() - digits)};
}

int ColorTextResNode::alphaOf(const std::string& pair) {
    int alpha = -1;
    std::from_chars(pair.data(), pair.data() + pair.size(), alpha, 16);
    return alpha;
}

std::string ColorTextResNode::formatAlpha(int alpha) {
    if (alpha >= opaque)
        return {};
    constexpr std::string_view digits = "0123456789abcdef";
    const auto byte = static_cast<unsigned>(alpha);
    return {digits[byte >> 4 & 0xf], digits[byte & 0xf]};
}

int ColorTextResNode::applyAlphaLimit(const std::string& value) {
    const auto [pair, colour] = splitColour(value);
    if (colour.empty())
        return notAColour;
    const int offered = pair.empty() ? opaque : alphaOf(pair);
    setRawValue("#" + formatAlpha(_maxAlpha * offered / opaque) + colour);
    return 0;
}

std::string ColorTextResNode::composeColour() const {
    if (_maxAlpha == opaque || _maxAlpha == 0)
        return value();
    const auto [pair, colour] = splitColour(value());
    // A value with no alpha digits is opaque: the -1 that stands for it is above every limit as a byte.
    const auto alpha = static_cast<std::uint8_t>(alphaOf(pair));
    const int shown =
        alpha < _maxAlpha ? static_cast<int>(std::ceil(static_cast<double>(alpha) * opaque / _maxAlpha)) : opaque;
    return "#" + formatAlpha(shown) + colour;
}

} // namespace zdt
