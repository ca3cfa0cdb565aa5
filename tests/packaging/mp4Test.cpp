#include "packaging/mp4.h"

#include "common/fixtures.h"
#include "common/mp4Bytes.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <limits>

namespace zdt {
namespace {

using namespace test;
using namespace std::string_literals;

constexpr std::uint32_t greatest = std::numeric_limits<std::uint32_t>::max();

class Mp4Test : public testing::Test {
protected:
    std::optional<Mp4Info> read(const std::string& bytes) const { return readMp4Info(folder.write("a.mp4", bytes)); }

    TemporaryFolder folder;
};

TEST_F(Mp4Test, ValuesAreThoseOfTheBoxes) {
    const std::string bytes = mp4();
    const std::optional<Mp4Info> info = read(bytes);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->brand, "mp42");
    EXPECT_EQ(info->fileSize, bytes.size());
    EXPECT_EQ(info->durationSeconds, 2U);
    EXPECT_EQ(info->frameRate, 25U);
    EXPECT_EQ(info->width, 1080U);
    EXPECT_EQ(info->height, 1920U);
}

TEST_F(Mp4Test, NumbersAreRoundedAndSidesMadeEven) {
    const struct {
        const char* what;
        Video video;
        std::array<std::uint32_t, 4> expected; // seconds, frame rate, width, height
    } cases[] = {
        {"odd sides", {.width = 1081, .height = 1921}, {2, 25, 1080, 1920}},
        {"a side of 1", {.width = 1}, {2, 25, 0, 0}},
        {"60.4 seconds", {.duration = 60400, .sampleCount = 1812}, {60, 30, 1080, 1920}},
        {"60.5 seconds", {.duration = 60500, .sampleCount = 1815}, {61, 30, 1080, 1920}},
        {"30.5 frames a second", {.sampleCount = 61}, {2, 31, 1080, 1920}},
        {"30.4 frames a second", {.duration = 5000, .sampleCount = 152}, {5, 30, 1080, 1920}},
        {"less than half a second", {.duration = 400, .sampleCount = 10}, {0, 25, 1080, 1920}},
        {"samples of one size", {.sampleSize = 512}, {2, 0, 1080, 1920}},
        {"no samples", {.sampleCount = 0}, {2, 0, 1080, 1920}},
        {"numbers above 2^31", {.timescale = 3000000000, .duration = 3000000000}, {1, 50, 1080, 1920}},
        {"more frames than fit",
         {.timescale = greatest, .duration = 1, .sampleCount = greatest},
         {0, greatest, 1080, 1920}},
        {"the longest", {.timescale = 1, .duration = greatest}, {greatest, 0, 1080, 1920}},
    };
    for (const auto& [what, video, expected] : cases) {
        const Mp4Info info = read(mp4(video)).value_or(Mp4Info());
        const std::array<std::uint32_t, 4> values{info.durationSeconds, info.frameRate, info.width, info.height};
        EXPECT_EQ(values, expected) << what;
    }
}

TEST_F(Mp4Test, BrandIsTheFirstWordThatBeginsWithMp4) {
    const struct {
        const char* what;
        std::string start;
        std::string brand; // empty when the file is refused
    } cases[] = {
        {"major", brands("mp41", "mp42"), "mp41"},
        {"behind the zeros of the minor version", brands("isom", "iso2avc1mp41"), "mp41"},
        {"in the place of the minor version", box("ftyp", "isommp43"), "mp43"},
        {"isom alone", brands("isom", "iso2avc1"), ""},
        {"not at a word's start", brands("isom", "xmp42xxx"), ""},
        {"no brands at all", box("ftyp", ""), ""},
        {"an empty major brand", brands("\0\0\0\0"s, "mp42"), ""},
        {"31 bytes", box("ftyp", "isom" + zeros(5) + "mp41xyz"), "mp41"},
        {"32 bytes", box("ftyp", "mp42" + zeros(7)), ""},
        {"three bytes", box("ftyp", "mp4"), "mp4"},
        {"a second list", brands("isom") + brands("mp42"), "mp42"},
        {"two that fit", brands("mp41") + brands("mp42"), "mp41"},
        {"no list", "", ""},
    };
    for (const auto& [what, start, brand] : cases) {
        const std::optional<Mp4Info> info = read(start + movie({}));
        EXPECT_EQ(info ? info->brand : "", brand) << what;
    }
    EXPECT_TRUE(read(movie({}) + brands())) << "brands at the end";
}

TEST_F(Mp4Test, OrderAndStrangersDoNotMatter) {
    const Video other{.width = 640, .height = 480, .sampleCount = 60};
    const Video sound{.width = 0, .height = 0, .sampleCount = 7, .handler = "soun"};
    const struct {
        const char* what;
        std::string bytes;
        std::uint32_t width; // 0 when the file is refused
        std::uint32_t frameRate;
    } cases[] = {
        {"movie first", brands() + movie({}) + box("mdat", zeros(9)), 1080, 25},
        {"unknown boxes", box("abcd", "xy") + mp4(), 1080, 25},
        {"track before the movie's header", brands() + box("moov", track({}) + movieHeader({})), 1080, 25},
        {"sound behind the video", brands() + box("moov", movieHeader({}) + track({}) + track(sound)), 1080, 25},
        {"the last video track wins", brands() + box("moov", movieHeader({}) + track({}) + track(other)), 640, 30},
        {"a last one with no size", brands() + box("moov", movieHeader({}) + track({}) + track({.height = 0})), 1080,
         25},
        {"sound alone", brands() + box("moov", movieHeader({}) + track(sound)), 0, 0},
        {"no track", brands() + box("moov", movieHeader({})), 0, 0},
        {"no header", brands() + box("moov", track({})), 0, 0},
        {"no length", mp4({.duration = 0}), 0, 0},
        {"a timescale of 0", mp4({.timescale = 0}), 0, 0},
        {"a type that begins with NUL ends it", brands() + box("\0abc"s, "") + movie({}), 0, 0},
        {"and what came before counts", mp4() + box("\0\0\0\0"s, ""), 1080, 25},
        {"media in 64-bit form at the end", brands() + movie({}) + word(1) + "mdat" + word(1) + zeros(9), 1080, 25},
        {"media of no size at the end", brands() + movie({}) + word(0) + "mdat" + zeros(9), 1080, 25},
        {"nothing", "", 0, 0},
    };
    for (const auto& [what, bytes, width, frameRate] : cases) {
        const Mp4Info info = read(bytes).value_or(Mp4Info());
        EXPECT_EQ(info.width, width) << what;
        EXPECT_EQ(info.frameRate, frameRate) << what;
    }
}

TEST_F(Mp4Test, SampleTableIsNotReadEntryByEntry) {
    std::string bytes = mp4({.sampleCount = greatest});
    const std::optional<Mp4Info> info = read(bytes); // 16 GiB of entries are claimed
    ASSERT_TRUE(info);
    EXPECT_EQ(info->frameRate, 1U << 31);
    bytes.replace(bytes.find("stsz"), 4, "stz2");
    EXPECT_TRUE(read(bytes) && read(bytes)->frameRate == 1U << 31);
}

TEST_F(Mp4Test, DamagedFilesComeToAnEnd) {
    const std::string whole = mp4();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::optional<Mp4Info> info = read(whole.substr(0, length));
        EXPECT_TRUE(!info || info->fileSize == length) << "cut at " << length;
    }
    for (std::size_t place = 0; place + 4 <= whole.size(); ++place) {
        for (const std::uint32_t size : {0U, 1U, 7U, 8U, 0x80000000U, greatest}) {
            std::string changed = whole;
            changed.replace(place, 4, word(size));
            const std::optional<Mp4Info> info = read(changed);
            EXPECT_TRUE(!info || info->brand.starts_with("mp4")) << size << " at " << place;
        }
    }
}

TEST_F(Mp4Test, WalkOverTinyBoxesIsGivenUp) {
    const auto repeated = [](const std::string& text, int count) {
        std::string all;
        for (; count > 0; --count)
            all += text;
        return all;
    };
    const std::string movieParts = movieHeader({}) + track({});
    const std::string four = word(4); // a box that ends before its type
    for (const int count : {90000, 100000}) {
        const bool isRead = count < 100000;
        EXPECT_EQ(read(brands() + repeated(box("free", ""), count) + movie({})).has_value(), isRead);
        EXPECT_EQ(read(brands() + box("moov", repeated(four, count) + movieParts)).has_value(), isRead);
    }
}

TEST_F(Mp4Test, SizesOfFilesReachToFourGigabytes) {
    const std::string start = brands() + word(0xffffff00) + "mdat";
    const std::string path = folder.write("big.mp4", start);
    const std::uint64_t movieAt = brands().size() + 0xffffff00ULL;
    std::filesystem::resize_file(path, movieAt); // all of it a hole
    FILE* file = std::fopen(path.c_str(), "ab");
    ASSERT_NE(file, nullptr);
    const std::string end = movie({});
    std::fwrite(end.data(), 1, end.size(), file);
    std::fclose(file);
    const std::optional<Mp4Info> info = readMp4Info(path);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->width, 1080U);
    EXPECT_EQ(info->fileSize, greatest) << "the movie lies across 4 GiB";
}

TEST_F(Mp4Test, WhatIsNoPlainFileIsRefusedAtOnce) {
    ASSERT_EQ(::mkfifo(folder.path("pipe.mp4").c_str(), 0600), 0);
    for (const char* name : {"pipe.mp4", "", "absent.mp4"})
        EXPECT_FALSE(readMp4Info(folder.path(name))) << name;
    EXPECT_FALSE(readMp4Info(""));
}

TEST_F(Mp4Test, PointersMustAllBeThere) {
    const std::string path = folder.write("a.mp4", mp4());
    std::array<char, 32> brand{};
    std::array<std::uint32_t, 5> out{};
    for (int missing = -1; missing < 7; ++missing) {
        const auto place = [&](int index) {
            return missing == index ? nullptr : &out[static_cast<std::size_t>(index)];
        };
        const bool done = InspectMp4(missing == 5 ? nullptr : path.c_str(), missing == 6 ? nullptr : brand.data(),
                                     brand.size(), place(0), place(1), place(2), place(3), place(4));
        EXPECT_EQ(done, missing == -1) << missing;
    }
    EXPECT_EQ(out, (std::array<std::uint32_t, 5>{static_cast<std::uint32_t>(mp4().size()), 2, 25, 1080, 1920}));
    EXPECT_STREQ(brand.data(), "mp42");
    const auto inspect = [&](std::size_t size) {
        return InspectMp4(path.c_str(), brand.data(), size, &out[0], &out[1], &out[2], &out[3], &out[4]);
    };
    EXPECT_TRUE(inspect(3));
    EXPECT_STREQ(brand.data(), "mp");
    EXPECT_FALSE(inspect(0));
}

TEST_F(Mp4Test, FilesOfARealEncoderAreRead) {
    if (std::system("command -v ffmpeg >/dev/null") != 0)
        GTEST_SKIP() << "no ffmpeg";
    const std::string video = "-f lavfi -i testsrc=size=1080x1920:rate=25:duration=2 -preset ultrafast ";
    const struct {
        const char* what;
        std::string arguments;
        bool isRead;
    } cases[] = {
        {"movie behind", video + "-brand mp42", true},
        {"movie in front", video + "-brand mp42 -movflags +faststart", true},
        {"with sound", "-f lavfi -i sine=duration=2 " + video + "-brand mp41", true},
        {"sound alone", "-f lavfi -i sine=duration=2 -brand mp42", false},
    };
    const std::string path = folder.path("real.mp4");
    for (const auto& [what, arguments, isRead] : cases) {
        ASSERT_EQ(std::system(("ffmpeg -v error -y " + arguments + " " + path).c_str()), 0) << what;
        const std::optional<Mp4Info> info = readMp4Info(path);
        ASSERT_EQ(info.has_value(), isRead) << what;
        if (!info)
            continue;
        const std::array<std::uint32_t, 4> values{info->durationSeconds, info->frameRate, info->width, info->height};
        EXPECT_EQ(values, (std::array<std::uint32_t, 4>{2, 25, 1080, 1920})) << what;
        EXPECT_EQ(info->fileSize, fileSize(path)) << what;
    }
}

} // namespace
} // namespace zdt
