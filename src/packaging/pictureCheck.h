#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The checks that every picture passes before it is taken: name, size of the file, format. A check shows nothing: it
/// gives the key of a message back. Sizes of files are in KB of 1,024 bytes. Pictures are known by their content, PNG,
/// JPEG or GIF, and only their headers are read.
namespace zdt {

/// Limits in KB of the upload places.
inline constexpr std::uint64_t pictureLimit = 1024;     ///< Nearly all of them; of a GIF ten times that.
inline constexpr std::uint64_t previewLimit = 300;      ///< Previews of the export, and a capture of the screen.
inline constexpr std::uint64_t smallPictureLimit = 260; ///< One upload place.
inline constexpr std::uint64_t gifLimitFactor = 10;

struct PictureCheck {
    bool passes = false;
    int width = 0;       ///< Pixels. A picture that passes by its name and can't be read is 0 x 0: the theme, which
    int height = 0;      ///< looks for itself, refuses it with a code.
    std::string message; ///< Key of the message to show; may be empty when the picture doesn't pass, as for no file.
};

/// Takes files that end in ".jpg" or ".png", in lower case on purpose. A file of `limit` KB and up to 1,023 bytes
/// passes; a larger one gives the caller's message. Without `skipNameCheck` the name must pass
/// `HasMultiByteCharacter`.
[[nodiscard]] PictureCheck CheckPictureUpload(const std::string& path, bool skipNameCheck, std::uint64_t limit,
                                              std::string_view tooLarge);

/// The same for places that take GIFs too, of ten times the limit. Here the ending is looked at first.
[[nodiscard]] PictureCheck CheckPictureOrGifUpload(const std::string& path, bool skipNameCheck, std::uint64_t limit,
                                                   std::string_view tooLarge);

/// Whether the ending is "jpg" or "png". Only their upper-case forms have a message.
[[nodiscard]] PictureCheck CheckLowerCaseExtension(const std::string& path);

/// 1 when the file's size, rounded to the nearest KB, is at most `limit`; -2 when it is more; -1 when it can't be read.
/// The checks above round down instead.
[[nodiscard]] int FileSizeWithin(const char* path, std::uint64_t limit);

/// ".9.png" for a file name that holds it behind at least two bytes, else ".png".
[[nodiscard]] std::string_view PictureSuffixOf(std::string_view name);

/// Whether two adjacent bytes have the top bit set: true for any letter beyond ASCII in UTF-8.
[[nodiscard]] bool HasMultiByteCharacter(std::string_view text);

/// Whether the path ends in "gif": how the lists that take GIFs tell one.
[[nodiscard]] bool hasGifEnding(std::string_view path);

} // namespace zdt
