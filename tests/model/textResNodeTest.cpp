#include "model/textResNode.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace zdt {
namespace {

std::string colourOf(int alpha) {
    char text[16];
    std::snprintf(text, sizeof text, "#%02x11aAfF", static_cast<unsigned>(alpha));
    return text;
}

TEST(TextResNode, RuleDecidesWhatAValueMayBe) {
    TextResNode node("title", "default");
    EXPECT_EQ(node.valueKind(), 1);
    EXPECT_EQ(node.setValue(""), 0) << "no rule, any value";
    EXPECT_EQ(node.value(), "");
    node.setRegex("(FHD)|(HD)");
    const struct {
        const char* value;
        int code;
        const char* left;
    } cases[] = {{"HD", 0, "HD"}, {"", -18, "HD"}, {"FHDx", -19, "HD"}, {"FHD", 0, "FHD"}, {"fhd", -19, "FHD"}};
    for (const auto& [value, code, left] : cases) {
        EXPECT_EQ(node.setValue(value), code) << value;
        EXPECT_EQ(node.value(), left);
    }
    EXPECT_EQ(node.errors(), std::vector<int>{-19});
}

TEST(ColorTextResNode, OnlyTheTwoFormsOfAColourPass) {
    ColorTextResNode node("key", "#80242424");
    EXPECT_EQ(node.valueKind(), 2);
    const struct {
        const char* value;
        int code;
    } cases[] = {
        {"#007DFF", 0},  {"#80007dff", 0},  {"#fff", -19},      {"", -18},         {"#007dfg", -19},
        {"007dff", -19}, {"#007dff ", -19}, {" #007dff", -19},  {"#8007dff", -19}, {"#1234567890", -19},
        {"red", -19},    {"#", -19},        {"#007dff\n", -19},
    };
    for (const auto& [value, code] : cases)
        EXPECT_EQ(node.setValue(value), code) << value;
    EXPECT_EQ(node.value(), "#80007dff") << "a refused value leaves the last good one";
    EXPECT_EQ(node.applyAlphaLimit("#80007dfg"), -1);
    EXPECT_EQ(node.applyAlphaLimit(""), -1);
    EXPECT_EQ(node.value(), "#80007dff");
}

TEST(ColorTextResNode, DefaultSetsTheLimitOfTheAlpha) {
    const struct {
        const char* fallback;
        int limit;
    } cases[] = {{"#242424", 255},   {"#80242424", 128}, {"#00000000", 0}, {"#FF0D9FFB", 255},
                 {"#D8242424", 216}, {"", 255},          {"false", 255},   {"#fff", 255}};
    for (const auto& [fallback, limit] : cases)
        EXPECT_EQ(ColorTextResNode("key", fallback).maxAlpha(), limit) << fallback;
    EXPECT_EQ(ColorTextResNode(0x1, "key", "#4D242424").maxAlpha(), 77);
    EXPECT_EQ(ColorTextResNode("key").maxAlpha(), 255);
}

TEST(ColorTextResNode, OfferedAlphaIsScaledToTheLimit) {
    const struct {
        int limit;
        const char* offered;
        const char* stored;
    } cases[] = {
        {128, "#ff112233", "#80112233"}, {128, "#112233", "#80112233"},   {128, "#FFaabbCC", "#80aabbCC"},
        {255, "#ff112233", "#112233"},   {255, "#80112233", "#80112233"}, {255, "#0A112233", "#0a112233"},
        {128, "#80112233", "#40112233"}, {128, "#00112233", "#00112233"}, {0, "#112233", "#00112233"},
        {1, "#fe112233", "#00112233"},   {216, "#01112233", "#00112233"},
    };
    for (const auto& [limit, offered, stored] : cases) {
        ColorTextResNode node("key");
        node.setMaxAlpha(static_cast<std::uint8_t>(limit));
        EXPECT_EQ(node.applyAlphaLimit(offered), 0);
        EXPECT_EQ(node.value(), stored) << limit << ' ' << offered;
    }
}

TEST(ColorTextResNode, ScalingAndItsUndoingAgreeForEveryAlphaAndLimit) {
    for (int limit = 0; limit <= 255; ++limit) {
        ColorTextResNode node("key");
        node.setMaxAlpha(static_cast<std::uint8_t>(limit));
        for (int alpha = 0; alpha <= 255; ++alpha) {
            ASSERT_EQ(node.applyAlphaLimit(colourOf(alpha)), 0);
            const int stored = limit * alpha / 255;
            const std::string written = stored == 255 ? "#11aAfF" : colourOf(stored);
            ASSERT_EQ(node.value(), written) << limit << ' ' << alpha;
            if (limit == 0 || limit == 255) {
                ASSERT_EQ(node.composeColour(), written);
                continue;
            }
            const int shown = stored < limit ? (stored * 255 + limit - 1) / limit : 255;
            ASSERT_EQ(node.composeColour(), shown == 255 ? "#11aAfF" : colourOf(shown)) << limit << ' ' << alpha;
            ASSERT_EQ(node.applyAlphaLimit(node.composeColour()), 0);
            ASSERT_EQ(node.value(), written) << "what is shown and set again is the same";
        }
    }
}

TEST(ColorTextResNode, ValueAboveItsLimitIsShownOpaque) {
    ColorTextResNode node("key", "#80242424");
    EXPECT_EQ(node.composeColour(), "#242424");
    node.setRawValue("#f0242424");
    EXPECT_EQ(node.composeColour(), "#242424");
    node.setRawValue("#242424");
    EXPECT_EQ(node.composeColour(), "#242424") << "no alpha digits stand for opaque";
    EXPECT_EQ(node.splitColour("#aB12cDeF"), (std::pair<std::string, std::string>{"aB", "12cDeF"}));
    EXPECT_EQ(node.splitColour("aB12cDeF"), (std::pair<std::string, std::string>{}));
}

} // namespace
} // namespace zdt
