#pragma once

#include "modules/tables/keyRow.h"

#include <cstdint>
#include <string_view>

namespace zdt::tables {

inline constexpr TypeMask nowhere = 0;
inline constexpr std::uint32_t anySize = 0;

/// The directories of pictures in a package; on the phone, the screens for which they are made.
inline constexpr std::string_view xxhdpi = "res/drawable-xxhdpi/";
inline constexpr std::string_view xxxhdpi = "res/drawable-xxxhdpi/";
inline constexpr std::string_view landscape = "res/drawable-land-xxhdpi/";
inline constexpr std::string_view nodpi = "res/drawable-nodpi/";
inline constexpr std::string_view hdpi = "res/drawable-hdpi/";
inline constexpr std::string_view mirroredHdpi = "res/drawable-ldrtl-hdpi/";

/// A picture of an image block.
struct PictureRow {
    std::string_view name;
    TypeMask absentFrom;                 ///< The generations that lack it.
    std::uint32_t side = anySize;        ///< Pixels of its exact square, or `anySize`.
    std::string_view directory = xxhdpi; ///< In the application's package.
};

} // namespace zdt::tables
