#pragma once

#include <QIcon>

class QPainter;
class QRectF;

namespace zdt {

/// The program's sign: a phone on a blue ground. Drawn, so that it is sharp at every size.
[[nodiscard]] QIcon programIcon();

/// Draws it into a square place.
void paintProgramSign(QPainter& painter, const QRectF& place);

} // namespace zdt
