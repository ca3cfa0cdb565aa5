#include "shell/themeWords.h"

#include "kit/localisation.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>

namespace zdt {
namespace {

/// The languages of the sources, and a time zone that is the same everywhere.
class ThemeWordsTest : public testing::Test {
protected:
    ThemeWordsTest() {
        ::setenv("TZ", "UTC", 1);
        ::tzset();
        EXPECT_EQ(::chdir(ZDT_SOURCE_DIR), 0); // The skin's folder lies there.
    }
    ~ThemeWordsTest() override { SetLanguage(chineseLanguage); }
};

TEST_F(ThemeWordsTest, AgeIsToldInTheNearestWords) {
    constexpr std::int64_t now = 1792333800; // 2026-10-18 14:30 UTC
    constexpr std::int64_t hour = 3600;
    const struct {
        std::int64_t before;
        const char* english;
        const char* chinese;
    } cases[] = {{-500, "Just now", "刚刚"},
                 {59, "Just now", "刚刚"},
                 {60, "1 min ago", "1 分钟前"},
                 {59 * 60 + 59, "59 min ago", "59 分钟前"},
                 {hour, "1 h ago", "1 小时前"},
                 {14 * hour, "14 h ago", "14 小时前"},
                 {15 * hour, "Yesterday", "昨天"},
                 {39 * hour, "2 days ago", "2 天前"},
                 {6 * 24 * hour, "6 days ago", "6 天前"},
                 {7 * 24 * hour, "11 Oct", "10月11日"},
                 {300 * 24 * hour, "22 Dec 2025", "2025年12月22日"}};
    for (const auto& [before, english, chinese] : cases) {
        SetLanguage(englishLanguage);
        EXPECT_EQ(changeText(now - before, now).toStdString(), english) << before;
        SetLanguage(chineseLanguage);
        EXPECT_EQ(changeText(now - before, now).toStdString(), chinese) << before;
    }
}

TEST_F(ThemeWordsTest, SizeIsRounded) {
    const struct {
        std::uint64_t bytes;
        const char* text;
    } cases[] = {{0, "0 KB"}, {1500, "1 KB"}, {1048575, "1024 KB"}, {1048576, "1.0 MB"}, {25795000, "24.6 MB"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(sizeText(bytes).toStdString(), text) << bytes;
}

} // namespace
} // namespace zdt
