#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The picture names that the `src` of a lock screen element stands for. A `src` is a chain of tokens joined by "+": a
/// text in single quotes stands for itself, `system.time.hour1`, `hour2`, `min1` and `min2` stand for each digit of the
/// clock, so that `'number_'+system.time.min1+'.png'` names number_0.png to number_5.png. A digit may be followed by
/// `/n` or `%n`. Any other variable adds nothing to a name.
namespace zdt {

/// More names than any layout can use; a `src` that stands for more is refused.
inline constexpr std::size_t maxPictureNames = 10000;
/// Bytes of the longest `src` that is expanded; a longer one is refused.
inline constexpr std::size_t maxSourceBytes = 4096;

/// Parts of a `src`; one of more is refused.
inline constexpr std::size_t maxSourceTokens = 100;

/// The variable of a wallpaper's height, as it stands in a `src`: in quotes.
inline constexpr std::string_view heightToken = "'system.screen_height'";
/// What stands in its place in the names of the pictures for a height of 2160.
inline constexpr std::string_view tallPrefix = "2160_";

/// The parts between the "+" of a `src`, also of one inside quotes: the format has no escape.
[[nodiscard]] std::vector<std::string> splitSource(std::string_view src);

/// How many names a `src` stands for, told without making them: no fewer than `expandSource` gives, and at most one
/// more than it allows; 0 for one that is too long to be looked at.
[[nodiscard]] std::size_t countNames(std::string_view src);

/// The names that the tokens stand for, in counting order with the last digit running fastest. With the first
/// digit of the hour and any other variable, a 2 isn't followed by what the second digit's 4 to 9 would make of the
/// name: so the hours 24 to 29 are left out. Nothing if they are refused.
[[nodiscard]] std::optional<std::vector<std::string>> expandTokens(const std::vector<std::string>& tokens);

/// The names of a `src`, or nothing if it is refused. One without any quote and without a digit of the clock is a name
/// as it stands.
[[nodiscard]] std::optional<std::vector<std::string>> expandSource(std::string_view src);

} // namespace zdt
