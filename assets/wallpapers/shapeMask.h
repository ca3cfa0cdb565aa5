#pragma once

#include "assets/wallpapers/deepImage.h"

#include <QPainterPath>

namespace zdt::assets {

/// What an outline covers of a picture. It is in heights of the picture: x counts from the picture's middle, y from its
/// top. What it encloses twice in the same sense stays covered.
[[nodiscard]] Mask maskOf(QSize size, const QPainterPath& outline);

/// Lays a colour over the image where the mask covers it.
void fill(DeepImage& image, const Mask& mask, const Tint& tint);

/// Makes the image darker where the mask covers it, as a shadow of that colour does.
/// @param strength 0 to 1
void shade(DeepImage& image, const Mask& mask, const Tint& tint, float strength);

} // namespace zdt::assets
