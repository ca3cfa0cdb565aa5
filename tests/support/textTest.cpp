#include "support/text.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using namespace std::string_view_literals;

TEST(Text, OnlyWellFormedUtf8Passes) {
    const struct {
        std::string_view text;
        bool valid;
    } cases[] = {
        {""sv, true},
        {"plain\0text"sv, true},
        {"\x7f"sv, true},
        {"\xc2\x80"sv, true},
        {"\xdf\xbf"sv, true},
        {"主题"sv, true},
        {"\xe0\xa0\x80"sv, true},
        {"\xed\x9f\xbf"sv, true},
        {"\xee\x80\x80"sv, true},
        {"\xf0\x90\x80\x80"sv, true},
        {"\xf4\x8f\xbf\xbf"sv, true},
        {"\x80"sv, false},                 // a continuation alone
        {"\xc0\xaf"sv, false},             // overlong forms
        {"\xc1\xbf"sv, false},             //
        {"\xe0\x9f\xbf"sv, false},         //
        {"\xf0\x8f\xbf\xbf"sv, false},     //
        {"\xed\xa0\x80"sv, false},         // surrogates
        {"\xed\xbf\xbf"sv, false},         //
        {"\xf4\x90\x80\x80"sv, false},     // above the last character
        {"\xf5\x80\x80\x80"sv, false},     //
        {"\xff"sv, false},                 //
        {"\xc2"sv, false},                 // cut
        {"a\xe4\xb8"sv, false},            //
        {"\xf0\x9f\x98"sv, false},         //
        {"\xc2\x41"sv, false},             // a second byte that is none
        {"\xe4\x41\xad"sv, false},         //
        {"\xe4\xb8\xad\xb8"sv, false},     // one too many
        {"\xd6\xf7\xcc\xe2.png"sv, false}, // another encoding
    };
    for (const auto& [text, valid] : cases)
        EXPECT_EQ(isUtf8(text), valid) << testing::PrintToString(text);
}

TEST(Text, PrintableIsAsciiWithoutControls) {
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(isPrintable(std::string("a") + static_cast<char>(byte)), byte >= 32 && byte <= 126) << byte;
    EXPECT_TRUE(isPrintable(""));
}

TEST(Text, LowerCaseTouchesAsciiLettersAlone) {
    EXPECT_EQ(toLowerAscii("@AZ[`az{ÄÉ.PNG"), "@az[`az{ÄÉ.png");
}

TEST(Text, CharactersAreCountedAndNotBytes) {
    EXPECT_TRUE(toCodePoints("") == U"");
    EXPECT_TRUE(toCodePoints("a主\xf0\x9f\x8e\xa8") == U"a主🎨");
    EXPECT_TRUE(toCodePoints("a\xff\xe4\xb8") == U"a\ufffd\ufffd\ufffd");
}

} // namespace
} // namespace zdt
