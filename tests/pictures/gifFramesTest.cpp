#include "packaging/gifFrames.h"

#include "common/fixtures.h"
#include "packaging/frameList.h"
#include "packaging/uploadMessages.h"
#include "pictures/gifFile.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include <filesystem>

namespace zdt {
namespace {

using test::gifBytes;

constexpr const char* secondOfADay = "2024_05_31_08_30_00";

class GifFramesTest : public testing::Test {
protected:
    GifFrames extract(const std::string& bytes) const {
        return ExtractGifFrames(folder.write("a.gif", bytes), folder.path(), secondOfADay);
    }
    /// Whether no folder of frames was left behind.
    [[nodiscard]] bool isClean() const {
        return !std::filesystem::exists(folder.path("GifToImage")) || test::namesIn(folder.path("GifToImage")).empty();
    }

    test::TemporaryFolder folder;
};

std::string withSize(std::string gif, std::size_t place, const char (&size)[5]) {
    return gif.replace(place, 4, size, 4);
}

TEST_F(GifFramesTest, FramesAreNumberedJpegsInAFolderOfTheirTime) {
    const GifFrames frames = extract(gifBytes({.frames = 12}));
    EXPECT_EQ(frames.message, "");
    ASSERT_EQ(frames.paths.size(), 12U);
    EXPECT_EQ(frames.paths[0], folder.path("GifToImage/2024_05_31_08_30_00/GifToPic0.jpg"));
    EXPECT_EQ(frames.paths[11], folder.path("GifToImage/2024_05_31_08_30_00/GifToPic11.jpg"));
    const QColor colours[] = {Qt::red, Qt::green, Qt::blue};
    for (std::size_t index = 0; index < frames.paths.size(); ++index) {
        const QImage image(QString::fromStdString(frames.paths[index]), "jpeg");
        ASSERT_EQ(image.size(), QSize(12, 20)) << index;
        EXPECT_LT(std::abs(image.pixelColor(5, 9).hue() - colours[index % 3].hue()), 5) << index;
    }
}

TEST_F(GifFramesTest, GifsOfOneSecondDoNotMix) {
    ASSERT_EQ(extract(gifBytes({.frames = 3})).paths.size(), 3U);
    EXPECT_EQ(extract(gifBytes({.frames = 2})).paths.at(1),
              folder.path("GifToImage/2024_05_31_08_30_00_2/GifToPic1.jpg"));
    EXPECT_EQ(test::namesIn(folder.path("GifToImage/2024_05_31_08_30_00_2")).size(), 2U);
}

TEST_F(GifFramesTest, HundredFramesAreTakenAndNotOneMore) {
    EXPECT_EQ(extract(gifBytes({.frames = 101})).message, kWarn_frame_upload_hundred);
    EXPECT_TRUE(isClean());
    EXPECT_EQ(extract(gifBytes({.frames = 100})).paths.size(), 100U);
    EXPECT_EQ(CountGifFrames(folder.write("b.gif", gifBytes({.frames = 101}))), 101);
}

TEST_F(GifFramesTest, WhatCannotBeReadOrIsTooLargeLeavesNothing) {
    const std::string good = gifBytes({.frames = 3});
    const std::string hugeScreen = withSize(good, test::gifScreenPlace, "\x60\xea\x60\xea");
    const std::pair<const char*, std::string> cases[] = {
        {"no frames", gifBytes({.frames = 0})},
        {"empty", ""},
        {"no GIF", test::pngHeader(10, 10)},
        {"header alone", good.substr(0, 13)},
        {"60,000 x 60,000", withSize(hugeScreen, test::gifFramePlace, "\x60\xea\x60\xea")},
    };
    for (const auto& [what, bytes] : cases) {
        const GifFrames frames = extract(bytes);
        EXPECT_TRUE(frames.paths.empty()) << what;
        EXPECT_EQ(frames.message, kWarn_upload_jpgorpngorgif_pic) << what;
        EXPECT_TRUE(isClean()) << what;
    }
    EXPECT_TRUE(extract(good).message.empty());
}

TEST_F(GifFramesTest, CutAndLyingGifsGiveFramesOrAMessage) {
    const std::string good = gifBytes({.frames = 3});
    std::size_t last = 0;
    for (std::size_t length = 0; length < good.size(); ++length) {
        const GifFrames frames = extract(good.substr(0, length));
        EXPECT_GE(frames.paths.size(), last) << length;
        EXPECT_NE(frames.paths.empty(), frames.message.empty()) << length;
        last = frames.paths.size();
    }
    EXPECT_EQ(last, 3U) << "only the end mark is missing";
    for (const std::size_t place : {test::gifScreenPlace, test::gifFramePlace}) {
        for (const auto& size : {"\x60\xea\x60\xea", "\x00\x00\x00\x00", "\x01\x00\x01\x00", "\xff\xff\x01\x00"}) {
            std::string lying = good;
            lying.replace(place, 4, size, 4);
            const GifFrames frames = extract(lying);
            EXPECT_NE(frames.paths.empty(), frames.message.empty()) << place;
        }
    }
}

TEST_F(GifFramesTest, FolderThatCannotBeMadeIsAFailureWithoutAMessage) {
    folder.write("GifToImage", "in the way");
    const GifFrames frames = extract(gifBytes({}));
    EXPECT_TRUE(frames.paths.empty() && frames.message.empty());
}

TEST(GifTime, TextHasTheFormOfThePath) {
    std::tm parts{};
    parts.tm_year = 124;
    parts.tm_mday = 2;
    parts.tm_hour = 13;
    parts.tm_min = 4;
    parts.tm_sec = 5;
    parts.tm_isdst = -1;
    EXPECT_EQ(gifTimeText(std::mktime(&parts)), "2024_01_02_13_04_05");
}

TEST(FrameList, StillsAreTakenUpToTheLimit) {
    const struct {
        std::size_t present;
        std::size_t offered;
        int mode;
        std::size_t taken;
    } cases[] = {{0, 10, 0, 10}, {0, 11, 0, 10}, {10, 1, 0, 0}, {8, 1, 1, 1}, {9, 1, 1, 0},
                 {9, 1, 2, 1},   {50, 1, 0, 0},  {4, 9, 1, 5},  {10, 0, 0, 0}};
    for (const auto& [present, offered, mode, taken] : cases) {
        const FrameIntake intake = takeStills(present, offered, mode);
        EXPECT_EQ(intake.taken, taken) << present << " and " << offered;
        EXPECT_EQ(intake.message, taken < offered ? kWarn_frame_upload_tenpicture : "") << present;
    }
    EXPECT_TRUE(hasRoomForFrame(9, 0));
    EXPECT_FALSE(hasRoomForFrame(9, 1));
    EXPECT_FALSE(hasRoomForFrame(10, 0));
}

TEST(FrameList, GifComesAloneAndWhole) {
    EXPECT_EQ(CheckFrameSelection({"a.gif"}), "");
    EXPECT_EQ(CheckFrameSelection({"a.png", "b.jpg"}), "");
    EXPECT_EQ(CheckFrameSelection({"a.png", "b.gif"}), kWarn_frame_upload_gifonlyone);
    EXPECT_EQ(CheckFrameSelection({"a.gif", "b.gif"}), kWarn_frame_upload_gifonlyone);
    EXPECT_EQ(takeGifFrames(0, 100).taken, 100U);
    EXPECT_EQ(takeGifFrames(0, 101).taken, 0U);
    EXPECT_EQ(takeGifFrames(1, 100).message, kWarn_frame_upload_hundred);
    EXPECT_EQ(takeGifFrames(200, 1).message, kWarn_frame_upload_hundred);
}

} // namespace
} // namespace zdt
