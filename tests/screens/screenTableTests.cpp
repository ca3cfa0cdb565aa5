#include "assets/screens/screenArt.h"
#include "assets/screens/screenWriter.h"
#include "canvas/previewComposition.h"
#include "canvas/screens/screenTable.h"
#include "editor/colourItems.h"
#include "editor/screenParts.h"
#include "model/resNode.h"
#include "sheets/skinnedStore.h"
#include "support/atomicFile.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace zdt::test {

namespace {

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

/// The screen that is to show a setting; null where its generation has none.
const Screen* ownScreen(const ThemeResource& theme, const ItemPath& path) {
    const std::vector<const Screen*> shown = shownScreens(theme, path.module);
    const std::string_view name = screenOf(path.key(), path.group);
    const auto found = std::find_if(shown.begin(), shown.end(), [&](const Screen* each) { return each->name == name; });
    return found == shown.end() ? nullptr : *found;
}

int pixelsThatDiffer(const QImage& one, const QImage& other) {
    constexpr int clearly = 24;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto* left = reinterpret_cast<const QRgb*>(one.constScanLine(y));
        const auto* right = reinterpret_cast<const QRgb*>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x)
            count += std::abs(qRed(left[x]) - qRed(right[x])) > clearly ||
                     std::abs(qGreen(left[x]) - qGreen(right[x])) > clearly ||
                     std::abs(qBlue(left[x]) - qBlue(right[x])) > clearly;
    }
    return count;
}
bool isSwitch(const ThemeResource& theme, const ItemPath& path) {
    const std::string value = theme.simpleValue(path.block(), path.item);
    return value == "true" || value == "false";
}

template <typename Check>
void forEachItem(const ThemeResource& theme, const Check& check) {
    for (const std::string& module : theme.simpleNames({})) {
        for (const std::string& group : theme.simpleNames({module})) {
            for (const std::string& item : theme.simpleNames({module, group})) {
                if (theme.simpleTakesPart({module, group}, item))
                    check(ItemPath{module, group, item});
            }
        }
    }
}

/// A theme's screens as the pages show them, all that can be turned off being on.
class ShownScreens {
public:
    explicit ShownScreens(ThemeResource& theme)
        : _theme(theme) {
        forEachItem(theme, [&](const ItemPath& path) {
            if (isSwitch(theme, path)) {
                EXPECT_EQ(theme.setSimpleValue(path.block(), path.item, "true"), 0);
            }
        });
    }

    /// How many pixels of a setting's own screen change with it.
    int pixelsOf(const ItemPath& path) {
        const Screen* screen = ownScreen(_theme, path);
        if (!screen)
            return 0;
        Shown& shown = shownOf(*screen);
        const PreviewDescription after = changed(*screen, path);
        // Other settings may share a source with it: what they show doesn't count.
        PreviewDescription alone = shown.parts;
        for (std::size_t part = 0; part < alone.parts.size(); ++part) {
            if (after.parts[part].key == path.key() || after.parts[part].isVisible != alone.parts[part].isVisible)
                alone.parts[part] = after.parts[part];
        }
        shown.composition.setDescription(std::move(alone));
        return pixelsThatDiffer(shown.frame, shown.composition.frame());
    }

private:
    struct Shown {
        PreviewDescription parts;
        PreviewComposition composition;
        QImage frame;
    };

    /// A screen as it is without a change.
    Shown& shownOf(const Screen& screen) {
        const auto [found, isNew] = _shown.try_emplace(&screen);
        Shown& shown = found->second;
        if (isNew) {
            shown.parts = describeScreen(_theme, screen, false);
            shown.composition.setDescription(shown.parts);
            shown.frame = shown.composition.frame().copy();
        }
        return shown;
    }

    /// The screen with the setting at what no theme has, which is put back.
    PreviewDescription changed(const Screen& screen, const ItemPath& path) {
        const std::vector<ResNode*> sources = _theme.simpleSources(path.block(), path.item);
        std::vector<std::string> values;
        for (const ResNode* source : sources)
            values.push_back(source->value());
        EXPECT_EQ(_theme.setSimpleValue(path.block(), path.item, isSwitch(_theme, path) ? "false" : "#ff00ff"), 0);
        PreviewDescription description = describeScreen(_theme, screen, false);
        for (std::size_t source = 0; source < sources.size(); ++source)
            sources[source]->setRawValue(values[source]);
        return description;
    }

    ThemeResource& _theme;
    std::map<const Screen*, Shown> _shown;
};

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

/// What a screen shows is there: a picture of the theme, or one that was drawn for the skin.
TEST(ScreenTable, NoPartLacksItsPicture) {
    const SkinnedStore store;
    for (const unsigned generation : {0U, 1U, 2U}) {
        const auto theme = store.create("parts" + std::to_string(generation), {generation});
        for (const Screen& screen : allScreens()) {
            for (const bool chinese : {false, true}) {
                for (const PreviewPart& part : describeScreen(*theme, screen, chinese).parts) {
                    const bool isFill = part.isColorFill && part.picture.empty();
                    EXPECT_TRUE(isFill || pathExists(part.picture))
                        << "generation " << generation << ", " << screen.module << "/" << screen.name << ": "
                        << part.key << " " << part.picture;
                }
            }
        }
    }
}

/// An author who changes a setting sees it on the screen that bears the name of the setting's group.
TEST(ScreenTable, EverySettingIsSeenOnItsOwnScreen) {
    constexpr int clearly = 300; // Pixels, as many as a small word has.
    const SkinnedStore store;
    for (const unsigned generation : {0U, 1U, 2U}) {
        const auto theme = store.create("items" + std::to_string(generation), {generation});
        // A new theme's shadow is transparent, so that its switch alone shows nothing.
        const KeyPath folder{"launcher", "folder"};
        if (theme->simpleTakesPart(folder, "text shadow")) {
            ASSERT_EQ(theme->changeSimpleValue(folder, "text shadow", "#ff000000"), 0);
        }
        ShownScreens screens(*theme);
        forEachItem(*theme, [&](const ItemPath& path) {
            EXPECT_GT(screens.pixelsOf(path), clearly) << "generation " << generation << ": " << path.key();
        });
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
    const std::string stale = skin.path("simplepic/en/contacts/no longer/title.png");
    ASSERT_TRUE(makePath(stale) && writeFile(stale, "x") && makePath(path) && writeFile(path, "broken"));
    ASSERT_TRUE(assets::writeScreens(skin.path()));
    EXPECT_FALSE(pathExists(stale));
    EXPECT_FALSE(pathExists(skin.path("simplepic/en/contacts/no longer")));
    EXPECT_TRUE(pathExists(skin.path("simplepic/en/contacts/contact list/title.png")));
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
