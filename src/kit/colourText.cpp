#include "kit/colourText.h"

#include <algorithm>
#include <cmath>

namespace zdt {

namespace {

constexpr int opaque = 255;
constexpr int hexadecimal = 16;

bool isHexDigit(QChar sign) {
    const char16_t code = sign.toLower().unicode();
    return (code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f');
}

} // namespace

std::optional<QColor> colourOf(const QString& text) {
    QString digits = text.trimmed();
    if (digits.startsWith('#'))
        digits.remove(0, 1);
    const bool hasForm = digits.size() == colourDigits || digits.size() == alphaColourDigits;
    if (!hasForm || !std::all_of(digits.begin(), digits.end(), isHexDigit))
        return std::nullopt;
    const QRgb number = digits.toUInt(nullptr, hexadecimal);
    return digits.size() == colourDigits ? QColor(number) : QColor::fromRgba(number);
}

QString colourText(const QColor& colour) {
    return colour.name(colour.alpha() == opaque ? QColor::HexRgb : QColor::HexArgb);
}

QString shownDigits(const QColor& colour) {
    return colour.name(QColor::HexRgb).mid(1).toUpper();
}

QString hexDigitsOf(const QString& text) {
    QString digits;
    for (const QChar sign : text) {
        if (isHexDigit(sign) && digits.size() < alphaColourDigits)
            digits += sign.toUpper();
    }
    return digits;
}

int percentOf(const QColor& colour) {
    return static_cast<int>(std::lround(colour.alpha() * 100.0 / opaque));
}

QColor withPercent(const QColor& colour, int percent) {
    QColor result = colour;
    if (percent != percentOf(colour))
        result.setAlpha(static_cast<int>(std::lround(std::clamp(percent, 0, 100) * opaque / 100.0)));
    return result;
}

std::optional<QColor> typedColour(const QString& digits, const QColor& before) {
    std::optional<QColor> colour = colourOf(digits);
    if (colour && digits.size() == colourDigits)
        colour->setAlpha(before.alpha());
    return colour;
}

} // namespace zdt
