#include "editor/keyWalk.h"

#include "editor/keyDefaults.h"
#include "editor/moduleWords.h"
#include "lockscreen/customUnlockNode.h"
#include "model/template.h"
#include "model/textResNode.h"
#include "modules/tables/icons.h"
#include "modules/themeNode.h"
#include "store/themeResource.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace zdt {

namespace {

constexpr const char* propertiesFile = "ext.properties";
/// More rows than a theme has.
constexpr std::size_t roomForRows = 2048;

KeyKind kindOf(const FileResNode& leaf) {
    if (leaf.name().ends_with(".mp4"))
        return KeyKind::video;
    return (leaf.allowedKinds() & (fileKind::png | fileKind::jpeg)) != 0 ? KeyKind::picture : KeyKind::file;
}

bool mayBeMissing(const ResNode& leaf) {
    return leaf.name() == tables::optionalIcon || leaf.name() == customPropertiesName;
}

/// Of a block's children the one that stands in the place of another tree's. Both trees were made alike, so that it
/// nearly always is the one behind the last.
class Counterparts {
public:
    explicit Counterparts(const ResNode* block)
        : _block(block)
        , _next(block ? block->firstChild() : nullptr) {}

    /// Null for one that the block doesn't have.
    const ResNode* find(const std::string& name, int number) {
        const ResNode* found = _next && _next->name() == name ? _next : search(name, number);
        if (found)
            _next = found->next();
        return found;
    }

private:
    [[nodiscard]] const ResNode* search(const std::string& name, int number) const {
        const ResNode* found = _block ? _block->findChild(name) : nullptr;
        for (int counted = 1; found && counted < number; ++counted)
            found = _block->findChild(name, found);
        return found;
    }

    const ResNode* _block;
    const ResNode* _next;
};

} // namespace

KeyWalk::Block::Block(const ResNode& node, TypeMask above, bool mayBeLeftOut)
    : path(node.keyPath())
    , text(joinKeyPath(path))
    , file(node.path() + (node.name() == propertiesFile ? propertiesFile : "theme.xml"))
    , isShared(path.size() > 1 && path[1] == sharedModule)
    , generations(above & node.typeMask())
    , optional(mayBeLeftOut) {}

KeyWalk::KeyWalk(const ThemeResource& theme)
    : _theme(theme)
    , _template(locateTemplate(storeRootOf(theme.tree().path()), theme.version())) {}

std::vector<KeyRow> KeyWalk::rows() {
    findItems();
    _skipped = _theme.checkDynamicIcons();
    _rows.reserve(roomForRows);
    const ResNode& defaults = defaultsFor(_theme);
    // The leaves of the root itself are the description.
    for (ResNode* module = _theme.tree().firstChild(); module; module = module->next()) {
        if (!module->isLeaf() && module->isApplicable())
            walk(*module, Block(*module, typeMask::everywhere, _skipped.contains(module)),
                 defaults.findChild(module->name()));
    }
    return std::move(_rows);
}

void KeyWalk::findItems() {
    for (const std::string& module : _theme.simpleNames({})) {
        for (const std::string& group : _theme.simpleNames({module})) {
            for (const std::string& item : _theme.simpleNames({module, group})) {
                for (const ResNode* leaf : _theme.simpleSources({module, group}, item))
                    _items[leaf].push_back(_itemPaths.size());
                _itemPaths.push_back(joinKeyPath({module, group, item}));
            }
        }
    }
}

void KeyWalk::walk(ResNode& node, const Block& block, const ResNode* defaults) {
    std::unordered_map<std::string_view, int> namesakes;
    Counterparts counterparts(defaults);
    for (ResNode* child = node.firstChild(); child; child = child->next()) {
        const int number = ++namesakes[child->name()];
        const ResNode* standing = counterparts.find(child->name(), number);
        if (!child->isApplicable())
            continue;
        const bool optional = block.optional || _skipped.contains(child);
        if (child->isLeaf())
            add(*child, number, block, optional, standing);
        else
            walk(*child, Block(*child, block.generations, optional), standing);
    }
}

KeyRow* KeyWalk::sharedRow(const Block& block, const std::string& key) {
    if (!block.isShared)
        return nullptr;
    const auto [known, isNew] = _shared.try_emplace(key.substr(key.find('/')), _rows.size());
    return isNew ? nullptr : &_rows[known->second];
}

KeyPlace KeyWalk::placeOf(const ResNode& leaf, int number, const Block& block, const ResNode* standing) const {
    KeyPlace place{block.path, leaf.name(), number, leaf.value(), {}, {}};
    if (dynamic_cast<const FileResNode*>(&leaf)) {
        place.file = leaf.path() + leaf.name();
        place.fallback = _template.empty() ? std::string() : templateFile(_template, place.file);
    } else {
        place.file = block.file;
        place.fallback = defaultTextOf(block.text, leaf.name(), standing);
    }
    return place;
}

void KeyWalk::add(const ResNode& leaf, int number, const Block& block, bool optional, const ResNode* standing) {
    const auto* file = dynamic_cast<const FileResNode*>(&leaf);
    if (!file && !dynamic_cast<const TextResNode*>(&leaf))
        return;
    const std::string key = keyText(block.text, leaf.name(), number);
    const std::string& module = block.path.front();
    KeyRow* row = sharedRow(block, key);
    const bool isNew = !row;
    if (isNew) {
        row = &_rows.emplace_back();
        row->module = block.isShared ? sharedModule : module;
        if (file)
            describeFile(*file, *row, optional || mayBeMissing(leaf));
        else
            row->kind = dynamic_cast<const ColorTextResNode*>(&leaf) ? KeyKind::colour : KeyKind::text;
    }
    // The contacts' copy is the one that the others are made like.
    const bool isFirst = isNew || module == "contacts";
    row->places.insert(isFirst ? row->places.begin() : row->places.end(), placeOf(leaf, number, block, standing));
    if (isFirst)
        row->key = key;
    row->generations |= block.generations & leaf.typeMask() & typeMask::allGenerations;
    noteItems(leaf, *row);
}

void KeyWalk::describeFile(const FileResNode& leaf, KeyRow& row, bool optional) {
    row.kind = kindOf(leaf);
    row.kinds = leaf.allowedKinds();
    row.maxBytes = leaf.maxBytes();
    row.sizes = leaf.sizeRanges();
    row.optional = optional;
    row.isDrawn = leaf.path() == "preview/" && isProtectedPreview(leaf.name());
}

void KeyWalk::noteItems(const ResNode& leaf, KeyRow& row) const {
    const auto found = _items.find(&leaf);
    if (found == _items.end())
        return;
    for (const std::size_t item : found->second) {
        if (std::find(row.items.begin(), row.items.end(), _itemPaths[item]) == row.items.end())
            row.items.push_back(_itemPaths[item]);
    }
}

} // namespace zdt
