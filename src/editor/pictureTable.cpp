#include "editor/pictureTable.h"

#include "editor/moduleWords.h"
#include "editor/pictureRows.h"
#include "kit/localisation.h"
#include "model/fileResNode.h"
#include "model/template.h"
#include "modules/themeNode.h"
#include "packaging/pictureCheck.h"
#include "store/themeResource.h"
#include "support/fileComparison.h"
#include "support/text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace zdt {

namespace {

constexpr const char* imageBlock = "image";
/// The copies of the shared widgets. The contacts' is the one that is shown.
constexpr std::array<const char*, 7> sharingModules{"contacts", "launcher", "systemui", "mms",
                                                    "phone",    "recorder", "telecom"};

std::vector<KeyPath> blocksOf(std::string_view subModule) {
    if (subModule != sharedModule)
        return {{std::string(subModule), imageBlock}};
    std::vector<KeyPath> blocks;
    for (const char* module : sharingModules)
        blocks.push_back({module, sharedModule, imageBlock});
    return blocks;
}

bool takesPart(const ResNode& leaf) {
    for (const ResNode* node = &leaf; node->parent(); node = node->parent()) {
        if (!node->isApplicable())
            return false;
    }
    return true;
}

/// Makes the entries of a theme.
class EntryMaker {
public:
    explicit EntryMaker(const ThemeResource& theme)
        : _theme(theme)
        , _template(locateTemplate(storeRootOf(theme.tree().path()), theme.version())) {}

    /// Nothing for a picture that takes no part in the theme.
    [[nodiscard]] std::optional<PictureEntry> make(const PictureSetRow& row, std::string_view name) const {
        PictureEntry entry;
        entry.module = row.module;
        entry.subModule = row.subModule;
        entry.name = name;
        const FileResNode* shown = addPlaces(entry);
        if (!shown)
            return std::nullopt;
        entry.format = PictureSuffixOf(name);
        entry.text = Text(QString::fromStdString(entry.name) + "_context");
        if (!entry.isNinePatch())
            entry.sizeHint = hintOf(*shown);
        return entry;
    }

private:
    const FileResNode* addPlaces(PictureEntry& entry) const {
        const FileResNode* first = nullptr;
        for (const KeyPath& block : blocksOf(entry.subModule)) {
            KeyPath path = block;
            path.push_back(entry.name);
            int number = 1;
            while (const ResNode* leaf = _theme.findNthNode(path, number)) {
                const auto* file = dynamic_cast<const FileResNode*>(leaf);
                if (file && takesPart(*leaf)) {
                    entry.places.push_back(placeOf(*file, block, number));
                    first = first ? first : file;
                }
                ++number;
            }
        }
        return first;
    }

    [[nodiscard]] KeyPlace placeOf(const FileResNode& leaf, const KeyPath& block, int number) const {
        KeyPlace place{block, leaf.name(), number, leaf.value(), {}, leaf.path() + leaf.name()};
        if (!_template.empty())
            place.fallback = templateFile(_template, place.file);
        return place;
    }

    static QString hintOf(const FileResNode& leaf) {
        if (leaf.sizeRanges().empty())
            return Text("kIcon_no_size");
        const SizeRange& size = leaf.sizeRanges().front();
        return QString("%1*%2").arg(size.minWidth).arg(size.minHeight);
    }

    const ThemeResource& _theme;
    std::string _template;
};

std::vector<PictureGroup> makeGroups(const ThemeResource& theme, std::string_view module, std::string_view screen) {
    std::vector<PictureGroup> groups;
    if (theme.version() == unknownGeneration)
        return groups;
    const EntryMaker maker(theme);
    std::set<std::pair<std::string_view, std::string_view>> known;
    for (const PictureSetRow& row : pictureSetRows()) {
        if (row.module != module || (!screen.empty() && row.screen != screen))
            continue;
        const QString key = QString::fromUtf8(row.group.data(), static_cast<qsizetype>(row.group.size()));
        PictureGroup group{Text("key_simple_pic_" + key), Text("simple_picpath_" + key), {}};
        for (const std::string_view name : row.names) {
            std::optional<PictureEntry> entry =
                known.insert({row.subModule, name}).second ? maker.make(row, name) : std::nullopt;
            if (entry)
                group.entries.push_back(std::move(*entry));
        }
        if (!group.entries.empty())
            groups.push_back(std::move(group));
    }
    return groups;
}

} // namespace

std::span<const PictureSetRow> pictureSetRows() {
    return pictureRows::rows;
}

std::vector<PictureGroup> pictureGroupsOf(const ThemeResource& theme, std::string_view module,
                                          std::string_view screen) {
    return screen.empty() ? std::vector<PictureGroup>() : makeGroups(theme, module, screen);
}

std::vector<PictureGroup> pictureGroupsOf(const ThemeResource& theme, std::string_view module) {
    return makeGroups(theme, module, {});
}

bool isPictureOf(std::string_view module, std::string_view name) {
    const std::string wanted = toLowerAscii(name);
    return std::any_of(pictureSetRows().begin(), pictureSetRows().end(), [&](const PictureSetRow& row) {
        return row.module == module && std::any_of(row.names.begin(), row.names.end(),
                                                   [&](std::string_view each) { return toLowerAscii(each) == wanted; });
    });
}

KeyRow keyRowOf(const ThemeResource& theme, const PictureEntry& entry) {
    KeyRow row;
    row.module = entry.subModule;
    row.kind = KeyKind::picture;
    row.places = entry.places;
    row.key = entry.places.front().key();
    const KeyPlace& shown = entry.places.front();
    if (const auto* leaf = dynamic_cast<const FileResNode*>(theme.findNthNode(shown.path(), shown.number))) {
        row.kinds = leaf->allowedKinds();
        row.maxBytes = leaf->maxBytes();
        row.sizes = leaf->sizeRanges();
    }
    return row;
}

bool hasOwnPicture(const PictureEntry& entry) {
    const KeyPlace& shown = entry.places.front();
    return !sameFiles(shown.value, shown.fallback);
}

void refreshEntry(const ThemeResource& theme, PictureEntry& entry) {
    for (KeyPlace& place : entry.places)
        place.value = theme.getValueNth(place.path(), place.number);
}

} // namespace zdt
