#pragma once

#include "assets/wallpapers/deepImage.h"

#include <cstdint>
#include <span>

namespace zdt::assets {

/// A place on the land and the length of the slopes, all in the same free unit.
struct Peak {
    float x;
    float z;
    float tall;
    float reach; ///< From the top to the foot.
};

/// Mountains at night, some under snow, lit by the sky at their left.
struct Range {
    std::span<const Peak> peaks;
    float nearest; ///< From where to where it reaches, away from the eye.
    float farthest;
    float haze; ///< How much of the air's colour lies over the feet, 0 to 1; there is less over the peaks.
    float snow; ///< How white it is, 0 to 1.
    QRgb rock;
    std::uint32_t seed;
};

/// @param foot where the feet stand, in heights of the picture from its top
void drawRange(DeepImage& image, const Range& range, float foot);

} // namespace zdt::assets
