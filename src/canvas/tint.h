#pragma once

#include <QRgb>

#include <array>

class QImage;

namespace zdt {

class InkMask;

/// What each alpha of a shape becomes in a colour, premultiplied. Equal for equal colours.
using TintTable = std::array<QRgb, 256>;

/// The colour's red, green and blue, and as alpha the shape's by the colour's, divided by 255 and cut.
[[nodiscard]] TintTable tintTable(QRgb colour);

/// A shape in a colour: an image of the picture's size, premultiplied. Null for a shape without a size.
[[nodiscard]] QImage tinted(const InkMask& shape, QRgb colour);

} // namespace zdt
