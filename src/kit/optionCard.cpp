#include "kit/optionCard.h"

#include "kit/fonts.h"
#include "kit/tokens.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zdt {

namespace {

constexpr int padding = 13;
constexpr int pictureGap = 12;
constexpr int markSide = 16;
constexpr int markLine = 5;
constexpr int nameHigh = 20;
constexpr int lineHigh = 16;
constexpr int linesBelow = 6;

QFont nameFont() {
    return textFont(token::textName, QFont::DemiBold);
}

QFont lineFont() {
    return textFont(token::textSmall);
}

} // namespace

ZOptionCard::ZOptionCard(QWidget* parent)
    : QAbstractButton(parent) {
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::StrongFocus);
    setProperty("focusRadius", token::radiusCard);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ZOptionCard::setLines(const QStringList& lines) {
    _lines = lines;
    setAccessibleDescription(lines.join(", "));
    updateGeometry();
    update();
}

void ZOptionCard::setPictureWidth(int width) {
    _pictureWidth = width;
    updateGeometry();
    update();
}

void ZOptionCard::setPicture(const QPixmap& picture) {
    _picture = picture;
    update();
}

QSize ZOptionCard::sizeHint() const {
    const QFontMetrics lines(lineFont());
    int wide = QFontMetrics(nameFont()).horizontalAdvance(text()) + pictureGap + markSide;
    for (const QString& line : _lines)
        wide = std::max(wide, lines.horizontalAdvance(line) + (_pictureWidth > 0 ? 0 : markSide + pictureGap));
    const int picture = _pictureWidth > 0 ? _pictureWidth + pictureGap : 0;
    const int texts = nameHigh + (_lines.isEmpty() ? 0 : linesBelow + lineHigh * static_cast<int>(_lines.size()));
    return {2 * padding + picture + wide, 2 * padding + texts};
}

void ZOptionCard::keyPressEvent(QKeyEvent* event) {
    // Some systems let Enter press every button; here it belongs to the dialog, as with radio buttons.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void ZOptionCard::enterEvent(QEnterEvent* event) {
    update();
    QAbstractButton::enterEvent(event);
}

void ZOptionCard::leaveEvent(QEvent* event) {
    update();
    QAbstractButton::leaveEvent(event);
}

void ZOptionCard::paintCard(QPainter& painter) const {
    const bool isOn = isChecked() && isEnabled();
    const double line = isOn ? 2 : 1;
    const QColor border = !isEnabled()   ? token::borderOff
                          : isOn         ? token::accent
                          : underMouse() ? token::fieldBorderHover
                                         : token::fieldBorder;
    painter.setPen(QPen(border, line));
    painter.setBrush(!isEnabled() ? token::fillOff : isOn ? token::cardChosen : isDown() ? token::window : token::card);
    const double half = line / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), token::radiusCard - half,
                            token::radiusCard - half);
}

void ZOptionCard::paintMark(QPainter& painter, const QPoint& centre) const {
    const QColor on = isEnabled() ? token::accentFill : token::fieldBorder;
    const QColor off = isEnabled() ? token::fieldBorderHover : token::borderOff;
    const double line = isChecked() ? markLine : 1;
    const double radius = (markSide - line) / 2.0;
    painter.setPen(QPen(isChecked() ? on : off, line));
    painter.setBrush(token::card);
    painter.drawEllipse(QPointF(centre), radius, radius);
}

void ZOptionCard::paintTexts(QPainter& painter, const QRect& place, int nameWidth) const {
    painter.setFont(nameFont());
    painter.setPen(isEnabled() ? token::text : token::textOff);
    const QString name = painter.fontMetrics().elidedText(text(), Qt::ElideRight, nameWidth);
    painter.drawText(QRect(place.left(), place.top(), nameWidth, nameHigh), Qt::AlignVCenter, name);
    painter.setFont(lineFont());
    painter.setPen(isEnabled() ? token::textSecond : token::textOff);
    int top = place.top() + nameHigh + (_pictureWidth > 0 ? linesBelow : 0);
    for (const QString& line : _lines) {
        const QString shown = painter.fontMetrics().elidedText(line, Qt::ElideRight, place.width());
        painter.drawText(QRect(place.left(), top, place.width(), lineHigh), Qt::AlignVCenter, shown);
        top += lineHigh;
    }
}

void ZOptionCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCard(painter);
    if (_pictureWidth == 0) {
        const int left = padding + markSide + pictureGap + 2;
        const int high = nameHigh + lineHigh * static_cast<int>(_lines.size());
        const QRect place(left, (height() - high) / 2, width() - left - padding, high);
        paintMark(painter, {padding + markSide / 2 + 2, height() / 2});
        paintTexts(painter, place, place.width());
        return;
    }
    QPainterPath corners;
    const QSizeF shown = _picture.deviceIndependentSize();
    corners.addRoundedRect(QRectF(QPointF(padding, padding), shown), token::radiusField, token::radiusField);
    painter.save();
    painter.setClipPath(corners);
    painter.drawPixmap(QPoint(padding, padding), _picture);
    painter.restore();
    const int left = padding + _pictureWidth + pictureGap;
    const QRect place(left, padding, width() - left - padding + 2, height() - 2 * padding);
    paintMark(painter, {width() - padding - markSide / 2, padding + nameHigh / 2});
    paintTexts(painter, place, place.width() - markSide - 4);
}

} // namespace zdt
