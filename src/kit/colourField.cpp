#include "kit/colourField.h"

#include "kit/checker.h"
#include "kit/swatch.h"
#include "kit/tokens.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace zdt {

namespace {

constexpr int full = 255;
constexpr int lastHue = 359;
constexpr int bigStep = 10;
constexpr int squareHeight = 152;
constexpr int stripHeight = 12;
constexpr int handleRadius = 7;
constexpr int comparisonSide = 40;

/// White with a dark edge: seen on every colour.
void paintHandle(QPainter& painter, const QPointF& at, const QColor& fill) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.drawEllipse(at, handleRadius, handleRadius);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawEllipse(at, handleRadius - 1.5, handleRadius - 1.5);
}

int steps(const QKeyEvent& event) {
    return event.modifiers().testFlag(Qt::ShiftModifier) ? bigStep : 1;
}

QLinearGradient rainbow(const QRectF& strip) {
    constexpr int parts = 6;
    QLinearGradient gradient(strip.topLeft(), strip.topRight());
    for (int part = 0; part <= parts; ++part)
        gradient.setColorAt(part / static_cast<double>(parts), QColor::fromHsv(part * 60 % 360, full, full));
    return gradient;
}

} // namespace

void HsvColour::goTo(const QColor& given) {
    alpha = given.alpha();
    if (given.rgb() == colour().rgb())
        return;
    value = given.value();
    if (value > 0)
        saturation = given.hsvSaturation();
    if (given.hsvHue() >= 0)
        hue = given.hsvHue();
}

ColourSquare::ColourSquare(QWidget* parent)
    : QWidget(parent) {
    setFixedHeight(squareHeight);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
}

void ColourSquare::setChoice(int hue, int saturation, int value) {
    _hue = hue;
    _saturation = saturation;
    _value = value;
    update();
}

void ColourSquare::moveTo(int saturation, int value) {
    const int inSaturation = std::clamp(saturation, 0, full);
    const int inValue = std::clamp(value, 0, full);
    if (inSaturation == _saturation && inValue == _value)
        return;
    setChoice(_hue, inSaturation, inValue);
    emit moved(inSaturation, inValue);
}

void ColourSquare::moveToPointer(const QPointF& position) {
    moveTo(static_cast<int>(std::lround(position.x() * full / std::max(1, width() - 1))),
           full - static_cast<int>(std::lround(position.y() * full / std::max(1, height() - 1))));
}

void ColourSquare::mousePressEvent(QMouseEvent* event) {
    moveToPointer(event->position());
}

void ColourSquare::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        moveToPointer(event->position());
}

void ColourSquare::keyPressEvent(QKeyEvent* event) {
    const int by = steps(*event);
    switch (event->key()) {
    case Qt::Key_Left:
        return moveTo(_saturation - by, _value);
    case Qt::Key_Right:
        return moveTo(_saturation + by, _value);
    case Qt::Key_Up:
        return moveTo(_saturation, _value + by);
    case Qt::Key_Down:
        return moveTo(_saturation, _value - by);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ColourSquare::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(rect(), token::radiusField, token::radiusField);
    QLinearGradient across(0, 0, width(), 0);
    across.setColorAt(0, Qt::white);
    across.setColorAt(1, QColor::fromHsv(_hue, full, full));
    painter.fillPath(shape, across);
    QLinearGradient down(0, 0, 0, height());
    down.setColorAt(0, Qt::transparent);
    down.setColorAt(1, Qt::black);
    painter.fillPath(shape, down);
    const QPointF at(_saturation * (width() - 1) / static_cast<double>(full),
                     (full - _value) * (height() - 1) / static_cast<double>(full));
    const double inset = handleRadius + .5;
    paintHandle(painter, {std::clamp(at.x(), inset, width() - inset), std::clamp(at.y(), inset, height() - inset)},
                QColor::fromHsv(_hue, _saturation, _value));
}

ColourSlider::ColourSlider(Kind kind, QWidget* parent)
    : QAbstractSlider(parent)
    , _kind(kind) {
    setOrientation(Qt::Horizontal);
    setRange(0, kind == Kind::hue ? lastHue : full);
    setPageStep(bigStep);
    setFixedHeight(2 * handleRadius + 2);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractSlider::valueChanged, this, qOverload<>(&QWidget::update));
}

void ColourSlider::setColour(const QColor& colour) {
    _colour = colour;
    update();
}

void ColourSlider::moveToPointer(double x) {
    const double span = std::max(1, width() - 2 * handleRadius);
    setValue(static_cast<int>(std::lround((x - handleRadius) * maximum() / span)));
}

void ColourSlider::mousePressEvent(QMouseEvent* event) {
    moveToPointer(event->position().x());
}

void ColourSlider::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        moveToPointer(event->position().x());
}

void ColourSlider::keyPressEvent(QKeyEvent* event) {
    const bool up = event->key() == Qt::Key_Right || event->key() == Qt::Key_Up;
    const bool down = event->key() == Qt::Key_Left || event->key() == Qt::Key_Down;
    if (up || down)
        setValue(value() + (up ? steps(*event) : -steps(*event)));
    else
        QAbstractSlider::keyPressEvent(event);
}

void ColourSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF strip(0, (height() - stripHeight) / 2.0, width(), stripHeight);
    QPainterPath shape;
    shape.addRoundedRect(strip, stripHeight / 2.0, stripHeight / 2.0);
    QColor opaque = _colour;
    opaque.setAlpha(full);
    if (_kind == Kind::hue) {
        painter.fillPath(shape, rainbow(strip));
    } else {
        painter.setClipPath(shape);
        paintChecker(painter, strip);
        QColor clear = opaque;
        clear.setAlpha(0);
        QLinearGradient fade(strip.topLeft(), strip.topRight());
        fade.setColorAt(0, clear);
        fade.setColorAt(1, opaque);
        painter.fillPath(shape, fade);
        painter.setClipping(false);
    }
    const double x = handleRadius + value() * (width() - 2.0 * handleRadius) / maximum();
    paintHandle(painter, {x, height() / 2.0}, _kind == Kind::hue ? QColor::fromHsv(value(), full, full) : opaque);
}

ColourComparison::ColourComparison(const QColor& before, QWidget* parent)
    : QWidget(parent)
    , _before(before)
    , _colour(before) {
    setFixedSize(comparisonSide, comparisonSide);
}

void ColourComparison::setColour(const QColor& colour) {
    _colour = colour;
    update();
}

void ColourComparison::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF place = rect();
    painter.setClipRect(place.adjusted(0, 0, -place.width() / 2, 0));
    paintSwatch(painter, place, _before, token::radiusField);
    painter.setClipRect(place.adjusted(place.width() / 2, 0, 0, 0));
    paintSwatch(painter, place, _colour, token::radiusField);
}

} // namespace zdt
