#include "canvas/placementRules.h"

#include "canvas/backgroundModes.h"
#include "canvas/paintOrder.h"

#include <gtest/gtest.h>

#include <vector>

namespace zdt {
namespace {

constexpr DesignSpace low{DesignSpace::lowHeight, false};
constexpr DesignSpace high{DesignSpace::highHeight, true};
constexpr PlacementFlags nothing{.timeAreaChecked = true};
constexpr PlacementFlags safe{.safeAreaChecked = true, .timeAreaChecked = true};
constexpr PlacementFlags hot{.timeAreaChecked = true, .hotAreaChecked = true};
constexpr PlacementFlags banded{.timeAreaChecked = true, .fixedHorizontal = true};
constexpr PlacementFlags timeOnly{};

struct PlacementCase {
    const char* what;
    EdgeRect rect;
    PlacementFlags flags;
    DesignSpace space;
    PlacementFault fault;
};

using enum PlacementFault;

const std::vector<PlacementCase> placementCases{
    {"no rule", {-50, -50, 5000, 5000}, nothing, low, none},
    // The band of the unlock control: 978 to 1338 of 1920, 1218 to 1578 of 2160.
    {"left of the unlock control", {300, 1000, 420, 1100}, safe, low, none},
    {"touching it from the left", {300, 1000, 421, 1100}, safe, low, safeArea},
    {"its last column", {659, 1000, 800, 1100}, safe, low, safeArea},
    {"right of it", {660, 1000, 800, 1100}, safe, low, none},
    {"above it", {400, 900, 700, 978}, safe, low, none},
    {"its first row", {400, 900, 700, 979}, safe, low, safeArea},
    {"its last row", {400, 1337, 700, 1400}, safe, low, safeArea},
    {"below it", {400, 1338, 700, 1400}, safe, low, none},
    {"the low band on a high screen", {400, 979, 700, 1218}, safe, high, none},
    {"the high band", {400, 979, 700, 1219}, safe, high, safeArea},
    {"below the high band", {400, 1578, 700, 1700}, safe, high, none},
    // The bottom: 1717 to 2136, in mode 2 alone.
    {"above the bottom", {400, 1600, 700, 1716}, safe, high, none},
    {"into the bottom", {400, 1600, 700, 1717}, safe, high, safeArea},
    {"beside the bottom", {660, 1800, 900, 1900}, safe, high, none},
    {"under the bottom", {400, 2136, 700, 2160}, safe, high, none},
    {"the bottom's last row", {400, 2135, 700, 2160}, safe, high, safeArea},
    {"the bottom on a low screen", {400, 1700, 700, 1900}, safe, low, none},
    // The screen.
    {"all of the low screen", {0, 0, 1080, 1920}, timeOnly, low, none},
    {"a row too low", {0, 0, 1080, 1921}, timeOnly, low, screen},
    {"all of the high screen", {0, 0, 1080, 2160}, timeOnly, high, none},
    {"a column too far left", {-1, 0, 100, 100}, timeOnly, low, screen},
    {"a column too far right", {980, 0, 1081, 100}, timeOnly, high, screen},
    {"no width", {100, 100, 100, 200}, timeOnly, high, screen},
    {"upside down", {100, 300, 200, 200}, timeOnly, low, screen},
    {"a safe one off the screen", {-1, 0, 100, 100}, safe, low, safeScreen},
    // The hot area, and the vertical band.
    {"a text in the hot area", {400, 1000, 700, 1100}, hot, low, hotArea},
    {"a text beside it", {0, 1000, 420, 1100}, hot, low, none},
    {"top 80", {0, 80, 1080, 200}, banded, high, none},
    {"top 79", {0, 79, 1080, 200}, banded, high, band},
    {"bottom 2100", {0, 2000, 1080, 2100}, banded, high, none},
    {"bottom 2101", {0, 2000, 1080, 2101}, banded, high, band},
    {"the first of two faults",
     {400, 1000, 700, 1100},
     {.safeAreaChecked = true, .hotAreaChecked = true},
     low,
     safeArea},
};

TEST(PlacementRules, EachBoundary) {
    for (const PlacementCase& one : placementCases) {
        EXPECT_EQ(static_cast<int>(checkPlacement(one.rect, one.flags, one.space)), static_cast<int>(one.fault))
            << one.what;
    }
}

TEST(PlacementRules, TheHotAreaCanBeLeftOut) {
    EXPECT_EQ(checkPlacement({400, 1000, 700, 1100}, hot, low, false), none);
}

TEST(PlacementRules, FaultsAndKindsHaveTheirMessages) {
    EXPECT_STREQ(messageOf(safeArea), "kWarn_SafeArea_duplication_interaction");
    EXPECT_STREQ(messageOf(safeScreen), "kWarn_SafeArea_duplication");
    EXPECT_STREQ(messageOf(hotArea), "kWarn_SafeArea_duplication_text");
    EXPECT_STREQ(messageOf(band), "kUpUnlock_Area");
    EXPECT_STREQ(messageOf(screen), "kWarn_Time_duplication_interaction");
    EXPECT_STREQ(safeAreaMessage(1), messageOf(safeArea));
    EXPECT_STREQ(safeAreaMessage(2), "kWarn_HotArea_duplication");
    EXPECT_STREQ(safeAreaMessage(3), messageOf(safeScreen));
}

TEST(PlacementRules, EdgesThatTouchDontOverlap) {
    const EdgeRect rect{100, 100, 200, 200};
    EXPECT_TRUE(overlap(rect, {199, 199, 300, 300}));
    EXPECT_FALSE(overlap(rect, {200, 100, 300, 200}));
    EXPECT_FALSE(overlap(rect, {100, 0, 200, 100}));
    EXPECT_FALSE(overlap(rect, {150, 150, 150, 180})) << "what has no area covers nothing";
}

TEST(PaintOrder, EveryPassInItsOrder) {
    struct Case {
        const char* what;
        std::vector<OrderFlags> items;
        std::vector<std::size_t> order;
    };
    const OrderFlags plain;
    const OrderFlags top{.layer = topLayer};
    const OrderFlags backdrop{.isBackdrop = true};
    const OrderFlags area{.isArea = true};
    const OrderFlags last{.alwaysLast = true};
    const auto at = [](int place) { return OrderFlags{.listOrder = place}; };
    const std::vector<Case> cases{
        {"nothing", {}, {}},
        {"no wishes", {plain, plain, plain}, {0, 1, 2}},
        {"wishes, the others around them", {plain, at(0), plain, at(2)}, {1, 0, 3, 2}},
        {"one wish twice", {at(1), plain, at(1), plain}, {1, 0, 2, 3}},
        {"wishes beyond the end", {at(7), plain, at(3), at(0)}, {3, 1, 2, 0}},
        {"the top layer behind its wish", {{.listOrder = 0, .layer = topLayer}, plain, top, plain}, {1, 3, 0, 2}},
        {"backdrops and areas at the back", {plain, area, top, backdrop}, {1, 3, 0, 2}},
        {"always last, even a backdrop", {last, {.isBackdrop = true, .alwaysLast = true}, top, plain}, {3, 2, 1, 0}},
    };
    for (const Case& one : cases)
        EXPECT_EQ(paintOrder(one.items), one.order) << one.what;
}

TEST(BackgroundModes, EachSizeAndMode) {
    struct Case {
        const char* what;
        QSize picture;
        BackgroundModes modes;
        DesignSpace space;
        BackgroundPlace place;
    };
    const BackgroundModes noZoom{.noZoom = true};
    const std::vector<Case> cases{
        {"zoomed", {1080, 1920}, {}, low, {{0, 0, 1080, 1920}, {-54, -96, 1188, 2112}}},
        {"zoomed, high", {1080, 2160}, {}, high, {{0, 0, 1080, 2160}, {-54, -108, 1188, 2376}}},
        {"own size", {1080, 1920}, noZoom, low, {{0, 0, 1080, 1920}, {0, 0, 1080, 1920}}},
        {"low on a high screen", {1080, 1920}, {}, high, {{0, 0, 1080, 1920}, {-67.5, 0, 1215, 2160}}},
        {"fitted", {1080, 2160}, {.fit = true}, high, {{0, 0, 1080, 2160}, {0, 0, 1080, 2160}}},
        {"fitted, low", {1080, 1920}, {.fitAlternate = true}, low, {{0, 0, 1080, 1920}, {0, 0, 1080, 1920}}},
        {"kept", {1080, 2160}, {.keepFull = true}, high, {{0, 0, 1080, 1920}, {0, 0, 1080, 1920}}},
        {"kept, cropped",
         {1080, 2160},
         {.keepFull = true, .cropTop = true},
         low,
         {{0, 120, 1080, 1920}, {0, 0, 1080, 1920}}},
        {"nothing to crop",
         {1080, 1920},
         {.keepFull = true, .cropTop = true},
         low,
         {{0, 0, 1080, 1920}, {0, 0, 1080, 1920}}},
        {"two screens", {2160, 1920}, {}, low, {{540, 0, 1080, 1920}, {0, 0, 1080, 1920}}},
        {"two low screens on a high one", {2160, 1920}, {}, high, {{600, 0, 960, 1920}, {0, 0, 1080, 2160}}},
        {"a part", {800, 800}, {.source = EdgeRect{10, 20, 110, 220}}, low, {{10, 20, 100, 200}, {0, 0, 1080, 1920}}},
        {"a part of the fixed width",
         {800, 800},
         {.fitAlternate = true, .source = EdgeRect{10, 20, 110, 220}},
         low,
         {{10, 20, 385, 200}, {0, 0, 1080, 1920}}},
        {"a part beyond the upper left",
         {800, 800},
         {.source = EdgeRect{-100, -50, 100, 150}},
         low,
         {{0, 0, 100, 150}, {540, 480, 540, 1440}}},
        {"a part beyond the right",
         {800, 800},
         {.source = EdgeRect{700, 0, 900, 800}},
         high,
         {{700, 0, 100, 800}, {0, 0, 540, 2160}}},
    };
    for (const Case& one : cases)
        EXPECT_EQ(backgroundPlace(one.picture, one.modes, one.space), one.place) << one.what;
}

TEST(BackgroundModes, OtherPicturesArentDrawn) {
    for (const QSize& size : {QSize(), QSize(1080, 1919), QSize(720, 1280), QSize(1920, 1080)})
        EXPECT_FALSE(backgroundPlace(size, {}, low)) << size.width() << " x " << size.height();
    EXPECT_FALSE(backgroundPlace({800, 800}, {.source = EdgeRect{900, 0, 1000, 100}}, low));
    EXPECT_FALSE(backgroundPlace({800, 800}, {.source = EdgeRect{50, 50, 50, 90}}, low));
}

} // namespace
} // namespace zdt
