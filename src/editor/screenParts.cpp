#include "editor/screenParts.h"

#include "canvas/screens/screenTable.h"
#include "editor/colourItems.h"
#include "kit/skinFolder.h"
#include "store/themeResource.h"

#include <algorithm>
#include <map>
#include <optional>

namespace zdt {

namespace {

bool isOn(const ThemeResource& theme, const ScreenLayer& layer) {
    if (layer.switchKey.empty())
        return true;
    const std::optional<ItemPath> path = itemPathOf(layer.switchKey);
    return path && isItemOn(theme, *path);
}

/// The colours of the items, each looked up once for a screen.
class ItemColours {
public:
    explicit ItemColours(const ThemeResource& theme)
        : _theme(theme) {}

    /// An invalid colour for a key that names no colour of the theme.
    const QColor& of(std::string_view key) {
        const auto [found, isNew] = _colours.try_emplace(key);
        if (const std::optional<ItemPath> path = isNew ? itemPathOf(key) : std::nullopt)
            found->second = itemColour(_theme, *path);
        return found->second;
    }

private:
    const ThemeResource& _theme;
    std::map<std::string_view, QColor> _colours;
};

void giveColour(const ScreenLayer& layer, ItemColours& colours, PreviewPart& part) {
    const QColor& colour = colours.of(layer.key);
    part.isColorFill = true;
    part.colorAlternate = layer.fallback;
    part.preferAlternate = !colour.isValid();
    if (part.preferAlternate)
        return;
    part.key = layer.key;
    part.colorNormal = colour.rgba();
}

PreviewPart partOf(const ThemeResource& theme, const Screen& screen, const ScreenLayer& layer, bool chinese,
                   ItemColours& colours) {
    PreviewPart part;
    part.x = layer.place.x;
    part.y = layer.place.y;
    part.width = layer.place.width;
    part.height = layer.place.height;
    part.isVisible = isOn(theme, layer);
    switch (layer.kind) {
    case LayerKind::fill:
        giveColour(layer, colours, part);
        break;
    case LayerKind::shape:
        giveColour(layer, colours, part);
        part.picture = skinFile(layerFile(screen, layer, chinese));
        break;
    case LayerKind::art:
        part.picture = skinFile(layerFile(screen, layer, chinese));
        break;
    case LayerKind::wallpaper:
        part.isWallpaper = true;
        [[fallthrough]];
    case LayerKind::picture:
        part.isResource = true;
        part.key = layer.key;
        part.picture = pictureOf(theme, layer.key);
        break;
    }
    return part;
}

} // namespace

std::vector<const Screen*> shownScreens(const ThemeResource& theme, std::string_view module) {
    std::vector<const Screen*> shown;
    for (const Screen& screen : screensOf(module)) {
        if ((screen.absentFrom & generationBit(theme.version())) == 0)
            shown.push_back(&screen);
    }
    const std::vector<std::string> groups = theme.simpleNames({std::string(module)});
    const auto rank = [&groups](const Screen* screen) {
        return std::find(groups.begin(), groups.end(), screen->name) - groups.begin();
    };
    std::stable_sort(shown.begin(), shown.end(),
                     [&rank](const Screen* left, const Screen* right) { return rank(left) < rank(right); });
    return shown;
}

PreviewDescription describeScreen(const ThemeResource& theme, const Screen& screen, bool chinese) {
    PreviewDescription description;
    ItemColours colours(theme);
    for (const ScreenLayer& layer : screen.layers) {
        if ((layer.absentFrom & generationBit(theme.version())) == 0)
            description.parts.push_back(partOf(theme, screen, layer, chinese, colours));
    }
    return description;
}

std::string pictureOf(const ThemeResource& theme, std::string_view key) {
    const auto [block, name] = pictureLeaf(key);
    return theme.getValue(block, name);
}

} // namespace zdt
