#include "cli/commands.h"
#include "model/pictureSize.h"
#include "packaging/mp4.h"
#include "support/files.h"

namespace zdt {

namespace {

std::string lineOf(const char* key, std::uint32_t value) {
    return std::string(key) + ": " + std::to_string(value);
}

void printVideo(const Context& context, const Mp4Info& video) {
    context.print({{"type", "mp4"},
                   {"brand", video.brand},
                   {"fileSize", video.fileSize},
                   {"durationSeconds", video.durationSeconds},
                   {"frameRate", video.frameRate},
                   {"width", video.width},
                   {"height", video.height}},
                  {"type: mp4", "brand: " + oneLine(video.brand), lineOf("file size", video.fileSize),
                   lineOf("duration in seconds", video.durationSeconds), lineOf("frame rate", video.frameRate),
                   lineOf("width", video.width), lineOf("height", video.height)});
}

void printPicture(const Context& context, const char* type, const PictureSize& size) {
    context.print({{"type", type}, {"width", size.width}, {"height", size.height}},
                  {std::string("type: ") + type, lineOf("width", size.width), lineOf("height", size.height)});
}

} // namespace

int inspectCommand(const Context& context, const std::string& file) {
    if (!isPlainFile(file))
        throw Refusal(file, "there is no such file, or it is no plain file");
    if (const PictureSize png = pngSize(file); png != PictureSize()) {
        printPicture(context, "png", png);
    } else if (const PictureSize jpeg = jpegSize(file); jpeg != PictureSize()) {
        printPicture(context, "jpeg", jpeg);
    } else if (const auto video = readMp4Info(file)) {
        printVideo(context, *video);
    } else {
        throw Refusal(file, "it is no PNG, no JPEG and no MP4 video that can be read");
    }
    return 0;
}

} // namespace zdt
