#pragma once

#include "canvas/canvasGeometry.h"

/// Which places an item may have on the screen.
namespace zdt {

/// Which rules an item follows.
struct PlacementFlags {
    bool safeAreaChecked = false;
    bool timeAreaChecked = false; ///< Not set: the item must lie on the screen at least.
    bool hotAreaChecked = false;
    bool fixedHorizontal = false; ///< It stays in the vertical band.
};

/// What is wrong with a place.
enum class PlacementFault {
    none,
    safeScreen, ///< A safe item leaves the screen.
    safeArea,   ///< A safe item covers the band of the unlock control, or that at the bottom.
    hotArea,    ///< A text covers the band of the unlock control.
    band,       ///< Above or below where it may be moved.
    screen,     ///< An item leaves the screen.
    duplicate,  ///< A new element covers another.
};

/// The key of what is told of a fault; empty for none.
[[nodiscard]] const char* messageOf(PlacementFault fault);

/// The same by the number of a kind, as the lists of elements tell it: 1 for the areas, 2 for the hot area, anything
/// else for the screen.
[[nodiscard]] const char* safeAreaMessage(int kind);

/// Where a `fixedHorizontal` item may lie: its top from here,
inline constexpr int bandTop = 80;
/// and its bottom below here.
inline constexpr int bandBottom = 2101;

/// Whether a rectangle has area and lies wholly on the screen of the theme's generation.
[[nodiscard]] bool isOnScreen(const EdgeRect& rect, const DesignSpace& space);
/// Whether it keeps clear of the band of the unlock control.
[[nodiscard]] bool isClearOfUnlock(const EdgeRect& rect, const DesignSpace& space);
/// Whether it keeps clear of the band at the bottom, which the high screen alone has.
[[nodiscard]] bool isClearOfBottom(const EdgeRect& rect, const DesignSpace& space);

/// The first rule that a place breaks.
/// @param hotAreas whether the hot area counts
[[nodiscard]] PlacementFault checkPlacement(const EdgeRect& rect, const PlacementFlags& flags, const DesignSpace& space,
                                            bool hotAreas = true);

} // namespace zdt
