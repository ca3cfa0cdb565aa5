#pragma once

#include "support/plainFile.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QSize>

#include <cstdint>
#include <string>

/// For this room alone: pictures read with their bounds.
namespace zdt {

/// Pixels of the largest picture that is decoded, which then takes 256 MiB. The largest wallpaper has 5 million.
inline constexpr std::int64_t maxPicturePixels = 64LL * 1024 * 1024;

/// A PNG, JPEG or GIF, known by its content. The file is open as long as this object lives, so that it is to be gone
/// before the file is replaced.
class PictureReader {
public:
    explicit PictureReader(const std::string& path);

    [[nodiscard]] bool isOpen() const { return _file.isOpen(); }
    [[nodiscard]] std::uint64_t fileSize() const { return _file.size(); }

    /// The size that the header claims, with nothing decoded; 0 x 0 if none can be read.
    [[nodiscard]] QSize size() const { return _size; }

    /// Frames, with nothing decoded; 0 for what isn't a GIF. Of a damaged GIF there may be fewer or more to be read.
    [[nodiscard]] int gifFrameCount();

    /// Lets `read` give the picture no larger than `bounds` and in its proportions, which takes less time than to make
    /// it smaller afterwards. One that fits stays as it is.
    void shrinkInto(const QSize& bounds);

    /// The picture, or a GIF's next frame as it is seen on top of those before it. Null behind the last, and if it
    /// can't be read or is too large.
    [[nodiscard]] QImage read();

private:
    PlainFile _file;
    QFile _device;
    QImageReader _reader;
    QByteArray _format; ///< Empty if it is none of the three.
    QSize _size{0, 0};
};

} // namespace zdt
