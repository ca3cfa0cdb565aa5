#pragma once

#include <cstddef>
#include <vector>

/// In which order items are painted: the first lies at the back.
namespace zdt {

/// The layer of what stays above the others.
inline constexpr int topLayer = 100;

struct OrderFlags {
    int listOrder = -1;      ///< The position that the item asks for; -1 for none.
    int layer = 0;           ///< `topLayer` goes behind all others in the list.
    bool isBackdrop = false; ///< Fills the screen, as a wallpaper does: below what the author places.
    bool isArea = false;     ///< Only shows an area of the screen: below what the author places as well.
    bool alwaysLast = false;
};

/// The present places of the items in the order in which they are painted: each once. Of two that ask for one position
/// the later comes behind the other, and one that asks for a position beyond the end is the last.
[[nodiscard]] std::vector<std::size_t> paintOrder(const std::vector<OrderFlags>& items);

} // namespace zdt
