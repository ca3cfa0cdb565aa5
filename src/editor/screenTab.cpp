#include "editor/screenTab.h"

#include "kit/fonts.h"
#include "kit/tokens.h"

#include <QPainter>

#include <algorithm>

namespace zdt {

namespace {
constexpr int tabHeight = 48;
constexpr int lineHeight = 2;
constexpr int badgeGap = 6;
constexpr int badgeHeight = 18;
constexpr int badgePadding = 6;
} // namespace

ScreenTab::ScreenTab(QWidget* parent)
    : QPushButton(parent) {
    setCheckable(true);
    setAutoExclusive(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

void ScreenTab::setCount(int count) {
    _count = count;
    setAccessibleName(QString("%1, %2").arg(text()).arg(count));
    updateGeometry();
    update();
}

QFont ScreenTab::wordFont() const {
    return textFont(token::textBody, isChecked() ? QFont::DemiBold : QFont::Medium);
}

int ScreenTab::badgeWidth() const {
    const int digits =
        QFontMetrics(textFont(token::textTiny, QFont::DemiBold)).horizontalAdvance(QString::number(_count));
    return std::max(badgeHeight, digits + 2 * badgePadding);
}

QSize ScreenTab::sizeHint() const {
    const int word = QFontMetrics(textFont(token::textBody, QFont::DemiBold)).horizontalAdvance(text());
    return {word + badgeGap + badgeWidth(), tabHeight};
}

void ScreenTab::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(wordFont());
    const QColor ink = isChecked() || underMouse() ? token::accentText : token::textLabel;
    painter.setPen(ink);
    const QRect room = rect().adjusted(0, 0, -badgeWidth() - badgeGap, 0);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, text());
    const QRectF badge(width() - badgeWidth(), (tabHeight - badgeHeight) / 2.0, badgeWidth(), badgeHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? token::rowSelected : token::quietHover);
    painter.drawRoundedRect(badge, badgeHeight / 2.0, badgeHeight / 2.0);
    painter.setPen(isChecked() ? token::accentText : token::textSecond);
    painter.setFont(textFont(token::textTiny, QFont::DemiBold));
    painter.drawText(badge, Qt::AlignCenter, QString::number(_count));
    if (isChecked())
        painter.fillRect(0, height() - lineHeight, width(), lineHeight, token::accent);
}

} // namespace zdt
