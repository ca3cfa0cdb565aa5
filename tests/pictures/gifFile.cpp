#include "pictures/gifFile.h"

#include <gif_lib.h>

#include <array>
#include <stdexcept>
#include <vector>

namespace zdt::test {

namespace {

constexpr int colours = 4;
constexpr int turns = 3;

int append(GifFileType* gif, const GifByteType* bytes, int count) {
    static_cast<std::string*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), static_cast<size_t>(count));
    return count;
}

bool putFrame(GifFileType* file, const Gif& gif, int colour) {
    if (EGifPutImageDesc(file, 0, 0, gif.width, gif.height, false, nullptr) == GIF_ERROR)
        return false;
    std::vector<GifPixelType> line(static_cast<std::size_t>(gif.width), static_cast<GifPixelType>(colour));
    for (int row = 0; row < gif.height; ++row) {
        if (EGifPutLine(file, line.data(), gif.width) == GIF_ERROR)
            return false;
    }
    return true;
}

} // namespace

std::string gifBytes(const Gif& gif) {
    std::string bytes;
    const std::array<GifColorType, colours> palette{{{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {0, 0, 0}}};
    GifFileType* file = EGifOpen(&bytes, &append, nullptr);
    ColorMapObject* map = GifMakeMapObject(colours, palette.data());
    bool good = file && map && EGifPutScreenDesc(file, gif.width, gif.height, 2, 0, map) == GIF_OK;
    for (int frame = 0; good && frame < gif.frames; ++frame)
        good = putFrame(file, gif, frame % turns);
    GifFreeMapObject(map);
    if (!file || EGifCloseFile(file, nullptr) == GIF_ERROR || !good)
        throw std::runtime_error("no GIF");
    return bytes;
}

} // namespace zdt::test
