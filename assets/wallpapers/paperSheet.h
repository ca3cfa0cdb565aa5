#pragma once

#include "assets/wallpapers/deepImage.h"

#include <QPainterPath>

#include <cstdint>

namespace zdt::assets {

/// A sheet of paper. Lengths are in heights of the picture.
struct Sheet {
    QRgb upper; ///< Its colour at `top` and above, which turns into `lower` until `bottom`.
    QRgb lower;
    float top;
    float bottom;
    float lift; ///< How high it lies over what is behind.
    std::uint32_t seed;
};

/// Lays a sheet that is cut along an outline, as `maskOf` takes it, over the image. The light comes from the upper
/// left.
void lay(DeepImage& image, const QPainterPath& outline, const Sheet& sheet);

/// Fibres that take the light, about -1 to 1, at a place in heights of the picture.
[[nodiscard]] float paperFibres(float x, float y, std::uint32_t seed);

} // namespace zdt::assets
