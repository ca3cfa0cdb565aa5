#include "kit/scrim.h"

#include "kit/baseDialog.h"
#include "kit/kitStyle.h"
#include "kit/shadow.h"
#include "kit/tokens.h"
#include "kit/window.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QGraphicsOpacityEffect>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QWheelEvent>

#include <algorithm>

namespace zdt {

Scrim::Scrim(QWidget* window, ZBaseDialog* dialog)
    : QWidget(window)
    , _dialog(dialog) {
    setObjectName("scrim");
    setAcceptDrops(true);
    cover();
    qApp->installEventFilter(this);
}

Scrim::~Scrim() {
    if (_dialog && _dialog->parentWidget() == this)
        _dialog->done(QDialog::Rejected);
}

void Scrim::cover() {
    const auto* framed = qobject_cast<const ZWindow*>(parentWidget());
    const int edge = framed && !framed->isMaximisedOrFull() ? 1 : 0;
    const int top = framed ? framed->titleHeight() : 0;
    setGeometry(parentWidget()->rect().adjusted(edge, top, -edge, -edge));
}

void Scrim::fitDialog() {
    const int least = _dialog->minimumWidth();
    const int chosen = std::min(std::max(least, _dialog->sizeHint().width()), _dialog->maximumWidth());
    QLayout* layout = _dialog->layout();
    layout->activate();
    // The height of texts that wrap follows from the width, which adjustSize() doesn't ask a fixed width for.
    const int height = layout->hasHeightForWidth() ? layout->totalHeightForWidth(chosen) : _dialog->sizeHint().height();
    _dialog->resize(QSize(chosen, std::max(height, _dialog->minimumHeight())));
}

QPoint Scrim::fitted(const QPoint& wished) const {
    return {std::max(0, std::min(wished.x(), width() - _dialog->width())),
            std::max(0, std::min(wished.y(), height() - _dialog->height()))};
}

void Scrim::present() {
    fitDialog();
    // A little above the middle, where the eye looks first.
    const QSize room = size() - _dialog->size();
    _dialog->move(fitted({room.width() / 2, room.height() * 2 / 5}));
    raise();
    show();
    if (!reducedMotion())
        fade();
}

void Scrim::fade() {
    auto* effect = new QGraphicsOpacityEffect(this);
    effect->setOpacity(0);
    setGraphicsEffect(effect);
    auto* animation = new QPropertyAnimation(effect, "opacity", this);
    animation->setDuration(token::fadeIn);
    animation->setEndValue(1.0);
    animation->setEasingCurve(QEasingCurve::OutCubic);
    connect(animation, &QPropertyAnimation::finished, this, [this] { setGraphicsEffect(nullptr); });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

bool Scrim::isOutside(QObject* watched) const {
    const auto* widget = qobject_cast<QWidget*>(watched);
    for (QObject* up = watched; !widget && up; up = up->parent())
        widget = qobject_cast<QWidget*>(up);
    return widget && widget->window() == window() && !isAncestorOf(widget);
}

bool Scrim::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        if (watched == parentWidget() && _dialog) {
            cover();
            _dialog->move(fitted(_dialog->pos()));
        }
        return false;
    // Another dialog over this one lies outside too, and its keys are not ours to take: only the top one judges.
    case QEvent::Shortcut:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
        return isOutside(watched) && isTop();
    case QEvent::FocusIn:
        if (isOutside(watched) && isTop())
            _dialog->setFocus();
        return false;
    default:
        return false;
    }
}

bool Scrim::isTop() const {
    const Scrim* top = nullptr;
    for (const QObject* child : parent()->children()) {
        const auto* scrim = qobject_cast<const Scrim*>(child);
        if (scrim && scrim->isVisible())
            top = scrim;
    }
    return top == this;
}

void Scrim::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::dim);
    paintShadow(painter, _dialog->geometry(), token::radiusCard, token::shadowDialog);
}

void Scrim::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Scrim::wheelEvent(QWheelEvent* event) {
    event->accept();
}

void Scrim::dragEnterEvent(QDragEnterEvent* event) {
    event->ignore();
}

} // namespace zdt
