#include "assets/art/pictureFile.h"
#include "assets/art/statusBar.h"
#include "assets/skin/bandPictures.h"
#include "assets/skin/easingPictures.h"
#include "assets/skin/skinWriter.h"
#include "canvas/placementRules.h"
#include "common/fixtures.h"
#include "kit/tokens.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>

#include <chrono>
#include <cmath>
#include <filesystem>

namespace zdt::test {

namespace {

namespace fs = std::filesystem;

/// Of a picture that the build drew.
std::string builtPath(const std::string& below) {
    return ZDT_TEMPLATES_DIR + below;
}

QImage load(const std::string& below) {
    return QImage(QString::fromStdString(builtPath(below))).convertToFormat(QImage::Format_ARGB32);
}

struct Ink {
    double cover = 0; ///< Mean opacity, 0 to 1.
    double grey = 0;  ///< Of the pixels that are all but opaque, 0 to 255.
};

Ink inkOf(const QImage& picture, const QRect& area) {
    Ink ink;
    int solid = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            ink.cover += qAlpha(pixel);
            if (qAlpha(pixel) > 250) {
                ++solid;
                ink.grey += qGray(pixel);
            }
        }
    }
    ink.cover /= 255.0 * area.width() * area.height();
    ink.grey /= std::max(1, solid);
    return ink;
}

/// Of the channels of two pictures of one size as they look on mid grey, 0 to 255. -1 if the sizes differ.
double meanDifference(const QImage& one, const QImage& other) {
    if (one.isNull() || one.size() != other.size())
        return -1;
    constexpr int grey = 128;
    const auto shown = [](int channel, int alpha) { return (channel * alpha + grey * (255 - alpha)) / 255; };
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            for (const auto channel : std::array<int (*)(QRgb), 3>{qRed, qGreen, qBlue})
                sum += std::abs(shown(channel(a), qAlpha(a)) - shown(channel(b), qAlpha(b)));
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

/// The middle of the pixels that have the dot's colour.
QPointF dotIn(const QImage& frame) {
    QPointF sum;
    int count = 0;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            if (frame.pixel(x, y) == token::guide.rgb()) {
                sum += QPointF(x + 0.5, y + 0.5);
                ++count;
            }
        }
    }
    return count ? sum / count : QPointF();
}

} // namespace

TEST(SkinPictures, HaveTheirSizesAndLetThroughWhatLiesBelow) {
    struct Row {
        const char* file;
        QSize size;
        double leastCover;
        double mostCover;
    };
    const std::array<Row, 23> rows{{
        {"skin/ZDThemeDesign/optrectjinqu.png", {240, 360}, 0.26, 0.32},
        {"skin/ZDThemeDesign/SafeRect.png", {240, 420}, 0.21, 0.26},
        {"skin/ZDThemeDesign/pnd_msg.png", {40, 40}, 0.98, 1},
        {"skin/ZDThemeDesign/pnd_music.png", {40, 40}, 0.98, 1},
        {"skin/ZDThemeDesign/pnd_unlock.png", {40, 40}, 0.98, 1},
        {"skin/ZDThemeDesign/png/add-new.png", {56, 56}, 0.98, 1},
        {"skin/ZDThemeDesign/png/reducesmall.png", {16, 16}, 0.7, 0.85},
        {"skin/ZDThemeDesign/png/ryx.png", {16, 16}, 0.76, 0.8},
        {"skin/ZDThemeDesign/png/ryx-n.png", {16, 16}, 0.76, 0.8},
        {"skin/ZDThemeDesign/png/ryx-x.png", {16, 16}, 0.76, 0.8},
        {"skin/ZDThemeDesign/png/ryx-x@2x.png", {32, 32}, 0.76, 0.8},
        {"skin/ZDThemeDesign/png/sysp-off.png", {34, 19}, 0.85, 0.95},
        {"skin/ZDThemeDesign/png/sysp-on.png", {34, 19}, 0.85, 0.95},
        {"skin/ZDThemeDesign/png/sysp-on@2x.png", {68, 38}, 0.85, 0.95},
        {"skin/ZDThemeDesign/png/tj@2x.png", {48, 48}, 0.2, 0.4},
        {"res/music_bg.png", {104, 104}, 0.15, 0.25},
        {"res/music_next.png", {104, 104}, 0.05, 0.2},
        {"res/music_next_pre.png", {104, 104}, 0.2, 0.4},
        {"res/music_next_press.png", {104, 104}, 0.2, 0.4},
        {"res/music_pause.png", {130, 130}, 0.5, 0.65},
        {"res/music_play.png", {130, 130}, 0.5, 0.65},
        {"res/music_pre.png", {104, 104}, 0.05, 0.2},
        {"res/music_pre_press.png", {104, 104}, 0.2, 0.4},
    }};
    for (const Row& row : rows) {
        const QImage picture = load(row.file);
        ASSERT_EQ(picture.size(), row.size) << row.file;
        const double cover = inkOf(picture, picture.rect()).cover;
        EXPECT_GE(cover, row.leastCover) << row.file;
        EXPECT_LE(cover, row.mostCover) << row.file;
    }
}

TEST(SkinPictures, OfOneControlTellItsStatesApart) {
    const std::string png = "skin/ZDThemeDesign/png/";
    const std::array<std::array<std::string, 2>, 5> pairs{{
        {png + "sysp-on.png", png + "sysp-off.png"},
        {png + "ryx-n.png", png + "ryx-x.png"},
        {png + "ryx-n.png", png + "ryx.png"},
        {"res/music_play.png", "res/music_pause.png"},
        {"res/music_next.png", "res/music_pre.png"},
    }};
    for (const auto& [one, other] : pairs)
        EXPECT_GT(meanDifference(load(one), load(other)), 6) << one;
}

TEST(SkinPictures, OfTwiceTheSizeLookLikeTheirSingles) {
    const std::string twice = "@2x.png";
    int pairs = 0;
    for (const auto& entry : fs::directory_iterator(builtPath("skin/ZDThemeDesign/png"))) {
        const std::string name = entry.path().filename().string();
        if (!name.ends_with(twice))
            continue;
        SCOPED_TRACE(name);
        const std::string stem = "skin/ZDThemeDesign/png/" + name.substr(0, name.size() - twice.size());
        const QImage single = load(stem + ".png");
        const QImage large = load(stem + twice);
        ASSERT_EQ(large.size(), single.size() * 2);
        const QImage small = large.scaled(single.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_LT(meanDifference(single, small), 6);
        ++pairs;
    }
    EXPECT_GT(pairs, 0);
}

TEST(BandPictures, AreAsLargeAsWhatAnElementMustKeepClearOf) {
    const DesignSpace space{DesignSpace::highHeight, true};
    struct Row {
        bool (*isClear)(const EdgeRect& rect, const DesignSpace& space);
        QSize size;
        QPoint corner;
    };
    for (const Row& row : {Row{isClearOfUnlock, assets::unlockBandSize, {420, 2160 - 942}},
                           Row{isClearOfBottom, assets::bottomBandSize, {420, 1716}}}) {
        QRect band;
        for (int x = 0; x < DesignSpace::width; ++x) {
            if (!row.isClear({x, 0, x + 1, space.height}, space))
                band |= QRect(x, row.corner.y(), 1, 1);
        }
        for (int y = 0; y < space.height; ++y) {
            if (!row.isClear({0, y, DesignSpace::width, y + 1}, space))
                band |= QRect(row.corner.x(), y, 1, 1);
        }
        EXPECT_EQ(band, QRect(row.corner, row.size)) << row.corner.y();
    }
}

TEST(StatusOverlays, SuitTheWallpapersToneAndThePhonesKeys) {
    struct Row {
        const char* name; ///< With a place for the tone.
        int height;
        bool hasHomeBar;
        bool hasDeep = true;
    };
    const std::array<Row, 11> rows{{
        {"slide_%1_2160_9", 2160, true},
        {"slide_%1_5", 1920, false},
        {"slide_%1_1920_9new", 1920, true},
        {"slide_%1_5new", 1920, false},
        {"magazine_%1_2160_9", 2160, true},
        {"magazine_%1_5", 1920, false},
        {"magazine_%1_1920_9new", 1920, true},
        {"magazine_%1_5new", 1920, false},
        {"change_%1_2160_9", 2160, true, false},
        {"change_%1_1920_9", 1920, false, false},
        {"change_%1_1920_9new", 1920, true},
    }};
    const QRect statusBar(0, 0, 1080, assets::statusBarHeight);
    const auto expectTone = [&](const Row& row, const char* tone, double least, double most) {
        const std::string name = QString(row.name).arg(tone).toStdString();
        const QImage picture = load("skin/ZDThemeDesign/" + name + ".png");
        ASSERT_EQ(picture.size(), QSize(1080, row.height)) << name;
        const Ink ink = inkOf(picture, statusBar);
        EXPECT_GT(ink.cover, 0.01) << name;
        EXPECT_GT(ink.grey, least) << name;
        EXPECT_LT(ink.grey, most) << name;
        EXPECT_EQ(qAlpha(picture.pixel(540, row.height / 2)), 0) << name << " hides the wallpaper";
        constexpr int moreThanTheVeil = 200;
        EXPECT_EQ(qAlpha(picture.pixel(540, row.height - 24)) > moreThanTheVeil, row.hasHomeBar) << name;
    };
    for (const Row& row : rows) {
        expectTone(row, "tint", 240, 256);
        if (row.hasDeep)
            expectTone(row, "deep", 0, 60);
    }
}

TEST(EasingCurves, HaveThePhonesValues) {
    struct Row {
        const char* name;
        double quarter;
        double half;
        double end;
    };
    const std::array<Row, 9> rows{{
        {"accelerateDecelerate", 0.146447, 0.5, 1},
        {"accelerate", 0.0625, 0.25, 1},
        {"anticipate", -0.078125, -0.125, 1},
        {"anticipateOvershoot", -0.125, 0.5, 1},
        {"bounce", 0.630116, 0.701590, 1},
        {"cycle", 1, 0, 0},
        {"decelerate", 0.4375, 0.75, 1},
        {"linear", 0.25, 0.5, 1},
        {"overshoot", 0.859375, 1.125, 1},
    }};
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const assets::EasingCurve& curve = assets::easingCurves.at(index);
        EXPECT_EQ(curve.name, rows[index].name);
        // The phone's own numbers of the hops have five digits.
        constexpr double close = 1e-3;
        EXPECT_NEAR(curve.at(0), 0, close) << curve.name;
        EXPECT_NEAR(curve.at(0.25), rows[index].quarter, close) << curve.name;
        EXPECT_NEAR(curve.at(0.5), rows[index].half, close) << curve.name;
        EXPECT_NEAR(curve.at(1), rows[index].end, close) << curve.name;
    }
}

TEST(EasingPictures, AreThereForEachCurveOfEachEffectAndRepeatForEver) {
    for (const char* effect : {"Alp_", "Rot_", "Sca_", "Tra_"}) {
        for (const char* curve : {"accelerateDecelerate", "accelerate", "anticipate", "anticipateOvershoot", "bounce",
                                  "cycle", "decelerate", "linear", "overshoot"}) {
            const std::string path = builtPath(std::string("skin/ZDThemeDesign/") + effect + curve + ".gif");
            QImageReader reader(QString::fromStdString(path));
            EXPECT_EQ(reader.size(), QSize(288, 148)) << path;
            EXPECT_EQ(reader.loopCount(), -1) << path;
            EXPECT_GT(reader.imageCount(), 20) << path;
        }
    }
}

TEST(EasingPictures, MoveTheDotAlongItsCurve) {
    struct Row {
        std::size_t effect;
        std::size_t curve;
    };
    for (const Row row : {Row{3, 2}, Row{1, 5}}) {
        const assets::EasingCurve& curve = assets::easingCurves.at(row.curve);
        QByteArray bytes = assets::easingGif(assets::easingEffects.at(row.effect), curve);
        QBuffer buffer(&bytes);
        QImageReader reader(&buffer, "gif");
        for (int index = 0; index < assets::easingFrames; ++index) {
            const QImage frame = reader.read();
            ASSERT_FALSE(frame.isNull()) << index;
            if (index % (assets::easingFrames / 4) != 0)
                continue;
            const double time = static_cast<double>(index) / (assets::easingFrames - 1);
            const QPointF away = dotIn(frame) - assets::curvePoint(curve, time);
            EXPECT_LT(std::hypot(away.x(), away.y()), 1) << curve.name << ' ' << time;
        }
        EXPECT_LT(assets::curvePoint(curve, 1).y(), assets::curvePoint(curve, row.curve == 2 ? 0.5 : 0.75).y());
    }
}

TEST(PictureFile, IsWrittenOnlyWhenItsBytesChange) {
    const TemporaryFolder folder;
    const std::string path = folder.path("new/a.png");
    const fs::file_time_type old = fs::file_time_type::clock::now() - std::chrono::hours(1);
    ASSERT_TRUE(assets::writePicture(path, "one", "test"));
    fs::last_write_time(path, old);
    EXPECT_TRUE(assets::writePicture(path, "one", "test"));
    EXPECT_EQ(fs::last_write_time(path), old);
    EXPECT_TRUE(assets::writePicture(path, "two", "test"));
    EXPECT_EQ(readFile(path), "two");
    EXPECT_FALSE(assets::writePicture(path, {}, "test")) << "a picture that couldn't be drawn";
    EXPECT_EQ(readFile(path), "two");
}

TEST(SkinWriter, SaysWhatItCannotWrite) {
    const TemporaryFolder folder;
    folder.write("skin", "a file in the way");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(assets::writeSkinPictures(folder.path()));
    EXPECT_NE(testing::internal::GetCapturedStderr().find(folder.path("skin/ZDThemeDesign/")), std::string::npos);
}

} // namespace zdt::test
