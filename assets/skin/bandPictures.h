#pragma once

#include <QRectF>
#include <QSize>

class QPainter;

/// Bands of a lock screen that the phone needs for itself, as they are laid over the screen on which one is designed.
/// Pixels of a screen 1080 wide; both bands begin 420 from the left, and so lie in the middle.
namespace zdt::assets {

/// Around the unlock control: from 942 to 582 above the screen's foot.
inline constexpr QSize unlockBandSize(240, 360);
/// At the foot of a screen 2160 high: from 1716 to 2136.
inline constexpr QSize bottomBandSize(240, 420);

void paintUnlockBand(QPainter& painter, const QRectF& area);
void paintBottomBand(QPainter& painter, const QRectF& area);

} // namespace zdt::assets
