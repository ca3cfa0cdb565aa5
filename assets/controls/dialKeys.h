#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <string_view>

namespace zdt::assets {

/// A key of the dial pad: a digit, the star or the hash, with a disc behind it while it is pressed. Null for a name
/// that is none.
[[nodiscard]] QImage drawDialKey(std::string_view name, const Generation& generation);

} // namespace zdt::assets
