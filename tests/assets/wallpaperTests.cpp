#include "assets/art/generation.h"
#include "assets/templateTheme.h"
#include "modules/wallpaperNode.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>

namespace zdt::test {

namespace {

QString wallpaperPath(unsigned generation, std::string_view name) {
    return QString::fromStdString(templatePath(generation) + "wallpaper/" + std::string(name));
}

QImage wallpaper(unsigned generation, std::string_view name) {
    return QImage(wallpaperPath(generation, name)).convertToFormat(QImage::Format_RGB32);
}

double luminance(double red, double green, double blue) {
    const auto light = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(red / 255) + 0.7152 * light(green / 255) + 0.0722 * light(blue / 255);
}

double luminance(QRgb colour) {
    return luminance(qRed(colour), qGreen(colour), qBlue(colour));
}

double contrast(double one, double other) {
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// The weakest contrast that letters of a colour have anywhere in an area. The eye takes the ground around a stroke as
/// one, so that a star doesn't count by itself.
double weakestContrast(const QImage& picture, const QRect& area, QRgb ink) {
    constexpr int side = 24;
    double weakest = 21;
    for (int top = area.top(); top + side <= area.bottom() + 1; top += side) {
        for (int left = area.left(); left + side <= area.right() + 1; left += side) {
            std::array<double, 3> sum{};
            for (int index = 0; index < side * side; ++index) {
                const QRgb pixel = picture.pixel(left + index % side, top + index / side);
                sum[0] += qRed(pixel);
                sum[1] += qGreen(pixel);
                sum[2] += qBlue(pixel);
            }
            constexpr double count = side * side;
            const double ground = luminance(sum[0] / count, sum[1] / count, sum[2] / count);
            weakest = std::min(weakest, contrast(ground, luminance(ink)));
        }
    }
    return weakest;
}

/// How many neighbours in a row of an area have one and the same colour at most.
int longestRun(const QImage& picture, const QRect& area) {
    int longest = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        int run = 1;
        for (int x = area.left() + 1; x <= area.right(); ++x) {
            run = picture.pixel(x, y) == picture.pixel(x - 1, y) ? run + 1 : 1;
            longest = std::max(longest, run);
        }
    }
    return longest;
}

} // namespace

TEST(Wallpapers, SmoothSkiesHaveNoBands) {
    struct Row {
        unsigned generation;
        std::string_view name;
        QRect sky;
    };
    const std::array<Row, 4> rows{{
        {0, unlockWallpaper, {0, 40, 1080, 560}},
        {1, unlockWallpaper, {0, 40, 1080, 560}},
        {2, unlockWallpaper, {0, 40, 1080, 400}},
        {2, homeWallpaper, {0, 300, 2160, 1400}},
    }};
    for (const Row& row : rows)
        EXPECT_LE(longestRun(wallpaper(row.generation, row.name), row.sky), 24) << row.generation << row.name;
}

TEST(Wallpapers, LettersCanBeReadWhereTheyStand) {
    struct Row {
        double labels; ///< White, anywhere on the home screen.
        QRgb footInk;  ///< In the middle of the lock screen's foot.
    };
    constexpr std::array<Row, generationCount> rows{{{3, 0xfffffdf6}, {3.5, 0xfffff3e0}, {4, 0xffffffff}}};
    for (unsigned generation = 0; generation < generationCount; ++generation) {
        SCOPED_TRACE(generation);
        const QImage home = wallpaper(generation, homeWallpaper);
        EXPECT_GE(weakestContrast(home, home.rect(), 0xffffffff), rows[generation].labels);
        const QImage lock = wallpaper(generation, unlockWallpaper);
        const QRgb ink = assets::generations[generation].lockInk;
        EXPECT_GE(weakestContrast(lock, {0, 150, 1080, 470}, ink), 4.5);
        EXPECT_GE(weakestContrast(lock, {240, lock.height() - 230, 600, 230}, rows[generation].footInk), 3.5);
    }
}

TEST(Wallpapers, CanBeUploadedAgain) {
    constexpr qint64 uploadLimit = 1024 * 1024;
    for (unsigned generation = 0; generation < generationCount; ++generation) {
        for (const std::string_view name : {homeWallpaper, unlockWallpaper})
            EXPECT_LT(QFileInfo(wallpaperPath(generation, name)).size(), uploadLimit) << generation << name;
    }
}

} // namespace zdt::test
