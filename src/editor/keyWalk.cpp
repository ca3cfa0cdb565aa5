#include "editor/keyWalk.h"

#include "lockscreen/customUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "model/template.h"
#include "model/textResNode.h"
#include "modules/tables/icons.h"
#include "modules/themeNode.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <algorithm>

namespace zdt {

namespace {

const KeyPath lockStyle{"unlock", "config", "style"};
constexpr const char* propertiesFile = "ext.properties";

/// The values of a new theme, which the tree of none has: the templates are written from it.
ThemeNode& defaultsOf(TypeMask mask) {
    static std::map<TypeMask, ThemeNode> trees;
    return trees.try_emplace(mask, mask, std::string()).first->second;
}

KeyKind kindOf(const FileResNode& leaf) {
    if (leaf.name().ends_with(".mp4"))
        return KeyKind::video;
    return (leaf.allowedKinds() & (fileKind::png | fileKind::jpeg)) != 0 ? KeyKind::picture : KeyKind::file;
}

bool isShared(const KeyPlace& place) {
    return place.block.size() > 1 && place.block[1] == sharedModule;
}

bool mayBeMissing(const ResNode& leaf) {
    return leaf.name() == tables::optionalIcon || leaf.name() == customPropertiesName;
}

} // namespace

KeyWalk::KeyWalk(const ThemeResource& theme)
    : _theme(theme) {}

std::vector<KeyRow> KeyWalk::rows() {
    findItems();
    _skipped = _theme.checkDynamicIcons();
    // The leaves of the root itself are the description.
    for (ResNode* module = _theme.tree().firstChild(); module; module = module->next()) {
        if (!module->isLeaf() && module->isApplicable())
            walk(*module, module->typeMask(), _skipped.contains(module));
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

void KeyWalk::walk(ResNode& block, TypeMask generations, bool optional) {
    std::map<std::string, int> namesakes;
    for (ResNode* child = block.firstChild(); child; child = child->next()) {
        const int number = ++namesakes[child->name()];
        if (!child->isApplicable())
            continue;
        const bool skipped = optional || _skipped.contains(child);
        if (child->isLeaf())
            add(*child, number, generations & child->typeMask(), skipped);
        else
            walk(*child, generations & child->typeMask(), skipped);
    }
}

KeyRow* KeyWalk::sharedRow(const KeyPlace& place) {
    if (!isShared(place))
        return nullptr;
    std::string below = place.key();
    below.erase(0, below.find('/'));
    const auto [known, isNew] = _shared.try_emplace(below, _rows.size());
    return isNew ? nullptr : &_rows[known->second];
}

KeyPlace KeyWalk::placeOf(const ResNode& leaf, int number) const {
    KeyPlace place{leaf.parent()->keyPath(), leaf.name(), number, leaf.value(), {}, {}};
    if (dynamic_cast<const FileResNode*>(&leaf)) {
        place.file = leaf.path() + leaf.name();
        if (const std::string standing = leaf.defaultValue(); isPlainFile(standing))
            place.fallback = standing;
    } else {
        const bool isProperty = leaf.parent()->name() == propertiesFile;
        place.file = leaf.parent()->path() + (isProperty ? propertiesFile : "theme.xml");
        place.fallback = defaultText(place);
    }
    return place;
}

void KeyWalk::add(const ResNode& leaf, int number, TypeMask generations, bool optional) {
    const auto* file = dynamic_cast<const FileResNode*>(&leaf);
    if (!file && !dynamic_cast<const TextResNode*>(&leaf))
        return;
    const KeyPlace place = placeOf(leaf, number);
    KeyRow* row = sharedRow(place);
    if (!row) {
        row = &_rows.emplace_back();
        row->module = isShared(place) ? sharedModule : place.block.front();
        if (file)
            describeFile(*file, *row, optional || mayBeMissing(leaf));
        else
            row->kind = dynamic_cast<const ColorTextResNode*>(&leaf) ? KeyKind::colour : KeyKind::text;
    }
    // The contacts' copy is the one that the others are made like.
    row->places.insert(place.block.front() == "contacts" ? row->places.begin() : row->places.end(), place);
    row->key = row->places.front().key();
    row->generations |= generations & typeMask::allGenerations;
    noteItems(leaf, *row);
}

void KeyWalk::describeFile(const FileResNode& leaf, KeyRow& row, bool optional) {
    row.kind = kindOf(leaf);
    row.kinds = leaf.allowedKinds();
    row.maxBytes = leaf.maxBytes();
    row.sizes = leaf.sizeRanges();
    row.optional = optional;
}

std::string KeyWalk::defaultText(const KeyPlace& place) const {
    if (place.path() == lockStyle)
        return unlockType::amazing; // The lock of a new theme, which the tree of none doesn't know.
    const ResNode* block = defaultsOf(_theme.tree().typeMask()).findByPath(place.block);
    const ResNode* leaf = block ? block->findChild(place.name) : nullptr;
    for (int counted = 1; leaf && counted < place.number; ++counted)
        leaf = block->findChild(place.name, leaf);
    return leaf ? leaf->value() : std::string();
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
