#include "support/pattern.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using Groups = std::vector<std::string>;

TEST(Pattern, WholeTextMustMatch) {
    const struct {
        const char* expression;
        const char* text;
        bool matches;
    } cases[] = {
        {"(FHD)|(HD)", "HD", true},
        {"(FHD)|(HD)", "FHDHD", false},
        {"FHD|HD", "FHD ", false},
        {"FHD|HD", "xHD", false},
        {".+", "", false},
        {".+", "主题", true},
        {".+", "\xff\xfe", true},
        {".+", "two\nlines", false},
        {R"((5|8|9)\.\d\.\d+)", "9.0.100", true},
        {R"((5|8|9)\.\d\.\d+)", "9.0.100\n", false},
        {R"((5|8|9)\.\d\.\d+)", "7.0.1", false},
        {R"((5|8|9)\.\d\.\d+)", "8.10.1", false},
        {R"(\d)", "٣", false},
        {"(unclosed", "(unclosed", false},
        {"*", "", false},
    };
    for (const auto& [expression, text, matches] : cases) {
        SCOPED_TRACE(std::string(expression) + " on " + text);
        EXPECT_EQ(matchesPattern(text, expression), matches);
        Groups groups{"left from before"};
        EXPECT_EQ(matchesPattern(text, expression, groups), matches);
        EXPECT_TRUE(matches || groups.empty());
    }
}

TEST(Pattern, GroupThatTookNoPartIsEmpty) {
    Groups groups;
    EXPECT_TRUE(matchesPattern("HD", "(FHD)|(HD)", groups));
    EXPECT_EQ(groups, (Groups{"", "HD"}));
    EXPECT_TRUE(matchesPattern("preview_a_1_22.jpg", R"(preview_(.+)_(\d+)\.jpg)", groups));
    EXPECT_EQ(groups, (Groups{"a_1", "22"}));
}

TEST(Pattern, EscapedTextMatchesItselfAlone) {
    const std::string prefix = "preview_a.b+(c)[d]\\主_";
    EXPECT_TRUE(matchesPattern(prefix + "7.jpg", escapePattern(prefix) + R"((\d+)\.jpg)"));
    EXPECT_FALSE(matchesPattern("preview_aXb+(c)[d]\\主_7.jpg", escapePattern(prefix) + R"((\d+)\.jpg)"));
}

TEST(Pattern, NoTextHangsOrOverflowsAMatch) {
    const std::string text(200'000, 'a');
    EXPECT_FALSE(matchesPattern(text, "(a*)*b"));
    EXPECT_TRUE(matchesPattern(text, ".+"));
}

} // namespace
} // namespace zdt
