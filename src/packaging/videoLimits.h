#pragma once

#include "packaging/mp4.h"
#include "packaging/uploadMessages.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

/// What each place that takes a video asks of it.
namespace zdt {

struct VideoLimits {
    static constexpr std::uint32_t noLimit = std::numeric_limits<std::uint32_t>::max();

    std::uint32_t width = 0;     ///< Pixels, exactly.
    std::uint32_t height = 0;    ///< Pixels, exactly.
    std::uint32_t bytesEnd = 0;  ///< The file holds fewer bytes than this.
    std::uint32_t seconds = 0;   ///< At most.
    std::uint32_t frameRate = 0; ///< Frames a second, at most.
    std::string_view wrongPictureSize;
};

/// 15 MiB, for every video.
inline constexpr std::uint32_t videoBytesEnd = 15 * 1024 * 1024;

/// The upload of a video lock screen.
inline constexpr VideoLimits lockVideoLimits{.width = 1080,
                                             .height = 1920,
                                             .bytesEnd = videoBytesEnd,
                                             .seconds = 60,
                                             .frameRate = 30,
                                             .wrongPictureSize = kWarn_upload_correct_unlock_video_nine_format};
/// The second control on the page of the video lock screen.
inline constexpr VideoLimits lockVideoSecondLimits = lockVideoLimits;
/// The package of a video wallpaper; length and frame rate aren't tested.
inline constexpr VideoLimits wallpaperVideoLimits{
    .width = 1080,
    .height = 2340,
    .bytesEnd = videoBytesEnd,
    .seconds = VideoLimits::noLimit,
    .frameRate = VideoLimits::noLimit,
    .wrongPictureSize = kWarn_upload_correct_unlock_video_wallpaper_format,
};

/// The key of the message why the video isn't taken, its picture size looked at first; empty if it is fine.
[[nodiscard]] std::string_view videoRefusal(const Mp4Info& video, const VideoLimits& limits);

/// The same for a file, which may be no MP4 at all.
[[nodiscard]] std::string_view CheckVideoUpload(const std::string& path, const VideoLimits& limits);

} // namespace zdt
