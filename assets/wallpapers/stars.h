#pragma once

#include "assets/wallpapers/deepImage.h"

namespace zdt::assets {

/// Adds stars that fade towards a horizon.
/// @param horizon in heights of the picture from its top
/// @param density how many of 1000 squares hold a star; a square is a hundredth of the picture's height wide
void drawStars(DeepImage& image, float horizon, int density);

} // namespace zdt::assets
