#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QSize>

#include <string_view>

namespace zdt::assets {

/// A plain picture of a control: arrows, marks, knobs, glows.
/// @param size the size that the theme asks for; empty for the table's own
/// @param mirrored for screens that are read from right to left
/// Null for a name that the table doesn't hold.
[[nodiscard]] QImage drawSymbol(std::string_view name, QSize size, bool mirrored, const Generation& generation);

} // namespace zdt::assets
