#pragma once

#include "assets/art/generation.h"
#include "assets/templates/demands.h"

#include <QImage>

namespace zdt::assets {

/// Draws a picture by its directory and name. Null for one that no table knows: then the tables are behind the
/// resource tree.
[[nodiscard]] QImage draw(const Demand& demand, const Generation& generation);

} // namespace zdt::assets
