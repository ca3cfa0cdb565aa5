#pragma once

#include "assets/art/generation.h"

#include <string>

namespace zdt::assets {

/// Writes the layouts of the designed lock screen and of the slide lock. Generation 5 has each in two forms: the full
/// one, whose lower half hangs on the screen's lower edge, and one of plain numbers for a screen 1920 high.
/// @param directory the template's, ending in "/"
[[nodiscard]] bool writeLockScreens(const std::string& directory, const Generation& generation);

} // namespace zdt::assets
