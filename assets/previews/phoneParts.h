#pragma once

#include "assets/art/generation.h"
#include "assets/lock/lockScene.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRgb>
#include <QString>

/// What stands on the phone's screens beside an application's own: pixels of a screen 1080 wide.
namespace zdt::assets {

/// How much of a screen the three keys take at its lower edge, in the generations that have them.
inline constexpr int keyBarHeight = 120;

[[nodiscard]] constexpr bool hasKeys(const Generation& generation) {
    return generation.screenHeight < static_cast<int>(tallScreenHeight);
}

/// What the phone tells on all of its screens.
[[nodiscard]] LockScene phoneScene();

/// The time, networks and battery at the top, as on the screens that the editor shows.
void paintStatus(QPainter& painter, QRgb ink);

/// How the hand leaves an application: three keys, or the line of the gesture from generation 9 on.
/// @param height of the screen
void paintSystemBar(QPainter& painter, int height, const Generation& generation, QRgb ink);

/// Fills shapes above a soft shadow, so that light ones are seen on a light ground too.
void paintLifted(QPainter& painter, const QPainterPath& shapes, QRgb ink);

/// A line of text whose middle is `middle` in both directions, by its advance and the height of capitals.
[[nodiscard]] QPainterPath centredText(const Face& face, int pixels, const QString& text, QPointF middle);

} // namespace zdt::assets
