#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QRectF>

#include <string_view>

class QPainter;

namespace zdt::assets {

/// Draws an application's icon: a rounded square in a hue of its own, which follows from the name, with a glyph that
/// words in the name choose.
void paintIcon(QPainter& painter, std::string_view name, const QRectF& area);

/// A picture of the icons' directory: an application's icon, the frame or the mask of any other icon, or a background
/// of an icon that moves.
[[nodiscard]] QImage drawIcon(std::string_view name, QSize size, const Generation& generation);

/// The rounded square that all icons fill, in a picture of 192 pixels.
void paintTile(QPainter& painter, const QRectF& area, const QColor& top, const QColor& bottom);

} // namespace zdt::assets
