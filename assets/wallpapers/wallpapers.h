#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QSize>

#include <string_view>

namespace zdt::assets {

/// The wallpaper of the home screen or of the lock screen, by its name in the theme. On the first one white labels
/// stand, anywhere; on the second one the upper third carries the generation's `lockInk`, and the foot light letters.
[[nodiscard]] QImage drawWallpaper(std::string_view name, QSize size, const Generation& generation);

} // namespace zdt::assets
