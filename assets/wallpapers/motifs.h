#pragma once

#include "assets/wallpapers/deepImage.h"

/// The pictures themselves, in any size: all of it grows with the height, and a wider picture shows more at both sides.
namespace zdt::assets {

[[nodiscard]] DeepImage auroraLock(QSize size); ///< Curtains of light over mountains and a lake.
[[nodiscard]] DeepImage auroraHome(QSize size); ///< A calm night sky with a veil of light.
[[nodiscard]] DeepImage duneLock(QSize size);   ///< Dunes under a low sun.
[[nodiscard]] DeepImage duneHome(QSize size);   ///< Waves of sand seen close, in the evening.
[[nodiscard]] DeepImage paperLock(QSize size);  ///< Hills cut from paper, under a paper sun.
[[nodiscard]] DeepImage paperHome(QSize size);  ///< Folded paper.

} // namespace zdt::assets
