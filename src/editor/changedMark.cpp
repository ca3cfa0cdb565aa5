#include "editor/changedMark.h"

#include "kit/kitStyle.h"
#include "kit/tokens.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace zdt {

void setChangedMark(QPushButton& button) {
    constexpr int side = 10;
    constexpr double radius = 3;
    const double ratio = button.devicePixelRatioF();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::accent);
    painter.drawEllipse(QPointF(side / 2.0, side / 2.0), radius, radius);
    painter.end();
    button.setIcon(picture);
    button.setIconSize({side, side});
    setStyleProperty(&button, "withIcon", "text");
}

} // namespace zdt
