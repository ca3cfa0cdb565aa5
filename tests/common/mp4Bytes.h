#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Writes MP4 files box by box, valid ones and others.
namespace zdt::test {

inline std::string word(std::uint32_t value) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xff);
    return text;
}

inline std::string box(std::string_view type, const std::string& content) {
    return word(static_cast<std::uint32_t>(content.size() + 8)) + std::string(type) + content;
}

inline std::string zeros(std::size_t words) {
    return std::string(words * 4, '\0');
}

/// What a file with one video track says of itself; the defaults are those of a good lock screen video.
struct Video {
    std::uint32_t width = 1080;
    std::uint32_t height = 1920;
    std::uint32_t timescale = 1000;
    std::uint32_t duration = 2000;
    std::uint32_t sampleSize = 0;
    std::uint32_t sampleCount = 50;
    std::string handler = "vide";
};

inline std::string brands(const std::string& major = "mp42", const std::string& compatible = "isom") {
    return box("ftyp", major + zeros(1) + compatible);
}

inline std::string movieHeader(const Video& video) {
    return box("mvhd", zeros(3) + word(video.timescale) + word(video.duration) + zeros(20));
}

inline std::string sampleSizes(const Video& video) {
    return box("stsz", zeros(1) + word(video.sampleSize) + word(video.sampleCount));
}

inline std::string track(const Video& video) {
    const std::string handler = box("hdlr", zeros(2) + video.handler + zeros(3) + std::string("\3name", 5));
    const std::string header = box("tkhd", zeros(19) + word(video.width << 16 | 0x8000) + word(video.height << 16));
    const std::string table = box("stbl", box("stsd", zeros(2)) + sampleSizes(video));
    const std::string media = box("mdhd", zeros(6)) + handler + box("minf", box("vmhd", zeros(3)) + table);
    return box("trak", header + box("edts", zeros(1)) + box("mdia", media));
}

inline std::string movie(const Video& video) {
    return box("moov", movieHeader(video) + box("udta", zeros(1)) + track(video));
}

/// A whole file, with the media in front of the movie.
inline std::string mp4(const Video& video = {}) {
    return brands() + box("free", "") + box("mdat", zeros(5)) + movie(video);
}

} // namespace zdt::test
