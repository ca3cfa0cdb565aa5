#include "packaging/pictureCheck.h"

#include "common/fixtures.h"
#include "packaging/uploadMessages.h"
#include "pictures/gifFile.h"
#include "pictures/pngBytes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

namespace zdt {
namespace {

constexpr std::uint64_t kilobyte = 1024;
constexpr std::string_view tooLarge = kWarn_upload_lessthenoneM_pic;

class PictureCheckTest : public testing::Test {
protected:
    /// A file of that many bytes that begins like a PNG of 30 by 40, or like a GIF of 12 by 20.
    std::string file(const std::string& name, std::uint64_t bytes) const {
        const std::string start = name.ends_with("gif") ? test::gifBytes({}) : test::pngStart(30, 40);
        std::string path = folder.write(name, start);
        if (bytes > 0)
            std::filesystem::resize_file(path, bytes);
        return path;
    }

    test::TemporaryFolder folder;
};

TEST_F(PictureCheckTest, NamesSizesAndEndingsDecide) {
    const struct {
        const char* name;
        std::uint64_t bytes; // as it comes where 0
        std::string_view stillMessage;
        std::string_view listMessage;
    } cases[] = {
        {"a.png", 0, "", ""},
        {"a.jpg", 0, "", ""},
        {"a.b.9.png", 0, "", ""},
        {"a.JPG", 0, kWarn_upload_pic_lower, kWarn_upload_jpgorpngorgif_pic},
        {"a.PNG", 0, kWarn_upload_pic_lower, kWarn_upload_jpgorpngorgif_pic},
        {"a.Png", 0, kWarn_upload_jpgorpng_pic, kWarn_upload_jpgorpngorgif_pic},
        {"a.jpeg", 0, kWarn_upload_jpgorpng_pic, kWarn_upload_jpgorpngorgif_pic},
        {"png", 0, kWarn_upload_jpgorpng_pic, kWarn_upload_jpgorpngorgif_pic},
        {"a.gif", 0, kWarn_upload_jpgorpng_pic, ""},
        {"a.GIF", 0, kWarn_upload_jpgorpng_pic, kWarn_upload_jpgorpngorgif_pic},
        {"full.png", 1024 * kilobyte, "", ""},
        {"last.png", 1025 * kilobyte - 1, "", ""},
        {"over.png", 1025 * kilobyte, tooLarge, tooLarge},
        {"over.txt", 1025 * kilobyte, tooLarge, kWarn_upload_jpgorpngorgif_pic},
        {"9mb.gif", 9216 * kilobyte, tooLarge, ""},
        {"last.gif", 10241 * kilobyte - 1, tooLarge, ""},
        {"11mb.gif", 11264 * kilobyte, tooLarge, kWarn_upload_lessthenoneM_gif},
        {"\xe5\x9b\xbe.png", 0, kWarn_upload_include_ch, kWarn_upload_include_ch},
        {"\xe5\x9b\xbe.gif", 0, kWarn_upload_include_ch, kWarn_upload_include_ch},
        {"\xe5\x9b\xbe/a.png", 0, "", ""},
    };
    for (const auto& [name, bytes, stillMessage, listMessage] : cases) {
        const std::string path = file(name, bytes);
        const PictureCheck still = CheckPictureUpload(path, false, pictureLimit, tooLarge);
        EXPECT_EQ(still.message, stillMessage) << name;
        EXPECT_EQ(still.passes, stillMessage.empty()) << name;
        EXPECT_EQ(still.width, still.passes ? 30 : 0) << name;
        const PictureCheck listed = CheckPictureOrGifUpload(path, false, pictureLimit, tooLarge);
        EXPECT_EQ(listed.message, listMessage) << name;
        EXPECT_EQ(listed.passes, listMessage.empty()) << name;
        EXPECT_EQ(listed.height, !listed.passes ? 0 : path.ends_with("gif") ? 20 : 40) << name;
    }
    const std::string chinese = file("\xe5\x9b\xbe.png", 0);
    EXPECT_TRUE(CheckPictureUpload(chinese, true, pictureLimit, tooLarge).passes);
    EXPECT_TRUE(CheckPictureOrGifUpload(chinese, true, pictureLimit, tooLarge).passes);
}

TEST_F(PictureCheckTest, WhatCannotBeOpenedFailsInSilence) {
    std::filesystem::create_directory(folder.path("folder.png"));
    ASSERT_EQ(::mkfifo(folder.path("pipe.png").c_str(), 0600), 0);
    for (const char* name : {"absent.png", "folder.png", "pipe.png"}) {
        const std::string path = folder.path(name);
        for (const PictureCheck& check : {CheckPictureUpload(path, false, pictureLimit, tooLarge),
                                          CheckPictureOrGifUpload(path, false, pictureLimit, tooLarge)}) {
            EXPECT_FALSE(check.passes) << name;
            EXPECT_EQ(check.message, "") << name;
        }
        EXPECT_EQ(FileSizeWithin(path.c_str(), pictureLimit), -1) << name;
    }
    EXPECT_EQ(FileSizeWithin(nullptr, pictureLimit), -1);
}

TEST_F(PictureCheckTest, UnreadablePictureOfAGoodNamePassesWithNoSize) {
    for (const char* content : {"", "no picture", "GIF89a", "BM..", "/* XPM */"}) {
        for (const char* name : {"a.png", "a.jpg", "a.gif"}) {
            const PictureCheck check =
                CheckPictureOrGifUpload(folder.write(name, content), false, pictureLimit, tooLarge);
            EXPECT_TRUE(check.passes && check.width == 0 && check.height == 0) << name << " with " << content;
        }
    }
    const std::string huge = folder.write("huge.png", test::pngStart(60000, 60000));
    EXPECT_EQ(CheckPictureUpload(huge, false, pictureLimit, tooLarge).width, 60000) << "nothing is decoded";
}

TEST_F(PictureCheckTest, FileSizeIsRoundedToTheNearestKilobyte) {
    const auto within = [&](std::uint64_t bytes) { return FileSizeWithin(file("a.png", bytes).c_str(), 1024); };
    EXPECT_EQ(within(1024 * kilobyte + 1), 1);
    EXPECT_EQ(within(1024 * kilobyte + 511), 1);
    EXPECT_EQ(within(1024 * kilobyte + 512), -2);
}

TEST(PictureNames, EndingsAreTold) {
    const struct {
        const char* path;
        bool passes;
        std::string_view message;
    } cases[] = {{"a.jpg", true, ""},  {"a.png", true, ""},    {"a.JPG", false, kWarn_upload_pic_lower},
                 {"a.gif", false, ""}, {"x.png/a", false, ""}, {"a.PNG", false, kWarn_upload_pic_lower},
                 {"", false, ""},      {"a.png.", false, ""}};
    for (const auto& [path, passes, message] : cases) {
        EXPECT_EQ(CheckLowerCaseExtension(path).passes, passes) << path;
        EXPECT_EQ(CheckLowerCaseExtension(path).message, message) << path;
    }
    for (const char* name : {"ab.9.png", "a.b.9.png", "ab.9.png.jpg", "dir/ab.9.png"})
        EXPECT_EQ(PictureSuffixOf(name), ".9.png") << name;
    for (const char* name : {"a.9.png", ".9.png", "ab.png", "ab9.png", "", "dir/a.9.png"})
        EXPECT_EQ(PictureSuffixOf(name), ".png") << name;
}

TEST(PictureNames, MultiByteCharactersAreTwoAdjacentHighBytes) {
    for (const char* text : {"", "plain", "\xe5", "a\x80z\x80"})
        EXPECT_FALSE(HasMultiByteCharacter(text));
    for (const char* text : {"\xc3\xa9", "a\xe5\x9b\xbe", "\xff\xff"})
        EXPECT_TRUE(HasMultiByteCharacter(text));
}

} // namespace
} // namespace zdt
