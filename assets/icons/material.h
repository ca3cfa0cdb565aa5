#pragma once

#include "assets/art/generation.h"

#include <QBrush>
#include <QRgb>

#include <cstddef>
#include <cstdint>

namespace zdt::assets {

/// The sides of an icon, on which all of this folder is drawn: pixels, with the middle at 96, 96.
inline constexpr double iconSide = 192;

/// The named hues of the icons. Each language has colours of its own for them.
enum class Hue : std::uint8_t {
    green,
    teal,
    sky,
    blue,
    indigo,
    violet,
    rose,
    red,
    orange,
    amber,
    lime,
    steel,
};
inline constexpr std::size_t hueCount = 12;

/// Two colours, from above down.
struct Shade {
    QRgb top;
    QRgb bottom;
};

/// A colour between two, alpha too.
/// @param part of the second, 0 to 1
[[nodiscard]] QRgb mix(QRgb first, QRgb second, double part);
[[nodiscard]] Shade mix(const Shade& first, const Shade& second, double part);

[[nodiscard]] constexpr QRgb withAlpha(QRgb colour, int alpha) {
    return (colour & 0xffffffU) | static_cast<QRgb>(alpha) << 24U;
}

/// A brush from above down between two heights of the icon.
[[nodiscard]] QBrush shaded(const Shade& shade, double top, double bottom);

/// What an icon of a hue is made of in a visual language. A sign says what its parts are, and the material how they
/// look.
class Material {
public:
    Material(const Generation& generation, Hue hue);

    [[nodiscard]] Language language() const { return _generation->language; }
    [[nodiscard]] Face numberFace() const; ///< Of numbers within signs.
    [[nodiscard]] double line() const;     ///< The width of a sign's lines.

    [[nodiscard]] QBrush ground() const; ///< The tile.
    [[nodiscard]] QBrush blank() const;  ///< A tile that goes with any colours.
    [[nodiscard]] QBrush main() const;   ///< The sign's body.
    [[nodiscard]] QBrush soft() const;   ///< A second body, behind the first.
    [[nodiscard]] QBrush hollow() const; ///< What the body encloses.
    [[nodiscard]] QBrush deep() const;   ///< A part in the hue's full strength, where the body is white.
    [[nodiscard]] QBrush cut() const;    ///< What is cut out of the body.
    [[nodiscard]] QBrush sheet() const;  ///< A light sheet, in place of the body.
    [[nodiscard]] QBrush tint() const;   ///< Quiet marks on a sheet.
    [[nodiscard]] QBrush ink() const;    ///< Strong marks on a sheet.
    [[nodiscard]] QBrush dark() const;   ///< Black glass.
    [[nodiscard]] QBrush of(Hue hue) const;
    [[nodiscard]] Shade shade(Hue hue) const;
    [[nodiscard]] Shade ownShade() const { return _own; }
    /// The colour of shadows that fall on the tile and on the sign's lower parts, at its full strength.
    [[nodiscard]] QRgb shadow() const;

private:
    [[nodiscard]] QBrush onSign(const Shade& shade) const;

    const Generation* _generation;
    Shade _own;
};

} // namespace zdt::assets
