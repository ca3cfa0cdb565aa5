#pragma once

#include <string>
#include <string_view>

namespace zdt {

/// Whether the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
[[nodiscard]] bool isUtf8(std::string_view text);

/// The characters of a UTF-8 text; U+FFFD for each byte that is no part of one.
[[nodiscard]] std::u32string toCodePoints(std::string_view text);

/// Whether XML can hold the text and gives it back unchanged: UTF-8 with no control character but the tab and the line
/// feed, and none of the two codes U+FFFE and U+FFFF.
[[nodiscard]] bool isXmlText(std::string_view text);

/// Whether every byte lies in the printable ASCII range of 32 to 126. True for an empty text.
[[nodiscard]] bool isPrintable(std::string_view text);

/// The text with the ASCII letters lower-cased; other bytes stay.
[[nodiscard]] std::string toLowerAscii(std::string_view text);

} // namespace zdt
