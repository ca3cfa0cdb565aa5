#include "kit/windowFrame.h"

#include "kit/window.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace zdt {

namespace {

/// How far inside a window its edge can be taken hold of; corners reach further, as they are hard to hit.
constexpr int grip = 5;
constexpr int cornerGrip = 12;

Qt::CursorShape cursorFor(Qt::Edges edges) {
    if (edges == Qt::LeftEdge || edges == Qt::RightEdge)
        return Qt::SizeHorCursor;
    if (edges == Qt::TopEdge || edges == Qt::BottomEdge)
        return Qt::SizeVerCursor;
    const bool falling = edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

Qt::Edges within(const QSize& size, const QPoint& at, int distance) {
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, at.x() < distance);
    edges.setFlag(Qt::RightEdge, at.x() >= size.width() - distance);
    edges.setFlag(Qt::TopEdge, at.y() < distance);
    edges.setFlag(Qt::BottomEdge, at.y() >= size.height() - distance);
    return edges;
}

} // namespace

Qt::Edges edgesAt(const QSize& window, const QPoint& position) {
    if (!QRect(QPoint(), window).contains(position))
        return {};
    const Qt::Edges edges = within(window, position, grip);
    return edges ? edges | within(window, position, cornerGrip) : edges;
}

WindowResizer::WindowResizer(QWidget* window)
    : QObject(window)
    , _window(window) {
    qApp->installEventFilter(this);
}

bool WindowResizer::canResize() const {
    return !_window->isMaximized() && !_window->isFullScreen() && _window->windowHandle();
}

void WindowResizer::showCursor(Qt::Edges edges) {
    if (_cursorShown)
        QApplication::restoreOverrideCursor();
    _cursorShown = edges != Qt::Edges();
    if (_cursorShown)
        QApplication::setOverrideCursor(cursorFor(edges));
}

bool WindowResizer::eventFilter(QObject* watched, QEvent* event) {
    const bool moved = event->type() == QEvent::MouseMove;
    if (!moved && event->type() != QEvent::MouseButtonPress && event->type() != QEvent::Leave)
        return false;
    // The system's window hears each event first, before any widget that covers its edge.
    if (watched != _window->windowHandle())
        return false;
    if (event->type() == QEvent::Leave) {
        showCursor({});
        return false;
    }
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const Qt::Edges edges = canResize() ? edgesAt(_window->size(), mouse->position().toPoint()) : Qt::Edges();
    if (moved && mouse->buttons() == Qt::NoButton)
        showCursor(edges);
    return !moved && edges && mouse->button() == Qt::LeftButton && _window->windowHandle()->startSystemResize(edges);
}

TitleDrag::TitleDrag(QWidget* titleBar)
    : QObject(titleBar)
    , _titleBar(titleBar) {
    titleBar->installEventFilter(this);
}

void TitleDrag::dragFrom(const QPoint& position) {
    QWindow* window = _titleBar->window()->windowHandle();
    // Only a real move starts a drag: the system would swallow the second press of a double click.
    if (!_held || !window || (position - _pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    _held = false;
    window->startSystemMove();
}

void TitleDrag::doubleClick(const QMouseEvent& event) {
    // The first click may have been on a button that the click took away.
    const bool wasHere = event.timestamp() - _pressedAt <= static_cast<quint64>(QApplication::doubleClickInterval());
    auto* window = qobject_cast<ZWindow*>(_titleBar->window());
    if (window && wasHere && event.button() == Qt::LeftButton)
        window->toggleMaximised();
}

bool TitleDrag::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        _held = mouse->button() == Qt::LeftButton;
        _pressed = mouse->position().toPoint();
        _pressedAt = mouse->timestamp();
        return _held;
    }
    case QEvent::MouseMove:
        dragFrom(static_cast<QMouseEvent*>(event)->position().toPoint());
        return true;
    case QEvent::MouseButtonRelease:
        _held = false;
        return true;
    case QEvent::MouseButtonDblClick:
        _held = false;
        doubleClick(*static_cast<QMouseEvent*>(event));
        return true;
    default:
        return false;
    }
}

} // namespace zdt
