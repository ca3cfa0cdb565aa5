#include "kit/flowView.h"

#include "kit/tokens.h"

#include <algorithm>

namespace zdt {

void ZFlowView::setSource(ZFlowViewDataSource* source) {
    setCellSource(source);
}

void ZFlowView::setMargins(int side, int end) {
    _side = side;
    _end = end;
    relayout();
}

void ZFlowView::measure() {
    if (const auto* source = static_cast<const ZFlowViewDataSource*>(cellSource())) {
        _least = source->cellSize().expandedTo({1, 1});
        _gap = std::max(0, source->gap());
    }
    // The scroll bar lies in the margin, so that cards stay where they are when it comes.
    _room = std::max(_least.width(), std::min(width() - 2 * _side, viewport()->width() - _side));
    _columns = std::max(1, (_room + _gap) / (_least.width() + _gap));
}

QRect ZFlowView::cellPlace(int index) const {
    const int column = index % _columns;
    // Edges are rounded, not widths, so that the last column ends exactly at the margin.
    const auto edge = [&](int at) { return _side + at * (_room + _gap) / _columns; };
    const int top = _end + index / _columns * (_least.height() + _gap);
    return {edge(column), top, edge(column + 1) - _gap - edge(column), _least.height()};
}

int ZFlowView::contentHeight() const {
    const int rows = (count() + _columns - 1) / _columns;
    return rows == 0 ? 0 : 2 * _end + rows * (_least.height() + _gap) - _gap;
}

int ZFlowView::firstBelow(int y) const {
    const int row = std::max(0, y - _end + _gap) / (_least.height() + _gap);
    return std::min(count(), row * _columns);
}

int ZFlowView::ringRadius() const {
    return token::radiusCard;
}

int ZFlowView::stepOf(int key) const {
    const int rows = std::max(1, viewport()->height() / (_least.height() + _gap));
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
        return current() >= 0 && current() < _columns ? 0 : -_columns;
    case Qt::Key_Down:
        return _columns;
    case Qt::Key_PageUp:
        return -rows * _columns;
    case Qt::Key_PageDown:
        return rows * _columns;
    default:
        return 0;
    }
}

} // namespace zdt
