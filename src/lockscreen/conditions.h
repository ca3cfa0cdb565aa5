#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The conditions of a lock screen layout, as they stand in `visible` and `condition`: words separated by blanks, such
/// as `system.charge.level ge 90 and !system.music_visible`. A word is a variable, a number, "true" or "false"; a "!"
/// in front of it negates. "!" binds closest, then the comparisons `eq`, `gt`, `ge` and `le`, then `and`, then `or`.
namespace zdt {

/// When a charge picture shows, by its index. The ranges overlap at their ends, and one holds a double blank: both are
/// what the phone's own layouts say, and a text of another form is no charge condition.
inline constexpr std::array<std::string_view, 10> chargeConditions{
    "system.charge.level ge 0 and system.charge.level le 10 and system.charge.show",
    "system.charge.level ge 10 and system.charge.level le 20 and system.charge.show",
    "system.charge.level ge 20 and system.charge.level le 30 and system.charge.show",
    "system.charge.level ge 30 and system.charge.level le 40  and system.charge.show",
    "system.charge.level ge 40 and system.charge.level le 50 and system.charge.show",
    "system.charge.level ge 50 and system.charge.level le 60 and system.charge.show",
    "system.charge.level ge 60 and system.charge.level le 70 and system.charge.show",
    "system.charge.level ge 70 and system.charge.level le 80 and system.charge.show",
    "system.charge.level ge 80 and system.charge.level le 90 and system.charge.show",
    "system.charge.level ge 90 and system.charge.level le 100 and system.charge.show",
};

/// The index of the charge condition that reads exactly so.
[[nodiscard]] std::optional<std::size_t> chargeIndexOf(std::string_view condition);

/// The condition that holds when either does. An empty one stands for none yet, and leaves the other.
[[nodiscard]] std::string joinConditions(const std::string& one, const std::string& other);

/// The value of a variable; 0 for an unset one.
using VariableValues = std::function<std::int64_t(std::string_view)>;

/// More words than any condition of a layout has; a longer one isn't read.
inline constexpr std::size_t maxConditionWords = 1000;

/// Whether a condition holds; an empty one always does. Nothing if it can't be read.
[[nodiscard]] std::optional<bool> evaluateCondition(std::string_view condition, const VariableValues& values);

} // namespace zdt
