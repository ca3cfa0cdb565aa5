#pragma once

#include <QRectF>
#include <QRgb>
#include <QString>

class QPainter;

namespace zdt::assets {

/// The height of the bar on a screen 1080 wide.
inline constexpr int statusBarHeight = 100;

/// Draws the phone's status bar: the networks at the left, battery and time at the right.
/// On a screen 1080 wide it looks as in the applications that the editor shows.
/// @param area as high as the bar; what it holds scales with it
/// @param battery percent
void drawStatusBar(QPainter& painter, const QRectF& area, QRgb ink, const QString& time, int battery);

} // namespace zdt::assets
