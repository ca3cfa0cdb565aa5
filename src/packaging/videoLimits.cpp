#include "packaging/videoLimits.h"

#include <optional>

namespace zdt {

std::string_view videoRefusal(const Mp4Info& video, const VideoLimits& limits) {
    if (video.width != limits.width || video.height != limits.height)
        return limits.wrongPictureSize;
    const bool fits = video.fileSize < limits.bytesEnd && video.durationSeconds <= limits.seconds &&
                      video.frameRate <= limits.frameRate;
    return fits ? std::string_view() : kWarn_upload_correct_unlock_video_nine_size;
}

std::string_view CheckVideoUpload(const std::string& path, const VideoLimits& limits) {
    const std::optional<Mp4Info> video = readMp4Info(path);
    return video ? videoRefusal(*video, limits) : kWarn_upload_correct_unlock_video_nine_files;
}

} // namespace zdt
