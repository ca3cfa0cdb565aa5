#include "shell/programIcon.h"

#include "kit/tokens.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>

#include <array>

namespace zdt {

namespace {

/// The sizes that window systems and pages ask for, in pixels.
constexpr std::array<int, 5> sides{16, 24, 32, 48, 96};

QPixmap draw(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 24.0, side / 24.0);
    QLinearGradient ground(0, 0, 24, 24);
    ground.setColorAt(0, QColor(0x2C, 0x95, 0xFF));
    ground.setColorAt(1, token::accentFillHover);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(0, 0, 24, 24), 6, 6);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(7, 4, 10, 16), 2.2, 2.2);
    painter.setBrush(QColor(0x9F, 0xD0, 0xFF));
    painter.drawRoundedRect(QRectF(8.5, 12, 7, 6.5), 1.2, 1.2);
    painter.setBrush(QColor(0xFF, 0xB3, 0x4D));
    painter.drawEllipse(QPointF(13.6, 8), 1.9, 1.9);
    return picture;
}

} // namespace

QIcon programIcon() {
    static const QIcon icon = [] {
        QIcon made;
        for (const int side : sides)
            made.addPixmap(draw(side));
        return made;
    }();
    return icon;
}

} // namespace zdt
