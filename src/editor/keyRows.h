#pragma once

#include "model/fileResNode.h"
#include "model/keyPath.h"
#include "model/typeMask.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace zdt {

class ResNode;
class ThemeResource;

/// What a key of a theme holds.
enum class KeyKind { colour, text, picture, video, file };

[[nodiscard]] inline bool isFile(KeyKind kind) {
    return kind == KeyKind::picture || kind == KeyKind::video || kind == KeyKind::file;
}

/// The key of a leaf: the path of its block, its name, and for a namesake its number.
[[nodiscard]] std::string keyText(const std::string& block, const std::string& name, int number);

/// A leaf of a theme's tree: where it stands, and what it holds.
struct KeyPlace {
    KeyPath block;
    std::string name;
    int number = 1;       ///< Among its namesakes, counted from 1.
    std::string value;    ///< A text, colour or the path of a file.
    std::string fallback; ///< The template's value; for a file its path there, whether there is one or not.
    std::string file;     ///< That holds it, relative to the theme directory.

    /// The path that it shares with its namesakes.
    [[nodiscard]] KeyPath path() const;
    /// As `keyTextOf` gives it.
    [[nodiscard]] std::string key() const;
};

/// A key or file of a theme as the full list shows it. A shared key is one row for all its copies.
struct KeyRow {
    std::string key;                ///< Of the first place, by which the row is told from others.
    std::string module;             ///< The name of its words: "launcher", "mms", …, or `sharedModule`.
    KeyKind kind = KeyKind::text;   ///< Of all places.
    std::vector<KeyPlace> places;   ///< Those that take part in the theme; the first tells the value.
    TypeMask generations = 0;       ///< That have the key.
    std::vector<std::string> items; ///< Settings of simple mode that set it: module, group and item, joined by "/".
    // Of files alone
    std::uint32_t kinds = 0;      ///< `fileKind` bits that are taken.
    std::uint64_t maxBytes = 0;   ///< 0 means no limit.
    std::vector<SizeRange> sizes; ///< Pixels; none means any.
    bool optional = false;        ///< Whether the theme may do without it.
    bool isDrawn = false;         ///< Whether the program draws it, so that no other is taken.

    [[nodiscard]] const std::string& name() const { return places.front().name; }
    [[nodiscard]] const std::string& value() const { return places.front().value; }
    [[nodiscard]] const std::string& fallback() const { return places.front().fallback; }
    [[nodiscard]] bool hasCopies() const { return places.size() > 1; }
};

/// All that takes part in a theme, in the order of the tree, the shared ones in the place of the first copy; the
/// description's texts are left out. Empty for a theme of no generation.
[[nodiscard]] std::vector<KeyRow> keyRowsOf(const ThemeResource& theme);

/// Reads the values of a row anew.
void refreshRow(const ThemeResource& theme, KeyRow& row);

/// The values of a row's places, each with its module, if they aren't all the same; files are told apart by what
/// they hold.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> differingCopies(const KeyRow& row);

/// Whether two texts of a kind mean the same: colours are compared without their case and with an alpha of 255 left
/// out or not.
[[nodiscard]] bool sameText(KeyKind kind, const std::string& one, const std::string& other);

/// The modules of rows that there are, in the order in which they are shown.
[[nodiscard]] std::vector<std::string> modulesOf(const std::vector<KeyRow>& rows);

} // namespace zdt
