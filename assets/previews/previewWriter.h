#pragma once

#include "assets/previews/previewSource.h"

#include <QByteArray>

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The pictures in which a template shows itself: its folder "preview/". They are made of the template's own pictures
/// and colours, so those must have been written before.
namespace zdt::assets {

/// The names of those that a generation's template has.
[[nodiscard]] std::vector<std::string> previewNames(const Generation& generation);

/// A preview as a JPEG of its exact size that a theme takes; empty if it can't be made. The same bytes each time.
[[nodiscard]] QByteArray drawPreview(const PreviewSource& source, std::string_view name);

/// Writes all previews of all templates, and nothing else. What fails is said on standard error.
/// @param templates the folder in which the templates stand
/// @param skin the skin's folder with the pictures of the screens
[[nodiscard]] bool writePreviews(const std::string& templates, const std::string& skin);

} // namespace zdt::assets
