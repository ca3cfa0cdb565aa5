#pragma once

#include <string>

namespace zdt {

/// Ends every running process whose program is `program`, by its full path with the links of its folders followed. One
/// of the same name from anywhere else is left alone, and so is all if `program` itself is a link.
/// @return how many were told to end
int endProcessesOf(const std::string& program);

/// The phone helper of this program: `adb` in the tools folder beside it. It outlives the windows that start it.
[[nodiscard]] std::string phoneHelper();

} // namespace zdt
