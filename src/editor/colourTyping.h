#pragma once

#include <QColor>
#include <QString>

/// What an author types into the three fields of a colour: its digits, its alpha as two digits, and its opacity in
/// percent. No widget.
namespace zdt {

inline constexpr int typedColourDigits = 6;
inline constexpr int typedAlphaDigits = 2;

/// The hexadecimal digits of a text, in their order, at most `most` of them.
[[nodiscard]] QString keptHexDigits(const QString& text, int most);
/// The decimal digits of a text as a percentage: at most three of them, and never above 100.
[[nodiscard]] QString keptPercent(const QString& text);

/// An alpha from 0 to 255 of an opacity from 0 to 100 percent, rounded down.
[[nodiscard]] int alphaOfPercent(int percent);
/// The opacity of an alpha, rounded to the nearest percent.
[[nodiscard]] int percentOfAlpha(int alpha);

/// Two digits, in lower case.
[[nodiscard]] QString alphaDigits(int alpha);
/// "#aarrggbb", as the shared settings are set.
[[nodiscard]] QString composedColour(const QColor& colour);

} // namespace zdt
