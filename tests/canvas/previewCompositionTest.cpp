#include "canvas/previewComposition.h"

#include "canvas/frameScaler.h"
#include "canvas/imagePoints.h"
#include "canvas/overlayPainting.h"
#include "canvas/placeStack.h"
#include "canvas/shapes.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <random>

namespace zdt::test {
namespace {

using Indices = std::vector<std::size_t>;

class PreviewCompositionTest : public testing::Test {
protected:
    [[nodiscard]] PreviewDescription described() const {
        const std::string shape = saved(folder, "shape.png", disc({200, 100}));
        const std::string picture = saved(folder, "picture.png", disc({300, 300}, QColor(200, 40, 40, 180)));
        const std::string opaque = saved(folder, "photo.png", disc({90, 90}).convertToFormat(QImage::Format_RGB32));
        PreviewDescription made;
        made.parts = {part(previewFrame, 0xff102030, "back"),
                      part({100, 100, 0, 0}, 0xff00ff00, "disc", shape),
                      part({150, 120, 400, 300}, 0x80ff0000, "disc large", shape),
                      part({50, 900, 0, 0}, 0, "picture", picture),
                      part({-100, 2000, 600, 400}, 0, "picture", picture),
                      part({900, 500, 0, 0}, 0, "photo", opaque),
                      part({0, 1800, 1080, 360}, 0x4000ffff, "bar"),
                      part({140, 110, 120, 70}, 0, "patch", saved(folder, "p.9.png", disc({40, 40})))};
        made.parts[1].colorAlternate = 0xff0000ff;
        return made;
    }
    [[nodiscard]] QImage composedAnew() {
        PreviewComposition other(points);
        other.setDescription({composition.parts(), composition.backgroundFile()});
        other.setOverlays(composition.overlays());
        return other.frame();
    }

    TemporaryFolder folder;
    ImagePoints points{{folder.path(), folder.path()}};
    PreviewComposition composition{points};
};

TEST_F(PreviewCompositionTest, EqualsAFullCompositionAfterAnyEdits) {
    composition.setDescription(described());
    std::mt19937 random(7);
    const auto below = [&random](std::uint32_t end) { return static_cast<std::uint32_t>(random() % end); };
    const std::array<const char*, 7> keys{"back", "disc", "disc large", "picture", "photo", "bar", "patch"};
    const std::array<std::string, 4> files{composition.parts()[1].picture, composition.parts()[3].picture,
                                           folder.path("missing.png"), ""};
    QImage followed(400, 801, QImage::Format_RGB32);
    FrameScaler scaler(previewFrame.size(), followed.size());
    std::uint64_t serial = 0;
    for (int step = 0; step < 70; ++step) {
        const char* key = keys[below(keys.size())];
        switch (below(7)) {
        case 0:
            composition.setVisible(below(9), below(2) == 0);
            break;
        case 1:
            composition.setPicture(key, files[below(files.size())]);
            break;
        case 2:
            composition.setPreferAlternate(key, below(2) == 0);
            break;
        case 6: {
            // As a page that reads everything anew: most is the same.
            PreviewDescription described{composition.parts(), composition.backgroundFile()};
            std::swap(described.parts[below(8)].colorNormal, described.parts[below(8)].colorNormal);
            described.parts[below(8)].y += 3;
            described.background = files[below(4)];
            composition.setDescription(described);
            break;
        }
        case 3:
            composition.setOverlays({{static_cast<int>(below(900)), 0, 300, 500, 0x600000ff, files[0], below(2) == 0,
                                      below(2) == 0, "over"}});
            break;
        default:
            composition.setColour(key, below(0xffffffff) | (below(2) == 0 ? 0xff000000 : 0));
        }
        if (below(3) == 0)
            continue;
        ASSERT_EQ(composition.frame(), composedAnew()) << step;
        for (const QRect& piece : composition.changedSince(serial))
            scaler.scale(composition.frame(), followed, scaler.reachOf(piece));
        serial = composition.serial();
        QImage whole(followed.size(), followed.format());
        scaler.scale(composition.frame(), whole, whole.rect());
        ASSERT_EQ(followed, whole) << step;
    }
}

TEST_F(PreviewCompositionTest, ChangeMarksTheInkOfItsPartsAlone) {
    composition.setDescription(described());
    ASSERT_FALSE(composition.frame().isNull());
    EXPECT_TRUE(composition.isComposed());
    const std::uint64_t before = composition.serial();
    composition.setColour("disc", 0xffabcdef);
    EXPECT_FALSE(composition.isComposed());
    ASSERT_FALSE(composition.frame().isNull());
    EXPECT_EQ(composition.changedSince(before), QRegion(composition.inkOf(1)));
    composition.setColour("disc", 0xffabcdef);
    composition.setColour("none", 0xff000000);
    EXPECT_TRUE(composition.isComposed());
    EXPECT_EQ(composition.changedSince(0), QRegion(previewFrame));
}

TEST_F(PreviewCompositionTest, ASmallPartIsMeantBetweenAndBesideItsStrokes) {
    composition.setDescription(described());
    ASSERT_EQ(composition.partsAt({101, 101}), Indices{0});
    const Indices meant = keyedPartsAt(composition, {101, 101});
    EXPECT_NE(std::find(meant.begin(), meant.end(), std::size_t{1}), meant.end());
    const Indices beyond = keyedPartsAt(composition, {93, 101});
    EXPECT_EQ(std::find(beyond.begin(), beyond.end(), std::size_t{1}), beyond.end());
}

TEST_F(PreviewCompositionTest, PartsAreFoundWhereTheyPaint) {
    composition.setDescription(described());
    EXPECT_EQ(composition.inkOf(1), QRect(103, 102, 193, 93));
    EXPECT_EQ(composition.partsAt({230, 160}), (Indices{7, 2, 1, 0}));
    EXPECT_EQ(composition.partsAt({200, 150}), (Indices{7, 1, 0}));
    EXPECT_EQ(composition.partsAt({101, 101}), Indices{0});
    EXPECT_EQ(composition.partsAt({910, 510}), (Indices{5, 0}));
    EXPECT_EQ(composition.partsAt({-1, 5}), Indices{});
    composition.setVisible(0, false);
    EXPECT_EQ(composition.partsAt({101, 101}), Indices{});
    EXPECT_TRUE(composition.inkOf(0).isEmpty());
    composition.setColour("bar", 0);
    EXPECT_EQ(composition.partsAt({1000, 1900}), Indices{});
    EXPECT_EQ(composition.inkOf(6), QRect(0, 1800, 1080, 360));
    EXPECT_EQ(composition.partsOf("picture"), (Indices{3, 4}));
    EXPECT_EQ(composition.partsOf(""), Indices{});
}

TEST_F(PreviewCompositionTest, TransparentBlackIsAColourOfAKey) {
    const std::string shape = saved(folder, "shape.png", disc({200, 100}));
    for (const std::string& picture : {shape, std::string()}) {
        composition.setDescription({{part({100, 100, 200, 100}, 0xff102030, "key", picture)}, ""});
        composition.setColour("key", 0);
        const QImage edited = composition.frame();
        EXPECT_EQ(edited.pixelColor(200, 150), QColor(Qt::white));
        PreviewDescription anew{composition.parts(), ""};
        anew.parts[0].colorNormal = 0;
        composition.setDescription({});
        composition.setDescription(anew);
        EXPECT_EQ(composition.frame(), edited) << picture;
    }
}

TEST_F(PreviewCompositionTest, LayerGivenUpIsPaintedAnewIfItsFileWasReplaced) {
    // Each takes 9 MiB of the screen's size: more than are kept.
    constexpr int count = 14;
    const auto replaceAll = [this](QColor colour) {
        QImage image(previewFrame.size(), QImage::Format_ARGB32);
        image.fill(colour);
        const std::string first = saved(folder, "first.png", image);
        for (int i = 0; i < count; ++i)
            EXPECT_TRUE(copyFile(first, folder.path(std::to_string(i) + ".png")));
    };
    replaceAll(QColor(0, 0, 255, 20));
    PreviewDescription made;
    for (int i = 0; i < count; ++i)
        made.parts.push_back(part({0, 0, 0, 0}, 0, "k", folder.path(std::to_string(i) + ".png")));
    composition.setDescription(made);
    const QRgb before = composition.frame().pixel(8, 8);
    replaceAll(QColor(255, 0, 0, 99));
    // Draws a small place anew, and reads for it what was given up.
    composition.setOverlays({{5, 5, 9, 9, 0, "", false, false, ""}});
    const QImage frame = composition.frame();
    EXPECT_TRUE(composition.isComposed());
    EXPECT_NE(frame.pixel(8, 8), before);
    EXPECT_EQ(frame.pixel(8, 8), frame.pixel(1000, 2100));
}

TEST_F(PreviewCompositionTest, WhatCannotBeDrawnIsLeftOut) {
    const std::string shape = saved(folder, "shape.png", disc({200, 100}));
    const std::string broken = folder.write("broken.png", "text");
    const std::string odd = saved(folder, "odd.png", QImage(500, 500, QImage::Format_RGB32));
    PreviewPart beyond = part({0, 0, 9, 9}, 0xff000000, "k");
    beyond.x = beyond.width = std::numeric_limits<int>::max();
    const std::vector<std::pair<const char*, PreviewPart>> cases{
        {"nothing named", part({0, 0, 100, 100}, 0, "k")},
        {"shape beyond the right edge", part({900, 0, 0, 0}, 0xff000000, "k", shape)},
        {"shape beyond the left edge", part({-1, 0, 0, 0}, 0xff000000, "k", shape)},
        {"shape beyond the lower edge", part({0, 2100, 200, 61}, 0xff000000, "k", shape)},
        {"unreadable shape", part({0, 0, 10, 10}, 0xff000000, "k", broken)},
        {"unreadable picture", part({0, 0, 10, 10}, 0, "k", broken)},
        {"missing picture", part({0, 0, 0, 0}, 0, "k", folder.path("none.png"))},
        {"width below zero", part({0, 0, -10, 10}, 0xff000000, "k")},
        {"place that overflows", beyond},
    };
    QImage white(previewFrame.size(), QImage::Format_RGB32);
    white.fill(Qt::white);
    for (const auto& [name, made] : cases) {
        composition.setDescription({{made}, broken});
        EXPECT_EQ(composition.frame(), white) << name;
    }
    PreviewPart wallpaper = part(previewFrame, 0, "k", odd);
    wallpaper.isWallpaper = true;
    composition.setDescription({{wallpaper}, ""});
    EXPECT_EQ(composition.frame(), white);
}

TEST_F(PreviewCompositionTest, WallpaperShowsItsMiddle) {
    for (const QSize size : {QSize(1080, 1920), QSize(1080, 2160), QSize(2160, 1920), QSize(2160, 2160)}) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        // As wide as what is seen of it.
        const int seen = size.height() * 1080 / 2160;
        QPainter(&picture).fillRect((size.width() - seen) / 2, 0, seen, size.height(), Qt::green);
        PreviewPart made = part(previewFrame, 0, "wallpaper", saved(folder, "w.png", picture));
        made.isWallpaper = true;
        composition.setDescription({{made}, ""});
        for (const QPoint point : {QPoint(3, 3), QPoint(1076, 2156), QPoint(540, 1080)})
            EXPECT_EQ(composition.frame().pixelColor(point), QColor(Qt::green)) << size.width() << ' ' << size.height();
    }
}

TEST_F(PreviewCompositionTest, ReplacedFileIsReadAgain) {
    const std::string path = saved(folder, "a.png", disc({100, 100}, Qt::red));
    composition.setDescription({{part({0, 0, 0, 0}, 0, "a", path)}, ""});
    EXPECT_EQ(composition.frame().pixelColor(50, 50), QColor(Qt::red));
    ASSERT_EQ(saved(folder, "a.png", disc({60, 60}, Qt::green)), path);
    composition.setPicture("a", path);
    EXPECT_EQ(composition.frame().pixelColor(30, 30), QColor(Qt::green));
    EXPECT_EQ(composition.frame().pixelColor(80, 50), QColor(Qt::white));
    ASSERT_EQ(saved(folder, "a.png", disc({70, 70}, Qt::blue)), path);
    composition.setDescription({composition.parts(), ""});
    EXPECT_EQ(composition.frame().pixelColor(30, 30), QColor(Qt::blue));
}

TEST(OverlayOutline, StaysInsideTheFrame) {
    const std::vector<std::pair<QRect, QRect>> cases{
        {{0, 0, 1080, 2160}, {12, 11, 1062, 2143}},
        {{0, 0, 200, 300}, {12, 11, 188, 289}},
        {{100, 0, 200, 2160}, {100, 11, 200, 2143}},
        {{100, 200, 300, 400}, {100, 200, 300, 400}},
    };
    for (const auto& [place, wanted] : cases)
        EXPECT_EQ(outlinePlace({place.x(), place.y(), place.width(), place.height(), 0, "", false, true, ""}), wanted);
}

} // namespace
} // namespace zdt::test
