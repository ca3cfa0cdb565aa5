#include "kit/focusRing.h"

#include "kit/tokens.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>

namespace zdt {

namespace {

constexpr int reach = token::ringGap + token::ringWidth;

class RingOverlay : public QWidget {
public:
    RingOverlay() {
        setObjectName("focusRing");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

    void setRadius(double radius) { _radius = radius; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(token::accent, token::ringWidth));
        const double half = token::ringWidth / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), _radius, _radius);
    }

private:
    double _radius = token::radiusField;
};

bool isMoving(int key) {
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || (key >= Qt::Key_Left && key <= Qt::Key_Down);
}

bool takesRing(const QWidget& widget) {
    const QVariant wish = widget.property("focusRing");
    if (wish.isValid())
        return wish.toBool();
    const auto* combo = qobject_cast<const QComboBox*>(&widget);
    return !(combo && combo->isEditable()) && !qobject_cast<const QLineEdit*>(&widget) &&
           !qobject_cast<const QAbstractSpinBox*>(&widget) && !qobject_cast<const QAbstractScrollArea*>(&widget);
}

double ringRadius(const QWidget& widget) {
    const QVariant radius = widget.property("focusRadius");
    const double wanted = (radius.isValid() ? radius.toDouble() : token::radiusField) + token::ringGap + 1;
    return std::min(wanted, widget.height() / 2.0 + token::ringGap + 1);
}

/// What of the ring may be seen: a widget that was scrolled out of its area has none there.
QRegion visiblePart(const QWidget& widget, const QRect& ring) {
    QRect visible = ring;
    for (const QWidget* up = widget.parentWidget(); up && !up->isWindow(); up = up->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(up->parentWidget());
        if (area && area->viewport() == up)
            visible &= QRect(up->mapTo(up->window(), QPoint()), up->size()).adjusted(-reach, 0, reach, 0);
    }
    return visible.translated(-ring.topLeft());
}

QPointer<FocusRing>& theRing() {
    static QPointer<FocusRing> ring;
    return ring;
}

} // namespace

void FocusRing::install(QApplication& application) {
    if (!theRing())
        theRing() = new FocusRing(application);
}

FocusRing* FocusRing::instance() {
    return theRing();
}

bool FocusRing::byKeyboard() {
    return theRing() && theRing()->_byKeyboard;
}

FocusRing::FocusRing(QApplication& application)
    : QObject(&application) {
    application.installEventFilter(this);
    connect(&application, &QApplication::focusChanged, this, &FocusRing::follow);
}

void FocusRing::setByKeyboard(bool byKeyboard) {
    if (_byKeyboard == byKeyboard)
        return;
    _byKeyboard = byKeyboard;
    emit byKeyboardChanged(byKeyboard);
    follow();
}

void FocusRing::follow() {
    QWidget* focus = QApplication::focusWidget();
    if (!focus || !_byKeyboard || !takesRing(*focus) || !focus->isVisible()) {
        if (_ring)
            _ring->hide();
        return;
    }
    if (!_ring)
        _ring = new RingOverlay;
    if (_ring->parentWidget() != focus->window())
        _ring->setParent(focus->window());
    const QRect place(focus->mapTo(focus->window(), QPoint()), focus->size());
    const QRect ring = place.adjusted(-reach, -reach, reach, reach);
    static_cast<RingOverlay*>(_ring.data())->setRadius(ringRadius(*focus));
    _ring->setGeometry(ring);
    const QRegion visible = visiblePart(*focus, ring);
    _ring->setMask(visible);
    _ring->setVisible(!visible.isEmpty());
    _ring->raise();
}

void FocusRing::followSoon() {
    // Scrolling moves many widgets at once; the ring follows once for all of them.
    if (_following)
        return;
    _following = true;
    const auto now = [this] {
        _following = false;
        follow();
    };
    QMetaObject::invokeMethod(this, now, Qt::QueuedConnection);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (isMoving(static_cast<QKeyEvent*>(event)->key()))
            setByKeyboard(true);
        break;
    case QEvent::MouseButtonPress:
        setByKeyboard(false);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
    case QEvent::Hide:
    case QEvent::Show:
    case QEvent::EnabledChange:
        // Whatever moves may carry the focus with it; the ring's own moves are not followed.
        if (_byKeyboard && watched->isWidgetType() && watched != _ring)
            followSoon();
        break;
    default:
        break;
    }
    return false;
}

} // namespace zdt
