#pragma once

#include <string>
#include <string_view>

class QImage;
class QSize;

/// Pictures made into JPEG files. A file is replaced whole or stays as it was; what is transparent becomes white.
/// Pictures of more than 64 Mi pixels are refused unread.
namespace zdt {

/// The quality where none is asked for: high enough that no block shows on a phone.
inline constexpr int ordinaryJpegQuality = 90;

/// Pixels of the longest side that the encoder writes.
inline constexpr int maxJpegSide = 65500;

/// `ScaleJpegInPlace` makes nothing smaller than this, in pixels.
inline constexpr int minScaledWidth = 1080;
inline constexpr int minScaledHeight = 1920;

/// Replaces a picture by a JPEG of it, under the same name; quality from 0 to 100. False if it can't be read or
/// written. Of a picture that was cut, what is left of it may be taken.
[[nodiscard]] bool EncodeJpegInPlace(const std::string& path, int quality);

/// Replaces a picture by a JPEG of it with the wanted size in pixels, whatever its proportions. False with nothing done
/// for a wanted size below 1080 by 1920, and if the picture can't be read or written.
[[nodiscard]] bool ScaleJpegInPlace(const std::string& path, int width, int height);

/// A picture as it is; null if it can't be read. Of a picture that was cut, what is left of it may be given.
[[nodiscard]] QImage loadPicture(const std::string& path);

/// The same, no larger than `bounds` in pixels and in its proportions; quicker than to load it whole.
[[nodiscard]] QImage loadThumbnail(const std::string& path, const QSize& bounds);

/// Whether the bytes of a JPEG end as one does. One that was cut is decoded all the same, its rest grey.
[[nodiscard]] bool isWholeJpeg(std::string_view bytes);

/// An image as a JPEG file holds it; quality from 0 to 100. Empty if it can't be encoded.
[[nodiscard]] std::string jpegBytes(const QImage& image, int quality);

/// Writes an image as a JPEG file.
[[nodiscard]] bool writeJpeg(const std::string& path, const QImage& image, int quality);

} // namespace zdt
