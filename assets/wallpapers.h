#pragma once

#include "assets/generation.h"

#include <QImage>
#include <QRectF>

class QPainter;

namespace zdt::assets {

/// Fills `area` with the generation's sky: a light gradient with large discs that the eye can see through. The upper
/// left stays calm, since the lock screen's clock stands there in dark lines.
void paintWallpaper(QPainter& painter, const QRectF& area, const Generation& generation);

[[nodiscard]] QImage drawWallpaper(QSize size, const Generation& generation);

} // namespace zdt::assets
