#include "editor/colourTyping.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr int mostPercent = 100;
constexpr int percentDigits = 3;
constexpr int opaque = 255;

template <typename Keep>
QString kept(const QString& text, int most, Keep keep) {
    QString result;
    for (const QChar sign : text) {
        if (keep(sign) && result.size() < most)
            result += sign;
    }
    return result;
}

bool isDigit(QChar sign) {
    return sign >= u'0' && sign <= u'9';
}

bool isHexDigit(QChar sign) {
    return isDigit(sign) || (sign >= u'a' && sign <= u'f') || (sign >= u'A' && sign <= u'F');
}

} // namespace

QString keptHexDigits(const QString& text, int most) {
    return kept(text, most, isHexDigit);
}

QString keptPercent(const QString& text) {
    const QString digits = kept(text, percentDigits, isDigit);
    return digits.toInt() > mostPercent ? QString::number(mostPercent) : digits;
}

int alphaOfPercent(int percent) {
    return std::clamp(percent, 0, mostPercent) * opaque / mostPercent;
}

int percentOfAlpha(int alpha) {
    return static_cast<int>(std::clamp(alpha, 0, opaque) * 100.0 / 255.0 + 0.5);
}

QString alphaDigits(int alpha) {
    return QString("%1").arg(alpha, typedAlphaDigits, 16, QChar('0'));
}

QString composedColour(const QColor& colour) {
    return QString("#%1%2").arg(alphaDigits(colour.alpha())).arg(colour.rgb() & 0xffffffU, 6, 16, QChar('0'));
}

} // namespace zdt
