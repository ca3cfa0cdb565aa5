#include "lockscreen/expression.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

TEST(Expression, TextsHaveTheirValues) {
    const struct {
        const char* text;
        std::int32_t value;
    } cases[] = {
        {"2+3*4", 14},
        {"(2+3)*4", 20},
        {"10-4-3", 3},
        {"100/10/5", 2},
        {"7/2", 3},
        {"0-7/2", -3},
        {"(0-7)/2", -3},
        {"2*3%4", 1},
        {"2+3%4", 1},
        {"10%3", 3},
        {"1+(2%3)", 0},
        {"-7/2", 3},
        {"5 5+", 10},
        {"12abc", 12},
        {"1.5+1.5", 2},
        {"  1 920 ", 920},
        {"system.screen_height-240", 240},
        {"abc", 0},
        {"", 0},
        {"()", 0},
        {"-", 0},
        {"1+", 1},
        {"*3", 3},
        {"(1+2", 0},
        {"1+2)*3", 9},
        {")1+2", 3},
        {"((((2))))", 2},
        {"1#2", 2},
        {"4/0", 0},
        {"4%0", 0},
        {"1+4/(2-2)", 1},
        {"2147483647+1", -2147483647 - 1},
        {"0-2147483647-2", 2147483647},
        {"65536*65536", 0},
        {"46341*46341", -2147479015},
        {"(0-2147483647-1)/(0-1)", -2147483647 - 1},
        {"99999999999999999999", 2147483647},
        {"4294967296", 2147483647},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(calculate(text), value) << text;
}

TEST(Expression, TextFallsIntoTokens) {
    const struct {
        const char* text;
        Tokens tokens;
    } cases[] = {
        {"system.screen_height -  2*30", {"system.screen_height", "-", "2", "*", "30"}},
        {"-5", {"-", "5"}},
        {"(a%b)/c", {"(", "a", "%", "b", ")", "/", "c"}},
        {"1.5.x_Z", {"1.5.x_Z"}},
        {"a主b'c'&\t", {"a", "b", "c"}},
        {"--", {"-", "-"}},
        {" \n", {}},
    };
    for (const auto& [text, tokens] : cases)
        EXPECT_EQ(tokenise(text), tokens) << text;
}

TEST(Expression, PostfixKeepsTheOddPlaceOfThePercentSign) {
    const struct {
        const char* text;
        Tokens postfix;
    } cases[] = {
        {"2+3*4", {"2", "3", "4", "*", "+"}},
        {"2*3%4", {"2", "3", "*", "4", "%"}},
        {"1+(2%3)", {"1", "2", "(", "+", "3", "%"}},
        {"1)+2", {"1", "2", "+"}},
        {"(1+2", {"1", "2", "+", "("}},
        {"a+.5+_x+1", {"+", "+", "1", "+"}},
        {"1%2+3", {"1", "2", "3", "+", "%"}},
    };
    for (const auto& [text, postfix] : cases)
        EXPECT_EQ(toPostfix(tokenise(text)), postfix) << text;
}

TEST(Expression, KindsOfTokensAreToldApart) {
    for (const char* sign : {"+", "-", "*", "/", "%"}) {
        EXPECT_TRUE(isOperator(sign));
        EXPECT_FALSE(isOperand(sign));
    }
    for (const char* token : {"1", "a", "", "++", "+-"}) {
        EXPECT_FALSE(isOperator(token)) << token;
        EXPECT_TRUE(isOperand(token)) << token;
    }
    EXPECT_FALSE(isOperator("("));
    EXPECT_FALSE(isOperand("("));
    EXPECT_FALSE(isOperand(")"));
}

TEST(Expression, NoTextIsTooLongOrTooDeep) {
    std::string sum = "1";
    for (int count = 1; count < 1000; ++count)
        sum += "+1";
    EXPECT_EQ(calculate(sum), 1000);
    for (const char* part : {"1+", "(", "1+(", "1%", ")"}) {
        std::string text;
        for (int count = 0; count < 200'000; ++count)
            text += part;
        static_cast<void>(calculate(text + "1"));
    }
    EXPECT_EQ(Evaluator({}).evaluate(), 0);
    EXPECT_STREQ(IllegalExpression("no number").what(), "no number");
}

} // namespace
} // namespace zdt
