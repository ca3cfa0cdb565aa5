#include "packaging/frameList.h"

#include "packaging/pictureCheck.h"
#include "packaging/uploadMessages.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr int modeOne = 1;

std::size_t room(std::size_t present, std::size_t limit) {
    return limit - std::min(present, limit);
}

} // namespace

std::size_t stillLimit(int mode) {
    return mode == modeOne ? maxStillsInModeOne : maxStills;
}

bool hasRoomForFrame(std::size_t present, int mode) {
    return room(present, stillLimit(mode)) > 0;
}

std::string_view CheckFrameSelection(const std::vector<std::string>& paths) {
    const bool hasGif = std::any_of(paths.begin(), paths.end(), &hasGifEnding);
    return hasGif && paths.size() > 1 ? kWarn_frame_upload_gifonlyone : std::string_view();
}

FrameIntake takeStills(std::size_t present, std::size_t offered, int mode) {
    const std::size_t taken = std::min(offered, room(present, stillLimit(mode)));
    return {taken, taken < offered ? kWarn_frame_upload_tenpicture : std::string_view()};
}

FrameIntake takeGifFrames(std::size_t present, std::size_t frames) {
    if (frames > room(present, maxGifFrames))
        return {0, kWarn_frame_upload_hundred};
    return {frames, {}};
}

} // namespace zdt
