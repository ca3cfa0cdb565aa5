#include "lockscreen/pictureNames.h"

#include "support/pattern.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace zdt {

namespace {

using Names = std::vector<std::string>;

const std::string digitPattern = R"(system\.time\.((?:min[1-2])|(?:hour[1-2]))(?:(/|%)(\d+))?)";
constexpr std::string_view firstHourDigit = "system.time.hour1";

/// The values of a digit, both ends included.
struct DigitRange {
    int first = 0;
    int last = 0;
};

DigitRange rangeOf(std::string_view digit) {
    return {0, digit == "hour1" ? 2 : digit == "min1" ? 5 : 9};
}

/// A divisor too long to read is larger than every value.
int readDivisor(const std::string& text) {
    int divisor = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), divisor);
    return result.ec == std::errc::result_out_of_range ? 1000 : divisor;
}

Names numbers(DigitRange range) {
    Names values;
    for (int value = range.first; value <= range.last; ++value)
        values.push_back(std::to_string(value));
    return values;
}

/// The digits from the range's first to the one before its last, each mod `divisor`, once each.
Names remainders(DigitRange range, int divisor) {
    Names values;
    for (int value = range.first; value < range.last; ++value) {
        std::string remainder = std::to_string(value % divisor);
        if (std::find(values.begin(), values.end(), remainder) == values.end())
            values.push_back(std::move(remainder));
    }
    return values;
}

/// The values of a digit of the clock, or nothing for any other token. `secondHourDigit` is the range of hour2.
std::optional<Names> digitValues(const std::string& token, DigitRange secondHourDigit) {
    std::vector<std::string> groups;
    if (!matchesPattern(token, digitPattern, groups))
        return std::nullopt;
    const DigitRange range = groups[0] == "hour2" ? secondHourDigit : rangeOf(groups[0]);
    const int divisor = readDivisor(groups[2]);
    if (divisor == 0)
        return numbers(range);
    if (groups[1] == "/")
        return numbers({range.first / divisor, range.last / divisor});
    const Names values = remainders(range, divisor);
    return values.empty() ? numbers(range) : values;
}

/// What a token may be replaced by; a single empty text for a variable that isn't known.
Names tokenValues(const std::string& token, DigitRange secondHourDigit) {
    const std::size_t first = token.find('\'');
    if (first != std::string::npos) {
        const std::size_t last = token.rfind('\'');
        return {last > first ? token.substr(first + 1, last - first - 1) : std::string()};
    }
    return digitValues(token, secondHourDigit).value_or(Names{std::string()});
}

std::optional<Names> multiply(const std::vector<std::string>& tokens, DigitRange secondHourDigit) {
    Names names{std::string()};
    for (const std::string& token : tokens) {
        const Names values = tokenValues(token, secondHourDigit);
        if (names.size() * values.size() > maxPictureNames)
            return std::nullopt;
        Names longer;
        longer.reserve(names.size() * values.size());
        for (const std::string& name : names) {
            for (const std::string& value : values)
                longer.push_back(name + value);
        }
        names = std::move(longer);
    }
    return names;
}

bool isVariable(const std::string& token) {
    return token.find('\'') == std::string::npos;
}

bool isTooLong(std::string_view src) {
    return src.size() > maxSourceBytes ||
           static_cast<std::size_t>(std::count(src.begin(), src.end(), '+')) >= maxSourceTokens;
}

} // namespace

std::vector<std::string> splitSource(std::string_view src) {
    std::vector<std::string> tokens;
    for (std::size_t plus = src.find('+'); plus != std::string_view::npos; plus = src.find('+')) {
        tokens.emplace_back(src.substr(0, plus));
        src.remove_prefix(plus + 1);
    }
    tokens.emplace_back(src);
    return tokens;
}

std::size_t countNames(std::string_view src) {
    if (isTooLong(src))
        return 0;
    std::size_t count = 1;
    for (const std::string& token : splitSource(src)) {
        count *= tokenValues(token, rangeOf("hour2")).size();
        if (count > maxPictureNames)
            return maxPictureNames + 1;
    }
    return count;
}

std::optional<std::vector<std::string>> expandTokens(const std::vector<std::string>& tokens) {
    std::optional<Names> names = multiply(tokens, rangeOf("hour2"));
    const bool hasFirstHourDigit = std::find(tokens.begin(), tokens.end(), firstHourDigit) != tokens.end();
    if (!names || !hasFirstHourDigit || std::count_if(tokens.begin(), tokens.end(), isVariable) < 2)
        return names;
    std::vector<std::string> impossible = tokens;
    std::replace(impossible.begin(), impossible.end(), std::string(firstHourDigit), std::string("'2'"));
    const Names late = multiply(impossible, {4, 9}).value_or(Names());
    const std::set<std::string> excluded(late.begin(), late.end());
    std::erase_if(*names, [&](const std::string& name) { return excluded.contains(name); });
    return names;
}

std::optional<std::vector<std::string>> expandSource(std::string_view src) {
    if (isTooLong(src))
        return std::nullopt;
    std::vector<std::string> tokens = splitSource(src);
    const bool isPlainName = std::all_of(tokens.begin(), tokens.end(), [](const std::string& token) {
        return isVariable(token) && !digitValues(token, rangeOf("hour2"));
    });
    if (isPlainName)
        return Names{std::string(src)};
    std::erase(tokens, heightToken); // It stands in quotes, yet it is a variable, and not one of the clock.
    return expandTokens(tokens);
}

} // namespace zdt
