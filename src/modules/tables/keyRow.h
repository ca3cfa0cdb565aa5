#pragma once

#include "model/typeMask.h"

#include <string_view>

/// The keys that the phone's applications read, as data. A key exists only if a row names it.
namespace zdt::tables {

inline constexpr TypeMask generation5 = typeMask::generation5;
inline constexpr TypeMask generation8 = typeMask::generation8;
inline constexpr TypeMask generation9 = typeMask::generation9;
inline constexpr TypeMask generations58 = generation5 | generation8;
inline constexpr TypeMask generations59 = generation5 | generation9;
inline constexpr TypeMask generations89 = generation8 | generation9;
inline constexpr TypeMask generations589 = typeMask::allGenerations;

/// A key of a block of values. Neighbouring rows of the same generations form one key list of the block.
struct KeyRow {
    TypeMask generations;            ///< The generations that have the key.
    std::string_view name;           ///< As the phone spells it.
    std::string_view fallback;       ///< "#rrggbb", "#aarrggbb", "true" or "false".
    std::string_view type = "color"; ///< The element that holds it in theme.xml.
};

} // namespace zdt::tables
