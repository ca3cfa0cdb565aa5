#include "assets/art/faces.h"
#include "assets/icons/iconPictures.h"
#include "assets/icons/iconTable.h"
#include "assets/templateTheme.h"
#include "modules/iconsNode.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>

namespace zdt::test {

namespace {

using assets::generations;
using assets::iconTable;

class Icons : public testing::TestWithParam<unsigned> {
protected:
    [[nodiscard]] const assets::Generation& generation() const { return generations[GetParam()]; }

    [[nodiscard]] QImage picture(const std::string& path) const {
        const QImage read(QString::fromStdString(templatePath(GetParam()) + "icons/" + path));
        return read.convertToFormat(QImage::Format_ARGB32);
    }

    [[nodiscard]] QImage icon(std::string_view name) const { return picture(std::string(name)); }
};

int difference(QRgb one, QRgb other) {
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other));
}

/// The mean over the pixels and channels of pictures of the same size.
double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            sum += difference(one.pixel(x, y), other.pixel(x, y));
    }
    return sum / (3.0 * one.width() * one.height());
}

/// No two look alike where the signs are.
void expectDifferent(const std::map<std::string, QImage>& pictures) {
    constexpr double leastDifference = 10;
    std::map<std::string, QImage> signs;
    for (const auto& [name, picture] : pictures)
        signs[name] = picture.copy(36, 36, 120, 120).scaled(30, 30, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (auto one = signs.begin(); one != signs.end(); ++one) {
        for (auto other = std::next(one); other != signs.end(); ++other)
            EXPECT_GT(meanDifference(one->second, other->second), leastDifference) << one->first << " " << other->first;
    }
}

struct Ink {
    double pixels = 0;
    QPointF centre;
};

/// Where a sign covers the tile, in pixels of the icon.
Ink inkOf(const assets::Pieces& pieces) {
    constexpr int side = 48;
    constexpr double scale = side / assets::iconSide;
    QImage drawn(side, side, QImage::Format_Grayscale8);
    drawn.fill(0);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    for (const assets::Piece& piece : pieces)
        painter.fillPath(piece.path, Qt::white);
    painter.end();
    Ink ink;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double covered = drawn.constScanLine(y)[x] / 255.0;
            ink.pixels += covered;
            ink.centre += QPointF(x + 0.5, y + 0.5) * covered;
        }
    }
    return {ink.pixels / scale / scale, ink.pixels > 0 ? ink.centre / ink.pixels / scale : QPointF()};
}

} // namespace

TEST_P(Icons, AreToldApartByTheirSigns) {
    std::map<std::string, QImage> icons;
    for (const std::string_view name : tables::staticIcons)
        icons[std::string(name)] = icon(name);
    expectDifferent(icons);
    std::map<std::string, QImage> weathers;
    for (const std::string_view name : tables::weatherPictures)
        weathers[std::string(name)] = picture("dynamic_icons/" + std::string(weatherPackage) + "/" + std::string(name));
    expectDifferent(weathers);
}

TEST_P(Icons, HaveSignsOfTheFaceInTheMiddleAndOfOneSize) {
    const QRawFont face = QRawFont::fromFont(assets::makeFont({assets::signFace, QFont::Normal}, 96));
    for (const std::string_view name : tables::staticIcons) {
        SCOPED_TRACE(name);
        const auto* row = std::ranges::find(iconTable, name, &assets::IconRow::name);
        ASSERT_NE(row, iconTable.end());
        EXPECT_TRUE(row->draw || face.supportsCharacter(row->sign));
        const Ink ink = inkOf(assets::signOf(name, generation()));
        EXPECT_GT(ink.pixels, 1500);
        EXPECT_LT(ink.pixels, 14000);
        EXPECT_NEAR(ink.centre.x(), 96, 8);
        EXPECT_NEAR(ink.centre.y(), 96, 8);
    }
}

TEST_P(Icons, FillTheShapeThatTheMaskCutsOthersTo) {
    constexpr int shadow = 110; // Outside of the shape.
    const QImage mask = picture("icon_mask.png");
    for (const std::string name :
         {"com.android.dialer.png", "icon_background.png", "dynamic_icons/com.android.deskclock/deskclock_bg.png",
          "dynamic_icons/com.zendro.android.totemweather/sunny.png"}) {
        const QImage tile = picture(name);
        ASSERT_EQ(tile.size(), mask.size());
        int wrong = 0;
        for (int y = 0; y < mask.height(); ++y) {
            for (int x = 0; x < mask.width(); ++x) {
                const int alpha = qAlpha(tile.pixel(x, y));
                const int masked = qAlpha(mask.pixel(x, y));
                wrong += masked == 255 ? alpha < 250 : masked == 0 ? alpha > shadow : alpha + 20 < masked;
            }
        }
        EXPECT_EQ(wrong, 0) << name;
    }
}

TEST_P(Icons, LeaveTheMiddleToWhatThePhoneDraws) {
    const QRect middle(72, 90, 48, 34);
    for (const std::string name :
         {"com.android.calendar/calendar_background.png", "com.android.deskclock/deskclock_bg.png"}) {
        const QImage sheet = picture("dynamic_icons/" + name).copy(middle);
        int steps = 0;
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 1; x < sheet.width(); ++x)
                steps += difference(sheet.pixel(x - 1, y), sheet.pixel(x, y)) > 6;
        }
        EXPECT_EQ(steps, 0) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Generations, Icons, testing::Values(0U, 1U, 2U));

} // namespace zdt::test
