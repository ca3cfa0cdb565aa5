#pragma once

#include "assets/art/field.h"

#include <QImage>
#include <QRgb>

#include <algorithm>

/// Pictures finer than 8 bits a channel, so that a sky that changes slowly shows no bands.
namespace zdt::assets {

/// A colour in display values (sRGB's curve), 0 to 1 a channel. Light that adds up may pass 1.
struct Tint {
    float red = 0;
    float green = 0;
    float blue = 0;

    Tint& operator+=(const Tint& other) { return *this = {red + other.red, green + other.green, blue + other.blue}; }
    Tint& operator*=(float factor) { return *this = {red * factor, green * factor, blue * factor}; }
    friend Tint operator+(Tint one, const Tint& other) { return one += other; }
    friend Tint operator-(const Tint& one, const Tint& other) {
        return {one.red - other.red, one.green - other.green, one.blue - other.blue};
    }
    friend Tint operator*(Tint tint, float factor) { return tint *= factor; }
    friend Tint operator*(const Tint& one, const Tint& other) {
        return {one.red * other.red, one.green * other.green, one.blue * other.blue};
    }
};

[[nodiscard]] constexpr Tint tintOf(QRgb colour) {
    return {static_cast<float>(qRed(colour)) / 255, static_cast<float>(qGreen(colour)) / 255,
            static_cast<float>(qBlue(colour)) / 255};
}

/// From `from` at 0 to `to` at 1.
template <class Value>
[[nodiscard]] Value mix(const Value& from, const Value& to, float part) {
    return from + (to - from) * part;
}

/// 0 below `low`, 1 above `high`, without a kink between; 1 below and 0 above if `low` is the larger one.
[[nodiscard]] inline float smoothStep(float low, float high, float value) {
    const float part = std::clamp((value - low) / (high - low), 0.F, 1.F);
    return part * part * (3 - 2 * part);
}

using DeepImage = Field<Tint>;

/// Calls `change(tint, x, y)` for each pixel, with the place of its middle in heights of the picture: x counts from the
/// picture's middle, y from its top. So a motif looks alike in any size.
template <class Change>
void changeEach(DeepImage& image, Change change) {
    const auto side = static_cast<float>(image.height());
    const float middle = static_cast<float>(image.width()) / 2;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            change(image.at(x, y), (static_cast<float>(x) + 0.5F - middle) / side,
                   (static_cast<float>(y) + 0.5F) / side);
    }
}

/// Blurs as a Gaussian of that deviation in pixels does, about. What lies outside counts as the next value inside.
void blur(DeepImage& image, float deviation);
void blur(Mask& mask, float deviation);

/// The picture at 8 bits a channel. A grain of about one step lies over it: too fine to be seen, and coarse enough that
/// a JPEG keeps it, which would turn a smooth gradient into steps otherwise.
[[nodiscard]] QImage finish(const DeepImage& image);

} // namespace zdt::assets
