#pragma once

#include "canvas/screens/screenLayer.h"
#include "store/themeResource.h"

#include <QImage>

#include <string_view>

namespace zdt::test {

/// How a sheet shows a screen.
struct SheetStyle {
    bool chinese = false;
    bool dark = false; ///< In the colours of a dark theme in place of the theme's own, pictures too.
    /// All is black, but what follows this key or switch is red; empty for colours.
    std::string_view marked = {};
};

/// A screen as the pages put it together, in its full size. Nine-patches are stretched by their first runs alone.
[[nodiscard]] QImage composeScreen(const Screen& screen, const ThemeResource& theme, const SheetStyle& style);

} // namespace zdt::test
