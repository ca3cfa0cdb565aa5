#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// What a video's caller wants to know, from the boxes of an MP4 alone: no media is decoded, and `mdat` is stepped
/// over, so that a file of 4 GB costs no more than a small one.
namespace zdt {

struct Mp4Info {
    std::string brand;                 ///< The word of `ftyp` that begins with "mp4", at most 4 bytes; the last is any.
    std::uint32_t fileSize = 0;        ///< Bytes; a file of 4 GiB or more gives the greatest value.
    std::uint32_t durationSeconds = 0; ///< Rounded to the nearest second.
    std::uint32_t frameRate = 0;       ///< Frames a second, rounded; 0 when all samples have one size.
    std::uint32_t width = 0;           ///< Pixels, an odd width lowered by 1; 0 if a side is 0.
    std::uint32_t height = 0;          ///< Pixels, an odd height lowered by 1; 0 if a side is 0.
};

/// The values of the last video track. Nothing for what isn't a plain file, has no brand that begins with "mp4", no
/// video track or no length. Sizes of boxes are read as 32 bits, so nothing behind an `mdat` of 4 GiB is found, and
/// boxes of version 1 give wrong values. What a damaged file doesn't hold reads as 0.
[[nodiscard]] std::optional<Mp4Info> readMp4Info(const std::string& path);

/// The same through pointers; a null one gives false. The brand ends in a NUL and is cut to its buffer of
/// `brandBufferSize` bytes, at least 1. After false nothing was written.
[[nodiscard]] bool InspectMp4(const char* path, char* brandBuffer, std::size_t brandBufferSize, std::uint32_t* fileSize,
                              std::uint32_t* durationSeconds, std::uint32_t* frameRate, std::uint32_t* width,
                              std::uint32_t* height);

} // namespace zdt
