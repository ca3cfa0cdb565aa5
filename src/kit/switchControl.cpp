#include "kit/switchControl.h"

#include "kit/tokens.h"

#include <QPainter>

namespace zdt {

namespace {

QColor trackColour(const ZSwitch& control) {
    const bool on = control.isChecked();
    if (!control.isEnabled())
        return on ? token::switchOnDisabled : token::switchDisabled;
    if (control.isDown())
        return on ? token::accentFillPressed : token::switchOffPressed;
    if (control.underMouse())
        return on ? token::accentFillHover : token::switchOffHover;
    return on ? token::accentFill : token::switchOff;
}

} // namespace

ZSwitch::ZSwitch(QWidget* parent)
    : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(ZSwitch::sizeHint());
    setProperty("focusRadius", height() / 2);
}

void ZSwitch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(trackColour(*this));
    const double radius = height() / 2.0;
    painter.drawRoundedRect(QRectF(rect()), radius, radius);
    painter.setBrush(token::card);
    const bool right = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const double side = height() - 4;
    painter.drawEllipse(QRectF(right ? width() - side - 2 : 2, 2, side, side));
}

void ZSwitch::enterEvent(QEnterEvent* event) {
    update();
    QAbstractButton::enterEvent(event);
}

void ZSwitch::leaveEvent(QEvent* event) {
    update();
    QAbstractButton::leaveEvent(event);
}

} // namespace zdt
