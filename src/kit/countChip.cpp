#include "kit/countChip.h"

#include "kit/fonts.h"
#include "kit/tokens.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace zdt {

namespace {

constexpr int high = 28;
constexpr int padding = 13;
constexpr int gap = 6;
constexpr int markSide = 16;

} // namespace

ZCountChip::ZCountChip(QWidget* parent)
    : QPushButton(parent) {
    setProperty("kind", "chip");
    setProperty("focusRadius", token::radiusChip);
    setCheckable(true);
    setAutoExclusive(true);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ZCountChip::setCount(int count) {
    if (_count == count)
        return;
    _count = count;
    setAccessibleDescription(QString::number(count));
    updateGeometry();
    update();
}

void ZCountChip::setMark(Icon which, const QColor& colour) {
    _mark = Mark{which, colour};
    updateGeometry();
    update();
}

/// A chip has one width, chosen or not.
QFont ZCountChip::wordFont() const {
    return textFont(token::textSmall, isChecked() ? QFont::DemiBold : QFont::Medium);
}

int ZCountChip::contentWidth() const {
    const QFontMetrics widest(textFont(token::textSmall, QFont::DemiBold));
    return (_mark ? markSide + gap : 0) + widest.horizontalAdvance(text()) + gap +
           widest.horizontalAdvance(QString::number(_count));
}

QSize ZCountChip::sizeHint() const {
    return {contentWidth() + 2 * padding, high};
}

void ZCountChip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    const QFont font = wordFont();
    const int wordWidth = QFontMetrics(font).horizontalAdvance(text());
    const QString number = QString::number(_count);
    const int shown = (_mark ? markSide + gap : 0) + wordWidth + gap + QFontMetrics(font).horizontalAdvance(number);
    int left = (width() - shown) / 2;
    if (_mark) {
        paintIcon(painter, QRectF(left, (height() - markSide) / 2.0, markSide, markSide), _mark->icon, _mark->colour);
        left += markSide + gap;
    }
    const QColor word = !isEnabled() ? token::textOff : isChecked() ? token::accentText : token::text;
    painter.setFont(font);
    painter.setPen(word);
    painter.drawText(QRect(left, 0, width() - left, height()), Qt::AlignVCenter, text());
    left += wordWidth + gap;
    painter.setPen(isEnabled() && !isChecked() ? token::textSecond : word);
    painter.drawText(QRect(left, 0, width() - left, height()), Qt::AlignVCenter, number);
}

} // namespace zdt
