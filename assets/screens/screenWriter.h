#pragma once

#include <string>

namespace zdt::assets {

/// Writes the pictures of all screens' layers below the skin's folder, and removes those of layers that are gone. A
/// file that would be as it is stays untouched. The same bytes each time. What fails is said on standard error.
/// @param skin ends in "/"
[[nodiscard]] bool writeScreens(const std::string& skin);

} // namespace zdt::assets
