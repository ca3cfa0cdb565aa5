#pragma once

#include "model/fileResNode.h"
#include "model/typeMask.h"

#include <QRgb>

#include <array>
#include <string_view>

namespace zdt::assets {

/// What sets the templates of the generations apart.
struct Generation {
    unsigned index;
    std::string_view version; ///< In the description.
    int screenHeight;         ///< Pixels, at a width of 1080.
    QRgb skyTop;              ///< The wallpapers' gradient, from the top left to the bottom right.
    QRgb skyBottom;

    [[nodiscard]] TypeMask bit() const { return generationBit(index); }
};

inline constexpr std::array<Generation, generationCount> generations{{
    {0, "5.0.1", screenHeight, 0xffe6f5f2, 0xff8ccfc4},
    {1, "8.0.1", screenHeight, 0xffeaf1fd, 0xff93b9ee},
    {2, "9.0.100", tallScreenHeight, 0xffefedfc, 0xffa1aaea},
}};

} // namespace zdt::assets
