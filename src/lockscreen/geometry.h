#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The positions and sizes in a lock screen layout. Each is a text: a number of pixels in the design space, which is
/// 1080 wide, or `system.screen_height` with a signed offset, for what hangs on the screen's lower edge. A term such as
/// `+system.<unlocker>_moveY` behind it lets the place follow the hand.
namespace zdt {

/// The attributes that hold a position or size.
inline constexpr std::array<const char*, 4> geometryKeys{"x", "y", "w", "h"};

/// The variable of the screen's height.
inline constexpr std::string_view screenHeightVariable = "system.screen_height";

/// The canonical form of a text: without blanks, and folded into a number or `system.screen_height-<number>` where it
/// can be computed. A text of fewer than three tokens, one with any other variable, and a place at or below the lower
/// edge are not folded.
/// @param height of the screen, 1920 or 2160; anything else is a programming error
[[nodiscard]] std::string foldGeometry(std::string_view text, std::uint32_t height);

/// The parts of a position.
struct Position {
    bool fromBottom = false; ///< Counted from the lower edge of the screen.
    std::int64_t offset = 0; ///< Pixels, downwards; from the lower edge mostly negative.
    bool hasOffset = false;  ///< Whether the offset was written out.
    std::string drag;        ///< The term that follows the hand, with its "+"; often empty.
};

/// Nothing for a text of another form, or a number beyond 32 bits.
[[nodiscard]] std::optional<Position> splitPosition(const std::string& text);

/// Where a position lies on a screen of that height, in pixels, before the hand moves it. Nothing if it can't be told.
[[nodiscard]] std::optional<int> pixelOf(const std::string& text, std::uint32_t height);

/// The text of a position moved to another pixel. What hung on the lower edge still does, and what followed the hand
/// too.
[[nodiscard]] std::string movedTo(const std::string& text, int pixel, std::uint32_t height);

/// The position on a screen of one fixed height: a number where the text counts from the lower edge, otherwise the text
/// itself.
[[nodiscard]] std::string fixedPosition(const std::string& text, std::uint32_t height);

/// Numbers from here on belong to the half of the screen that hangs on its lower edge.
inline constexpr int firstBottomPixel = 911;

/// The other way: a number from `firstBottomPixel` to `height` counts from the lower edge afterwards; any other text
/// stays.
[[nodiscard]] std::string anchoredPosition(const std::string& text, std::uint32_t height);

} // namespace zdt
