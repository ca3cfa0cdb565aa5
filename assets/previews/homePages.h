#pragma once

#include "assets/previews/previewSource.h"

#include <QImage>
#include <QSize>

/// Pages of the home screen: the template's wallpaper with its icons on it.
namespace zdt::assets {

/// Full of icons.
[[nodiscard]] QImage paintIconsPage(const PreviewSource& source, QSize size);

/// A clock with the weather, and a few icons below.
[[nodiscard]] QImage paintWidgetPage(const PreviewSource& source, QSize size);

} // namespace zdt::assets
