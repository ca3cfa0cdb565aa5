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
    if (place.block.size() < 2 || place.block[1] != sharedModule)
        return nullptr;
    std::string below = place.key();
    below.erase(0, below.find('/'));
    const auto [known, isNew] = _shared.try_emplace(below, _rows.size());
    return isNew ? nullptr : &_rows[known->second];
}

void KeyWalk::add(ResNode& leaf, int number, TypeMask generations, bool optional) {
    const auto* file = dynamic_cast<const FileResNode*>(&leaf);
    const auto* text = dynamic_cast<const TextResNode*>(&leaf);
    if (!file && !text)
        return;
    const KeyPlace place{leaf.parent()->keyPath(), leaf.name(), number};
    if (KeyRow* row = sharedRow(place)) {
        // The contacts' copy is the one that the others are made like.
        const bool leads = place.block.front() == "contacts";
        row->places.insert(leads ? row->places.begin() : row->places.end(), place);
        if (leads) {
            row->key = place.key();
            row->value = leaf.value();
            row->file = leaf.path() + leaf.name();
        }
        noteItems(leaf, *row);
        return;
    }
    const bool isShared = place.block.size() > 1 && place.block[1] == sharedModule;
    KeyRow row;
    row.key = place.key();
    row.module = isShared ? sharedModule : place.block.front();
    row.places.push_back(place);
    row.generations = generations & typeMask::allGenerations;
    row.value = leaf.value();
    noteItems(leaf, row);
    if (file) {
        describeFile(*file, row, optional || mayBeMissing(leaf));
    } else {
        row.kind = dynamic_cast<const ColorTextResNode*>(text) ? KeyKind::colour : KeyKind::text;
        row.file = leaf.parent()->path() + (leaf.parent()->name() == "ext.properties" ? "ext.properties" : "theme.xml");
        row.fallback = defaultText(place);
    }
    _rows.push_back(std::move(row));
}

void KeyWalk::describeFile(const FileResNode& leaf, KeyRow& row, bool optional) const {
    row.kind = kindOf(leaf);
    row.file = leaf.path() + leaf.name();
    row.kinds = leaf.allowedKinds();
    row.maxBytes = leaf.maxBytes();
    row.sizes = leaf.sizeRanges();
    row.optional = optional;
    if (const std::string standing = leaf.defaultValue(); isPlainFile(standing))
        row.fallback = standing;
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
