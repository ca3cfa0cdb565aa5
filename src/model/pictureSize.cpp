#include "model/pictureSize.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace zdt {

namespace {

constexpr std::array<unsigned char, 8> pngSignature{0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a};
constexpr int endOfFile = -1;

std::uint32_t bigEndian16(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 8 | bytes[1];
}

std::uint32_t bigEndian32(const unsigned char* bytes) {
    return bigEndian16(bytes) << 16 | bigEndian16(bytes + 2);
}

/// Reads a file from the start, with leaps, a small block at a time: opening a theme looks into hundreds of pictures.
class HeaderReader {
public:
    explicit HeaderReader(const std::string& path)
        : _descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~HeaderReader() {
        if (_descriptor >= 0)
            ::close(_descriptor);
    }
    HeaderReader(const HeaderReader&) = delete;
    HeaderReader& operator=(const HeaderReader&) = delete;

    /// The next byte, or `endOfFile`.
    int next() {
        if (_place < _start || _place >= _start + _length)
            fill();
        return _place < _start + _length ? _block[static_cast<std::size_t>(_place++ - _start)] : endOfFile;
    }

    /// How many of `count` bytes could be read.
    std::size_t read(unsigned char* bytes, std::size_t count) {
        std::size_t done = 0;
        for (int byte = 0; done < count && (byte = next()) != endOfFile; ++done)
            bytes[done] = static_cast<unsigned char>(byte);
        return done;
    }

    void skip(std::uint32_t count) { _place += count; }

private:
    void fill() {
        _start = _place;
        const ssize_t length = _descriptor < 0 ? 0 : ::pread(_descriptor, _block.data(), _block.size(), _place);
        _length = std::max<ssize_t>(length, 0);
    }

    int _descriptor;
    std::array<unsigned char, 512> _block{};
    off_t _start = 0;
    off_t _length = 0; ///< Of what the block holds.
    off_t _place = 0;
};

bool isFrameHeader(int marker) {
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

/// Reads the next marker's last byte, with any padding of FF bytes in front of it.
int readMarker(HeaderReader& reader) {
    int byte = reader.next();
    while (byte == 0xff)
        byte = reader.next();
    return byte;
}

} // namespace

PictureSize pngSize(const std::string& path) {
    constexpr std::size_t headerSize = 24;
    constexpr std::size_t earlyHeaderSize = 16;
    std::array<unsigned char, headerSize> header{};
    const std::size_t length = HeaderReader(path).read(header.data(), header.size());
    if (length < earlyHeaderSize || std::memcmp(header.data(), pngSignature.data(), pngSignature.size()) != 0)
        return {};
    if (std::memcmp(header.data() + 12, "IHDR", 4) != 0)
        return {bigEndian32(&header[8]), bigEndian32(&header[12])};
    return length == headerSize ? PictureSize{bigEndian32(&header[16]), bigEndian32(&header[20])} : PictureSize{};
}

PictureSize jpegSize(const std::string& path) {
    HeaderReader reader(path);
    std::array<unsigned char, 2> word{};
    const auto readWord = [&] { return reader.read(word.data(), word.size()) == word.size(); };
    if (!readWord() || bigEndian16(word.data()) != 0xffd8)
        return {};
    while (true) {
        const int marker = readMarker(reader);
        if (marker == endOfFile || !readWord())
            return {};
        if (isFrameHeader(marker))
            break;
        constexpr std::uint32_t lengthSize = 2; // A segment's length counts its own two bytes.
        const std::uint32_t length = bigEndian16(word.data());
        if (length < lengthSize)
            return {};
        reader.skip(length - lengthSize);
    }
    constexpr std::size_t precisionSize = 1;
    std::array<unsigned char, precisionSize + 4> frame{};
    if (reader.read(frame.data(), frame.size()) != frame.size())
        return {};
    return {bigEndian16(&frame[3]), bigEndian16(&frame[1])};
}

} // namespace zdt
