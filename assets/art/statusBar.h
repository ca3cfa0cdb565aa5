#pragma once

#include <QPainterPath>
#include <QRgb>
#include <QString>

class QPainter;

namespace zdt::assets {

/// The height of the bar on a screen 1080 wide.
inline constexpr int statusBarHeight = 100;

/// The phone's status bar on a screen 1080 wide, as in the applications that the editor shows: the networks at the
/// left, battery and time at the right. In pixels from the screen's upper left corner.
struct StatusBar {
    /// Of the ink, how much covers the battery's empty part.
    static constexpr double emptyStrength = 0.35;

    QPainterPath ink;
    QPainterPath emptyCell; ///< What the battery lacks.
};

/// Needs a QGuiApplication; may be called on any thread.
/// @param battery percent
[[nodiscard]] StatusBar statusBarOutline(const QString& time, int battery);

/// Draws it in one colour.
void drawStatusBar(QPainter& painter, QRgb ink, const QString& time, int battery);

} // namespace zdt::assets
