#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QRectF>

#include <string_view>

class QPainter;

namespace zdt::assets {

/// Fills `area` with the generation's sky: a light gradient with large discs that the eye can see through. The upper
/// left stays calm, since the lock screen's clock stands there in dark lines.
void paintWallpaper(QPainter& painter, const QRectF& area, const Generation& generation);

[[nodiscard]] QImage drawWallpaper(std::string_view name, QSize size, const Generation& generation);

} // namespace zdt::assets
