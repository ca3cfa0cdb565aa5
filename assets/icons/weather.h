#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QRectF>

#include <string_view>

class QPainter;

namespace zdt::assets {

/// A picture of the weather's moving icon: a piece of sky with what falls from it. Null for a name that the table
/// doesn't hold.
[[nodiscard]] QImage drawWeather(std::string_view name, QSize size, const Generation& generation);

/// Draws the sun behind a cloud, without a sky.
void paintSunnyCloud(QPainter& painter, const QRectF& area, const Generation& generation);

} // namespace zdt::assets
