#include "assets/wallpapers/auroraCurtains.h"
#include "assets/wallpapers/firs.h"
#include "assets/wallpapers/motifs.h"
#include "assets/wallpapers/mountains.h"
#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/ramp.h"
#include "assets/wallpapers/shapeMask.h"
#include "assets/wallpapers/stars.h"

#include <array>
#include <cmath>

namespace zdt::assets {

namespace {

constexpr float shore = 0.80F; ///< Where the lake begins, in heights of the picture.

constexpr std::array<Peak, 4> farPeaks{
    {{-1.1F, 9, 1.25F, 2.2F}, {0.35F, 9.4F, 1.0F, 2}, {1.35F, 8.8F, 1.6F, 2.4F}, {2.6F, 9, 1.3F, 2}}};
constexpr Range farRange{farPeaks, 6.5F, 11, 0.65F, 0.85F, 0xff0a1832, 11};

constexpr std::array<Peak, 5> nearPeaks{{{-2.1F, 7.5F, 1.1F, 1.8F},
                                         {-0.9F, 7.8F, 0.6F, 1.2F},
                                         {0.2F, 7.5F, 0.33F, 1.2F},
                                         {1.1F, 7.6F, 0.55F, 1.2F},
                                         {2.25F, 7.5F, 0.95F, 1.7F}}};
constexpr Range nearRange{nearPeaks, 5.5F, 9.3F, 0.16F, 0.3F, 0xff061026, 19};

constexpr std::array<Peak, 6> homePeaks{{{-4.6F, 9.5F, 1.4F, 2.6F},
                                         {-2.6F, 9.9F, 0.75F, 2.0F},
                                         {-1.1F, 9.5F, 0.95F, 1.9F},
                                         {0.7F, 9.7F, 0.6F, 1.8F},
                                         {2.1F, 9.5F, 1.25F, 2.2F},
                                         {4.3F, 9.7F, 1.0F, 2.4F}}};
constexpr Range homeRange{homePeaks, 6.8F, 12, 0.30F, 0.40F, 0xff061228, 23};

/// What stands above the shore, seen in the lake: `scale` and `wave` tell how large the waves there are and where this
/// one leads the eye.
Tint mirrored(const DeepImage& image, int x, float depth, float scale, float wave) {
    constexpr int taps = 8;
    const auto side = static_cast<float>(image.height());
    const int lowest = static_cast<int>(shore * side) - 1;
    Tint sum;
    for (int tap = 0; tap < taps; ++tap) {
        const float spread = (static_cast<float>(tap) - 0.5F * (taps - 1)) * 0.03F;
        const float aside = wave * 0.10F * scale * (0.4F + spread * 20);
        const float from = shore - depth * (1 + spread) * 1.15F - wave * 0.22F * scale;
        const float row = std::min(from * side - 0.5F, static_cast<float>(lowest));
        const int column = x + static_cast<int>(aside * side);
        const int upper = static_cast<int>(row);
        sum += mix(image.nearest(column, upper), image.nearest(column, std::min(upper + 1, lowest)),
                   row - static_cast<float>(upper));
    }
    return sum * (1.F / taps);
}

void drawLake(DeepImage& image) {
    constexpr Tint deep = tintOf(0xff03101f);
    constexpr Tint glint = tintOf(0xff051a1b);
    const auto side = static_cast<float>(image.height());
    for (int y = static_cast<int>(shore * side); y < image.height(); ++y) {
        const float depth = std::max(0.F, (static_cast<float>(y) + 0.5F) / side - shore);
        const float scale = depth + 0.012F; // The nearer, the larger.
        const float away = std::log(scale);
        for (int x = 0; x < image.width(); ++x) {
            const float across = (static_cast<float>(x) / side - 0.25F) / scale;
            const float wave = fractalNoise(across * 1.2F, away * 20, 2, 51);
            const float streak = smoothStep(0.25F, 0.8F, fractalNoise(across * 0.5F, away * 34, 2, 52));
            image.at(x, y) = mix(deep, mirrored(image, x, depth, scale, wave), 0.84F - 2.2F * depth) + glint * streak;
        }
    }
}

void drawMist(DeepImage& image) {
    changeEach(image, [](Tint& tint, float x, float y) {
        const float off = (y - shore) / 0.016F;
        if (std::abs(off) > 4)
            return;
        const float wisps = std::clamp(0.28F + 0.5F * fractalNoise(x * 7, off * 0.5F, 3, 41), 0.F, 1.F);
        tint = mix(tint, tintOf(0xff2a8f92), wisps * std::exp(-off * off));
    });
}

/// A broad band of light that rises to the right, soft everywhere; brighter below and violet above, as curtains are.
void drawVeil(DeepImage& image) {
    const Ramp colours{{0, 0xff0a3a50}, {0.25F, 0xff22b69c}, {0.5F, 0xff2589b4}, {0.72F, 0xff5a50c4}, {1, 0xff3a1f78}};
    changeEach(image, [&](Tint& tint, float x, float y) {
        const float sway = 0.13F * noise(x * 1.7F + 3.3F, y * 0.6F, 44) + 0.04F * noise(x * 5, y * 1.5F, 45);
        const float above = (0.60F - 0.28F * x + sway - y) / 0.55F;
        const float fall = smoothStep(-0.24F, 0.16F, above) * smoothStep(1.1F, 0, above);
        const float folds = noise(x * 2.6F + above * 1.1F, above * 0.9F, 46);
        const float rays = fractalNoise(x * 13 + above * 1.5F, above * 0.7F, 2, 47);
        const float light = std::max(0.F, fall * (0.46F + 0.26F * folds + 0.07F * rays));
        tint += (colours.at(0.2F + 0.8F * above) - tint * 0.6F) * light;
    });
}

} // namespace

DeepImage auroraLock(QSize size) {
    DeepImage image(size);
    fillDown(image, {{0, 0xff030720},
                     {0.2F, 0xff06123a},
                     {0.45F, 0xff0a2a54},
                     {0.65F, 0xff13506b},
                     {0.8F, 0xff2b8b86},
                     {1, 0xff2b8b86}});
    drawStars(image, shore, 120);
    drawCurtains(image, shore);
    drawRange(image, farRange, shore);
    drawRange(image, nearRange, shore);
    drawLake(image);
    drawMist(image);
    const float half = static_cast<float>(size.width()) / 2 / static_cast<float>(size.height());
    fill(image, maskOf(size, firOutline({0.972F, 0.03F, 0.034F, 0.0045F, 61}, half)), tintOf(0xff08303c));
    fill(image, maskOf(size, firOutline({0.995F, 0.04F, 0.05F, 0.0065F, 62}, half)), tintOf(0xff03121b));
    return image;
}

DeepImage auroraHome(QSize size) {
    DeepImage image(size);
    fillDown(image, {{0, 0xff040a2c}, {0.3F, 0xff082046}, {0.6F, 0xff0b3c5e}, {0.85F, 0xff126070}, {1, 0xff126070}});
    drawStars(image, 0.8F, 40);
    drawVeil(image);
    drawRange(image, homeRange, 1);
    return image;
}

} // namespace zdt::assets
