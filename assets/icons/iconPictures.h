#pragma once

#include "assets/art/generation.h"
#include "assets/icons/relief.h"

#include <QImage>

#include <string_view>

namespace zdt::assets {

/// A sign's pieces with their optical centre in the middle, as large as signs are in a language.
[[nodiscard]] Pieces onGrid(const Pieces& pieces, Language language);

/// The sign of an application's icon, as large as it stands on the tile; empty for a name that the table doesn't hold.
[[nodiscard]] Pieces signOf(std::string_view name, const Generation& generation);

/// A picture of the icons' directory: an application's icon, the border or the mask of any other icon, or a background
/// of an icon that moves. Null for another name.
[[nodiscard]] QImage drawIcon(std::string_view name, QSize size, const Generation& generation);

} // namespace zdt::assets
