#pragma once

#include "canvas/previewPart.h"

#include <QImage>
#include <QRect>
#include <QRegion>

namespace zdt {

/// The place of an overlay's outline: away from the frame's left and top edge, and shorter where it spans the frame, so
/// that the pen is seen whole.
[[nodiscard]] QRect outlinePlace(const OverlayPart& overlay);

/// Whatever an overlay may paint on, its outline's pen too.
[[nodiscard]] QRect overlayReach(const OverlayPart& overlay);

/// An overlay's picture, scaled down in its proportions if it doesn't fit; null for none.
[[nodiscard]] QImage overlayPicture(const OverlayPart& overlay);

/// Draws an overlay on a frame, in `region` only.
void paintOverlay(QImage& frame, const QRegion& region, const OverlayPart& overlay, const QImage& picture);

} // namespace zdt
