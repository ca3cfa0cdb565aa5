#include "kit/cellView.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace zdt {

int CellView::selectableFrom(int index, int direction) const {
    while (index >= 0 && index < count() && !cellSource()->isSelectable(index))
        index += direction;
    return index >= 0 && index < count() ? index : -1;
}

void CellView::step(int by) {
    if (count() == 0)
        return;
    const int from = _current < 0 ? (by > 0 ? -1 : 0) : _current;
    const int wanted = std::clamp(_current < 0 && by > 0 ? 0 : from + by, 0, count() - 1);
    const int direction = by > 0 ? 1 : -1;
    int found = selectableFrom(wanted, direction);
    if (found < 0)
        found = selectableFrom(wanted, -direction);
    if (found >= 0)
        setCurrent(found);
    // The heads above the first cell are seen only by scrolling on.
    if (by < 0 && found == selectableFrom(0, 1))
        showCell(0);
}

void CellView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && _current >= 0) {
        emit activated(_current);
    } else if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
        event->ignore();
    } else if (const int by = event->key() == Qt::Key_Home  ? -count()
                              : event->key() == Qt::Key_End ? count()
                                                            : stepOf(event->key())) {
        step(by);
    } else {
        event->ignore();
    }
}

int CellView::indexAt(const QPoint& position) const {
    for (const auto& [index, cell] : _shown) {
        if (cell.widget->geometry().contains(position))
            return index;
    }
    return -1;
}

int CellView::selectableAt(const QPoint& position) const {
    const int index = indexAt(position);
    return index >= 0 && cellSource()->isSelectable(index) ? index : -1;
}

void CellView::mousePressEvent(QMouseEvent* event) {
    const int index = indexAt(event->position().toPoint());
    if (index >= 0)
        setCurrent(index);
}

void CellView::mouseDoubleClickEvent(QMouseEvent* event) {
    const int index = indexAt(event->position().toPoint());
    if (index >= 0 && index == _current && event->button() == Qt::LeftButton)
        emit activated(index);
}

void CellView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int index = byKey ? _current : indexAt(viewport()->mapFromGlobal(event->globalPos()));
    if (index < 0 || !cellSource()->isSelectable(index))
        return;
    const QPoint place = byKey ? viewport()->mapToGlobal(seenPlace(index).center()) : event->globalPos();
    emit menuRequested(index, place);
}

void CellView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    if (_current < 0 && event->reason() != Qt::MouseFocusReason && count() > 0)
        setCurrent(selectableFrom(0, 1));
    showStates();
}

void CellView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    showStates();
}

bool CellView::eventFilter(QObject* watched, QEvent* event) {
    if (_placing == 0 && (event->type() == QEvent::Enter || event->type() == QEvent::Leave)) {
        for (const auto& [index, cell] : _shown) {
            if (cell.widget == watched)
                _hovered = event->type() == QEvent::Enter && cellSource()->isSelectable(index) ? index : -1;
        }
        showStates();
    }
    return QAbstractScrollArea::eventFilter(watched, event);
}

} // namespace zdt
