#pragma once

#include <QColor>
#include <QString>

#include <optional>

/// Colours as a theme writes them: `#rrggbb`, or `#aarrggbb` with the alpha in front; opaque ones are written without
/// it.
namespace zdt {

/// The digits of a colour without and with its alpha.
inline constexpr int colourDigits = 6;
inline constexpr int alphaColourDigits = 8;

/// The colour of a text in the theme's form, in letters of either case, with or without the "#"; blanks around it are
/// left out. Nothing for any other text.
[[nodiscard]] std::optional<QColor> colourOf(const QString& text);

/// The theme's form of a colour, in lower case.
[[nodiscard]] QString colourText(const QColor& colour);

/// The six digits of a colour as a field shows them, in upper case, with neither "#" nor alpha.
[[nodiscard]] QString shownDigits(const QColor& colour);

/// What of a text can stand in a field of hexadecimal digits: at most the first eight of them, in upper case.
[[nodiscard]] QString hexDigitsOf(const QString& text);

/// The opacity of a colour in percent, 0 to 100, rounded.
[[nodiscard]] int percentOf(const QColor& colour);

/// The colour with an opacity in percent. One that shows this percentage already keeps its exact alpha.
[[nodiscard]] QColor withPercent(const QColor& colour, int percent);

/// A colour that was typed as six or eight digits: eight bring their alpha, six keep that of `before`. Nothing for any
/// other number of digits.
[[nodiscard]] std::optional<QColor> typedColour(const QString& digits, const QColor& before);

} // namespace zdt
