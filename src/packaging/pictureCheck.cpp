#include "packaging/pictureCheck.h"

#include "packaging/pictureReader.h"
#include "packaging/uploadMessages.h"
#include "support/plainFile.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr std::uint64_t bytesPerKilobyte = 1024;
constexpr std::size_t endingSize = 3;

std::string_view nameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

/// What follows the last "."; empty if there is none.
std::string_view extensionOf(std::string_view path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : path.substr(dot + 1);
}

bool isStill(std::string_view extension) {
    return extension == "jpg" || extension == "png";
}

bool isUpperCaseStill(std::string_view extension) {
    return extension == "JPG" || extension == "PNG";
}

PictureCheck refused(std::string_view message) {
    return {false, 0, 0, std::string(message)};
}

PictureCheck measured(const QSize& size) {
    return {true, size.width(), size.height(), {}};
}

} // namespace

PictureCheck CheckPictureUpload(const std::string& path, bool skipNameCheck, std::uint64_t limit,
                                std::string_view tooLarge) {
    if (!skipNameCheck && HasMultiByteCharacter(nameOf(path)))
        return refused(kWarn_upload_include_ch);
    const PictureReader picture(path);
    if (!picture.isOpen())
        return {};
    if (limit < picture.fileSize() / bytesPerKilobyte)
        return refused(tooLarge);
    const std::string_view extension = extensionOf(path);
    if (isStill(extension))
        return measured(picture.size());
    return refused(isUpperCaseStill(extension) ? kWarn_upload_pic_lower : kWarn_upload_jpgorpng_pic);
}

PictureCheck CheckPictureOrGifUpload(const std::string& path, bool skipNameCheck, std::uint64_t limit,
                                     std::string_view tooLarge) {
    if (!skipNameCheck && HasMultiByteCharacter(nameOf(path)))
        return refused(kWarn_upload_include_ch);
    const bool isGif = hasGifEnding(path);
    if (!isGif && !isStill(extensionOf(path)))
        return refused(kWarn_upload_jpgorpngorgif_pic);
    const PictureReader picture(path);
    if (!picture.isOpen())
        return {};
    if ((isGif ? limit * gifLimitFactor : limit) < picture.fileSize() / bytesPerKilobyte)
        return refused(isGif ? kWarn_upload_lessthenoneM_gif : tooLarge);
    return measured(picture.size());
}

PictureCheck CheckLowerCaseExtension(const std::string& path) {
    const std::string_view extension = extensionOf(path);
    if (isUpperCaseStill(extension))
        return refused(kWarn_upload_pic_lower);
    return {isStill(extension), 0, 0, {}};
}

int FileSizeWithin(const char* path, std::uint64_t limit) {
    constexpr int within = 1;
    constexpr int unreadable = -1;
    constexpr int above = -2;
    if (!path)
        return unreadable;
    const PlainFile file(path);
    if (!file.isOpen())
        return unreadable;
    const std::uint64_t rounded = (file.size() + bytesPerKilobyte / 2) / bytesPerKilobyte;
    return rounded <= limit ? within : above;
}

std::string_view PictureSuffixOf(std::string_view name) {
    constexpr std::string_view ninePatch = ".9.png";
    const std::size_t place = nameOf(name).find(ninePatch);
    return place != std::string_view::npos && place >= 2 ? ninePatch : std::string_view(".png");
}

bool HasMultiByteCharacter(std::string_view text) {
    const auto hasTopBit = [](char byte) { return (static_cast<unsigned char>(byte) & 0x80U) != 0; };
    return std::adjacent_find(text.begin(), text.end(), [&](char first, char second) {
               return hasTopBit(first) && hasTopBit(second);
           }) != text.end();
}

bool hasGifEnding(std::string_view path) {
    return path.size() >= endingSize && path.substr(path.size() - endingSize) == "gif";
}

} // namespace zdt
