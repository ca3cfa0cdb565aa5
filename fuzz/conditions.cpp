#include "lockscreen/conditions.h"

#include "input.h"

namespace zdt {
namespace {

/// A condition with words; only those can be joined to others.
bool hasWords(const std::string& condition) {
    return condition.find_first_not_of(" \t\n") != std::string::npos;
}

std::optional<bool> evaluate(const std::string& condition) {
    return evaluateCondition(condition, [](std::string_view name) {
        ZDT_FUZZ_CHECK(!name.empty());
        return static_cast<std::int64_t>(name.size()) - 8;
    });
}

/// The two, when they can be read, and what joins them say the same.
void check(const std::string& one, const std::string& other) {
    const std::optional<bool> left = evaluate(one);
    const std::optional<bool> right = evaluate(other);
    static_cast<void>(chargeIndexOf(one));
    const std::optional<bool> joined = evaluate(joinConditions(one, other));
    if (left && right && hasWords(one) && hasWords(other) && one.size() + other.size() < maxConditionWords)
        ZDT_FUZZ_CHECK(joined == (*left || *right));
}

} // namespace
} // namespace zdt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [one, other] = zdt::fuzz::cutAt(zdt::fuzz::textOf(data, size), '\0');
    zdt::check(std::string(one), std::string(other));
    return 0;
}
