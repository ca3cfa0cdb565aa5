#include "assets/wallpapers/auroraCurtains.h"

#include "assets/wallpapers/noise.h"
#include "assets/wallpapers/ramp.h"

#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace zdt::assets {

namespace {

/// A band of light seen from below: its lower edge runs over the land at one height.
struct Curtain {
    float fromZ; ///< How far away it begins and ends, in heights of the lower edge over the land.
    float toZ;
    float fromX; ///< Where on the screen, in heights of the picture from the middle.
    float toX;
    float fold;   ///< How far it swings to and fro, in the same.
    float folds;  ///< How often.
    float length; ///< Of its rays, in heights of the lower edge over the land.
    float light;
    std::uint32_t seed;
};

constexpr std::array<Curtain, 3> curtains{{
    {8.5F, 7.0F, -0.36F, 0.36F, 0.030F, 2.3F, 2.6F, 0.45F, 8},
    {5.0F, 1.55F, -0.03F, -0.10F, 0.20F, 1.15F, 1.1F, 1.0F, 3},
    {3.4F, 1.9F, 0.34F, 0.10F, 0.10F, 1.3F, 1.2F, 0.45F, 21},
}};

/// From the lower edge up.
const Ramp& rayColours() {
    static const Ramp ramp{{0, 0xff58f5a8},     {0.10F, 0xff30ea98}, {0.25F, 0xff14c79a},
                           {0.42F, 0xff1d84c0}, {0.62F, 0xff6a48d8}, {1, 0xff9a2fc8}};
    return ramp;
}

/// How bright a ray is at a part of its length: a long fall.
float rayLight(float part) {
    return 0.9F * std::exp(-5.5F * part) + 0.42F * (1 - part) * std::sqrt(1 - part);
}

struct Ray {
    float x; ///< Of its foot, in pixels.
    float y;
    float rise;  ///< In pixels.
    float light; ///< Over all its width.
};

class CurtainPainter {
public:
    CurtainPainter(DeepImage& light, float horizon)
        : _light(light)
        , _horizon(horizon)
        , _side(static_cast<float>(light.height())) {
        for (int step = 0; step <= steps; ++step) {
            const float part = static_cast<float>(step) / steps;
            _profile[static_cast<std::size_t>(step)] = rayColours().at(part) * rayLight(part);
        }
    }

    void draw(const Curtain& curtain) {
        const float count = _side * raysPerRow;
        const float sweep = std::abs(curtain.toX - curtain.fromX) + 3 * curtain.fold * curtain.folds;
        const float spread = sweep * _side / count; // From ray to ray, if they all stood side by side.
        float lastX = rayAt(curtain, 0).x;
        for (std::uint32_t index = 1; static_cast<float>(index) < count; ++index) {
            Ray ray = rayAt(curtain, static_cast<float>(index) / count);
            // Where a fold turns, many rays stand behind each other: a bright edge, but not a line.
            const float pace = std::abs(ray.x - std::exchange(lastX, ray.x)) / spread;
            ray.light *= spread * std::sqrt(pace + 0.3F);
            ray.x += scatter(index, curtain.seed) * mix(0.045F, 0.003F, smoothStep(0, 1.5F, pace)) * _side;
            ray.y += scatter(index, curtain.seed + 1) * 0.006F * _side;
            addRay(ray);
        }
    }

private:
    static constexpr int steps = 512;
    static constexpr float raysPerRow = 8;
    static constexpr float focus = 0.55F;
    static constexpr float foot = 0.045F; ///< How far up a ray gains its light, in heights of the picture.

    /// -1 to 1, mostly near 0.
    [[nodiscard]] static float scatter(std::uint32_t index, std::uint32_t seed) {
        return chance(index, 0, seed) + chance(index, 1, seed) - 1;
    }

    /// @param part of the curtain's way, 0 to 1
    [[nodiscard]] Ray rayAt(const Curtain& curtain, float part) const {
        const auto sway = [&](float waves, int octaves, float line) {
            return fractalNoise(part * waves, line, octaves, curtain.seed);
        };
        const float swing = std::sin(2 * std::numbers::pi_v<float> * curtain.folds * part + 2.2F * sway(4, 2, 0.5F));
        const float z = mix(curtain.fromZ, curtain.toZ, part) *
                        (1 + 0.10F * std::cos(swing * 1.4F + part * 9) + 0.06F * sway(7, 2, 6.5F));
        const float x = mix(curtain.fromX, curtain.toX, part) + curtain.fold * swing + 0.1F / z * sway(20, 3, 3.5F);
        const float ends = smoothStep(0, 0.12F, part) * smoothStep(1, 0.85F, part);
        const float streaks = 0.75F + 0.5F * sway(120, 3, 9.5F) + 0.9F * sway(6, 2, 12.5F);
        const float length = curtain.length * (1 + 0.35F * sway(40, 3, 15.5F));
        const float end = 0.010F * sway(90, 3, 18.5F);
        return {static_cast<float>(_light.width()) / 2 + x * _side, (_horizon - focus / z + end) * _side,
                focus * length / z * _side, curtain.light * ends * std::max(0.F, streaks)};
    }

    /// Rays lean towards the zenith, high above the middle.
    void addRay(const Ray& ray) {
        const float middle = static_cast<float>(_light.width()) / 2;
        const float lean = (middle - ray.x) * 0.22F / _side;
        const int top = std::max(0, static_cast<int>(ray.y - ray.rise));
        const float below = 0.6F * foot * _side;
        for (int y = std::min(static_cast<int>(ray.y + below), _light.height() - 1); y >= top; --y) {
            const float height = ray.y - static_cast<float>(y);
            const float light = ray.light * smoothStep(-below, foot * _side - below, height);
            const float x = ray.x + lean * height;
            const auto step = static_cast<std::size_t>(std::clamp(height / ray.rise, 0.F, 1.F) * steps);
            const int left = static_cast<int>(std::floor(x));
            const float right = x - static_cast<float>(left);
            add(left, y, _profile[step] * (light * (1 - right)));
            add(left + 1, y, _profile[step] * (light * right));
        }
    }

    void add(int x, int y, const Tint& tint) {
        if (x >= 0 && x < _light.width())
            _light.at(x, y) += tint;
    }

    DeepImage& _light;
    float _horizon;
    float _side;
    std::array<Tint, steps + 1> _profile;
};

float lit(float from, float light) {
    return 1 - (1 - from) * std::exp(-light);
}

/// Adds light as a picture takes it: never beyond white.
void shine(DeepImage& image, const DeepImage& light, float strength) {
    for (int y = 0; y < image.height(); ++y) {
        Tint* tints = image.row(y);
        const Tint* lights = light.row(y);
        for (int x = 0; x < image.width(); ++x)
            tints[x] = {lit(tints[x].red, strength * lights[x].red), lit(tints[x].green, strength * lights[x].green),
                        lit(tints[x].blue, strength * lights[x].blue)};
    }
}

} // namespace

void drawCurtains(DeepImage& image, float horizon) {
    DeepImage light(image.size());
    CurtainPainter painter(light, horizon);
    for (const Curtain& curtain : curtains)
        painter.draw(curtain);
    const auto side = static_cast<float>(image.height());
    blur(light, side / 1400);
    shine(image, light, 1.5F);
    // The air around them glows.
    blur(light, side / 40);
    shine(image, light, 0.5F);
}

} // namespace zdt::assets
