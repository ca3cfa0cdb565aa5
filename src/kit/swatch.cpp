#include "kit/swatch.h"

#include "kit/checker.h"
#include "kit/colourText.h"
#include "kit/tokens.h"

#include <QPainter>
#include <QPainterPath>

namespace zdt {

namespace {

constexpr int opaque = 255;
/// Dark enough for white, light enough to leave a colour as it is.
constexpr QColor edge(0, 0, 0, 46);

} // namespace

void paintSwatch(QPainter& painter, const QRectF& place, const QColor& colour, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(place, radius, radius);
    if (colour.alpha() < opaque) {
        painter.setClipPath(shape);
        paintChecker(painter, place);
        painter.setClipping(false);
    }
    painter.fillPath(shape, colour);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(edge);
    painter.drawRoundedRect(place.adjusted(.5, .5, -.5, -.5), radius, radius);
    painter.restore();
}

ZSwatch::ZSwatch(const QColor& colour, QWidget* parent)
    : QAbstractButton(parent)
    , _colour(colour) {
    setFixedSize(side, side);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    QString words = "#" + shownDigits(colour);
    if (colour.alpha() < opaque)
        words += QString(" %1%").arg(percentOf(colour));
    setToolTip(words);
    setAccessibleName(words);
}

void ZSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSwatch(painter, rect(), _colour, token::radiusField);
    if (!underMouse())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(token::accent, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), token::radiusField, token::radiusField);
}

} // namespace zdt
