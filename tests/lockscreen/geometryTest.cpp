#include "lockscreen/geometry.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

TEST(Geometry, TextIsFoldedWhereItCanBeComputed) {
    const struct {
        std::string text;
        std::uint32_t height;
        std::string folded;
    } cases[] = {
        {"", 1920, ""},
        {"  ", 1920, "  "},
        {" 45 ", 1920, "45"},
        {"-5", 1920, "-5"},
        {"- 5", 1920, "-5"},
        {"1920-240", 1920, "1680"},
        {"-5+10", 1920, "5"},
        {"(2+3)*4", 1920, "20"},
        {"240-1920", 1920, "-1680"},
        {"system.screen_height", 1920, "system.screen_height"},
        {"system.screen_height - 100 - 20", 1920, "system.screen_height-120"},
        {"system.screen_height/2", 1920, "system.screen_height-960"},
        {"system.screen_height/2", 2160, "system.screen_height-1080"},
        {"1080-system.screen_height", 1920, "system.screen_height-2760"},
        {"system.screen_height+100", 1920, "system.screen_height+100"},
        {"system.screen_height - 0", 1920, "system.screen_height-0"},
        {"system.screen_height-600 + system.a_moveY", 1920, "system.screen_height-600+system.a_moveY"},
        {"10+10+system.a_moveX", 1920, "10+10+system.a_moveX"},
        {"1.5+2+3", 1920, "1.5+2+3"},
        {"4/0+1", 1920, "1"},
        {"99999999999+1", 1920, "-2147483648"},
        {"0-2147483647-system.screen_height", 1920, "0-2147483647-system.screen_height"},
        {"0-2147480000-system.screen_height", 1920, "system.screen_height-2147483840"},
    };
    for (const auto& [text, height, folded] : cases)
        EXPECT_EQ(foldGeometry(text, height), folded) << text;
    EXPECT_DEATH(static_cast<void>(foldGeometry("1", 2000)), "height == 1920 .. height == 2160.*amazingChild");
}

TEST(Geometry, LongTextsEndInBoundedTime) {
    std::string sum = "1";
    for (int i = 0; i < 100000; ++i)
        sum += "+1";
    EXPECT_TRUE(foldGeometry(sum, 1920) == sum) << "too long to be folded";
    EXPECT_NE(foldGeometry(std::string(3000, '(') + "1+1", 1920), "");
}

TEST(Geometry, FixedFormPutsTheHeightInAndTheOtherWayHangsTheLowerHalfOnTheEdge) {
    const struct {
        std::string text;
        std::string fixed;
        std::string anchored; ///< Of the fixed text.
    } cases[] = {
        {"system.screen_height-1300", "620", "620"},
        {"system.screen_height-1009", "911", "system.screen_height-1009"},
        {"system.screen_height-1010", "910", "910"},
        {"system.screen_height", "1920", "system.screen_height"},
        {"system.screen_height+system.a_moveY", "1920+system.a_moveY", "system.screen_height+system.a_moveY"},
        {"system.screen_height+10", "1930", "1930"},
        {"system.screen_height-600+system.a_moveY", "1320+system.a_moveY", "system.screen_height-600+system.a_moveY"},
        {"system.screen_height - 600 - 20", "1300", "system.screen_height-620"},
        {"1000", "1000", "system.screen_height-920"},
        {"+1000", "+1000", "+1000"},
        {"-1000", "-1000", "-1000"},
        {"400", "400", "400"},
        {"", "", ""},
        {"+system.a_moveY", "+system.a_moveY", "+system.a_moveY"},
        {"system.other-5", "system.other-5", "system.other-5"},
        {"system.screen_height-99999999999", "-2147481727", "-2147481727"},
    };
    for (const auto& [text, fixed, anchored] : cases) {
        EXPECT_EQ(fixedPosition(text, 1920), fixed) << text;
        EXPECT_EQ(anchoredPosition(fixed, 1920), anchored) << text;
    }
}

TEST(Geometry, PlaceIsToldInPixelsAndMovedInItsOwnForm) {
    const struct {
        std::string text;
        std::optional<int> pixel;
        std::string movedTo100;
    } cases[] = {
        {"45", 45, "100"},
        {"", std::nullopt, "100"},
        {"a", std::nullopt, "100"},
        {"system.screen_height-160", 2000, "system.screen_height-2060"},
        {"system.screen_height + 5", 2165, "system.screen_height-2060"},
        {"490+system.slide_moveX", 490, "100+system.slide_moveX"},
        {"system.screen_height-160+system.up_moveY", 2000, "system.screen_height-2060+system.up_moveY"},
    };
    for (const auto& [text, pixel, moved] : cases) {
        EXPECT_EQ(pixelOf(text, 2160), pixel) << text;
        EXPECT_EQ(movedTo(text, 100, 2160), moved) << text;
    }
    EXPECT_EQ(movedTo("system.screen_height-1", 2160, 2160), "system.screen_height");
    EXPECT_EQ(movedTo("system.screen_height-1", 2170, 2160), "system.screen_height+10");
}

} // namespace
} // namespace zdt
