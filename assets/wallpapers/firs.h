#pragma once

#include <QPainterPath>

#include <cstdint>

namespace zdt::assets {

/// A row of firs on a bank, as one sees them before the light. Lengths are in heights of the picture.
struct FirRow {
    float bank;    ///< Where the bank lies in the middle of the picture, from its top.
    float rise;    ///< How much higher it lies at both sides.
    float tall;    ///< The trees in the middle; those at the sides are twice as tall.
    float spacing; ///< From tree to tree.
    std::uint32_t seed;
};

/// The outline of all of it, as `maskOf` takes it.
/// @param half of the picture's width
[[nodiscard]] QPainterPath firOutline(const FirRow& row, float half);

} // namespace zdt::assets
