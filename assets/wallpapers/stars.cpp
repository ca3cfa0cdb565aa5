#include "assets/wallpapers/stars.h"

#include "assets/wallpapers/noise.h"

#include <cmath>

namespace zdt::assets {

namespace {

constexpr int squares = 100; ///< In the picture's height.

/// Lengths in pixels.
struct Star {
    float x;
    float y;
    float radius;
    Tint light;
};

/// The star of a square: most are faint.
Star starOf(std::uint32_t column, std::uint32_t line, float square) {
    const float rank = chance(column, line, 32);
    const float bright = 0.16F + 0.8F * rank * rank * rank * rank;
    const float warmth = chance(column, line, 33) - 0.5F;
    return {(static_cast<float>(column) + chance(column, line, 35)) * square,
            (static_cast<float>(line) + chance(column, line, 34)) * square, square * (0.042F + 0.05F * bright),
            Tint{0.92F + 0.16F * warmth, 0.96F, 1 - 0.12F * warmth} * bright};
}

void drawStar(DeepImage& image, const Star& star) {
    const int reach = static_cast<int>(std::ceil(star.radius * 3));
    const int middleX = static_cast<int>(star.x);
    const int middleY = static_cast<int>(star.y);
    for (int y = std::max(0, middleY - reach); y <= std::min(image.height() - 1, middleY + reach); ++y) {
        for (int x = std::max(0, middleX - reach); x <= std::min(image.width() - 1, middleX + reach); ++x) {
            const float dx = (static_cast<float>(x) + 0.5F - star.x) / star.radius;
            const float dy = (static_cast<float>(y) + 0.5F - star.y) / star.radius;
            image.at(x, y) += star.light * std::exp(-dx * dx - dy * dy);
        }
    }
}

} // namespace

void drawStars(DeepImage& image, float horizon, int density) {
    const auto side = static_cast<float>(image.height());
    const float square = side / squares;
    const auto columns = static_cast<std::uint32_t>(static_cast<float>(image.width()) / square) + 1;
    for (std::uint32_t line = 0; line < squares; ++line) {
        for (std::uint32_t column = 0; column < columns; ++column) {
            if (chance(column, line, 31) * 1000 >= static_cast<float>(density))
                continue;
            Star star = starOf(column, line, square);
            star.light *= smoothStep(horizon, 0.6F * horizon, star.y / side);
            drawStar(image, star);
        }
    }
}

} // namespace zdt::assets
