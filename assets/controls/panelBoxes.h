#pragma once

#include "assets/art/generation.h"
#include "assets/controls/panelTable.h"

#include <QImage>

/// The nine-patches with corners, shadows and tails. Each is drawn in the size of its row, or larger if nothing of it
/// could be stretched otherwise.
namespace zdt::assets {

[[nodiscard]] QImage drawBox(const PanelRow& row, const Generation& generation);
[[nodiscard]] QImage drawTopBox(const PanelRow& row, const Generation& generation);
[[nodiscard]] QImage drawHeader(const PanelRow& row, const Generation& generation);
/// @param sent whether the tail is at the right
[[nodiscard]] QImage drawBubble(const PanelRow& row, const Generation& generation, bool sent);

} // namespace zdt::assets
