#pragma once

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWidget;

namespace zdt {

/// The edges of `window`, both inclusive, under a place in it (logical pixels from its corner); none inside.
[[nodiscard]] Qt::Edges edgesAt(const QSize& window, const QPoint& position);

/// Lets the system resize a window without a frame when it is dragged at an edge or corner.
class WindowResizer : public QObject {
public:
    explicit WindowResizer(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showCursor(Qt::Edges edges);
    [[nodiscard]] bool canResize() const;

    QWidget* _window;
    bool _cursorShown = false;
};

/// Makes the empty parts of a title bar drag its window, and a double click maximise it or give it its old size.
class TitleDrag : public QObject {
public:
    explicit TitleDrag(QWidget* titleBar);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dragFrom(const QPoint& position);
    void doubleClick(const QMouseEvent& event);

    QWidget* _titleBar;
    QPoint _pressed;
    bool _held = false;
    quint64 _pressedAt = 0; ///< Milliseconds, of the last press on an empty part.
};

} // namespace zdt
