#include "kit/windowButton.h"

#include "kit/tokens.h"

#include <QEvent>
#include <QPainter>

namespace zdt {

namespace {

constexpr int side = 10;

void paintSign(QPainter& painter, const QString& sign, const QRectF& box) {
    if (sign == "minimise") {
        painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
    } else if (sign == "maximise") {
        painter.drawRect(box.adjusted(0, 0, -1, -1));
    } else if (sign == "restore") {
        painter.drawRect(box.adjusted(0, 2, -3, -1));
        painter.drawPolyline(
            QPolygonF({box.topLeft() + QPointF(2, 2), box.topLeft() + QPointF(2, 0), box.topRight() + QPointF(-1, 0),
                       box.bottomRight() + QPointF(-1, -3), box.bottomRight() + QPointF(-3, -3)}));
    } else {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(painter.pen().color(), 1.2));
        painter.drawLine(box.topLeft(), box.bottomRight());
        painter.drawLine(box.topRight(), box.bottomLeft());
    }
}

} // namespace

WindowButton::WindowButton(QWidget* parent)
    : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(46, token::titleBarHeight - 1);
}

bool WindowButton::event(QEvent* event) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        update();
    return QAbstractButton::event(event);
}

void WindowButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool closing = _sign == "close";
    const bool hot = underMouse() || isDown();
    if (hot && closing)
        painter.fillRect(rect(), isDown() ? token::closePressed : token::closeHover);
    else if (hot)
        painter.fillRect(rect(), isDown() ? token::quietPressed : token::quietHover);
    painter.setPen(QPen(hot && closing ? token::card : token::text, 1));
    const QPoint corner((width() - side) / 2, (height() - side) / 2 + 1);
    // Half a pixel in, so that lines of one pixel fill one row each.
    paintSign(painter, _sign, QRectF(corner, QSize(side, side)).translated(0.5, 0.5));
}

} // namespace zdt
