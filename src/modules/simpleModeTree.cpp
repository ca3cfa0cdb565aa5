#include "modules/simpleModeTree.h"

#include "modules/simpleModeNode.h"
#include "modules/tables/simpleMode.h"
#include "support/assertion.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zdt {

namespace {

constexpr const char* source = "simpleModeTree";
constexpr std::string_view commonModule = "commonSetting/"; ///< As an item's path begins.

/// The blocks that hold sources: the contacts' copy of the shared widgets, the other applications' copies in the order
/// in which the common items take them, and the applications' own keys.
constexpr std::array<std::string_view, 13> blocks{
    "contacts/commonSetting/text",
    "launcher/commonSetting/text",
    "systemui/commonSetting/text",
    "mms/commonSetting/text",
    "phone/commonSetting/text",
    "recorder/commonSetting/text",
    "telecom/commonSetting/text",
    "launcher/text",
    "contacts/text",
    "mms/text",
    "systemui/text",
    "phone/text",
    "recorder/text",
};
constexpr std::size_t commonBlockCount = 7; ///< The first ones.

/// The leaves of each block, in their order.
using Leaves = std::array<std::vector<ResNode*>, blocks.size()>;

Leaves leavesOf(ResNode& theme) {
    Leaves leaves;
    for (std::size_t block = 0; block < blocks.size(); ++block) {
        const ResNode* const parentNode = theme.findByPath(splitKeyPath(blocks[block]));
        ZDT_ASSERT(parentNode, source);
        for (ResNode* child = parentNode->firstChild(); child; child = child->next())
            leaves[block].push_back(child);
    }
    return leaves;
}

/// Where a source stands: the index of its block, and its own in that.
using Place = std::pair<std::size_t, std::size_t>;

struct PlannedItem {
    std::string_view path;
    std::vector<Place> sources;
};

/// Which leaves become the sources of which item, told by their places.
class Planner {
public:
    explicit Planner(const Leaves& leaves);

    std::vector<PlannedItem> plan();

private:
    static std::size_t blockOf(const tables::SimpleModeRow& row);
    [[nodiscard]] Place placeOf(std::size_t block, std::string_view key) const;
    PlannedItem& item(std::string_view path);

    void addItem(const tables::SimpleModeRow& row);
    void addSources(const tables::SimpleModeRow& row);
    void fanOut(PlannedItem& common) const;
    void removeDoubles();

    const Leaves& _leaves;
    std::array<std::unordered_map<std::string_view, std::size_t>, blocks.size()> _names;
    std::vector<PlannedItem> _items;
};

Planner::Planner(const Leaves& leaves)
    : _leaves(leaves) {
    for (std::size_t block = 0; block < blocks.size(); ++block) {
        for (std::size_t place = 0; place < leaves[block].size(); ++place)
            _names[block].try_emplace(leaves[block][place]->name(), place);
    }
}

bool isCommon(const PlannedItem& item) {
    return item.path.starts_with(commonModule);
}

void addOnce(PlannedItem& item, const Place& place) {
    if (std::find(item.sources.begin(), item.sources.end(), place) == item.sources.end())
        item.sources.push_back(place);
}

template <typename Take>
void forWords(std::string_view text, Take take) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        take(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::size_t Planner::blockOf(const tables::SimpleModeRow& row) {
    const auto block = std::find(blocks.begin(), blocks.end(), row.block);
    ZDT_ASSERT(block != blocks.end() && !row.keys.empty(), source);
    return static_cast<std::size_t>(block - blocks.begin());
}

Place Planner::placeOf(std::size_t block, std::string_view key) const {
    const auto name = _names[block].find(key);
    ZDT_ASSERT(name != _names[block].end(), source);
    return {block, name->second};
}

PlannedItem& Planner::item(std::string_view path) {
    const auto found =
        std::find_if(_items.begin(), _items.end(), [&](const PlannedItem& each) { return each.path == path; });
    ZDT_ASSERT(found != _items.end(), source);
    return *found;
}

void Planner::addItem(const tables::SimpleModeRow& row) {
    const std::size_t block = blockOf(row);
    std::vector<Place> sources;
    forWords(row.keys, [&](std::string_view key) {
        if (_names[block].contains(key))
            sources.push_back(placeOf(block, key));
    });
    std::sort(sources.begin(), sources.end());
    _items.push_back({row.item, std::move(sources)});
}

void Planner::addSources(const tables::SimpleModeRow& row) {
    const std::size_t block = blockOf(row);
    PlannedItem& target = item(row.item);
    forWords(row.keys, [&](std::string_view key) { addOnce(target, placeOf(block, key)); });
}

void Planner::fanOut(PlannedItem& common) const {
    const std::vector<Place> own = common.sources;
    for (const Place& each : own) {
        if (each.first >= commonBlockCount)
            continue;
        const std::string& name = _leaves[each.first][each.second]->name();
        for (std::size_t copy = 1; copy < commonBlockCount; ++copy)
            addOnce(common, placeOf(copy, name));
    }
}

void Planner::removeDoubles() {
    std::set<Place> taken;
    for (const PlannedItem& each : _items) {
        if (!isCommon(each))
            taken.insert(each.sources.begin(), each.sources.end());
    }
    for (PlannedItem& each : _items) {
        if (isCommon(each))
            std::erase_if(each.sources, [&](const Place& place) { return taken.contains(place); });
    }
}

std::vector<PlannedItem> Planner::plan() {
    std::for_each(std::begin(tables::simpleModeItems), std::end(tables::simpleModeItems),
                  [&](const tables::SimpleModeRow& row) { addItem(row); });
    std::for_each(std::begin(tables::simpleModeAdditions), std::end(tables::simpleModeAdditions),
                  [&](const tables::SimpleModeRow& row) { addSources(row); });
    for (PlannedItem& each : _items) {
        if (isCommon(each))
            fanOut(each);
    }
    addSources({"commonSetting/dial/background color", "mms/commonSetting/text", "ovui_color_bg"});
    removeDoubles();
    return std::move(_items);
}

ResNode& childOf(ResNode& parent, const std::string& name) {
    ResNode* const child = parent.findChild(name);
    return child ? *child : parent.emplaceChild<ResNode>(typeMask::everywhere, name);
}

} // namespace

std::unique_ptr<ResNode> buildSimpleModeTree(ResNode& theme) {
    const Leaves leaves = leavesOf(theme);
    // The blocks of every theme are made from the same tables, so that the names are looked up once.
    static const std::vector<PlannedItem> items = Planner(leaves).plan();
    auto root = std::make_unique<ResNode>("simple mode");
    for (const PlannedItem& item : items) {
        std::vector<ResNode*> sources;
        sources.reserve(item.sources.size());
        for (const auto& [block, place] : item.sources) {
            ZDT_ASSERT(place < leaves[block].size(), source);
            sources.push_back(leaves[block][place]);
        }
        const KeyPath path = splitKeyPath(item.path);
        childOf(childOf(*root, path[0]), path[1]).emplaceChild<SimpleModeImplNode>(path[2], std::move(sources));
    }
    return root;
}

} // namespace zdt
