#pragma once

#include "support/parallel.h"

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

/// A GIF's frames as single pictures.
namespace zdt {

/// Pixels of all of a GIF's frames together: a hundred of the largest phone's screen.
inline constexpr std::int64_t maxGifPixels = 256LL * 1024 * 1024;

struct GifFrames {
    std::vector<std::string> paths; ///< In the order of the frames; empty if there are none.
    std::string_view message; ///< Key of the message to show when there are none; empty if a file can't be written.
};

/// Frames, with none of them decoded; 0 if it can't be read or isn't a GIF.
[[nodiscard]] int CountGifFrames(const std::string& gifPath);

/// The time as it stands in the frames' path, in the computer's own time zone: "2024_05_31_08_30_00".
[[nodiscard]] std::string gifTimeText(std::time_t time);

/// Writes the frames, each as it is seen, as JPEG files "<folder>GifToImage/<time>/GifToPic<n>.jpg" with n from 0.
/// `folder` ends in "/" and `time` is `gifTimeText`'s; where a folder of that time stands already, "_2" and so on
/// follow it, so that GIFs of one second don't mix. Of a cut GIF what can be read is taken. No folder is left for a GIF
/// of more than 100 frames, for what can't be read or is too large, and when a file can't be written.
[[nodiscard]] GifFrames ExtractGifFrames(const std::string& gifPath, const std::string& folder, const std::string& time,
                                         const Progress& progress = {});

} // namespace zdt
