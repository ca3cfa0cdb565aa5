#pragma once

#include <QRectF>
#include <QSize>

class QPainter;

/// Controls of the window that lists and layouts show as pictures. Logical pixels; edges lie on whole ones.
namespace zdt::assets {

/// As the layouts crop it.
inline constexpr QSize switchSize(34, 19);
void paintSwitchOn(QPainter& painter, const QRectF& area);
void paintSwitchOff(QPainter& painter, const QRectF& area);

inline constexpr QSize checkSize(16, 16);
void paintUnchecked(QPainter& painter, const QRectF& area);
void paintUncheckedHover(QPainter& painter, const QRectF& area);
void paintChecked(QPainter& painter, const QRectF& area);

/// The place of a picture that isn't there yet.
inline constexpr QSize addCellSize(56, 56);
void paintAddCell(QPainter& painter, const QRectF& area);
/// A button that adds to a strip.
inline constexpr QSize addSize(24, 24);
void paintAdd(QPainter& painter, const QRectF& area);
/// A button on a picture's corner that takes it away.
inline constexpr QSize removeSize(16, 16);
void paintRemove(QPainter& painter, const QRectF& area);

/// What stands for a picture in the rows of the messages, the music and the unlock control.
inline constexpr QSize rowSignSize(40, 40);
void paintMessagesRow(QPainter& painter, const QRectF& area);
void paintMusicRow(QPainter& painter, const QRectF& area);
void paintUnlockRow(QPainter& painter, const QRectF& area);

} // namespace zdt::assets
