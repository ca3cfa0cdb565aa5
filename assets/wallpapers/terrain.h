#pragma once

#include "assets/wallpapers/deepImage.h"

#include <functional>

/// Land seen in perspective. Lengths are free but the same in all; on the screen, heights of the picture.
namespace zdt::assets {

/// A point of the land: x to the right of the eye, z away from it.
struct Ground {
    float x;
    float z;
};

/// A point of the land as a shader sees it: the normal is of length 1.
struct Surface {
    Ground ground;
    float height;
    float normalX; ///< To the right.
    float normalY; ///< Up.
    float normalZ; ///< Away from the eye.
};

struct Camera {
    float horizon; ///< How far below the top of the picture it lies.
    float focus;   ///< How large a length of 1 in a distance of 1 is.
    float height;  ///< Of the eye.
    float nearest; ///< The distances that are seen.
    float farthest;
    float step; ///< The longest one on the way there, in parts of the distance: shorter for steep land.

    [[nodiscard]] float screenY(float z, float landHeight) const { return horizon + focus * (height - landHeight) / z; }
};

using HeightOf = std::function<float(Ground)>;
using ShadeOf = std::function<Tint(const Surface&)>;

/// Draws the land over the image, from the nearest point on: each column of the picture goes away from the eye and
/// shows what isn't hidden.
void drawTerrain(DeepImage& image, const Camera& camera, const HeightOf& height, const ShadeOf& shade);

} // namespace zdt::assets
