#include "assets/lock/lockLook.h"
#include "assets/previews/moduleScreens.h"
#include "assets/previews/phoneParts.h"
#include "assets/previews/previewWriter.h"
#include "assets/templateTheme.h"
#include "canvas/screens/screenTable.h"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace zdt::test {

namespace {

const std::string skin = std::string(ZDT_TEMPLATES_DIR) + "skin/ZDThemeDesign";

std::string text(const QByteArray& bytes) {
    return bytes.toStdString();
}

QImage picture(const assets::Generation& generation, const std::string& path) {
    return QImage(QString::fromStdString(templatePath(generation.index) + path)).convertToFormat(QImage::Format_ARGB32);
}

/// The mean difference of a channel between a picture's opaque pixels and what a screen shows with its corner at a
/// place; 255 if there is too little to compare.
double difference(const QImage& screen, QPoint corner, const QImage& shown) {
    constexpr int least = 2000;
    int sum = 0;
    int pixels = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QRgb own = shown.pixel(x, y);
            if (qAlpha(own) < 255 || !screen.valid(corner + QPoint(x, y)))
                continue;
            const QRgb there = screen.pixel(corner + QPoint(x, y));
            sum += std::abs(qRed(own) - qRed(there)) + std::abs(qGreen(own) - qGreen(there)) +
                   std::abs(qBlue(own) - qBlue(there));
            ++pixels;
        }
    }
    return pixels < least ? 255 : sum / 3.0 / pixels;
}

} // namespace

TEST(Previews, ShowTheIconsAndDigitsOfTheirTemplate) {
    constexpr double mostByCompression = 4;
    for (const assets::Generation& generation : assets::generations) {
        const QImage page = picture(generation, "preview/preview_icons_0.jpg");
        const QPoint firstIcon(75, assets::hasKeys(generation) ? 140 : 156);
        const QRect middle(48, 48, 96, 96);
        int column = 0;
        for (const char* name : {"android.gallery3d", "zendro.android.totemweather", "android.calendar"}) {
            const QImage icon = picture(generation, "icons/com." + std::string(name) + ".png").copy(middle);
            const QPoint corner = firstIcon + middle.topLeft() + QPoint(246 * column++, 0);
            EXPECT_LT(difference(page, corner, icon), mostByCompression) << generation.version << name;
        }
        const QImage cover = picture(generation, "preview/cover.jpg");
        const int clockLeft = assets::lookOf(generation.language).isCentred ? 153 : 47;
        for (int digit = 0; digit < 2; ++digit) { // Of 08:08.
            const char* file = digit ? "number_8.png" : "number_0.png";
            const QImage ink = picture(generation, std::string("unlock_amazing/drawable-hdpi/") + file);
            const QPoint corner(clockLeft + digit * assets::lockDigit.width, 100);
            EXPECT_LT(difference(cover, corner, ink), mostByCompression) << generation.version << file;
        }
    }
}

TEST(Previews, OfATemplateAreOneOfEachModuleAndMoreContactsFromGeneration9) {
    for (unsigned generation = 0; generation < generationCount; ++generation) {
        std::vector<std::string> names{"cover.jpg", "icon_small.jpg", "icon_small_1.jpg", "preview_contacts_0.jpg"};
        if (generation == generation9Index)
            names.insert(names.end(), {"preview_contacts_1.jpg", "preview_contacts_2.jpg"});
        for (const char* module : {"icons", "mms", "systemui", "unlock", "widget"})
            names.push_back(std::string("preview_") + module + "_0.jpg");
        EXPECT_EQ(namesIn(templatePath(generation) + "preview/"), names) << generation;
    }
}

TEST(Previews, AreTheSameBytesAgain) {
    const assets::Generation& generation = assets::generations[1];
    assets::PreviewStore store(ZDT_TEMPLATES_DIR, skin);
    const auto theme = store.makeTheme(generation);
    ASSERT_TRUE(theme);
    // One composed screen and one painted page.
    for (const char* name : {"preview_mms_0.jpg", "preview_widget_0.jpg"}) {
        const std::string built = readFile(templatePath(generation.index) + "preview/" + name);
        EXPECT_TRUE(text(drawPreview(store.source(*theme, generation), name)) == built) << name;
    }
}

TEST(Previews, OfLowScreensLoseRowsAndEndAboveTheKeys) {
    struct Row {
        const char* module;
        const char* name;
        const char* gone;
        const char* lowest;
    };
    constexpr std::array<Row, 3> rows{{
        {"contacts", "dial", "call4_title", "tab_label1"},
        {"mms", "MMS", "photo6", "photo3"},
        {"systemui", "drop down notification", "event_title", "media_sign"},
    }};
    for (const Row& row : rows) {
        const auto screens = screensOf(row.module);
        const Screen low = assets::lowered(*std::ranges::find(screens, std::string_view(row.name), &Screen::name));
        const auto has = [&](const char* name) {
            return std::ranges::count(low.layers, std::string_view(name), &ScreenLayer::name) == 1;
        };
        EXPECT_FALSE(has(row.gone)) << row.name;
        EXPECT_TRUE(has(row.lowest)) << row.name;
        int end = 0;
        for (const ScreenLayer& layer : low.layers) {
            const int bottom = layer.place.y + layer.place.height;
            if (bottom < phoneHeight)
                end = std::max(end, bottom);
        }
        constexpr int keyTop = static_cast<int>(screenHeight) - assets::keyBarHeight;
        EXPECT_LE(end, keyTop) << row.name;
        EXPECT_GT(end, keyTop - 72) << row.name << ": more is cut than must be";
    }
}

TEST(Previews, WithoutTemplatesFailAndLeaveNothingBehind) {
    const TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    const char* old = std::getenv("TMPDIR");
    const std::string kept = old ? old : "";
    ::setenv("TMPDIR", folder.path().c_str(), 1);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(assets::writePreviews(folder.path("none"), skin));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    old ? ::setenv("TMPDIR", kept.c_str(), 1) : ::unsetenv("TMPDIR");
    EXPECT_EQ(namesIn(folder.path()), std::vector<std::string>());
    EXPECT_EQ(std::filesystem::current_path(), before);
}

} // namespace zdt::test
