#pragma once

#include "assets/wallpapers/deepImage.h"

namespace zdt::assets {

/// Adds the light of curtains that hang in folds over a horizon.
/// @param horizon how far below the top of the picture it lies, in heights of the picture
void drawCurtains(DeepImage& image, float horizon);

} // namespace zdt::assets
