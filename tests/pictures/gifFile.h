#pragma once

#include <string>

namespace zdt::test {

/// An animated GIF. The frames take turns in red, green and blue; the fourth colour, black, lies where none reaches.
struct Gif {
    int frames = 1;
    int width = 12;  ///< Pixels, of screen and frames.
    int height = 20; ///< Pixels, of screen and frames.
};

/// Where a GIF of ours holds the screen's size and its first frame's, as two little-endian words.
inline constexpr std::size_t gifScreenPlace = 6;
inline constexpr std::size_t gifFramePlace = 30;

/// The file's bytes.
[[nodiscard]] std::string gifBytes(const Gif& gif);

} // namespace zdt::test
