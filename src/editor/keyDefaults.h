#pragma once

#include <string>

namespace zdt {

class ResNode;
class ThemeResource;

inline constexpr const char* lockStyleKey = "unlock/config/style";

/// The tree of a new theme of a theme's generation and kind, without one on disk: it holds the text and colour that the
/// templates were written from, which the tree of a theme forgets when it reads its own.
[[nodiscard]] ResNode& defaultsFor(const ThemeResource& theme);

/// The text or colour that a new theme has for a leaf of a block.
/// @param standing what the tree of defaults has in its place; null for nothing
[[nodiscard]] std::string defaultTextOf(const std::string& block, const std::string& name, const ResNode* standing);

/// The same for a leaf that stands in a theme; empty for none.
[[nodiscard]] std::string defaultTextOf(const ThemeResource& theme, const ResNode& leaf);

} // namespace zdt
