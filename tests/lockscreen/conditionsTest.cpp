#include "lockscreen/conditions.h"

#include <gtest/gtest.h>

#include <map>

namespace zdt {
namespace {

TEST(Conditions, NegationBindsClosestThenComparisonThenAndThenOr) {
    const std::map<std::string, std::int64_t, std::less<>> set{{"system.one", 1}, {"system.level", 10}};
    const VariableValues values = [&](std::string_view name) {
        const auto found = set.find(name);
        return found == set.end() ? 0 : found->second;
    };
    const struct {
        std::string text;
        std::optional<bool> holds;
    } cases[] = {
        {"", true},
        {"true", true},
        {"false", false},
        {"system.one", true},
        {"!system.one", false},
        {"! system.one", false},
        {"!!system.one", true},
        {"system.unset", false},
        {"system.level eq 10", true},
        {"system.level gt 10", false},
        {"system.level ge 10", true},
        {"system.level  le\t10", true},
        {"!system.level eq 0", true},
        {"system.one or system.one and system.unset", true},
        {"system.unset and system.one or system.one", true},
        {"system.unset and system.one", false},
        {"system.unset or system.level ge 5 and system.level le 20", true},
        {"and", std::nullopt},
        {"system.one and", std::nullopt},
        {"system.one system.one", std::nullopt},
        {"system.level eq", std::nullopt},
        {"eq 1", std::nullopt},
        {"!", std::nullopt},
        {"1x", std::nullopt},
        {"system.level eq 99999999999999999999", std::nullopt},
    };
    for (const auto& [text, holds] : cases)
        EXPECT_EQ(evaluateCondition(text, values), holds) << text;

    std::string endless;
    for (int i = 0; i < 1000000; ++i)
        endless += "a or ";
    EXPECT_EQ(evaluateCondition(endless + "a", values), std::nullopt);
    EXPECT_EQ(evaluateCondition(std::string(1000000, '!') + "system.one", values), true);
}

TEST(Conditions, ChargeLevelAtTheEndOfARangeShowsTwoPictures) {
    for (std::int64_t level = 0; level <= 100; ++level) {
        const VariableValues values = [&](std::string_view name) { return name == "system.charge.level" ? level : 1; };
        int shown = 0;
        for (const std::string_view condition : chargeConditions)
            shown += evaluateCondition(condition, values) == true ? 1 : 0;
        EXPECT_EQ(shown, level % 10 == 0 && level > 0 && level < 100 ? 2 : 1) << level;
    }
}

TEST(Conditions, ChargeConditionIsToldToTheLetter) {
    EXPECT_EQ(chargeIndexOf("system.charge.level ge 30 and system.charge.level le 40  and system.charge.show"), 3U);
    EXPECT_EQ(chargeIndexOf("system.charge.level ge 30 and system.charge.level le 40 and system.charge.show"),
              std::nullopt);
    EXPECT_EQ(joinConditions("a", "b"), "a or b");
    EXPECT_EQ(joinConditions(" ", "b"), "b");
    EXPECT_EQ(joinConditions("a", ""), "a");
}

} // namespace
} // namespace zdt
