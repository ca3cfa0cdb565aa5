#include "shell/dropVeil.h"

#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/tokens.h"

#include <QFontMetrics>
#include <QPainter>

namespace zdt {

namespace {

constexpr int plateHeight = 48;
constexpr int platePadding = 20;
constexpr int iconSide = 20;

} // namespace

DropVeil::DropVeil(QWidget* window)
    : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropVeil::present(const QString& text) {
    _text = text;
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

void DropVeil::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(255, 255, 255, 153));
    painter.setPen(QPen(token::accent, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(2, 2, -2, -2));
    const QFont font = textFont(token::textTitle, QFont::DemiBold);
    const int width = QFontMetrics(font).horizontalAdvance(_text) + 2 * platePadding + iconSide + 8;
    QRect plate(0, 0, width, plateHeight);
    plate.moveCenter(rect().center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::accentFill);
    painter.drawRoundedRect(plate, token::radiusCard, token::radiusCard);
    const QRect icon(plate.left() + platePadding, plate.center().y() - iconSide / 2 + 1, iconSide, iconSide);
    paintIcon(painter, icon, Icon::DriveFolderUpload, token::card);
    painter.setFont(font);
    painter.setPen(token::card);
    painter.drawText(plate.adjusted(platePadding + iconSide + 8, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, _text);
}

} // namespace zdt
