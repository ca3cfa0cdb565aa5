#pragma once

#include "model/keyPath.h"

#include <string>

namespace zdt {

class ResNode;
class ThemeResource;

/// A key as it is shown and typed: the node names from the root down, joined by "/". Of namesakes, "name#2" is the
/// second.
struct Key {
    KeyPath block;           ///< The path of the node that holds the leaf.
    std::string name;        ///< The leaf's name, without a number.
    int number = 0;          ///< Counted from 1; 0 if the key names none.
    ResNode* node = nullptr; ///< Null if the theme has no such key.

    /// The path that the leaf shares with its namesakes.
    [[nodiscard]] KeyPath namesakes() const;
};

/// Looks a key up. A key without a number means the first of the namesakes that takes part in the theme, else the
/// first.
[[nodiscard]] Key findKey(const ThemeResource& theme, const std::string& text);

/// The key of a node, with a number for every namesake but the first. Empty for a root.
[[nodiscard]] std::string keyTextOf(const ResNode& node);

} // namespace zdt
