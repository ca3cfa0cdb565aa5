#pragma once

#include "canvas/screens/screenLayer.h"
#include "model/keyPath.h"

#include <QColor>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The shared colours of simple mode as the pages of colours and pictures show and change them. No widget.
namespace zdt {

class ThemeResource;

/// A shared setting by the names down to it; its key is them joined by "/", as in a layer of a screen.
struct ItemPath {
    std::string module;
    std::string group;
    std::string item;

    [[nodiscard]] KeyPath block() const { return {module, group}; }
    [[nodiscard]] std::string key() const { return module + "/" + group + "/" + item; }

    bool operator==(const ItemPath&) const = default;
};

/// Nothing for a text that isn't three names.
[[nodiscard]] std::optional<ItemPath> itemPathOf(std::string_view key);

/// A row of the list of colours.
struct ColourRow {
    ItemPath path;
    bool isOfScreen = true; ///< Whether it stands in the screen's own group; others are seen there too.
    bool isForeign = false; ///< Whether it is another module's.
    std::string switchItem; ///< Of the same group: the setting that turns it on and off; empty for none.
};

/// The colours of a screen that take part in the theme: those of its own group, then the others that its layers have,
/// in the order of these.
[[nodiscard]] std::vector<ColourRow> colourRowsOf(const ThemeResource& theme, const Screen& screen);

/// What most sources hold, with the alpha that most of them show; an invalid colour for an item that has none.
[[nodiscard]] QColor itemColour(const ThemeResource& theme, const ItemPath& path);
/// Whether a setting is "true".
[[nodiscard]] bool isItemOn(const ThemeResource& theme, const ItemPath& path);
/// Whether a source that takes part differs from the template's value.
[[nodiscard]] bool isItemChanged(const ThemeResource& theme, const ItemPath& path);
/// The colour that a new theme shows for it; nothing where the sources have none.
[[nodiscard]] std::optional<QColor> defaultItemColour(const ThemeResource& theme, const ItemPath& path);

/// Sets all sources and writes them: 0, or a code of `returnCode` with all as it was.
[[nodiscard]] int changeItem(ThemeResource& theme, const ItemPath& path, const std::string& value);
/// Puts all sources back to the template's values.
[[nodiscard]] int resetItem(ThemeResource& theme, const ItemPath& path);

/// The keys that it sets in the theme, each once, in the order of its sources.
[[nodiscard]] std::vector<std::string> keysOfItem(const ThemeResource& theme, const ItemPath& path);

} // namespace zdt
