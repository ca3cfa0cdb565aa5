#pragma once

#include "assets/previews/previewSource.h"

#include <QImage>
#include <QSize>

namespace zdt::assets {

/// The theme as a list of themes shows it, small: the lock screen's wallpaper with its clock, and a row of icons.
[[nodiscard]] QImage paintSmallIcon(const PreviewSource& source, QSize size);

} // namespace zdt::assets
