#include "packaging/gifFrames.h"

#include "packaging/frameList.h"
#include "packaging/pictureConversion.h"
#include "packaging/pictureReader.h"
#include "packaging/uploadMessages.h"
#include "support/files.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace zdt {

namespace {

constexpr mode_t newFolderMode = 0777;
constexpr auto mostFrames = static_cast<int>(maxGifFrames);

/// Makes a folder that wasn't there, with a number behind its name if it must be; empty if it can't be made.
std::string makeFreshFolder(const std::string& name) {
    if (!makeParent(name))
        return {};
    std::string path = name;
    for (int number = 2; ::mkdir(path.c_str(), newFolderMode) != 0; ++number) {
        if (errno != EEXIST)
            return {};
        path = name + "_" + std::to_string(number);
    }
    return path + "/";
}

bool fits(const QSize& size, int frames) {
    return std::max(size.width(), size.height()) <= maxJpegSide &&
           static_cast<std::int64_t>(size.width()) * size.height() * frames <= maxGifPixels;
}

/// Why a GIF isn't taken, from its headers alone; empty if it is.
std::string_view refusal(PictureReader& gif) {
    const int count = gif.gifFrameCount();
    if (count > mostFrames)
        return kWarn_frame_upload_hundred;
    return count > 0 && fits(gif.size(), count) ? std::string_view() : kWarn_upload_jpgorpngorgif_pic;
}

/// Writes frame after frame until there is none left to be read. Gives what is to be said, if they can't be kept.
GifFrames writeFrames(PictureReader& gif, const std::string& folder, const Progress& progress) {
    GifFrames frames;
    const int count = gif.gifFrameCount();
    for (int index = 0; index < count; ++index) {
        const QImage frame = gif.read();
        if (frame.isNull() || !fits(frame.size(), count)) // The header may have lied.
            break;
        frames.paths.push_back(folder + "GifToPic" + std::to_string(index) + ".jpg");
        if (!writeJpeg(frames.paths.back(), frame, ordinaryJpegQuality))
            return {};
        if (progress)
            progress(static_cast<double>(index + 1) / count);
    }
    if (frames.paths.empty())
        frames.message = kWarn_upload_jpgorpngorgif_pic;
    return frames;
}

} // namespace

int CountGifFrames(const std::string& gifPath) {
    return PictureReader(gifPath).gifFrameCount();
}

std::string gifTimeText(std::time_t time) {
    std::tm parts{};
    std::array<char, 64> text{};
    if (!::localtime_r(&time, &parts))
        return "0";
    return {text.data(), std::strftime(text.data(), text.size(), "%Y_%m_%d_%H_%M_%S", &parts)};
}

GifFrames ExtractGifFrames(const std::string& gifPath, const std::string& folder, const std::string& time,
                           const Progress& progress) {
    PictureReader gif(gifPath);
    if (const std::string_view message = refusal(gif); !message.empty())
        return {{}, message};
    const std::string target = makeFreshFolder(folder + "GifToImage/" + time);
    if (target.empty())
        return {};
    GifFrames frames = writeFrames(gif, target, progress);
    if (frames.paths.empty())
        static_cast<void>(removeTree(target));
    return frames;
}

} // namespace zdt
