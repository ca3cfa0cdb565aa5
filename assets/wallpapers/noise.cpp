#include "assets/wallpapers/noise.h"

#include <cmath>

namespace zdt::assets {

namespace {

/// The slope of a corner's gradient, at a place relative to it.
float slope(std::uint32_t x, std::uint32_t y, std::uint32_t seed, float dx, float dy) {
    const std::uint32_t bits = hashOf(x, y, seed);
    constexpr float half = 0x1p15F;
    return (static_cast<float>(bits & 0xffffU) / half - 1) * dx + (static_cast<float>(bits >> 16) / half - 1) * dy;
}

float ease(float part) {
    return part * part * part * (part * (part * 6 - 15) + 10);
}

/// Turns the grid of each octave, so that their corners don't fall together.
void turn(float& x, float& y) {
    const float turned = 1.6F * x - 1.2F * y;
    y = 1.2F * x + 1.6F * y + 17.3F;
    x = turned + 5.7F;
}

} // namespace

float noise(float x, float y, std::uint32_t seed) {
    const float left = std::floor(x);
    const float top = std::floor(y);
    const float dx = x - left;
    const float dy = y - top;
    const auto column = static_cast<std::uint32_t>(static_cast<std::int32_t>(left));
    const auto line = static_cast<std::uint32_t>(static_cast<std::int32_t>(top));
    const float across = ease(dx);
    const float upper = slope(column, line, seed, dx, dy);
    const float lower = slope(column, line + 1, seed, dx, dy - 1);
    const float first = upper + across * (slope(column + 1, line, seed, dx - 1, dy) - upper);
    const float second = lower + across * (slope(column + 1, line + 1, seed, dx - 1, dy - 1) - lower);
    constexpr float strength = 1.5F;
    return strength * (first + ease(dy) * (second - first));
}

float fractalNoise(float x, float y, int octaves, std::uint32_t seed, float gain) {
    float sum = 0;
    float height = 1;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += height * noise(x, y, seed);
        height *= gain;
        turn(x, y);
    }
    return sum * (1 - gain) / (1 - height);
}

float ridgedNoise(float x, float y, int octaves, std::uint32_t seed) {
    float sum = 0;
    float height = 0.5F;
    float weight = 1;
    for (int octave = 0; octave < octaves; ++octave) {
        const float ridge = 1 - std::abs(noise(x, y, seed));
        // Hollows stay smooth: finer ridges grow on ridges.
        const float value = ridge * ridge * weight;
        sum += height * value;
        weight = value < 1 ? value : 1;
        height *= 0.5F;
        turn(x, y);
    }
    return sum;
}

} // namespace zdt::assets
