#include "assets/art/outline.h"
#include "assets/wallpapers/motifs.h"
#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/ramp.h"
#include "assets/wallpapers/shapeMask.h"
#include "assets/wallpapers/terrain.h"

#include <QTransform>

#include <array>
#include <cmath>

namespace zdt::assets {

namespace {

/// A wave of sand across its width of 1: steep up on the side in the wind's shade, a sharp crest, and long down.
float wave(float place) {
    constexpr float crest = 0.3F;
    const float part = place - std::floor(place);
    if (part < crest) {
        const float rise = part / crest;
        return rise * (0.55F + 0.45F * rise);
    }
    const float rest = (1 - part) / (1 - crest);
    return rest * std::sqrt(rest);
}

/// The ripples of the wind, -1 to 1, where the sun shines: the other side of a dune slides and is smooth.
float ripples(const Ground& ground, float across, float along, float bend, float light) {
    const float sway = fractalNoise(ground.x * bend, ground.z * bend, 2, 14);
    return std::sin(ground.x * across + ground.z * along + 7.5F * sway) * smoothStep(0, 0.3F, light);
}

constexpr Camera dunes{0.575F, 0.9F, 1, 1.1F, 70, 0.002F};

/// The place on the endless land was chosen by eye.
float duneHeight(Ground ground) {
    const float farther = 1 + 0.035F * ground.z;
    const float x = ground.x + 25;
    const float z = ground.z + 9;
    const float bend = noise(x * 0.45F, z * 0.3F, 6);
    const float large = x * 0.19F - z * 0.10F + 0.75F * fractalNoise(x * 0.11F, z * 0.07F, 2, 5) + 0.06F * bend + 0.45F;
    const float small = x * 0.42F + z * 0.10F + 1.1F * noise(x * 0.2F, z * 0.15F, 8);
    const float tall = 0.85F + 0.5F * noise(x * 0.13F, z * 0.1F, 9);
    return farther * std::max(tall * wave(large), 0.42F * wave(small) * (1 + 0.3F * bend)) - 0.35F;
}

/// How much of the low sun at the right the dunes keep from a point, 0 to 1. Only near the eye is that seen.
float castShadow(const Surface& surface) {
    constexpr float soft = 0.05F;
    constexpr float stride = 0.025F;
    constexpr int strides = 44;
    // A sun that stands the higher the farther away: long shadows at the foot alone.
    const float sunSlope = mix(0.24F, 0.95F, smoothStep(2.4F, 4.6F, surface.ground.z));
    if (surface.ground.z > 4.6F)
        return 0;
    float covered = 0;
    for (int index = 1; index <= strides && covered < soft; ++index) {
        const float away = stride * static_cast<float>(index);
        const float top = duneHeight({surface.ground.x + away, surface.ground.z});
        covered = std::max(covered, top - surface.height - sunSlope * away);
    }
    return smoothStep(0, soft, covered);
}

Tint duneTint(const Surface& surface) {
    static const Ramp sand{{0, 0xff6b3138},     {0.25F, 0xff8f4636}, {0.45F, 0xffbd683f},
                           {0.65F, 0xffe0975a}, {0.85F, 0xfff6c286}, {1, 0xffffdda8}};
    constexpr Tint evening{0.47F, 0.31F, 0.37F};
    const Ground& ground = surface.ground;
    const float facing = 0.74F * surface.normalX + 0.42F * surface.normalY + 0.52F * surface.normalZ;
    const float light = mix(facing, std::min(facing, -0.2F), castShadow(surface));
    const float sky = 0.10F + 0.10F * surface.normalY + 0.10F * std::clamp(surface.height, 0.F, 1.F);
    const float fine = 0.03F * smoothStep(9, 2.5F, ground.z) * ripples(ground, 22, 46, 0.9F, light) +
                       0.02F * smoothStep(8, 2, ground.z) * noise(ground.x * 160, ground.z * 160, 15);
    const Tint lit = sand.at(sky + (light > 0 ? 0.80F : 0.15F) * light + fine);
    const float distance = 1 - std::exp(-std::max(ground.z - 3, 0.F) / 22);
    // The foot lies in the evening's shade, so that light letters can be read there.
    const Tint shaded = lit * mix(evening, Tint{1, 1, 1}, smoothStep(1.6F, 5.2F, ground.z));
    return mix(shaded, tintOf(0xfff3b68f), distance);
}

void drawSun(DeepImage& image, float sunX, float sunY) {
    constexpr float radius = 0.062F;
    const float soft = 0.6F / static_cast<float>(image.height());
    changeEach(image, [&](Tint& tint, float x, float y) {
        const float away = std::hypot(x - sunX, y - sunY);
        const float glow = 0.55F * std::exp(-away * away / 0.012F) + 0.3F * std::exp(-away / 0.16F);
        const Tint disc = mix(tintOf(0xfffff8e2), tintOf(0xffffedc2), 0.5F + 0.5F * (y - sunY) / radius);
        tint = mix(mix(tint, tintOf(0xfffff0cf), glow), disc, smoothStep(radius + soft, radius - soft, away));
    });
}

/// In a box of 32 by 26, looking to the right.
constexpr const char* camelOutline =
    "M5 15 C5 10 8 9 11 8.4 C12.4 4 16.4 3.6 18 8 C20 9 22 9 23 10.6 C25.4 10.8 26 8.6 26.2 4.4 C26.4 2.2 28 1.8 29.6 "
    "2.4 L32 4 L31.6 5.2 L28.6 5.4 C29 10 27.8 14.4 23.8 16 L24.4 26 H23 L21.8 17 L20.8 26 H19.4 L19.8 17 "
    "C17 17.8 13 17.8 10.6 16.8 L11 26 H9.6 L8.6 19 L7 26 H5.6 L6.4 18.4 C5.6 17.6 5 16.6 5 15 Z";

/// The highest row that the dunes in the middle distance reach in a column of the picture.
float crestAt(float x) {
    float row = 1;
    constexpr int steps = 400;
    for (int step = 0; step <= steps; ++step) {
        const float z = mix(6.F, 14.F, static_cast<float>(step) / steps);
        row = std::min(row, dunes.screenY(z, duneHeight({x * z / dunes.focus, z})));
    }
    return row;
}

/// Camels on the crest of a dune, on their way to the left.
void drawCaravan(DeepImage& image) {
    struct Camel {
        float x;
        double tall;
    };
    constexpr std::array<Camel, 4> camels{{{-0.178F, 0.0128}, {-0.156F, 0.0118}, {-0.137F, 0.0126}, {-0.112F, 0.0108}}};
    const QPainterPath outline = readOutline(camelOutline).translated(-16, -26);
    QPainterPath caravan;
    for (const Camel& camel : camels) {
        const double scale = camel.tall / 26;
        caravan.addPath(QTransform(-scale, 0, 0, scale, camel.x, crestAt(camel.x) + 0.0005).map(outline));
    }
    fill(image, maskOf(image.size(), caravan), tintOf(0xff7d3f30));
}

constexpr Camera closeWaves{-0.55F, 1, 1, 0.5F, 2.6F, 0.002F};

float closeHeight(Ground ground) {
    const float x = ground.x + 6;
    const float z = ground.z + 3;
    const float sway = fractalNoise(x * 0.8F, z * 0.75F, 2, 65, 0.35F);
    return (0.17F + 0.09F * noise(x * 0.9F, z * 0.9F, 66)) * wave(z * 2.1F - x * 0.95F + 1.15F * sway);
}

Tint closeTint(const Surface& surface) {
    static const Ramp rose{
        {0, 0xff4a1c44}, {0.3F, 0xff7a3456}, {0.55F, 0xffa85068}, {0.8F, 0xffcf7478}, {1, 0xffe69a86}};
    static const Ramp plum{
        {0, 0xff1f0e2e}, {0.3F, 0xff3d1a44}, {0.55F, 0xff682e58}, {0.8F, 0xff984a6c}, {1, 0xffbc6a7c}};
    const Ground& ground = surface.ground;
    const float light = std::max(0.F, 0.80F * surface.normalX + 0.42F * surface.normalY + 0.42F * surface.normalZ);
    const float fine = 0.018F * smoothStep(1.9F, 0.9F, ground.z) * ripples(ground, 60, 130, 2, light);
    const float bright = 0.11F + 0.16F * surface.normalY + 0.35F * surface.height + 0.8F * light + fine;
    return mix(plum.at(bright), rose.at(bright), smoothStep(0.65F, 1.7F, ground.z));
}

} // namespace

DeepImage duneLock(QSize size) {
    DeepImage image(size);
    fillDown(image, {{0, 0xfff9cfa2}, {0.25F, 0xfffbd9b2}, {0.42F, 0xfffbd0a4}, {0.575F, 0xfff3b48b}, {1, 0xfff3b48b}});
    drawSun(image, 0.1F, 0.47F);
    drawTerrain(image, dunes, duneHeight, duneTint);
    drawCaravan(image);
    return image;
}

DeepImage duneHome(QSize size) {
    DeepImage image(size);
    drawTerrain(image, closeWaves, closeHeight, closeTint);
    return image;
}

} // namespace zdt::assets
