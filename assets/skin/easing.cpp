#include "assets/skin/easing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zdt::assets {

namespace {

/// The phone's default, and what it multiplies that by where a curve goes too far at both ends.
constexpr double tension = 2;
constexpr double doubleTension = tension * 1.5;

double pullBack(double time, double strength) {
    return time * time * ((strength + 1) * time - strength);
}

/// A parabola that opens upwards.
struct Hop {
    double end; ///< Where the next begins.
    double middle;
    double floor;
};

/// Each comes back to 1, so that it is 2 sqrt((1 - floor) / 8) long; the fall is the second half of one. They take
/// longer than the time that there is: the last ends at `bounceLength`.
constexpr double bounceLength = 1.1226;
constexpr std::array<Hop, 4> hops{{
    {0.35355, 0, 0},
    {0.74086, 0.54721, 0.7},
    {0.96447, 0.85266, 0.9},
    {bounceLength, 1.04353, 0.95},
}};

} // namespace

double accelerateDecelerate(double time) {
    return std::cos((time + 1) * std::numbers::pi) / 2 + 0.5;
}

double accelerate(double time) {
    return time * time;
}

double anticipate(double time) {
    return pullBack(time, tension);
}

double anticipateOvershoot(double time) {
    return time < 0.5 ? pullBack(2 * time, doubleTension) / 2 : 1 - pullBack(2 - 2 * time, doubleTension) / 2;
}

double bounce(double time) {
    const double scaled = time * bounceLength;
    const auto* const hop =
        std::find_if(hops.begin(), hops.end() - 1, [&](const Hop& each) { return scaled < each.end; });
    const double away = scaled - hop->middle;
    return std::min(1.0, 8 * away * away + hop->floor);
}

double cycle(double time) {
    return std::sin(2 * std::numbers::pi * time);
}

double decelerate(double time) {
    return 1 - (1 - time) * (1 - time);
}

double linear(double time) {
    return time;
}

double overshoot(double time) {
    return 1 - pullBack(1 - time, tension);
}

} // namespace zdt::assets
