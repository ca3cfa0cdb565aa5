#include "editor/frameIntake.h"

#include "packaging/frameList.h"
#include "packaging/gifFrames.h"
#include "packaging/pictureCheck.h"
#include "packaging/uploadMessages.h"
#include "support/files.h"

#include <ctime>
#include <string_view>

namespace zdt {

namespace {

constexpr std::string_view unreadable = "KWarn_upload_JPGPNG";

FrameFiles refused(std::string_view message) {
    return {{}, QString::fromUtf8(message.data(), static_cast<qsizetype>(message.size())), {}};
}

/// The message of a check that doesn't pass; a picture that can't be read passes those.
std::string_view messageOf(const PictureCheck& check) {
    if (!check.passes)
        return check.message.empty() ? unreadable : std::string_view(check.message);
    return check.width == 0 || check.height == 0 ? unreadable : std::string_view();
}

FrameFiles takeGif(const std::string& file, std::size_t present, const std::string& workspace,
                   const Progress& progress) {
    const int frames = CountGifFrames(file);
    if (frames <= 0)
        return refused(unreadable);
    const FrameIntake intake = takeGifFrames(present, static_cast<std::size_t>(frames));
    if (!intake.message.empty())
        return refused(intake.message);
    GifFrames extracted = ExtractGifFrames(file, workspace, gifTimeText(std::time(nullptr)), progress);
    if (extracted.paths.empty())
        return refused(extracted.message.empty() ? "kProblem_3" : extracted.message);
    return {std::move(extracted.paths), {}, {}};
}

PictureCheck checkFrame(const std::string& file) {
    return CheckPictureOrGifUpload(file, false, pictureLimit, kWarn_upload_lessthenoneM_pic);
}

void takeStill(const std::string& file, bool isOneOfSeveral, FrameFiles& taken) {
    const PictureCheck check = checkFrame(file);
    const std::string_view message = messageOf(check);
    if (message.empty()) {
        taken.frames.push_back(file);
    } else if (taken.leftOut.empty()) {
        taken.message = QString::fromUtf8(message.data(), static_cast<qsizetype>(message.size()));
        taken.leftOut = isOneOfSeveral ? fileName(file) : std::string();
    }
}

} // namespace

FrameFiles takeFrames(const std::vector<std::string>& files, std::size_t present, int mode,
                      const std::string& workspace, const Progress& progress) {
    if (const std::string_view message = CheckFrameSelection(files); !message.empty())
        return refused(message);
    if (files.size() == 1 && hasGifEnding(files.front())) {
        const PictureCheck check = checkFrame(files.front());
        const std::string_view message = messageOf(check);
        return message.empty() ? takeGif(files.front(), present, workspace, progress) : refused(message);
    }
    const FrameIntake intake = takeStills(present, files.size(), mode);
    FrameFiles taken = refused(intake.message);
    for (std::size_t at = 0; at < intake.taken; ++at)
        takeStill(files[at], files.size() > 1, taken);
    return taken;
}

FrameFiles takeFrame(const std::string& file) {
    const PictureCheck check = CheckPictureUpload(file, false, pictureLimit, kWarn_upload_lessthenoneM_pic);
    const std::string_view message = messageOf(check);
    return message.empty() ? FrameFiles{{file}, {}, {}} : refused(message);
}

} // namespace zdt
