#include "editor/frameIntake.h"

#include "packaging/frameList.h"
#include "packaging/gifFrames.h"
#include "packaging/pictureCheck.h"
#include "packaging/uploadMessages.h"

#include <ctime>
#include <string_view>

namespace zdt {

namespace {

constexpr std::string_view unreadable = "KWarn_upload_JPGPNG";

FrameFiles refused(std::string_view message) {
    return {{}, QString::fromUtf8(message.data(), static_cast<qsizetype>(message.size()))};
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
    return {std::move(extracted.paths), {}};
}

} // namespace

FrameFiles takeFrames(const std::vector<std::string>& files, std::size_t present, int mode,
                      const std::string& workspace, const Progress& progress) {
    for (const std::string& file : files) {
        const PictureCheck check = CheckPictureOrGifUpload(file, false, pictureLimit, kWarn_upload_lessthenoneM_pic);
        if (const std::string_view message = messageOf(check); !message.empty())
            return refused(message);
    }
    if (const std::string_view message = CheckFrameSelection(files); !message.empty())
        return refused(message);
    if (files.size() == 1 && hasGifEnding(files.front()))
        return takeGif(files.front(), present, workspace, progress);
    const FrameIntake intake = takeStills(present, files.size(), mode);
    FrameFiles taken = refused(intake.message);
    taken.frames.assign(files.begin(), files.begin() + static_cast<std::ptrdiff_t>(intake.taken));
    return taken;
}

FrameFiles takeFrame(const std::string& file) {
    const PictureCheck check = CheckPictureUpload(file, false, pictureLimit, kWarn_upload_lessthenoneM_pic);
    const std::string_view message = messageOf(check);
    return message.empty() ? FrameFiles{{file}, {}} : refused(message);
}

} // namespace zdt
