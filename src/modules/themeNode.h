#pragma once

#include "model/resNode.h"
#include "support/xmlFile.h"

#include <string>

namespace zdt {

/// The root of a theme's resource tree. Making it builds the whole tree, for every generation and kind of theme, and
/// reads all values from disk; the masks alone decide who takes part.
class ThemeNode : public ResNode {
public:
    /// @param mask what the theme is
    /// @param directory the theme directory, ending in "/"; empty for a tree of defaults that belongs to no theme
    ThemeNode(TypeMask mask, const std::string& directory);

    /// Writes description.xml from the root's childless text nodes. False without a directory.
    [[nodiscard]] bool save(bool all) override;

    /// Whether the theme has a description but it couldn't be read.
    [[nodiscard]] bool isDescriptionDamaged() const { return !_damaged.path().empty(); }

private:
    void addDescription();

    DamagedFile _damaged;
};

} // namespace zdt
