#include "kit/countButton.h"

#include "kit/fonts.h"
#include "kit/tokens.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace zdt {

namespace {

constexpr int badgeHeight = 18;
constexpr int badgePadding = 5;
constexpr int badgeGap = 8;
constexpr int badgeMargin = 14; ///< Between the badge and the button's end.

QFont badgeFont() {
    return textFont(token::textTiny, QFont::DemiBold);
}

} // namespace

ZCountButton::ZCountButton(QWidget* parent)
    : QPushButton(parent) {}

void ZCountButton::setCount(int count) {
    if (count == _count)
        return;
    _count = count;
    updateGeometry();
    update();
}

int ZCountButton::badgeWidth() const {
    const int digits = QFontMetrics(badgeFont()).horizontalAdvance(QString::number(_count));
    return std::max(badgeHeight, digits + 2 * badgePadding);
}

QSize ZCountButton::sizeHint() const {
    const QSize plain = QPushButton::sizeHint();
    return _count > 0 ? plain + QSize(badgeGap + badgeWidth() + 1, 0) : plain;
}

void ZCountButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    if (_count <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF badge(width() - badgeMargin - badgeWidth(), (height() - badgeHeight) / 2, badgeWidth(), badgeHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(!isEnabled() ? token::quietPressed : _alarm ? token::dangerText : token::dangerBack);
    painter.drawRoundedRect(badge, badgeHeight / 2.0, badgeHeight / 2.0);
    painter.setPen(!isEnabled() ? token::textOff : _alarm ? token::card : token::dangerText);
    painter.setFont(badgeFont());
    painter.drawText(badge, Qt::AlignCenter, QString::number(_count));
}

} // namespace zdt
