#include "assets/wallpapers/deepImage.h"

#include "assets/wallpapers/noise.h"

#include <cmath>

namespace zdt::assets {

namespace {

/// Replaces each of `count` values, `stride` apart, by the mean of those up to `radius` away.
template <class Value>
void average(Value* values, int count, std::ptrdiff_t stride, int radius, std::vector<Value>& copy) {
    for (int index = 0; index < count; ++index)
        copy[static_cast<std::size_t>(index)] = values[index * stride];
    const auto value = [&](int index) { return copy[static_cast<std::size_t>(std::clamp(index, 0, count - 1))]; };
    Value sum{};
    for (int index = -radius; index <= radius; ++index)
        sum += value(index);
    const float part = 1 / static_cast<float>(2 * radius + 1);
    for (int index = 0; index < count; ++index) {
        values[index * stride] = sum * part;
        sum += value(index + radius + 1) - value(index - radius);
    }
}

/// Three means in a row come close to a Gaussian.
template <class Value>
void blurField(Field<Value>& field, float deviation) {
    const int radius = static_cast<int>(std::lround((std::sqrt(4 * deviation * deviation + 1) - 1) / 2));
    std::vector<Value> copy(static_cast<std::size_t>(std::max(field.width(), field.height())));
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < field.height(); ++y)
            average(field.row(y), field.width(), 1, radius, copy);
        for (int x = 0; x < field.width(); ++x)
            average(field.row(0) + x, field.height(), field.width(), radius, copy);
    }
}

constexpr std::uint32_t tileSide = 256;

/// Noise that repeats itself, as wide as `reach` pixels: JPEG drops what changes from pixel to pixel first.
class Grain {
public:
    Grain(std::uint32_t reach, float deviation, std::uint32_t seed)
        : _tile(QSize(tileSide, tileSide)) {
        // Chances from 0 to 1 have a variance of a twelfth.
        const float scale = deviation * std::sqrt(12.F) / static_cast<float>(reach);
        const float middle = 0.5F * static_cast<float>(reach * reach);
        for (std::uint32_t y = 0; y < tileSide; ++y) {
            for (std::uint32_t x = 0; x < tileSide; ++x) {
                float sum = 0;
                for (std::uint32_t part = 0; part < reach * reach; ++part)
                    sum += chance((x + part % reach) % tileSide, (y + part / reach) % tileSide, seed);
                _tile.at(static_cast<int>(x), static_cast<int>(y)) = (sum - middle) * scale;
            }
        }
    }

    [[nodiscard]] float at(std::uint32_t x, std::uint32_t y) const {
        return _tile.at(static_cast<int>(x % tileSide), static_cast<int>(y % tileSide));
    }

private:
    Mask _tile;
};

int quantise(float value, float grain) {
    return std::clamp(static_cast<int>(std::floor(value * 255 + grain)), 0, 255);
}

} // namespace

void blur(DeepImage& image, float deviation) {
    blurField(image, deviation);
}

void blur(Mask& mask, float deviation) {
    blurField(mask, deviation);
}

QImage finish(const DeepImage& image) {
    // Deviations in steps of 8 bits. JPEG keeps colours at half the width.
    const Grain light(2, 1, 71);
    const Grain colour(4, 0.9F, 72);
    QImage result(image.size(), QImage::Format_RGB32);
    for (int line = 0; line < image.height(); ++line) {
        const Tint* tint = image.row(line);
        auto* pixels = reinterpret_cast<QRgb*>(result.scanLine(line));
        const auto y = static_cast<std::uint32_t>(line);
        for (std::uint32_t x = 0; x < static_cast<std::uint32_t>(image.width()); ++x, ++tint) {
            const float grain = light.at(x, y) + chance(x, y, 73);
            const float red = colour.at(x, y);
            const float blue = colour.at(x + tileSide / 2, y + tileSide / 3);
            const float green = -0.5F * red - 0.2F * blue; // So that they change no lightness.
            pixels[x] = qRgb(quantise(tint->red, grain + red), quantise(tint->green, grain + green),
                             quantise(tint->blue, grain + blue));
        }
    }
    return result;
}

} // namespace zdt::assets
