#pragma once

class QPainter;
class QRectF;

namespace zdt {

/// Fills `place` with the checkerboard that lies behind pictures and see-through colours, within rounded corners.
/// @param radius logical pixels
void paintChecker(QPainter& painter, const QRectF& place, double radius = 0);

} // namespace zdt
