#include "canvas/phoneView.h"

#include "canvas/drawPictrue.h"
#include "kit/shadow.h"
#include "kit/tokens.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace zdt {

namespace {

constexpr QColor bezelColour(0x11, 0x11, 0x11);
constexpr int bezel = 8;
constexpr int outerRadius = 30;
constexpr int screenRadius = outerRadius - bezel;
constexpr int margin = 21;
constexpr int leastWidth = 90;
constexpr std::array zoomSteps{50, 67, 80, 100, 125, 150, 175, 200};
/// An eighth of a degree is the wheel's unit; a notch of 15 degrees moves by 45 pixels.
constexpr double pixelsOfUnit = 45.0 / 120;

} // namespace

ZPhoneView::ZPhoneView(QWidget* parent)
    : QWidget(parent)
    , _picture(new CDrawPictrue(this)) {
    _picture->setRadius(screenRadius);
    _picture->setObjectName("phonePicture");
    connect(_picture, &CDrawPictrue::walked, this, &ZPhoneView::bringIntoView);
}

/// The screen's width at a zoom, twice of which is its height.
QSize ZPhoneView::screenSize() const {
    constexpr int around = 2 * (margin + bezel);
    const int fitting = std::max(leastWidth, std::min(width() - around, (height() - around) / 2));
    const int wide = qRound(fitting * _zoom / 100.0);
    return {wide, 2 * wide};
}

QRect ZPhoneView::phonePlace() const {
    return _picture->geometry().adjusted(-bezel, -bezel, bezel, bezel);
}

QSize ZPhoneView::sizeHint() const {
    return {2 * (margin + bezel) + 294, 2 * (margin + bezel) + 588};
}

QSize ZPhoneView::minimumSizeHint() const {
    return {2 * (margin + bezel) + leastWidth, 2 * (margin + bezel) + 2 * leastWidth};
}

bool ZPhoneView::canPan() const {
    constexpr int around = 2 * (margin + bezel);
    const QSize screen = screenSize();
    return screen.width() + around > width() || screen.height() + around > height();
}

/// Places the screen there, as far as the view isn't left with an empty side; in the middle where it fits.
void ZPhoneView::moveTo(const QPoint& place) {
    static constexpr int side = margin + bezel;
    const QSize screen = screenSize();
    const auto held = [](int wanted, int length, int room) {
        const int least = room - side - length;
        return least >= side ? (room - length) / 2 : std::clamp(wanted, least, side);
    };
    _screenPlace = {held(place.x(), screen.width(), width()), held(place.y(), screen.height(), height())};
    const QRect geometry(_screenPlace, screen);
    if (_picture->geometry() == geometry)
        return;
    if (_picture->size() != screen)
        _body = QPixmap();
    _picture->setGeometry(geometry);
    update();
}

/// Moves the phone as little as it takes to show a place of its screen; of a larger one its top left.
void ZPhoneView::bringIntoView(const QRect& place) {
    if (place.isEmpty() || !canPan())
        return;
    const auto moved = [](int wanted, int first, int length, int room) {
        const int last = std::min(wanted, room - margin - first - length);
        return std::max(last, margin - first);
    };
    moveTo({moved(_screenPlace.x(), place.x(), place.width(), width()),
            moved(_screenPlace.y(), place.y(), place.height(), height())});
}

void ZPhoneView::zoomAbout(const QPointF& point, int percent) {
    const int wanted = std::clamp(percent, minZoom, maxZoom);
    if (wanted == _zoom)
        return;
    const double before = _picture->width();
    const QPointF inside = point - _screenPlace;
    _zoom = wanted;
    const double factor = screenSize().width() / std::max(before, 1.0);
    moveTo((point - inside * factor).toPoint());
    emit zoomChanged(_zoom);
}

void ZPhoneView::setZoom(int percent) {
    zoomAbout(QRectF(rect()).center(), percent);
}

void ZPhoneView::zoomIn() {
    setZoom(*std::find_if(zoomSteps.begin(), zoomSteps.end() - 1, [this](int step) { return step > _zoom; }));
}

void ZPhoneView::zoomOut() {
    setZoom(*std::find_if(zoomSteps.rbegin(), zoomSteps.rend() - 1, [this](int step) { return step < _zoom; }));
}

/// The shadow takes long to draw, and the screen over it changes often.
void ZPhoneView::drawBody() {
    const double ratio = devicePixelRatioF();
    const QRect phone(QPoint(margin, margin), phonePlace().size());
    _body = QPixmap((QSizeF(phone.size() + 2 * QSize(margin, margin)) * ratio).toSize());
    _body.setDevicePixelRatio(ratio);
    _body.fill(Qt::transparent);
    QPainter painter(&_body);
    paintShadow(painter, phone, outerRadius, token::shadowPhone);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(bezelColour);
    painter.drawRoundedRect(phone, outerRadius, outerRadius);
}

void ZPhoneView::paintEvent(QPaintEvent*) {
    if (_body.isNull() || _body.devicePixelRatio() != devicePixelRatioF())
        drawBody();
    QPainter(this).drawPixmap(phonePlace().topLeft() - QPoint(margin, margin), _body);
}

void ZPhoneView::resizeEvent(QResizeEvent* event) {
    // What was in the middle of the view stays there.
    const QSize before = event->oldSize();
    const QPoint shift(before.isValid() ? (width() - before.width()) / 2 : 0,
                       before.isValid() ? (height() - before.height()) / 2 : 0);
    moveTo(_screenPlace + shift);
}

void ZPhoneView::wheelEvent(QWheelEvent* event) {
    const QPoint units = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        constexpr double ofNotch = 1.1;
        const double before = qRound(_wheelZoom) == _zoom ? _wheelZoom : _zoom;
        _wheelZoom = std::clamp<double>(before * std::pow(ofNotch, units.y() / 120.0), minZoom, maxZoom);
        zoomAbout(event->position(), qRound(_wheelZoom));
        return;
    }
    if (!canPan()) {
        event->ignore();
        return;
    }
    QPoint delta = event->pixelDelta().isNull() ? (QPointF(units) * pixelsOfUnit).toPoint() : event->pixelDelta();
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        delta = delta.transposed();
    moveTo(_screenPlace + delta);
}

void ZPhoneView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton || !canPan()) {
        event->ignore();
        return;
    }
    _grip = event->position().toPoint() - _screenPlace;
    setCursor(Qt::ClosedHandCursor);
}

void ZPhoneView::mouseMoveEvent(QMouseEvent* event) {
    if (_grip)
        moveTo(event->position().toPoint() - *_grip);
}

void ZPhoneView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton && _grip) {
        _grip.reset();
        unsetCursor();
    }
}

} // namespace zdt
