#pragma once

#include "assets/wallpapers/deepImage.h"

#include <array>
#include <initializer_list>

namespace zdt::assets {

/// Colours along a line from 0 to 1. They run through the stops in curves: a gradient of straight pieces shows an edge
/// at each stop.
class Ramp {
public:
    struct Stop {
        float place; ///< Rising from stop to stop.
        QRgb colour;
    };

    Ramp(std::initializer_list<Stop> stops);

    /// Beyond the ends the end's colour.
    [[nodiscard]] Tint at(float place) const;

private:
    static constexpr int steps = 1024;
    std::array<Tint, steps + 1> _tints;
};

/// Fills the image from above down.
void fillDown(DeepImage& image, const Ramp& ramp);

} // namespace zdt::assets
