#include "lockscreen/pictureNames.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using Names = std::vector<std::string>;

TEST(PictureNames, SourceStandsForItsNames) {
    const struct {
        const char* src;
        Names names;
    } cases[] = {
        {"a.png", {"a.png"}},
        {"'a.png'", {"a.png"}},
        {"'a'+'b.png'", {"ab.png"}},
        {"a+b.png", {"a+b.png"}},
        {"'a+b.png'", {""}}, // a "+" splits inside quotes too, and a lone quote holds nothing
        {"system.charge.level", {"system.charge.level"}},
        {"system.time.hour3", {"system.time.hour3"}},
        {"'n'+system.charge.level+'.png'", {"n.png"}},
        {"'it''s.png'", {"it''s.png"}},
        {"'", {""}},
        {"'n'+system.time.min1+'.png'", {"n0.png", "n1.png", "n2.png", "n3.png", "n4.png", "n5.png"}},
        {"system.time.hour1", {"0", "1", "2"}},
        {"system.time.hour1+'x'", {"0x", "1x", "2x"}},
        {"system.time.min1/2", {"0", "1", "2"}},
        {"system.time.min2/4+'x'", {"0x", "1x", "2x"}},
        {"system.time.hour2%3", {"0", "1", "2"}},
        {"system.time.min2%10", {"0", "1", "2", "3", "4", "5", "6", "7", "8"}},
        {"system.time.hour1%3", {"0", "1"}},
        {"system.time.min1%1", {"0"}},
        {"system.time.min1/0", {"0", "1", "2", "3", "4", "5"}},
        {"system.time.hour1%0", {"0", "1", "2"}},
        {"system.time.min1/99", {"0"}},
        {"system.time.min1/99999999999999999999", {"0"}},
        {"system.time.hour1%99999999999999999999", {"0", "1"}},
        {"system.time.hour2%12", {"0", "1", "2", "3", "4", "5", "6", "7", "8"}},
        {"system.time.min1/-2", {"system.time.min1/-2"}},
        {"system.time.min1*2", {"system.time.min1*2"}},
        {"system.time.hour1%2+'-'+system.time.min1/3", {"0-0", "0-1", "1-0", "1-1"}},
        {"'system.screen_height'+'bg_'+system.time.hour1+'.jpg'", {"bg_0.jpg", "bg_1.jpg", "bg_2.jpg"}},
        {"'system.screen_height'+'bg.jpg'", {"bg.jpg"}},
    };
    for (const auto& [src, names] : cases)
        EXPECT_EQ(expandSource(src), names) << src;
}

TEST(PictureNames, HoursAfterTwentyThreeAreLeftOut) {
    const Names hours = expandSource("'n'+system.time.hour1+system.time.hour2+'.png'").value();
    ASSERT_EQ(hours.size(), 24U);
    for (std::size_t hour = 0; hour < hours.size(); ++hour)
        EXPECT_EQ(hours[hour], "n" + std::to_string(hour / 10) + std::to_string(hour % 10) + ".png");
    EXPECT_EQ(expandSource("system.time.hour2+'h'+system.time.hour1").value().size(), 24U) << "in any order";
    EXPECT_EQ(expandSource("system.time.hour1+system.time.hour2+system.time.min1+system.time.min2").value().size(),
              24U * 60);
}

TEST(PictureNames, MoreNamesThanAnyLayoutUsesAreRefused) {
    std::string digits = "system.time.min2";
    for (int count = 1; count < 4; ++count)
        digits += "+system.time.min2";
    EXPECT_EQ(expandSource(digits).value().size(), 10'000U);
    EXPECT_EQ(expandSource(digits + "+system.time.hour1"), std::nullopt);
    EXPECT_EQ(expandSource(digits + "+system.time.min2"), std::nullopt);
    EXPECT_EQ(expandSource(std::string(4096, 'a')).value().size(), 1U);
    EXPECT_EQ(expandSource(std::string(4097, 'a')), std::nullopt);
    EXPECT_EQ(expandSource("'" + std::string(100'000, '+')), std::nullopt);
}

TEST(PictureNames, SourceSplitsAtEveryPlus) {
    const struct {
        const char* src;
        Names tokens;
    } cases[] = {{"", {""}}, {"a", {"a"}}, {"'a'+b+", {"'a'", "b", ""}}, {"++", {"", "", ""}}};
    for (const auto& [src, tokens] : cases)
        EXPECT_EQ(splitSource(src), tokens);
}

} // namespace
} // namespace zdt
