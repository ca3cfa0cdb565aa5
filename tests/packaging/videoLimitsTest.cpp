#include "packaging/videoLimits.h"

#include "common/fixtures.h"
#include "common/mp4Bytes.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

constexpr std::string_view wrongLockSize = kWarn_upload_correct_unlock_video_nine_format;
constexpr std::string_view wrongWallpaperSize = kWarn_upload_correct_unlock_video_wallpaper_format;
constexpr std::string_view tooMuch = kWarn_upload_correct_unlock_video_nine_size;

TEST(VideoLimits, EachPlaceRefusesWithItsOwnMessage) {
    const Mp4Info lock{"mp42", 1000, 60, 30, 1080, 1920};
    const struct {
        const char* what;
        Mp4Info video;
        std::string_view lockRefusal;
        std::string_view wallpaperRefusal;
    } cases[] = {
        {"at the limits", lock, "", wrongWallpaperSize},
        {"61 seconds", {"mp42", 1000, 61, 30, 1080, 1920}, tooMuch, wrongWallpaperSize},
        {"31 frames a second", {"mp42", 1000, 60, 31, 1080, 1920}, tooMuch, wrongWallpaperSize},
        {"15 MiB", {"mp42", 15728640, 1, 1, 1080, 1920}, tooMuch, wrongWallpaperSize},
        {"a byte less", {"mp42", 15728639, 1, 1, 1080, 1920}, "", wrongWallpaperSize},
        {"picture size before all else", {"mp42", ~0U, ~0U, ~0U, 1080, 1918}, wrongLockSize, wrongWallpaperSize},
        {"turned", {"mp42", 1000, 1, 1, 1920, 1080}, wrongLockSize, wrongWallpaperSize},
        {"a wallpaper of any length and rate", {"mp42", 15728639, ~0U, ~0U, 1080, 2340}, wrongLockSize, ""},
        {"a wallpaper of 15 MiB", {"mp42", 15728640, 1, 1, 1080, 2340}, wrongLockSize, tooMuch},
    };
    for (const auto& [what, video, lockRefusal, wallpaperRefusal] : cases) {
        EXPECT_EQ(videoRefusal(video, lockVideoLimits), lockRefusal) << what;
        EXPECT_EQ(videoRefusal(video, lockVideoSecondLimits), lockRefusal) << what;
        EXPECT_EQ(videoRefusal(video, wallpaperVideoLimits), wallpaperRefusal) << what;
    }
}

TEST(VideoLimits, FilesAreInspectedFirst) {
    const test::TemporaryFolder folder;
    const auto refusal = [&](const std::string& bytes) {
        return CheckVideoUpload(folder.write("a.mp4", bytes), lockVideoLimits);
    };
    EXPECT_EQ(refusal(test::mp4()), "");
    EXPECT_EQ(refusal(test::mp4({.width = 1081, .height = 1921, .duration = 60400, .sampleCount = 1812})), "");
    EXPECT_EQ(refusal(test::mp4({.duration = 60500})), tooMuch);
    EXPECT_EQ(refusal(test::mp4({.width = 1082})), wrongLockSize);
    EXPECT_EQ(refusal("no video"), kWarn_upload_correct_unlock_video_nine_files);
    EXPECT_EQ(refusal(test::mp4({.width = 1082, .handler = "soun"})), kWarn_upload_correct_unlock_video_nine_files);
}

} // namespace
} // namespace zdt
