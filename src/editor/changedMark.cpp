#include "editor/changedMark.h"

#include "kit/kitStyle.h"
#include "kit/tokens.h"

#include <QIcon>
#include <QPainter>
#include <QPushButton>

namespace zdt {

QPixmap changedDot(int side, double ratio) {
    constexpr double radius = 3;
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::accent);
    painter.drawEllipse(QPointF(side / 2.0, side / 2.0), radius, radius);
    return picture;
}

void setChangedMark(QPushButton& button) {
    constexpr int side = 10;
    button.setIcon(changedDot(side, button.devicePixelRatioF()));
    button.setIconSize({side, side});
    setStyleProperty(&button, "withIcon", "text");
}

} // namespace zdt
