#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace re2 {
class RE2;
}

/// Regular expressions, on RE2: its time is linear in the text and its stack bounded, so that no text that an author
/// types or imports can hang or crash a match, as it can with the standard library's recursive engine.
namespace zdt {

/// A compiled expression. Compiling takes a hundred times as long as a match, so that each is compiled once and kept.
class Pattern {
public:
    /// The pattern of an expression, for the rest of the program's run. One that isn't well formed matches nothing.
    [[nodiscard]] static const Pattern& of(const std::string& expression);

    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;
    ~Pattern();

    [[nodiscard]] const std::string& expression() const;
    /// Whether the whole text matches. Bytes above 127 count as characters of their own.
    [[nodiscard]] bool matches(std::string_view text) const;
    /// The same, giving the text of each capture group in order, empty for a group that took no part. Without a match
    /// `groups` is empty.
    [[nodiscard]] bool matches(std::string_view text, std::vector<std::string>& groups) const;

private:
    explicit Pattern(const std::string& expression);

    std::unique_ptr<const re2::RE2> _compiled;
};

/// `Pattern::matches` of an expression.
[[nodiscard]] bool matchesPattern(std::string_view text, const std::string& expression);

[[nodiscard]] bool matchesPattern(std::string_view text, const std::string& expression,
                                  std::vector<std::string>& groups);

/// The text with every sign that has a meaning in an expression escaped.
[[nodiscard]] std::string escapePattern(std::string_view text);

} // namespace zdt
