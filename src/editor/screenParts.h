#pragma once

#include "canvas/previewPart.h"
#include "canvas/screens/screenLayer.h"

#include <string>
#include <vector>

/// A screen's layers in the colours and with the pictures of a theme. No widget.
namespace zdt {

class ThemeResource;

/// The screens of a module that the theme has: the groups of simple mode in their order, then the extra ones.
[[nodiscard]] std::vector<const Screen*> shownScreens(const ThemeResource& theme, std::string_view module);

/// What the composed preview of a screen is made of, in the order of its layers, those left out that its generation
/// lacks.
[[nodiscard]] PreviewDescription describeScreen(const ThemeResource& theme, const Screen& screen, bool chinese);

/// The theme's file for the key of a layer's picture or wallpaper; empty for one that the theme doesn't have.
[[nodiscard]] std::string pictureOf(const ThemeResource& theme, std::string_view key);

} // namespace zdt
