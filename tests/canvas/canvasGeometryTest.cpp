#include "canvas/canvasGeometry.h"

#include "canvas/canvasHand.h"
#include "canvas/groupParts.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <vector>

namespace zdt {
namespace {

constexpr DesignSpace low{DesignSpace::lowHeight, false};
constexpr DesignSpace high{DesignSpace::highHeight, true};

TEST(CanvasGeometry, TheScreenKeepsThePhonesProportions) {
    EXPECT_EQ(screenIn({252, 504}, high), QRect(0, 0, 252, 504));
    EXPECT_EQ(screenIn({600, 504}, high), QRect(174, 0, 252, 504));
    EXPECT_EQ(screenIn({252, 900}, high), QRect(0, 198, 252, 504));
    EXPECT_TRUE(screenIn({0, 504}, high).isEmpty());
}

TEST(CanvasGeometry, PointsAreClampedAndMappedInWholeNumbers) {
    const QRect screen(10, 20, 252, 504);
    EXPECT_EQ(toDesign({10, 20}, screen, high), QPoint(0, 0));
    EXPECT_EQ(toDesign({11, 22}, screen, high), QPoint(4, 8));
    EXPECT_EQ(toDesign({-500, 9000}, screen, high), QPoint(0, 2160));
    EXPECT_EQ(toDesign({262, 524}, screen, high), QPoint(1080, 2160));
    EXPECT_EQ(toDesign({5, 5}, QRect(), high), QPoint());
    EXPECT_EQ(wayInDesign({1, -1}, screen, high), QPoint(4, -4));
    EXPECT_EQ(wayInDesign({7, 7}, screen, high), QPoint(30, 30));
    EXPECT_EQ(wayInDesign({7, 7}, QRect(0, 0, 0, 5), high), QPoint());
}

TEST(CanvasGeometry, ACornerReachesLessThanFortyPixels) {
    const EdgeRect rect{100, 200, 500, 600};
    struct Case {
        QPoint point;
        Corner corner;
    };
    const std::vector<Case> cases{
        {{139, 239}, Corner::topLeft},     {{140, 239}, Corner::none},       {{139, 240}, Corner::none},
        {{461, 239}, Corner::topRight},    {{460, 239}, Corner::none},       {{139, 561}, Corner::bottomLeft},
        {{461, 561}, Corner::bottomRight}, {{461, 560}, Corner::none},       {{300, 400}, Corner::none},
        {{61, 161}, Corner::topLeft},      {{509, 609}, Corner::bottomRight}};
    for (const Case& one : cases)
        EXPECT_EQ(cornerAt(rect, one.point), one.corner) << one.point.x() << ", " << one.point.y();
    const EdgeRect small{0, 0, 60, 60};
    EXPECT_EQ(cornerAt(small, {19, 19}), Corner::topLeft);
    EXPECT_EQ(cornerAt(small, {30, 30}), Corner::none) << "a small picture can still be moved";
    EXPECT_EQ(cornerAt({50, 50, 50, 50}, {50, 50}), Corner::none);
}

TEST(CanvasGeometry, TheUppermostItemIsHit) {
    const std::vector<HitArea> items{{{0, 0, 500, 500}}, {{100, 100, 300, 300}}, {{250, 250, 400, 400}}};
    EXPECT_EQ(itemAt(items, {260, 260}), 2);
    EXPECT_EQ(itemAt(items, {150, 150}), 1);
    EXPECT_EQ(itemAt(items, {400, 399}), 0) << "a rectangle ends before its right edge";
    EXPECT_EQ(itemAt(items, {500, 10}), -1);
}

TEST(CanvasGeometry, OnlyHandlesReachBeyondTheEdges) {
    const std::vector<HitArea> plain{{{100, 100, 300, 300}, false}};
    const std::vector<HitArea> handles{{{100, 100, 300, 300}, true}};
    EXPECT_EQ(itemAt(plain, {92, 92}), -1);
    EXPECT_EQ(itemAt(handles, {92, 92}), 0);
    EXPECT_EQ(itemAt(handles, {89, 92}), -1);
    EXPECT_EQ(itemAt(handles, {92, 200}), -1) << "in the middle of an edge there is no handle";
}

TEST(CanvasGeometry, ResizingHoldsTheSmallestSideAndTheRatio) {
    const EdgeRect rect{100, 1000, 300, 1400};
    struct Case {
        const char* what;
        ResizeRule rule;
        QPoint way;
        EdgeRect expected;
    };
    const std::vector<Case> cases{
        {"free", {Corner::bottomRight}, {50, -100}, {100, 1000, 350, 1300}},
        {"free, by the other corner", {Corner::topLeft}, {-20, 30}, {80, 1030, 300, 1400}},
        {"narrower than 25", {Corner::topRight}, {-190, 0}, {100, 1000, 125, 1400}},
        {"lower than 25", {Corner::bottomLeft}, {0, -9999}, {100, 1000, 300, 1025}},
        {"by no corner", {Corner::none}, {50, 50}, rect},
        {"locked", {Corner::bottomRight, true}, {50, -100}, {100, 1000, 350, 1500}},
        {"locked, upwards", {Corner::topLeft, true}, {-50, 0}, {50, 900, 300, 1400}},
        {"locked, with a ratio of its own", {Corner::bottomRight, true, 1}, {100, 0}, {100, 1000, 400, 1300}},
        {"locked, beyond the lower edge", {Corner::bottomRight, true}, {600, 0}, {100, 1000, 560, 1920}},
        {"locked, beyond the upper edge", {Corner::topRight, true}, {900, 0}, {100, 0, 800, 1400}},
        {"locked, and too small", {Corner::bottomRight, true}, {-500, 0}, {100, 1000, 125, 1050}}};
    for (const Case& one : cases)
        EXPECT_EQ(resized(rect, one.rule, one.way, low), one.expected) << one.what;
    EXPECT_EQ(resized({5, 5, 5, 5}, {Corner::bottomRight, true}, {10, 10}, low), (EdgeRect{5, 5, 30, 30}));
}

TEST(CanvasGeometry, PartsFollowTheirGroup) {
    const EdgeRect group{100, 100, 300, 300};
    const std::vector<GroupPart> parts{{0, {100, 100, 200, 150}}, {3, {0, 0, 0, 0}}};
    const auto moved = followingParts(parts, group, {110, 90, 310, 290});
    EXPECT_EQ(moved[0], (GroupPart{0, {110, 90, 210, 140}}));
    const auto larger = followingParts(parts, group, {100, 100, 500, 300});
    EXPECT_EQ(larger[0], (GroupPart{0, {200, 150, 400, 250}})) << "twice as wide, of its own ratio, in the middle";
    EXPECT_EQ(larger[1].rect, parts[1].rect);
    EXPECT_EQ(followingPart({1, 1, 5, 5}, {0, 0, 0, 0}, {0, 0, 9, 9}), (EdgeRect{1, 1, 5, 5}));
}

TEST(CanvasGeometry, WildNumbersStayWithinBounds) {
    const EdgeRect wild = edgesOf({INT_MAX, INT_MIN, INT_MAX, INT_MIN});
    EXPECT_EQ(wild, (EdgeRect{1000000, -1000000, 1000000, -1000000}));
    EXPECT_EQ(wild.movedBy({INT_MAX, INT_MIN}), wild);
    for (const double ratio : {1e30, std::numeric_limits<double>::infinity()}) {
        const ResizeRule rule{Corner::bottomRight, true, ratio};
        EXPECT_EQ(resized({0, 0, 100, 100}, rule, {10, 0}, low), (EdgeRect{0, 0, 25, 1000000})) << ratio;
    }
    EXPECT_TRUE(fittedPlace({100, 100}, wild).isEmpty());
}

TEST(CanvasGeometry, PicturesFitAndAreNeverEnlarged) {
    EXPECT_EQ(fittedPlace({100, 50}, {0, 0, 200, 200}), QRectF(50, 75, 100, 50));
    EXPECT_EQ(fittedPlace({400, 100}, {10, 10, 210, 110}), QRectF(10, 35, 200, 50));
    EXPECT_TRUE(fittedPlace({0, 50}, {0, 0, 200, 200}).isEmpty());
}

TEST(CanvasHand, TremblingMovesNothing) {
    CanvasHand hand;
    EXPECT_FALSE(hand.moveTo({50, 50}));
    hand.press({10, 10}, Corner::none);
    EXPECT_FALSE(hand.moveTo({11, 11}));
    EXPECT_EQ(hand.state(), HandState::pressed);
    EXPECT_TRUE(hand.moveTo({12, 11}));
    EXPECT_TRUE(hand.moveTo({10, 10})) << "once it moves it follows back to where it began";
    EXPECT_EQ(hand.release(), HandState::moving);
    EXPECT_TRUE(hand.isIdle());
    hand.press({10, 10}, Corner::topLeft);
    EXPECT_TRUE(hand.moveTo({0, 0}));
    EXPECT_EQ(hand.state(), HandState::resizing);
}

} // namespace
} // namespace zdt
