#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <string_view>

namespace zdt::assets {

/// A picture that shows the theme in a list: the cover, a small icon, or the screen of a module. Null for a name that
/// the table doesn't hold.
[[nodiscard]] QImage drawPreview(std::string_view name, QSize size, const Generation& generation);

} // namespace zdt::assets
