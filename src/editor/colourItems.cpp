#include "editor/colourItems.h"

#include "editor/keyDefaults.h"
#include "editor/keyRows.h"
#include "kit/colourText.h"
#include "model/resNode.h"
#include "model/textResNode.h"
#include "store/themeResource.h"

#include <algorithm>
#include <map>

namespace zdt {

namespace {

constexpr const char* shadowText = "text shadow";
constexpr const char* shadowSwitch = "shadow switch";

/// What was counted most often; of equally many the first.
template <typename Value>
std::optional<Value> commonest(const std::map<Value, int>& counts) {
    const auto fewer = [](const auto& left, const auto& right) { return left.second < right.second; };
    const auto most = std::max_element(counts.begin(), counts.end(), fewer);
    return most == counts.end() ? std::nullopt : std::optional(most->first);
}

/// The colour that most of these texts show, its digits and its alpha counted by themselves.
std::optional<QColor> commonColour(const std::vector<std::string>& texts) {
    std::map<QRgb, int> digits;
    std::map<int, int, std::greater<>> alphas;
    for (const std::string& text : texts) {
        const std::optional<QColor> colour = colourOf(QString::fromStdString(text));
        if (!colour)
            continue;
        ++digits[colour->rgb()];
        ++alphas[colour->alpha()];
    }
    const std::optional<QRgb> most = commonest(digits);
    if (!most)
        return std::nullopt;
    const auto fewer = [](const auto& left, const auto& right) { return left.second < right.second; };
    QColor colour = QColor::fromRgb(*most);
    colour.setAlpha(std::max_element(alphas.begin(), alphas.end(), fewer)->first);
    return colour;
}

bool isColour(const ThemeResource& theme, const ItemPath& path) {
    const std::vector<ResNode*> sources = theme.simpleSources(path.block(), path.item);
    return !sources.empty() && dynamic_cast<ColorTextResNode*>(sources.front());
}

/// Adds the row of an item that the theme shows, once.
void addRow(const ThemeResource& theme, const Screen& screen, const ItemPath& path, std::vector<ColourRow>& rows) {
    const bool isKnown = std::any_of(rows.begin(), rows.end(), [&](const ColourRow& row) { return row.path == path; });
    if (isKnown || !theme.simpleTakesPart(path.block(), path.item) || !isColour(theme, path))
        return;
    const bool hasSwitch = path.item == shadowText && theme.simpleTakesPart(path.block(), shadowSwitch);
    const bool isForeign = path.module != screen.module;
    rows.push_back({path, !isForeign && path.group == screen.name, isForeign, hasSwitch ? shadowSwitch : ""});
}

std::string shownColour(const ResNode& source) {
    const auto* colour = dynamic_cast<const ColorTextResNode*>(&source);
    return colour ? colour->composeColour() : std::string();
}

} // namespace

std::optional<ItemPath> itemPathOf(std::string_view key) {
    KeyPath names = splitKeyPath(key);
    if (names.size() != 3)
        return std::nullopt;
    return ItemPath{std::move(names[0]), std::move(names[1]), std::move(names[2])};
}

std::vector<ColourRow> colourRowsOf(const ThemeResource& theme, const Screen& screen) {
    std::vector<ColourRow> rows;
    const std::string module(screen.module);
    const std::string group(screen.name);
    for (const std::string& item : theme.simpleNames({module, group}))
        addRow(theme, screen, {module, group, item}, rows);
    const TypeMask generation = generationBit(theme.version());
    for (const ScreenLayer& layer : screen.layers) {
        const bool isColoured = layer.kind == LayerKind::fill || layer.kind == LayerKind::shape;
        if (const auto path = itemPathOf(layer.key); path && isColoured && (layer.absentFrom & generation) == 0)
            addRow(theme, screen, *path, rows);
    }
    return rows;
}

QColor itemColour(const ThemeResource& theme, const ItemPath& path) {
    std::vector<std::string> shown;
    for (const ResNode* source : theme.simpleSources(path.block(), path.item)) {
        if (source->isApplicable())
            shown.push_back(shownColour(*source));
    }
    return commonColour(shown).value_or(QColor());
}

bool isItemOn(const ThemeResource& theme, const ItemPath& path) {
    return theme.simpleValue(path.block(), path.item) == "true";
}

bool isItemChanged(const ThemeResource& theme, const ItemPath& path) {
    const std::vector<ResNode*> sources = theme.simpleSources(path.block(), path.item);
    return std::any_of(sources.begin(), sources.end(), [&](const ResNode* source) {
        const KeyKind kind = dynamic_cast<const ColorTextResNode*>(source) ? KeyKind::colour : KeyKind::text;
        return source->isApplicable() && !sameText(kind, source->value(), defaultTextOf(theme, *source));
    });
}

std::optional<QColor> defaultItemColour(const ThemeResource& theme, const ItemPath& path) {
    std::vector<std::string> shown;
    for (const ResNode* source : theme.simpleSources(path.block(), path.item)) {
        const auto* colour = dynamic_cast<const ColorTextResNode*>(source);
        if (!colour || !source->isApplicable())
            continue;
        // As the page shows it: with the default's own transparency undone.
        ColorTextResNode standing(source->name(), defaultTextOf(theme, *source));
        shown.push_back(standing.composeColour());
    }
    return commonColour(shown);
}

int changeItem(ThemeResource& theme, const ItemPath& path, const std::string& value) {
    return theme.changeSimpleValue(path.block(), path.item, value);
}

int resetItem(ThemeResource& theme, const ItemPath& path) {
    std::vector<std::string> values;
    for (const ResNode* source : theme.simpleSources(path.block(), path.item))
        values.push_back(defaultTextOf(theme, *source));
    return theme.changeSimpleSources(path.block(), path.item, values);
}

std::vector<std::string> keysOfItem(const ThemeResource& theme, const ItemPath& path) {
    std::vector<std::string> keys;
    for (const ResNode* source : theme.simpleSources(path.block(), path.item)) {
        if (source->isApplicable() && std::find(keys.begin(), keys.end(), source->name()) == keys.end())
            keys.push_back(source->name());
    }
    return keys;
}

} // namespace zdt
