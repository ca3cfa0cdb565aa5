#include "support/text.h"

#include <algorithm>
#include <cstdint>

namespace zdt {

namespace {

/// A character and the number of bytes that it took.
struct Sequence {
    std::size_t length = 0; ///< 0 for bytes that are not well formed.
    std::uint32_t codePoint = 0;
};

/// The UTF-8 sequence at the start of `text`, which isn't empty.
Sequence firstSequence(std::string_view text) {
    const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned char lead = byteAt(0);
    if (lead < 0x80)
        return {1, lead};
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || text.size() < length)
        return {};
    std::uint32_t codePoint = lead & (0x7fU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        if ((byteAt(index) & 0xc0) != 0x80)
            return {};
        codePoint = codePoint << 6 | (byteAt(index) & 0x3fU);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = codePoint >= 0xd800 && codePoint <= 0xdfff;
    const bool isSound = codePoint >= smallest[length] && codePoint <= 0x10ffff && !isSurrogate;
    return isSound ? Sequence{length, codePoint} : Sequence();
}

} // namespace

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = firstSequence(text).length;
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::u32string toCodePoints(std::string_view text) {
    constexpr char32_t replacement = 0xfffd;
    std::u32string characters;
    while (!text.empty()) {
        const Sequence next = firstSequence(text);
        characters += next.length > 0 ? static_cast<char32_t>(next.codePoint) : replacement;
        text.remove_prefix(std::max<std::size_t>(next.length, 1));
    }
    return characters;
}

bool isXmlText(std::string_view text) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t'; };
    return isUtf8(text) && std::none_of(text.begin(), text.end(), isControl) &&
           text.find("\xef\xbf\xbe") == std::string_view::npos && text.find("\xef\xbf\xbf") == std::string_view::npos;
}

bool isPrintable(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= 32 && c <= 126; });
}

std::string toLowerAscii(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

} // namespace zdt
