#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Regular expressions, on RE2: its time is linear in the text and its stack bounded, so that no text that an author
/// types or imports can hang or crash a match, as it can with the standard library's recursive engine.
namespace zdt {

/// Whether the whole text matches the expression. Bytes above 127 count as characters of their own. A compiled
/// expression is kept for the next call. An expression that isn't well formed matches nothing.
[[nodiscard]] bool matchesPattern(std::string_view text, const std::string& expression);

/// The same, giving the text of each capture group in order, empty for a group that took no part. Without a match
/// `groups` is empty.
[[nodiscard]] bool matchesPattern(std::string_view text, const std::string& expression,
                                  std::vector<std::string>& groups);

/// The text with every sign that has a meaning in an expression escaped.
[[nodiscard]] std::string escapePattern(std::string_view text);

} // namespace zdt
