#pragma once

#include <cstdint>

/// Randomness that is the same each time: all of it is a function of the place and a seed.
namespace zdt::assets {

[[nodiscard]] inline std::uint32_t hashOf(std::uint32_t x, std::uint32_t y, std::uint32_t seed) {
    std::uint32_t bits = x * 0x9e3779b1U ^ (y * 0x85ebca77U + seed * 0xc2b2ae3dU);
    bits = (bits ^ (bits >> 15)) * 0x2c9277b5U;
    bits = (bits ^ (bits >> 13)) * 0x5f356495U;
    return bits ^ (bits >> 16);
}

/// 0 to 1, each as likely.
[[nodiscard]] inline float chance(std::uint32_t x, std::uint32_t y, std::uint32_t seed) {
    return static_cast<float>(hashOf(x, y, seed) >> 8) * 0x1p-24F;
}

/// Smooth hills and hollows of width 1, about -1 to 1, 0 at whole numbers.
[[nodiscard]] float noise(float x, float y, std::uint32_t seed);

/// Noise with finer noise in it, each of half the width and `gain` times the height; about -1 to 1.
[[nodiscard]] float fractalNoise(float x, float y, int octaves, std::uint32_t seed, float gain = 0.5F);

/// The same with sharp ridges where the noise crosses 0, as mountains have them: 0 to about 1.
[[nodiscard]] float ridgedNoise(float x, float y, int octaves, std::uint32_t seed);

} // namespace zdt::assets
