#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <string_view>

namespace zdt::assets {

/// A nine-patch picture, with its guide lines: the backgrounds of fields, buttons, cards and bubbles. Null for a name
/// that the table doesn't hold.
[[nodiscard]] QImage drawPanel(std::string_view name, const Generation& generation);

} // namespace zdt::assets
