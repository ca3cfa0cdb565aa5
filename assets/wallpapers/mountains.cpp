#include "assets/wallpapers/mountains.h"

#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/terrain.h"

#include <cmath>

namespace zdt::assets {

namespace {

/// How high the cones of the peaks are at a place: steep above, flat at the feet.
float conesAt(std::span<const Peak> peaks, float x, float z) {
    float height = 0;
    for (const Peak& peak : peaks) {
        const float rest = std::max(0.F, 1 - std::hypot(x - peak.x, z - peak.z) / peak.reach);
        height = std::max(height, peak.tall * rest * (0.55F + 0.45F * rest));
    }
    return height;
}

float heightOf(const Range& range, Ground ground) {
    const float swayX = 0.25F * fractalNoise(ground.x * 1.3F, ground.z * 1.3F, 3, range.seed);
    const float swayZ = 0.25F * fractalNoise(ground.x * 1.3F, ground.z * 1.3F, 3, range.seed + 1);
    const float cones = conesAt(range.peaks, ground.x + swayX, ground.z + swayZ);
    const float ridges = ridgedNoise(ground.x * 1.7F + swayX, ground.z * 1.7F + swayZ, 7, range.seed + 2);
    return cones * (0.78F + 0.36F * ridges) - 0.01F;
}

Tint tintAt(const Range& range, const Surface& surface) {
    constexpr Tint air = tintOf(0xff1f7480);
    constexpr Tint white = tintOf(0xffa5e6e0);
    constexpr Tint shade{0.10F, 0.20F, 0.34F};
    constexpr Tint sky{0.50F, 0.92F, 0.86F};
    const float part = std::clamp(surface.height / range.peaks.front().tall, 0.F, 1.F);
    const float patches = 0.25F * fractalNoise(surface.ground.x * 9, surface.height * 14, 3, range.seed + 3);
    const float snow =
        smoothStep(0.42F, 0.62F, surface.normalY + 0.22F * part + patches) * smoothStep(0.02F, 0.3F, part) * range.snow;
    const float light = std::max(0.F, -0.8F * surface.normalX + 0.4F * surface.normalY - 0.3F * surface.normalZ);
    const Tint lit = mix(tintOf(range.rock), white, snow) * (shade + sky * light);
    return mix(lit, air, range.haze * (1 - 0.65F * part));
}

} // namespace

void drawRange(DeepImage& image, const Range& range, float foot) {
    const Camera camera{foot - 0.004F, 1, 0.02F, range.nearest, range.farthest, 0.0004F};
    drawTerrain(
        image, camera, [&](Ground ground) { return heightOf(range, ground); },
        [&](const Surface& surface) { return tintAt(range, surface); });
}

} // namespace zdt::assets
