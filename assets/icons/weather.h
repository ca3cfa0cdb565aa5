#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <string_view>

namespace zdt::assets {

/// A picture of the weather's moving icon: a piece of sky with what falls from it. Null for a name that the table
/// doesn't hold.
[[nodiscard]] QImage drawWeather(std::string_view name, QSize size, const Generation& generation);

} // namespace zdt::assets
