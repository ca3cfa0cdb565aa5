#pragma once

#include "model/resNode.h"
#include "support/xmlFile.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zdt {

/// A list of keys with the kinds of theme that have them.
using KeyList = std::pair<TypeMask, std::vector<std::string>>;

/// What a block of values is made of.
struct ConfigBlock {
    std::vector<KeyList> keyLists;
    std::map<std::string, std::string> defaults; ///< Key to value; a key without an entry starts empty.
    std::string defaultType;                     ///< The element name of a key that `types` doesn't name.
    std::map<std::string, std::string> types;    ///< Key to element name; none may be empty.
    std::string directory;                       ///< Relative to the theme's, ending in "/".
};

/// A block's keys in their merged order, each with all that makes its child. Many blocks share theirs, and merging
/// takes time, so that they can be made once.
struct ConfigKeys {
    struct Key {
        std::string name;
        TypeMask mask = 0;
        std::string fallback;
        std::string type;
    };
    std::vector<Key> keys;
    std::string defaultType;
    std::map<std::string, std::string> types;
};

[[nodiscard]] ConfigKeys resolveKeys(const ConfigBlock& block);

/// A node that stands for one `theme.xml`: its children are the values. They are read when the node is made, and
/// written by `save` alone.
///
/// The file: a root element, `resources` or what a file read before said, and in it an element for each value, named by
/// its type, such as `color`, with the key in the attribute `name` and the value as its text.
class ConfigResNode : public ResNode {
public:
    /// Builds a child for each key, a `ColorTextResNode` where the type is "color" and a `TextResNode` otherwise, and
    /// reads the file. A missing or broken file leaves the defaults, and a value that isn't allowed leaves the default
    /// and its code in the child's errors.
    ConfigResNode(ResNode* parent, TypeMask mask, std::string name, const ConfigBlock& block);
    ConfigResNode(ResNode* parent, TypeMask mask, std::string name, const ConfigKeys& keys, std::string directory);

    /// Writes the file, making the directory, if there is a value to write. A file that couldn't be read is kept aside.
    /// False if that fails.
    [[nodiscard]] bool save(bool all) override;

    /// Whether the theme has the file but it couldn't be read.
    [[nodiscard]] bool isDamaged() const { return !_damaged.path().empty(); }

private:
    void readFile();
    [[nodiscard]] std::string filePath() const;
    [[nodiscard]] const std::string& typeOf(const std::string& key) const;

    std::string _rootElement;
    std::string _defaultType;
    std::map<std::string, std::string> _typeMap;
    DamagedFile _damaged;
};

/// Joins ordered lists into one order that keeps each list's own, as far as they agree: (a, b, c) and (a, x, c) give
/// a, b, x, c. Of duplicates the first stays.
[[nodiscard]] std::vector<std::string> mergeKeyLists(const std::vector<KeyList>& lists);

} // namespace zdt
