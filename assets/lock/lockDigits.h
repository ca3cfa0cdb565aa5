#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QSize>

/// The pictures of the clock. All of a face share one baseline, so that they stand in a line wherever a design puts
/// them.
namespace zdt::assets {

/// @param cell twice as high as wide
[[nodiscard]] QImage drawClockDigit(int digit, QSize cell, const Generation& generation);

/// The dots between hours and minutes, for digits in cells as high as `cell`.
[[nodiscard]] QImage drawClockColon(QSize cell, const Generation& generation);

/// Pixels from the top of a cell to the digits' upper edge and to their baseline.
struct DigitLines {
    double top;
    double baseline;
};
[[nodiscard]] DigitLines digitLines(int cellHeight, const Generation& generation);

} // namespace zdt::assets
