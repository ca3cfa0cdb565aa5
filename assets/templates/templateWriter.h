#pragma once

#include "assets/art/generation.h"

#include <span>
#include <string>

namespace zdt::assets {

/// Writes the templates of some generations below a directory, each in place of what stood there. The same bytes each
/// time. What fails is said on standard error.
/// @param directory ends in "/"
[[nodiscard]] bool writeTemplates(const std::string& directory, std::span<const Generation> wanted = generations);

/// Draws anew only the pictures of standing templates whose paths begin with `part`, such as "icons/": for whoever
/// works on them.
[[nodiscard]] bool redrawPart(const std::string& directory, std::string_view part);

} // namespace zdt::assets
