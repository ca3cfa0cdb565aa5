#pragma once

#include "model/fileResNode.h"
#include "model/resNode.h"

#include <string>
#include <string_view>

namespace zdt {

inline constexpr std::string_view homeWallpaper = "home_wallpaper_0.jpg";
inline constexpr std::string_view unlockWallpaper = "unlock_wallpaper_1.jpg";

/// The exact size of a wallpaper: as high as the screen, and the home screen's twice as wide, since it slides along
/// with the pages. `tall` is true for generation 9.
[[nodiscard]] SizeRange wallpaperSize(std::string_view name, bool tall);

/// The pictures behind the home screen and the lock screen, of exact sizes for the theme's generation.
class ImageWallpaperNode : public ResNode {
public:
    explicit ImageWallpaperNode(ResNode* parent);
};

/// The wallpapers: the pictures, and the video that may stand in for them.
class WallpaperNode : public ResNode {
public:
    explicit WallpaperNode(ResNode* parent);
};

} // namespace zdt
