#include "canvas/placementRules.h"

namespace zdt {

namespace {

/// The unlock control lies between these, in x.
constexpr int unlockLeft = 421;
constexpr int unlockRight = 660;
/// Its band ends above the lower edge of the screen.
constexpr int unlockTopFromBottom = 942;
constexpr int unlockBottomFromBottom = 582;

constexpr int bottomBandTop = 1717;
constexpr int bottomBandBottom = 2136;

constexpr const char* leavesOrCovers = "kWarn_SafeArea_duplication";
constexpr const char* coversUnlock = "kWarn_SafeArea_duplication_interaction";

bool isBesideUnlock(const EdgeRect& rect) {
    return rect.right < unlockLeft || rect.left >= unlockRight;
}

PlacementFault checkSafety(const EdgeRect& rect, const DesignSpace& space) {
    if (!isOnScreen(rect, space))
        return PlacementFault::safeScreen;
    if (!isClearOfUnlock(rect, space) || !isClearOfBottom(rect, space))
        return PlacementFault::safeArea;
    return PlacementFault::none;
}

} // namespace

const char* messageOf(PlacementFault fault) {
    switch (fault) {
    case PlacementFault::none:
        return "";
    case PlacementFault::safeScreen:
    case PlacementFault::duplicate:
        return leavesOrCovers;
    case PlacementFault::safeArea:
        return coversUnlock;
    case PlacementFault::hotArea:
        return "kWarn_SafeArea_duplication_text";
    case PlacementFault::band:
        return "kUpUnlock_Area";
    case PlacementFault::screen:
        return "kWarn_Time_duplication_interaction";
    }
    return "";
}

const char* safeAreaMessage(int kind) {
    if (kind == 1)
        return coversUnlock;
    return kind == 2 ? "kWarn_HotArea_duplication" : leavesOrCovers;
}

bool isOnScreen(const EdgeRect& rect, const DesignSpace& space) {
    const int height = space.isMode2 ? DesignSpace::highHeight : DesignSpace::lowHeight;
    return rect.left >= 0 && rect.right <= DesignSpace::width && rect.top >= 0 && rect.bottom <= height &&
           rect.right > rect.left && rect.bottom > rect.top;
}

bool isClearOfUnlock(const EdgeRect& rect, const DesignSpace& space) {
    return isBesideUnlock(rect) || rect.bottom <= space.height - unlockTopFromBottom ||
           rect.top >= space.height - unlockBottomFromBottom;
}

bool isClearOfBottom(const EdgeRect& rect, const DesignSpace& space) {
    return !space.isMode2 || isBesideUnlock(rect) || rect.top >= bottomBandBottom || rect.bottom < bottomBandTop;
}

PlacementFault checkPlacement(const EdgeRect& rect, const PlacementFlags& flags, const DesignSpace& space,
                              bool hotAreas) {
    if (flags.safeAreaChecked) {
        const PlacementFault fault = checkSafety(rect, space);
        if (fault != PlacementFault::none)
            return fault;
    }
    if (flags.hotAreaChecked && hotAreas && !isClearOfUnlock(rect, space))
        return PlacementFault::hotArea;
    if (flags.fixedHorizontal && (rect.top < bandTop || rect.bottom >= bandBottom))
        return PlacementFault::band;
    if (!flags.timeAreaChecked && !isOnScreen(rect, space))
        return PlacementFault::screen;
    return PlacementFault::none;
}

} // namespace zdt
