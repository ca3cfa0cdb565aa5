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
    paintProgramSign(painter, picture.rect());
    return picture;
}

} // namespace

void paintProgramSign(QPainter& painter, const QRectF& place) {
    constexpr double grid = 24;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / grid, place.height() / grid);
    QLinearGradient ground(0, 0, grid, grid);
    ground.setColorAt(0, QColor(0x2C, 0x95, 0xFF));
    ground.setColorAt(1, token::accentFillHover);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(0, 0, grid, grid), 6, 6);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(7, 4, 10, 16), 2.2, 2.2);
    painter.setBrush(QColor(0x9F, 0xD0, 0xFF));
    painter.drawRoundedRect(QRectF(8.5, 12, 7, 6.5), 1.2, 1.2);
    painter.setBrush(QColor(0xFF, 0xB3, 0x4D));
    painter.drawEllipse(QPointF(13.6, 8), 1.9, 1.9);
    painter.restore();
}

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
