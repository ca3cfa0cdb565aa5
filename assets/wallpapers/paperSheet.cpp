#include "assets/wallpapers/paperSheet.h"

#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/shapeMask.h"

#include <cmath>

namespace zdt::assets {

namespace {

constexpr Tint shadowInk = tintOf(0xff06302f);

/// The mask moved to the lower right.
Mask moved(const Mask& mask, float distance) {
    const int step = static_cast<int>(std::lround(distance));
    Mask result(mask.size());
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x)
            result.at(x, y) = mask.nearest(x - step, y - step);
    }
    return result;
}

/// One shadow from the room's light all around, and a harder one to the lower right.
void castShadow(DeepImage& image, const Mask& mask, float lift) {
    Mask around = mask;
    blur(around, 1.6F * lift);
    shade(image, around, shadowInk, 0.34F);
    Mask aside = moved(mask, 0.95F * lift);
    blur(aside, 0.5F * lift);
    shade(image, aside, shadowInk, 0.30F);
}

} // namespace

void lay(DeepImage& image, const QPainterPath& outline, const Sheet& sheet) {
    const auto side = static_cast<float>(image.height());
    const Mask mask = maskOf(image.size(), outline);
    castShadow(image, mask, sheet.lift * side);
    const Mask inner = moved(mask, std::max(1.F, side / 960)); // What it leaves is the edge that the light meets.
    for (int y = 0; y < image.height(); ++y) {
        const float down = static_cast<float>(y) / side;
        const float part = std::clamp((down - sheet.top) / (sheet.bottom - sheet.top), 0.F, 1.F);
        const Tint tint = mix(tintOf(sheet.upper), tintOf(sheet.lower), part);
        for (int x = 0; x < image.width(); ++x) {
            const float cover = mask.at(x, y);
            if (cover <= 0)
                continue;
            const Tint paper = tint * (1 + 0.014F * paperFibres(static_cast<float>(x) / side, down, sheet.seed));
            const float edge = 0.22F * std::max(0.F, cover - inner.at(x, y));
            image.at(x, y) = mix(image.at(x, y), mix(paper, Tint{1, 1, 1}, edge), cover);
        }
    }
}

float paperFibres(float x, float y, std::uint32_t seed) {
    return 0.6F * noise(x * 860, y * 860, seed) + 0.5F * noise(x * 115, y * 210, seed + 1);
}

} // namespace zdt::assets
