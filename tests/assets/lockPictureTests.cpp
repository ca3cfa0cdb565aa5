#include "assets/art/generation.h"
#include "assets/art/statusBar.h"
#include "assets/lock/lockPainter.h"
#include "assets/templateTheme.h"
#include "lockscreen/geometry.h"
#include "lockscreen/layoutDocument.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zdt::test {

namespace {

using assets::LockScene;

class LockPictures : public testing::TestWithParam<unsigned> {
protected:
    [[nodiscard]] const assets::Generation& generation() const { return assets::generations.at(GetParam()); }
    [[nodiscard]] std::string path(const std::string& below = {}) const { return templatePath(GetParam()) + below; }
    [[nodiscard]] QImage load(const std::string& name) const {
        return QImage(QString::fromStdString(path("unlock_amazing/drawable-hdpi/" + name)))
            .convertToFormat(QImage::Format_ARGB32);
    }
    /// At half the size of a screen 1920 high.
    [[nodiscard]] QImage paint(const LockScene& scene) const {
        return assets::paintLockScreen(path(), {540, 960}, generation(), scene);
    }
    /// Where the layout puts the pictures and texts of a `src` that begins so, on a screen 1920 high.
    [[nodiscard]] QRect placeOf(const std::string& src) const {
        LayoutElements elements;
        EXPECT_TRUE(readLayout(path("unlock_amazing/layout-hdpi/layout1.xml"), elements));
        QRect place;
        for (const auto& element : elements) {
            const AmazingChild& part = element->name() == "MusicControl" ? *element->children().front() : *element;
            const auto pixel = [&](const char* key) { return pixelOf(part.attribute(key), screenHeight).value_or(0); };
            if (part.src().starts_with(src))
                place |= QRect(pixel("x"), pixel("y"), pixel("w"), pixel("h"));
        }
        return place;
    }
};

/// What two pictures of one size don't share.
QRect difference(const QImage& one, const QImage& other) {
    QRect bounds;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

/// Those of a charging picture's ring, which lies 100 to 118 from its middle.
int colouredPixels(const QImage& picture) {
    constexpr int inner = 100;
    constexpr int outer = 118;
    constexpr int leastSaturation = 90;
    const QPoint middle = picture.rect().center();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QPoint from = QPoint(x, y) - middle;
            const int square = QPoint::dotProduct(from, from);
            if (square >= inner * inner && square <= outer * outer && qAlpha(picture.pixel(x, y)) > 200)
                count += picture.pixelColor(x, y).hsvSaturation() > leastSaturation;
        }
    }
    return count;
}

/// The part of a picture that is nearly opaque: a shadow doesn't count.
QRect inkOf(const QImage& picture) {
    QRect bounds;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) > 127)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

TEST_P(LockPictures, OfDigitsStandOnOneBaselineInTheMiddleOfTheirCells) {
    const QRect zero = inkOf(load("number_0.png"));
    for (int digit = 0; digit < 10; ++digit) {
        SCOPED_TRACE(digit);
        const QImage picture = load("number_" + std::to_string(digit) + ".png");
        ASSERT_EQ(picture.height(), 2 * picture.width());
        const QRect ink = inkOf(picture);
        // Round digits reach a little over the flat ones on both sides.
        EXPECT_NEAR(ink.bottom(), zero.bottom(), 6);
        EXPECT_NEAR(ink.top(), zero.top(), 6);
        EXPECT_NEAR(ink.left(), picture.width() - 1 - ink.right(), 1);
        EXPECT_GT(ink.left(), 8);
    }
    const QRect colon = inkOf(load("colon.png"));
    EXPECT_NEAR(colon.center().y(), zero.center().y(), 2);
}

TEST_P(LockPictures, OfAChargingBatteryFillUp) {
    int before = 0;
    for (int index = 0; index < 10; ++index) {
        const int filled = colouredPixels(load("charge_" + std::to_string(index) + ".png"));
        EXPECT_GT(filled, before + 300) << index;
        before = filled;
    }
}

TEST_P(LockPictures, OfAScreenChangeWhereTheSceneDoes) {
    struct Row {
        const char* what;
        void (*change)(LockScene& scene);
        std::vector<const char*> sources; ///< Of what changes.
    };
    const std::vector<Row> rows{
        {"time", [](LockScene& scene) { scene.hour = 23; }, {"'number_"}},
        {"am", [](LockScene& scene) { scene.amPm = "AM"; }, {"system.time.ampm"}},
        {"date", [](LockScene& scene) { scene.date = "Monday"; }, {"system.date"}},
        {"messages", [](LockScene& scene) { scene.messages = 2; }, {"card_message", "system.message.text"}},
        {"calls", [](LockScene& scene) { scene.calls = 2; }, {"card_call", "system.call.text"}},
        {"charging", [](LockScene& scene) { scene.isCharging = true; }, {"charge_6", "system.charge.text"}},
        {"music", [](LockScene& scene) { scene.showsMusic = true; }, {"music_bg"}},
        {"owner", [](LockScene& scene) { scene.ownerInfo = "Me"; }, {"system.ownerinfo.text"}},
    };
    LockScene plain;
    plain.ownerInfo.clear();
    plain.hasStatusBar = false;
    const QImage before = paint(plain);
    ASSERT_EQ(before.size(), QSize(540, 960));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        LockScene scene = plain;
        row.change(scene);
        const QRect changed = difference(before, paint(scene));
        QRect allowed;
        for (const char* src : row.sources)
            allowed |= placeOf(src);
        const QRect half(allowed.topLeft() / 2, allowed.size() / 2);
        EXPECT_GT(changed.width() * changed.height(), 200);
        EXPECT_TRUE(half.adjusted(-2, -2, 2, 2).contains(changed));
    }
    LockScene withBar = plain;
    withBar.hasStatusBar = true;
    EXPECT_LT(difference(before, paint(withBar)).bottom(), assets::statusBarHeight / 2);
}

TEST_P(LockPictures, OfAScreenNeedATemplate) {
    const TemporaryFolder folder;
    EXPECT_TRUE(assets::paintLockScreen(folder.path(), {540, 960}, generation(), LockScene()).isNull());
}

INSTANTIATE_TEST_SUITE_P(Generations, LockPictures, testing::Values(0U, 1U, 2U));

} // namespace zdt::test
