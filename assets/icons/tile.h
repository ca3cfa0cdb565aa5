#pragma once

#include "assets/icons/material.h"

#include <QPainter>
#include <QPainterPath>

namespace zdt::assets {

/// The shape that all icons of a language fill.
[[nodiscard]] QPainterPath tileShape(Language language);

/// The tile without its rim: what the sign lies on.
void paintGround(QPainter& painter, const Material& material);

/// A light tile with its rim, which icons of any colours fit on.
void paintBlank(QPainter& painter, const Material& material);

/// The edge of a tile, with a little of a shadow outside.
void paintRim(QPainter& painter, Language language);

/// What is laid over pictures that cover the tile, such as other icons cut to its shape, to make them look like ours.
void paintBorder(QPainter& painter, const Material& material);

} // namespace zdt::assets
