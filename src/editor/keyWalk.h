#pragma once

#include "editor/keyRows.h"

#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace zdt {

class ThemeNode;

/// One walk over a theme's tree that gathers the rows of the full list.
class KeyWalk {
public:
    explicit KeyWalk(const ThemeResource& theme);

    [[nodiscard]] std::vector<KeyRow> rows();

private:
    void findItems();
    void walk(ResNode& block, TypeMask generations, bool optional);
    void add(const ResNode& leaf, int number, TypeMask generations, bool optional);
    [[nodiscard]] KeyPlace placeOf(const ResNode& leaf, int number) const;
    /// The row of the same shared key of another application; null if the leaf begins a row.
    KeyRow* sharedRow(const KeyPlace& place);
    static void describeFile(const FileResNode& leaf, KeyRow& row, bool optional);
    [[nodiscard]] std::string defaultText(const KeyPlace& place) const;
    void noteItems(const ResNode& leaf, KeyRow& row) const;

    const ThemeResource& _theme;
    std::vector<KeyRow> _rows;
    std::set<ResNode*> _skipped;                ///< What neither a check nor an export asks for.
    std::map<std::string, std::size_t> _shared; ///< The row of each shared key, by the path below its module.
    std::vector<std::string> _itemPaths;
    std::unordered_map<const ResNode*, std::vector<std::size_t>> _items;
};

} // namespace zdt
