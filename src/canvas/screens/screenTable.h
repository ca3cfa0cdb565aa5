#pragma once

#include "canvas/screens/screenLayer.h"
#include "model/keyPath.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace zdt {

/// All screens, by module in the order of the navigation, and a module's in the order of its strip: the groups of
/// simple mode first, then the extra ones.
[[nodiscard]] std::span<const Screen> allScreens();

/// Those of a module; none for one that has no screens.
[[nodiscard]] std::span<const Screen> screensOf(std::string_view module);

/// Where the theme's tree has the picture or wallpaper that a layer's key names: the block, and the name in it.
[[nodiscard]] std::pair<KeyPath, std::string> pictureLeaf(std::string_view key);

/// Where the picture of a layer lies in the skin's folder: "simplepic/en/contacts/contact list/title.png".
[[nodiscard]] std::string layerFile(const Screen& screen, const ScreenLayer& layer, bool chinese);

} // namespace zdt
