#pragma once

#include "assets/controls/controlStyle.h"

#include <QRectF>
#include <QRgb>
#include <QSize>

#include <string_view>

class QPainter;

/// Signs in the weight of a language.
namespace zdt::assets {

/// A character of the sign face in the middle of a box.
/// @param size of the whole picture
/// @param colour opaque
void drawSign(QPainter& painter, QSize size, char32_t sign, const QRectF& box, QRgb colour, const ControlStyle& style);

/// A drawing of two parts, in the path language of `readOutline` and a box of 48 by 48.
struct LineSign {
    std::string_view areas; ///< Filled, and edged as the lines are.
    std::string_view lines;
};

/// Draws one in a square box, with lines of `lineWidth` pixels.
/// @param corner where a corner's curve begins, in pixels before it
void drawLineSign(QPainter& painter, const LineSign& sign, const QRectF& box, QRgb colour, double lineWidth,
                  const ControlStyle& style, double corner = 0);

} // namespace zdt::assets
