#pragma once

#include "canvas/screens/screenLayer.h"

#include <vector>

/// The screens of each module, in the order of its strip.
namespace zdt {

[[nodiscard]] std::vector<Screen> commonSettingScreens();
[[nodiscard]] std::vector<Screen> launcherScreens();
[[nodiscard]] std::vector<Screen> contactsScreens();
[[nodiscard]] std::vector<Screen> mmsScreens();
[[nodiscard]] std::vector<Screen> systemuiScreens();

} // namespace zdt
