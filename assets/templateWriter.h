#pragma once

#include <string>

namespace zdt::assets {

/// Writes the templates of all generations below a directory, each in place of what stood there. The same bytes each
/// time. What fails is said on standard error.
/// @param directory ends in "/"
[[nodiscard]] bool writeTemplates(const std::string& directory);

} // namespace zdt::assets
