#include "model/pictureSize.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using namespace std::string_literals;
using test::jpegHeader;
using test::pngHeader;
using test::TemporaryFolder;

class PictureSizeTest : public testing::Test {
protected:
    PictureSize png(const std::string& bytes) const { return pngSize(_folder.write("picture", bytes)); }
    PictureSize jpeg(const std::string& bytes) const { return jpegSize(_folder.write("picture", bytes)); }

    static constexpr PictureSize none{};

private:
    TemporaryFolder _folder;
};

/// A segment with its marker and a body of that many bytes.
std::string segment(char marker, std::size_t length) {
    const std::size_t counted = length + 2;
    return "\xff"s + marker + static_cast<char>(counted >> 8) + static_cast<char>(counted & 0xff) +
           std::string(length, '\xc0');
}

std::string frame(char marker = '\xc0') {
    return "\xff"s + marker + "\x00\x11\x08\x07\x80\x04\x38"s;
}

constexpr PictureSize screen{1080, 1920};
const std::string start = "\xff\xd8"s;

TEST_F(PictureSizeTest, PngSizeIsReadFromAWholeHeaderAlone) {
    EXPECT_EQ(png(pngHeader(1080, 2160)), (PictureSize{1080, 2160}));
    EXPECT_EQ(png(pngHeader(0xfedcba98, 0x01020304)), (PictureSize{0xfedcba98, 0x01020304}));
    const std::string header = pngHeader(192, 256).substr(0, 24);
    EXPECT_EQ(png(header), (PictureSize{192, 256}));
    for (std::size_t length = 0; length < header.size(); ++length)
        EXPECT_EQ(png(header.substr(0, length)), none) << length;
}

TEST_F(PictureSizeTest, EarlyPngHasItsSizeRightBehindTheSignature) {
    const std::string early = pngHeader(0, 0).substr(0, 8) + "\0\0\0\xc0\0\0\1\0"s;
    EXPECT_EQ(png(early), (PictureSize{192, 256}));
    EXPECT_EQ(png(early + "and more"), (PictureSize{192, 256}));
    for (std::size_t length = 0; length < early.size(); ++length)
        EXPECT_EQ(png(early.substr(0, length)), none) << length;
}

TEST_F(PictureSizeTest, WrongSignatureIsNoPng) {
    for (std::size_t index = 0; index < 8; ++index) {
        std::string bytes = pngHeader(192, 192);
        bytes[index] = static_cast<char>(bytes[index] ^ 1);
        EXPECT_EQ(png(bytes), none) << index;
    }
    EXPECT_EQ(png(jpegHeader(192, 192)), none);
    EXPECT_EQ(jpeg(pngHeader(192, 192)), none);
    EXPECT_EQ(pngSize("/nowhere/at/all"), none);
    EXPECT_EQ(jpegSize("/nowhere/at/all"), none);
}

TEST_F(PictureSizeTest, JpegCutAnywhereBeforeItsSizeHasNone) {
    const std::string bytes = start + segment('\xe1', 300) + segment('\xdb', 0) + frame();
    EXPECT_EQ(jpeg(bytes), screen);
    EXPECT_EQ(jpeg(bytes + "the picture"), screen);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_EQ(jpeg(bytes.substr(0, length)), none) << length;
}

TEST_F(PictureSizeTest, OnlySomeMarkersAreFrameHeaders) {
    for (int marker = 0; marker < 255; ++marker) {
        const bool isFrame = marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
        EXPECT_EQ(jpeg(start + frame(static_cast<char>(marker))), isFrame ? screen : none) << marker;
    }
}

TEST_F(PictureSizeTest, OddJpegsAreReadOrRefused) {
    const struct {
        const char* what;
        std::string bytes;
        PictureSize size;
    } cases[] = {
        {"padding in front of markers", start + "\xff\xff\xff"s + segment('\xe0', 4) + "\xff\xff"s + frame(), screen},
        {"padding to the end", start + std::string(5000, '\xff'), none},
        {"tables without a frame", start + segment('\xc4', 20) + segment('\xdb', 64), none},
        {"a body that looks like a frame", start + "\xff\xe0\0\x0d"s + frame() + "xx"s + frame('\xc2'), screen},
        {"a length below its own two bytes", start + "\xff\xe0\0\1"s + frame(), none},
        {"a length behind the end", start + "\xff\xe0\xff\xff"s + frame(), none},
        {"the largest segment", start + segment('\xe0', 65533) + frame('\xcf'), screen},
        {"no start", frame() + frame(), none},
        {"the start alone", start, none},
    };
    for (const auto& [what, bytes, size] : cases)
        EXPECT_EQ(jpeg(bytes), size) << what;
}

} // namespace
} // namespace zdt
