#pragma once

#include "support/parallel.h"

#include <QString>

#include <cstddef>
#include <string>
#include <vector>

namespace zdt {

/// What files bring to a strip of frames.
struct FrameFiles {
    std::vector<std::string> frames; ///< To be added, in order.
    QString message;                 ///< Key of the message to show; it may come with frames.
    std::string leftOut;             ///< The name of the first of several that wasn't taken; the message says why.
};

/// Tests files for a strip and takes the frames out of a GIF, which takes a while. Any thread may call it.
/// @param present how many frames the strip has
/// @param mode whose limit of stills it has
/// @param workspace where the frames of a GIF go, below "GifToImage/"; ends in "/"
[[nodiscard]] FrameFiles takeFrames(const std::vector<std::string>& files, std::size_t present, int mode,
                                    const std::string& workspace, const Progress& progress = {});

/// The same for one file in the place of a frame, which no GIF can be.
[[nodiscard]] FrameFiles takeFrame(const std::string& file);

} // namespace zdt
