#include "assets/skin/controlPictures.h"

#include "assets/art/faces.h"
#include "assets/art/shapes.h"
#include "canvas/screens/screenIcons.h"
#include "kit/tokens.h"

#include <numbers>

namespace zdt::assets {

namespace {

void drawSwitch(QPainter& painter, const QRectF& area, QColor track, bool isOn) {
    constexpr double gap = 2;
    drawRounded(painter, area, area.height() / 2, track.rgba());
    const double radius = area.height() / 2 - gap;
    const double x = isOn ? area.right() - gap - radius : area.left() + gap + radius;
    drawDisc(painter, {x, area.center().y()}, radius, token::card.rgba());
}

/// A bar across, and one down, in the middle of `area`.
void drawPlus(QPainter& painter, const QRectF& area, double length, QColor colour) {
    constexpr double weight = 2;
    const QPointF middle = area.center();
    painter.fillRect(QRectF(middle.x() - length / 2, middle.y() - weight / 2, length, weight), colour);
    painter.fillRect(QRectF(middle.x() - weight / 2, middle.y() - length / 2, weight, length), colour);
}

/// With a dash on the middle of each corner of a square.
void drawDashedEdge(QPainter& painter, const QRectF& area) {
    constexpr double radius = token::radiusField - 0.5;
    constexpr double corner = radius * std::numbers::pi / 2;
    constexpr int dashes = 8;
    constexpr double dash = 0.56;
    const double period = (area.width() - 1 - 2 * radius + corner) / dashes;
    QPen pen(token::fieldBorderHover, 1, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({period * dash, period * (1 - dash)});
    // The line begins with a corner.
    pen.setDashOffset((period * dash - corner) / 2 + period);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void drawRow(QPainter& painter, const QRectF& area, char32_t sign) {
    constexpr double margin = 8;
    drawRounded(painter, area, token::radiusField, token::rowSelected.rgba());
    painter.fillPath(signOutline(sign, area.adjusted(margin, margin, -margin, -margin)), token::accentText);
}

} // namespace

void paintSwitchOn(QPainter& painter, const QRectF& area) {
    drawSwitch(painter, area, token::accentFill, true);
}

void paintSwitchOff(QPainter& painter, const QRectF& area) {
    drawSwitch(painter, area, token::switchOff, false);
}

void paintUnchecked(QPainter& painter, const QRectF& area) {
    drawRounded(painter, area, area.height() / 2, token::card.rgba(), token::fieldBorderHover.rgba(), 1);
}

void paintUncheckedHover(QPainter& painter, const QRectF& area) {
    drawRounded(painter, area, area.height() / 2, token::card.rgba(), token::textLabel.rgba(), 1);
}

void paintChecked(QPainter& painter, const QRectF& area) {
    drawRounded(painter, area, area.height() / 2, token::accentFill.rgba());
    painter.setPen(QPen(token::card, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{4.75, 8.25}, {7, 10.5}, {11.25, 5.75}}));
}

void paintAddCell(QPainter& painter, const QRectF& area) {
    constexpr double length = 20;
    drawRounded(painter, area, token::radiusField, token::bar.rgba());
    drawDashedEdge(painter, area);
    drawPlus(painter, area, length, token::iconPlain);
}

void paintAdd(QPainter& painter, const QRectF& area) {
    constexpr double radius = 9;
    constexpr double length = 10;
    painter.setPen(QPen(token::accentText, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(area.center(), radius, radius);
    drawPlus(painter, area, length, token::accentText);
}

void paintRemove(QPainter& painter, const QRectF& area) {
    drawDisc(painter, area.center(), area.width() / 2, token::card.rgba());
    drawDisc(painter, area.center(), area.width() / 2 - 1, token::danger.rgba());
    painter.fillRect(QRectF(area.center().x() - 4, area.center().y() - 1, 8, 2), token::card);
}

void paintMessagesRow(QPainter& painter, const QRectF& area) {
    drawRow(painter, area, sign::sms);
}

void paintMusicRow(QPainter& painter, const QRectF& area) {
    drawRow(painter, area, sign::musicNote);
}

void paintUnlockRow(QPainter& painter, const QRectF& area) {
    drawRow(painter, area, sign::lockOpen);
}

} // namespace zdt::assets
