#pragma once

#include <cstdint>
#include <string>

/// The pixel size of a picture, read from its header alone: no picture is decoded, and a large wallpaper's size is
/// known after a few hundred bytes. The file's content is believed, not its name.
namespace zdt {

struct PictureSize {
    std::uint32_t width = 0;  ///< Pixels; 0 if it couldn't be read.
    std::uint32_t height = 0; ///< Pixels; 0 if it couldn't be read.

    friend bool operator==(const PictureSize&, const PictureSize&) = default;
};

/// The size in a PNG's header, also in that of the early form with no length and type in front of it. 0 x 0 for
/// anything else.
[[nodiscard]] PictureSize pngSize(const std::string& path);

/// The size in a JPEG's first frame header. 0 x 0 for anything else.
[[nodiscard]] PictureSize jpegSize(const std::string& path);

} // namespace zdt
