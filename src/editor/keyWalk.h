#pragma once

#include "editor/keyRows.h"

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace zdt {

/// One walk over a theme's tree that gathers the rows of the full list.
class KeyWalk {
public:
    explicit KeyWalk(const ThemeResource& theme);

    [[nodiscard]] std::vector<KeyRow> rows();

private:
    /// What all leaves of a block share.
    struct Block {
        /// @param above the generations that have all above the block
        Block(const ResNode& node, TypeMask above, bool mayBeLeftOut);

        KeyPath path;
        std::string text; ///< The path as it is shown.
        std::string file; ///< That holds its texts.
        bool isShared;
        TypeMask generations; ///< That have the block.
        bool optional;
    };

    void findItems();
    void walk(ResNode& node, const Block& block, const ResNode* defaults);
    void add(const ResNode& leaf, int number, const Block& block, bool optional, const ResNode* standing);
    [[nodiscard]] KeyPlace placeOf(const ResNode& leaf, int number, const Block& block, const ResNode* standing) const;
    /// The row of the same shared key of another application; null if the leaf begins a row.
    KeyRow* sharedRow(const Block& block, const std::string& key);
    static void describeFile(const FileResNode& leaf, KeyRow& row, bool optional);
    void noteItems(const ResNode& leaf, KeyRow& row) const;

    const ThemeResource& _theme;
    std::string _template; ///< The directory of the theme's template; empty without one.
    std::vector<KeyRow> _rows;
    std::set<ResNode*> _skipped;                          ///< What neither a check nor an export asks for.
    std::unordered_map<std::string, std::size_t> _shared; ///< The row of each shared key, by the path below its module.
    std::vector<std::string> _itemPaths;
    std::unordered_map<const ResNode*, std::vector<std::size_t>> _items;
};

} // namespace zdt
