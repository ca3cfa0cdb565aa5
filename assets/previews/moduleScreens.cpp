#include "assets/previews/moduleScreens.h"

#include "assets/previews/phoneParts.h"
#include "canvas/previewComposition.h"
#include "canvas/screens/screenBuilder.h"
#include "canvas/screens/screenTable.h"
#include "editor/screenParts.h"

#include <algorithm>
#include <array>

namespace zdt::assets {

namespace {

constexpr int keyRise = phoneHeight - static_cast<int>(screenHeight) + keyBarHeight - homeAreaHeight;

/// Rows that a low screen leaves out, by the middles of the layers in them. What stands below rises.
struct Cut {
    std::string_view screen;
    int from;
    int to; ///< Exclusive. Where it is `from`, what stands below moves nearer to what stands above.
    int rise;
};

/// The rises of a screen add up to what it lacks in height.
constexpr std::array<Cut, 10> cuts{{
    {"dial", 260, 260, 24}, // below the title
    {"dial", 415, 415, 13}, // around the lines between calls
    {"dial", 450, 450, 13},
    {"dial", 583, 583, 13},
    {"dial", 618, 618, 13},
    {"dial", 744, 930, keyRise - 76},                      // the last call
    {"drop down notification", 1344, 1590, 246},           // the second notice
    {"drop down notification", 1690, 1730, keyRise - 246}, // above the volume
    {"MMS", 276, 360, keyRise - 228},                      // the date
    {"MMS", 1872, 2100, 228},                              // the second row of photos
}};

bool contains(const Cut& cut, int y) {
    return y >= cut.from && y < cut.to;
}

int middleOf(const Place& place) {
    return place.y + place.height / 2;
}

/// Takes a cut out of a layer that goes through it, or moves it up.
void shorten(Place& place, const Cut& cut) {
    const int end = place.y + place.height;
    if (middleOf(place) >= cut.to)
        place.y -= cut.rise;
    else if (place.y > cut.from || end < cut.to)
        return;
    else
        place.height -= cut.rise;
    // Grounds that reach the lower edge still do.
    if (end >= phoneHeight)
        place.height = phoneHeight - place.y;
}

} // namespace

Screen lowered(Screen screen) {
    std::erase_if(screen.layers, [](const ScreenLayer& layer) { return layer.name == "home_line"; });
    // From below up, so that each cut finds the layers where they were.
    for (auto cut = cuts.rbegin(); cut != cuts.rend(); ++cut) {
        if (cut->screen != screen.name)
            continue;
        std::erase_if(screen.layers, [&](const ScreenLayer& layer) {
            const Place& place = layer.place;
            return contains(*cut, middleOf(place)) && place.height < cut->to - cut->from;
        });
        for (ScreenLayer& layer : screen.layers)
            shorten(layer.place, *cut);
    }
    return screen;
}

QImage composeScreen(const PreviewSource& source, std::string_view module, std::string_view name) {
    const auto screens = screensOf(module);
    const auto found = std::ranges::find(screens, name, &Screen::name);
    if (found == screens.end())
        return {};
    const bool isLow = hasKeys(source.generation);
    PreviewComposition composition(source.points);
    composition.setDescription(describeScreen(source.theme, isLow ? lowered(*found) : *found, false));
    QImage picture = composition.frame().copy(0, 0, phoneWidth, source.generation.screenHeight);
    if (isLow) {
        constexpr QRgb onAnyGround = 0xff808080;
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        paintSystemBar(painter, picture.height(), source.generation, onAnyGround);
    }
    return picture;
}

} // namespace zdt::assets
