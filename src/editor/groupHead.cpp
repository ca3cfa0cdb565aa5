#include "editor/groupHead.h"

#include "kit/fonts.h"
#include "kit/tokens.h"

#include <QPainter>

namespace zdt {

namespace {
constexpr int side = 16;
constexpr int gap = 8;
} // namespace

void GroupHead::setContent(const QString& title, int count) {
    _title = title;
    _count = count;
    setAccessibleName(QString("%1, %2").arg(title).arg(count));
    update();
}

void GroupHead::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), token::bar);
    painter.fillRect(0, QWidget::height() - 1, width(), 1, token::hairlineRow);
    const QRect room = rect().adjusted(side, 0, -side, 0);
    const QString count = QString::number(_count);
    painter.setFont(textFont(token::textSmall));
    painter.setPen(token::textSecond);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, count);
    const int countWidth = painter.fontMetrics().horizontalAdvance(count);
    painter.setFont(textFont(token::textSmall, QFont::DemiBold));
    painter.setPen(token::textLabel);
    const QString title = painter.fontMetrics().elidedText(_title, Qt::ElideRight, room.width() - countWidth - gap);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, title);
}

} // namespace zdt
