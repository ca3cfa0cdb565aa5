#include "assets/screenArt.h"
#include "assets/screenWriter.h"
#include "canvas/screens/screenTable.h"
#include "common/storeFixture.h"
#include "model/resNode.h"
#include "sheets/composedScreen.h"
#include "support/atomicFile.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <utility>

namespace zdt::test {

namespace {

/// Fonts take an application.
class Application : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        _application = std::make_unique<QGuiApplication>(_count, _arguments);
        ASSERT_TRUE(assets::missingFonts().isEmpty()) << qPrintable(assets::missingFonts());
    }
    void TearDown() override { _application.reset(); }

private:
    int _count = 1;
    char _name[8] = "screens";
    char* _arguments[2] = {_name, nullptr};
    std::unique_ptr<QGuiApplication> _application;
};

const auto* const application = testing::AddGlobalTestEnvironment(new Application);

template <typename Check>
void forEachLayer(const Check& check) {
    for (const Screen& screen : allScreens()) {
        for (const ScreenLayer& layer : screen.layers) {
            const testing::ScopedTrace trace(__FILE__, __LINE__,
                                             std::string(screen.module) + "/" + std::string(screen.name) + ": " +
                                                 layer.name + " " + std::string(layer.key));
            check(screen, layer);
        }
    }
}

bool isDrawn(const ScreenLayer& layer) {
    return layer.kind == LayerKind::shape || layer.kind == LayerKind::art;
}

bool isShapeKind(DrawingKind kind) {
    return kind == DrawingKind::text || kind == DrawingKind::icon || kind == DrawingKind::panel ||
           kind == DrawingKind::ring;
}

bool isArtKind(DrawingKind kind) {
    return kind == DrawingKind::portrait || kind == DrawingKind::photo;
}

std::pair<KeyPath, std::string> splitKey(std::string_view key) {
    KeyPath path = splitKeyPath(key);
    std::string last = path.back();
    path.pop_back();
    return {path, last};
}

bool isOn(const Screen& screen, const ScreenLayer& layer, unsigned generation) {
    return !((screen.absentFrom | layer.absentFrom) & generationBit(generation));
}

bool hasInk(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

/// Settings that the phone shows on another screen of their module than the group's, and that screen.
constexpr std::pair<std::string_view, std::string_view> shownElsewhere[] = {
    {"mms/mms list/accessory selected background color", "MMS"}, // What can be attached to a message.
};

std::string_view screenOf(const std::string& key, const std::string& group) {
    const auto* found = std::find_if(std::begin(shownElsewhere), std::end(shownElsewhere),
                                     [&](const auto& row) { return row.first == key; });
    return found == std::end(shownElsewhere) ? std::string_view(group) : found->second;
}

/// How many pixels of the setting's screen show a setting, where nothing above covers it.
int markedPixels(const ThemeResource& theme, const std::string& module, const std::string& group,
                 const std::string& item) {
    const std::string key = module + "/" + group + "/" + item;
    const std::string_view name = screenOf(key, group);
    const std::span<const Screen> screens = screensOf(module);
    const auto screen = std::find_if(screens.begin(), screens.end(), [&](const Screen& each) {
        return each.name == name && !(each.absentFrom & generationBit(theme.version()));
    });
    if (screen == screens.end())
        return 0;
    const QImage marked = composeScreen(*screen, theme, {false, false, key});
    const QImage plain = composeScreen(*screen, theme, {false, false, "none"});
    int count = 0;
    for (int y = 0; y < marked.height(); ++y) {
        for (int x = 0; x < marked.width(); ++x)
            count += qRed(marked.pixel(x, y)) > qRed(plain.pixel(x, y)) + 24;
    }
    return count;
}

} // namespace

TEST(ScreenTable, PlacesLieOnTheScreen) {
    forEachLayer([](const Screen&, const ScreenLayer& layer) {
        const Place& place = layer.place;
        EXPECT_TRUE(place.x >= 0 && place.y >= 0 && place.width > 0 && place.height > 0 &&
                    place.x + place.width <= phoneWidth && place.y + place.height <= phoneHeight)
            << place.x << "," << place.y << " " << place.width << "x" << place.height;
        // The points of a shape are kept in a file and walked at each change of its colour.
        if (layer.kind == LayerKind::shape) {
            EXPECT_LE(place.width * place.height, phoneWidth * 600);
        }
    });
}

TEST(ScreenTable, PicturesHaveNamesOfTheirOwn) {
    for (const Screen& screen : allScreens()) {
        std::set<std::string> files;
        for (const ScreenLayer& layer : screen.layers) {
            EXPECT_EQ(layer.name.empty(), !isDrawn(layer)) << screen.name << ": " << layer.name << layer.key;
            EXPECT_EQ(layer.name.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"),
                      std::string::npos)
                << layer.name;
            if (isDrawn(layer)) {
                EXPECT_TRUE(files.insert(layerFile(screen, layer, false)).second) << screen.name << ": " << layer.name;
            }
        }
    }
}

TEST(ScreenTable, DrawingsFitTheirKind) {
    forEachLayer([](const Screen&, const ScreenLayer& layer) {
        const Drawing& drawing = layer.drawing;
        EXPECT_EQ(layer.kind == LayerKind::shape, isShapeKind(drawing.kind));
        EXPECT_EQ(layer.kind == LayerKind::art, isArtKind(drawing.kind));
        if (drawing.kind == DrawingKind::text) {
            EXPECT_TRUE(!drawing.english.empty() && !drawing.chinese.empty());
        }
        EXPECT_TRUE(drawing.alpha > 0 && drawing.alpha <= 255);
        if (layer.kind == LayerKind::art) {
            EXPECT_TRUE(layer.key.empty());
        }
    });
}

TEST(ScreenTable, KeysAreThoseOfTheThemes) {
    const TemporaryStore store;
    for (const unsigned generation : {0U, 1U, 2U}) {
        const auto theme = store.create("keys" + std::to_string(generation), {generation});
        forEachLayer([&](const Screen& screen, const ScreenLayer& layer) {
            if (!isOn(screen, layer, generation))
                return;
            if (layer.kind == LayerKind::picture) {
                const auto [path, file] = pictureLeaf(layer.key);
                EXPECT_FALSE(theme->getValue(path, file).empty()) << "no such picture in generation " << generation;
            } else if (layer.kind == LayerKind::wallpaper) {
                EXPECT_FALSE(theme->getValue({"wallpaper", "image"}, std::string(layer.key)).empty());
            } else if (!layer.key.empty()) {
                const auto [group, item] = splitKey(layer.key);
                EXPECT_FALSE(theme->simpleSources(group, item).empty()) << "no such colour";
            }
            if (!layer.switchKey.empty()) {
                const auto [group, item] = splitKey(layer.switchKey);
                EXPECT_FALSE(theme->simpleSources(group, item).empty()) << "no such switch";
            }
        });
    }
}

/// An author who changes a setting sees it on the screen that bears the name of the setting's group.
TEST(ScreenTable, EverySettingIsSeenOnItsOwnScreen) {
    constexpr int clearly = 300; // Pixels, as many as a small word has.
    const TemporaryStore store;
    for (const unsigned generation : {0U, 1U, 2U}) {
        const auto theme = store.create("items" + std::to_string(generation), {generation});
        for (const std::string& module : theme->simpleNames({})) {
            for (const std::string& group : theme->simpleNames({module})) {
                for (const std::string& item : theme->simpleNames({module, group})) {
                    if (theme->simpleTakesPart({module, group}, item)) {
                        EXPECT_GT(markedPixels(*theme, module, group, item), clearly)
                            << "generation " << generation << ": " << module << "/" << group << "/" << item;
                    }
                }
            }
        }
    }
}

TEST(ScreenPictures, HoldTheirInkWhole) {
    forEachLayer([](const Screen&, const ScreenLayer& layer) {
        if (!isDrawn(layer))
            return;
        for (const bool chinese : {false, true}) {
            const QImage picture = assets::drawLayer(layer, chinese);
            ASSERT_EQ(picture.size(), QSize(layer.place.width, layer.place.height));
            EXPECT_TRUE(hasInk(picture)) << "chinese " << chinese;
            if (layer.drawing.kind != DrawingKind::text)
                continue;
            const QRectF ink = assets::textExtent(layer, chinese);
            EXPECT_TRUE(QRectF(picture.rect()).contains(ink)) << "chinese " << chinese << ": " << ink.x() << ","
                                                              << ink.y() << " " << ink.width() << "x" << ink.height();
        }
    });
}

TEST(ScreenPictures, AreWrittenWhereTheyDiffer) {
    const TemporaryFolder skin;
    const Screen& screen = allScreens().front();
    const auto layer = std::find_if(screen.layers.begin(), screen.layers.end(), isDrawn);
    ASSERT_NE(layer, screen.layers.end());
    const std::string path = skin.path(layerFile(screen, *layer, true));
    const std::string stale = skin.path("simplepic/en/contacts/dial/no_longer.png");
    ASSERT_TRUE(makePath(stale) && writeFile(stale, "x") && makePath(path) && writeFile(path, "broken"));
    ASSERT_TRUE(assets::writeScreens(skin.path()));
    EXPECT_FALSE(pathExists(stale));
    EXPECT_EQ(QImage(QString::fromStdString(path)).size(), QSize(layer->place.width, layer->place.height));

    const auto past = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(path, past);
    ASSERT_TRUE(assets::writeScreens(skin.path()));
    EXPECT_EQ(std::filesystem::last_write_time(path), past) << "the same bytes were written anew";
}

/// The alpha alone counts: what is tinted must not bring a colour of its own.
TEST(ScreenPictures, ShapesAreWhite) {
    forEachLayer([](const Screen&, const ScreenLayer& layer) {
        if (layer.kind != LayerKind::shape)
            return;
        const QImage picture = assets::drawLayer(layer, false);
        int most = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QRgb pixel = picture.pixel(x, y);
                most = std::max(most, qAlpha(pixel));
                ASSERT_TRUE(qAlpha(pixel) == 0 || (pixel & 0xffffffU) == 0xffffffU) << x << "," << y;
            }
        }
        EXPECT_LE(most, layer.drawing.alpha);
    });
}

TEST(ScreenPictures, PanelsRoundTheirCornersAsAsked) {
    ScreenLayer layer;
    layer.kind = LayerKind::shape;
    layer.place = {0, 0, 60, 20};
    layer.drawing.kind = DrawingKind::panel;
    layer.drawing.radius = 20; // As high as the whole.
    layer.drawing.corners = corner::top;
    const QImage picture = assets::drawLayer(layer, false);
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(picture.pixel(59, 0)), 0);
    EXPECT_GT(qAlpha(picture.pixel(0, 19)), 230);
    EXPECT_GT(qAlpha(picture.pixel(59, 19)), 230);
    EXPECT_EQ(qAlpha(picture.pixel(30, 0)), 255);
    EXPECT_NEAR(qAlpha(picture.pixel(5, 6)), 128, 120); // About where the arc runs: x = 20 - 20 cos 45 degrees.
}

TEST(ScreenPictures, LongTextsAreCutWithinTheirPlace) {
    ScreenLayer layer;
    layer.kind = LayerKind::shape;
    layer.place = {0, 0, 200, 64};
    layer.drawing.kind = DrawingKind::text;
    layer.drawing.size = 48;
    layer.drawing.english = "A name that nobody could ever read in so little space";
    EXPECT_LE(assets::textExtent(layer, false).right(), 200 - textInset + 1);
}

} // namespace zdt::test
