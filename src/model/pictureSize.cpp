#include "model/pictureSize.h"

#include <array>
#include <cstring>
#include <memory>

namespace zdt {

namespace {

constexpr std::array<unsigned char, 8> pngSignature{0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a};

std::uint32_t bigEndian16(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 8 | bytes[1];
}

std::uint32_t bigEndian32(const unsigned char* bytes) {
    return bigEndian16(bytes) << 16 | bigEndian16(bytes + 2);
}

bool isFrameHeader(int marker) {
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

/// Reads the next marker's last byte, with any padding of FF bytes in front of it; EOF at the end of the file.
int readMarker(std::FILE* file) {
    int byte = std::fgetc(file);
    while (byte == 0xff)
        byte = std::fgetc(file);
    return byte;
}

PictureSize sizeOf(const std::string& path, PictureSize (*read)(std::FILE*)) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rbe"), &std::fclose);
    return file ? read(file.get()) : PictureSize{};
}

} // namespace

PictureSize readPngSize(std::FILE* file) {
    constexpr std::size_t headerSize = 24;
    constexpr std::size_t earlyHeaderSize = 16;
    std::array<unsigned char, headerSize> header{};
    const std::size_t length = std::fread(header.data(), 1, header.size(), file);
    if (length < earlyHeaderSize || std::memcmp(header.data(), pngSignature.data(), pngSignature.size()) != 0)
        return {};
    if (std::memcmp(header.data() + 12, "IHDR", 4) != 0)
        return {bigEndian32(&header[8]), bigEndian32(&header[12])};
    return length == headerSize ? PictureSize{bigEndian32(&header[16]), bigEndian32(&header[20])} : PictureSize{};
}

PictureSize readJpegSize(std::FILE* file) {
    std::array<unsigned char, 2> word{};
    const auto readWord = [&] { return std::fread(word.data(), 1, word.size(), file) == word.size(); };
    if (!readWord() || bigEndian16(word.data()) != 0xffd8)
        return {};
    while (true) {
        const int marker = readMarker(file);
        if (marker == EOF || !readWord())
            return {};
        const std::uint32_t length = bigEndian16(word.data());
        if (isFrameHeader(marker))
            break;
        constexpr std::uint32_t lengthSize = 2; // A segment's length counts its own two bytes.
        if (length < lengthSize || std::fseek(file, static_cast<long>(length - lengthSize), SEEK_CUR) != 0)
            return {};
    }
    constexpr std::size_t precisionSize = 1;
    std::array<unsigned char, precisionSize + 4> frame{};
    if (std::fread(frame.data(), 1, frame.size(), file) != frame.size())
        return {};
    return {bigEndian16(&frame[3]), bigEndian16(&frame[1])};
}

PictureSize pngSize(const std::string& path) {
    return sizeOf(path, readPngSize);
}

PictureSize jpegSize(const std::string& path) {
    return sizeOf(path, readJpegSize);
}

} // namespace zdt
