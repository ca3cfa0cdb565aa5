#pragma once

#include "editor/exportForm.h"

namespace zdt {

class ThemeResource;

/// What a theme's description says. A theme of no generation has no target.
[[nodiscard]] ExportForm exportFormOf(const ThemeResource& theme);

/// Whether the lock screen is a video, which generation 5 doesn't know.
[[nodiscard]] bool hasVideoLock(const ThemeResource& theme);

/// Moves the theme to the form's generation and writes the values into its description, on disk as well. False if one
/// is refused or can't be written: the values are as they were then. The form is one that `checkExportForm` passes.
[[nodiscard]] bool storeExportValues(ThemeResource& theme, const ExportForm& form);

/// The path of a package in a folder.
[[nodiscard]] std::string packagePath(const std::string& folder, const ExportForm& form);

/// Whether the list shows the pictures of no group in the place of the six groups: never, as the store reports no theme
/// to be in such a mode; the predicate is the one place that changes if it does.
[[nodiscard]] bool hasReducedPreviews(const ThemeResource& theme);

} // namespace zdt
