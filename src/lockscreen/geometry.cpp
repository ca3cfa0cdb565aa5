#include "lockscreen/geometry.h"

#include "lockscreen/expression.h"
#include "support/assertion.h"
#include "support/pattern.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <vector>

namespace zdt {

namespace {

const Pattern& positionPattern() {
    static const Pattern& pattern = Pattern::of(R"((system\.screen_height)?([+-]?\d+)?(\+system\..+_move[XY]\.*)?)");
    return pattern;
}

bool isNumber(std::string_view token) {
    return std::all_of(token.begin(), token.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string joined(const Tokens& tokens) {
    std::string text;
    for (const std::string& token : tokens)
        text += token;
    return text;
}

/// Puts the height in for its variable. False if another variable stands in the way of computing a value.
bool substituteHeight(Tokens& tokens, std::uint32_t height, bool& usesHeight) {
    for (std::string& token : tokens) {
        if (!isOperand(token) || isNumber(token))
            continue;
        if (token != screenHeightVariable)
            return false;
        token = std::to_string(height);
        usesHeight = true;
    }
    return true;
}

std::string fromBottom(std::int64_t pixelsAbove) {
    std::string variable(screenHeightVariable);
    if (pixelsAbove == 0)
        return variable;
    return variable + (pixelsAbove > 0 ? "-" : "+") + std::to_string(std::abs(pixelsAbove));
}

/// Nothing beyond 32 bits, so that sums can't overflow.
std::optional<std::int64_t> readOffset(std::string_view text) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    std::int32_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() ? std::optional<std::int64_t>(value) : std::nullopt;
}

} // namespace

std::string foldGeometry(std::string_view text, std::uint32_t height) {
    ZDT_ASSERT(height == 1920 || height == 2160, "amazingChild");
    constexpr std::size_t fewestTokens = 3;
    Tokens tokens = tokenise(text);
    if (tokens.empty())
        return std::string(text);
    std::string plain = joined(tokens);
    if (tokens.size() < fewestTokens)
        return plain;
    if (isOperator(tokens.front()))
        tokens.insert(tokens.begin(), "0");
    if (tokens.size() > maxExpressionTokens)
        return plain;
    bool usesHeight = false;
    if (!substituteHeight(tokens, height, usesHeight))
        return plain;
    const std::int64_t value = Evaluator(toPostfix(tokens)).evaluate();
    if (!usesHeight)
        return std::to_string(value);
    return value < height ? fromBottom(height - value) : plain;
}

std::optional<Position> splitPosition(const std::string& text) {
    std::vector<std::string> groups;
    if (text.empty() || !positionPattern().matches(text, groups))
        return std::nullopt;
    const std::optional<std::int64_t> offset = groups[1].empty() ? 0 : readOffset(groups[1]);
    if (!offset)
        return std::nullopt;
    return Position{!groups[0].empty(), *offset, !groups[1].empty(), groups[2]};
}

std::optional<int> pixelOf(const std::string& text, std::uint32_t height) {
    const std::optional<Position> position = splitPosition(foldGeometry(text, height));
    if (!position)
        return std::nullopt;
    const std::int64_t pixel = (position->fromBottom ? height : 0) + position->offset;
    return static_cast<int>(std::min<std::int64_t>(pixel, std::numeric_limits<int>::max()));
}

std::string movedTo(const std::string& text, int pixel, std::uint32_t height) {
    const Position position = splitPosition(foldGeometry(text, height)).value_or(Position());
    const std::int64_t pixelsAbove = static_cast<std::int64_t>(height) - pixel;
    return (position.fromBottom ? fromBottom(pixelsAbove) : std::to_string(pixel)) + position.drag;
}

std::string fixedPosition(const std::string& text, std::uint32_t height) {
    const std::optional<Position> position = splitPosition(foldGeometry(text, height));
    if (!position || !position->fromBottom)
        return text;
    return std::to_string(height + position->offset) + position->drag;
}

std::string anchoredPosition(const std::string& text, std::uint32_t height) {
    const std::optional<Position> position = splitPosition(text);
    if (!position || position->fromBottom || !position->hasOffset || text.starts_with('+') ||
        position->offset < firstBottomPixel || position->offset > height)
        return text;
    return fromBottom(height - position->offset) + position->drag;
}

} // namespace zdt
