#pragma once

#include "assets/art/generation.h"

#include <QImage>

namespace zdt::assets {

/// The picture of a charging battery: a ring of light, a sun that rises or a ring of paper.
/// @param index 0 to 9, as that of the charge conditions: each stands for ten percent
[[nodiscard]] QImage drawCharge(int index, const Generation& generation);

} // namespace zdt::assets
