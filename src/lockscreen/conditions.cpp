#include "lockscreen/conditions.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace zdt {

namespace {

/// The words, and no more than one too many.
std::vector<std::string_view> splitWords(std::string_view text) {
    constexpr std::string_view blanks = " \t\n";
    std::vector<std::string_view> words;
    for (std::size_t start = text.find_first_not_of(blanks);
         start != std::string_view::npos && words.size() <= maxConditionWords;) {
        const std::size_t end = std::min(text.find_first_of(blanks, start), text.size());
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(blanks, end);
    }
    return words;
}

bool isBlank(std::string_view text) {
    return splitWords(text).empty();
}

bool isComparison(std::string_view word) {
    return word == "eq" || word == "gt" || word == "ge" || word == "le";
}

bool compare(std::int64_t left, std::string_view comparison, std::int64_t right) {
    if (comparison == "eq")
        return left == right;
    if (comparison == "gt")
        return left > right;
    return comparison == "ge" ? left >= right : left <= right;
}

/// Reads a condition from its first word to its last.
class ConditionReader {
public:
    ConditionReader(std::string_view text, const VariableValues& values)
        : _words(splitWords(text))
        , _values(values) {}

    std::optional<bool> read() {
        if (_words.empty())
            return true;
        if (_words.size() > maxConditionWords)
            return std::nullopt;
        const bool result = readAlternatives();
        return _failed || _next < _words.size() ? std::nullopt : std::optional<bool>(result);
    }

private:
    bool readAlternatives() {
        bool result = readConjunction();
        while (takeIf("or"))
            result = readConjunction() || result;
        return result;
    }

    bool readConjunction() {
        bool result = readComparison();
        while (takeIf("and"))
            result = readComparison() && result;
        return result;
    }

    bool readComparison() {
        const std::int64_t left = readOperand();
        if (_next >= _words.size() || !isComparison(_words[_next]))
            return left != 0;
        const std::string_view comparison = _words[_next++];
        return compare(left, comparison, readOperand());
    }

    std::int64_t readOperand() {
        bool negated = false;
        std::string_view word = take();
        for (; word.starts_with('!'); word = word.size() == 1 ? take() : word.substr(1))
            negated = !negated;
        const std::int64_t value = valueOf(word);
        return negated ? static_cast<std::int64_t>(value == 0) : value;
    }

    std::int64_t valueOf(std::string_view word) {
        _failed |= word.empty() || word == "and" || word == "or" || isComparison(word);
        if (_failed || word == "true" || word == "false")
            return word == "true" ? 1 : 0;
        std::int64_t number = 0;
        const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
        if (result.ec == std::errc() && result.ptr == word.data() + word.size())
            return number;
        const char first = word.front();
        _failed = (first >= '0' && first <= '9') || first == '-';
        return _failed ? 0 : _values(word);
    }

    std::string_view take() { return _next < _words.size() ? _words[_next++] : std::string_view(); }

    bool takeIf(std::string_view word) {
        const bool isNext = _next < _words.size() && _words[_next] == word;
        _next += isNext ? 1 : 0;
        return isNext;
    }

    std::vector<std::string_view> _words;
    const VariableValues& _values;
    std::size_t _next = 0;
    bool _failed = false;
};

} // namespace

std::optional<std::size_t> chargeIndexOf(std::string_view condition) {
    const auto* const found = std::find(chargeConditions.begin(), chargeConditions.end(), condition);
    if (found == chargeConditions.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - chargeConditions.begin());
}

std::string joinConditions(const std::string& one, const std::string& other) {
    if (isBlank(one) || isBlank(other))
        return isBlank(one) ? other : one;
    return one + " or " + other;
}

std::optional<bool> evaluateCondition(std::string_view condition, const VariableValues& values) {
    return ConditionReader(condition, values).read();
}

} // namespace zdt
