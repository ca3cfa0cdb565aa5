#pragma once

#include <QRectF>
#include <QRgb>

class QPainter;

namespace zdt::assets {

/// Draws a digit with lines of `lineWidth` pixels. The cell is twice as high as wide; a digit takes two thirds of its
/// height.
void drawDigit(QPainter& painter, int digit, const QRectF& cell, QRgb colour, double lineWidth);

/// Draws the two dots between hours and minutes, in a cell as high as the digits' ones.
void drawColon(QPainter& painter, const QRectF& cell, QRgb colour, double radius);

/// Draws the "*" or "#" of a dial pad in the middle of a square.
void drawAsterisk(QPainter& painter, const QRectF& square, QRgb colour, double lineWidth);
void drawHash(QPainter& painter, const QRectF& square, QRgb colour, double lineWidth);

/// Draws a clock of the four digits "1008" whose cells are `height` pixels high, and gives its width.
double drawClock(QPainter& painter, QPointF topLeft, double height, QRgb colour);
/// The width that `drawClock` takes.
[[nodiscard]] double clockWidth(double height);

} // namespace zdt::assets
