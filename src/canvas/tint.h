#pragma once

#include <QRgb>

#include <array>

namespace zdt {

/// What each alpha of a shape becomes in a colour, premultiplied. Equal for equal colours.
using TintTable = std::array<QRgb, 256>;

/// The colour's red, green and blue, and as alpha the shape's by the colour's, divided by 255 and cut.
[[nodiscard]] TintTable tintTable(QRgb colour);

} // namespace zdt
