#include "editor/sizeHint.h"

#include <charconv>
#include <optional>

namespace zdt {

namespace {

constexpr std::string_view atMostSign = "≤";
constexpr int largestSide = 65535;
/// Where the star of a size may stand.
constexpr std::size_t firstStar = 1;
constexpr std::size_t lastStar = 4;

std::optional<int> readSide(std::string_view& text) {
    int side = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
    if (error != std::errc() || side < 1 || side > largestSide)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return side;
}

SizeRule readSize(SizeRule::Kind kind, std::string_view text) {
    const std::optional<int> width = readSide(text);
    if (!width || !text.starts_with('*'))
        return {};
    text.remove_prefix(1);
    const std::optional<int> height = readSide(text);
    return height ? SizeRule{kind, *width, *height} : SizeRule{};
}

} // namespace

bool SizeRule::allows(int pictureWidth, int pictureHeight) const {
    switch (kind) {
    case Kind::none:
        return true;
    case Kind::atMost:
        return pictureWidth <= width && pictureHeight <= height;
    case Kind::exactly:
        return pictureWidth == width && pictureHeight == height;
    }
    return true;
}

SizeRule parseSizeHint(std::string_view hint) {
    if (hint.find("建议") != std::string_view::npos || hint.find("Suggest") != std::string_view::npos)
        return {};
    if (hint.starts_with(atMostSign))
        return readSize(SizeRule::Kind::atMost, hint.substr(atMostSign.size()));
    const std::size_t star = hint.find('*');
    const bool isSize = star != std::string_view::npos && star >= firstStar && star <= lastStar;
    return isSize ? readSize(SizeRule::Kind::exactly, hint) : SizeRule{};
}

} // namespace zdt
