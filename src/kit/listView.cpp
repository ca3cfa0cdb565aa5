#include "kit/listView.h"

#include "kit/tokens.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace zdt {

void ZListView::setSource(ZListViewDataSource* source) {
    setCellSource(source);
}

void ZListView::setSideMargin(int margin) {
    _sideMargin = margin;
    relayout();
}

/// The rows are as wide with a scroll bar as without.
void ZListView::keepSideMargin() {
    const int bar = contentHeight() > maximumViewportSize().height() ? verticalScrollBar()->sizeHint().width() : 0;
    const QMargins wanted(_sideMargin, 0, std::max(0, _sideMargin - bar), 0);
    if (_sideMargin > 0 && viewportMargins() != wanted)
        setViewportMargins(wanted);
}

void ZListView::measure() {
    _ends.clear();
    const auto* source = static_cast<const ZListViewDataSource*>(cellSource());
    int end = 0;
    for (int index = 0; index < count(); ++index)
        _ends.push_back(end += std::max(1, source->rowHeight(index)));
    keepSideMargin();
}

QRect ZListView::cellPlace(int index) const {
    const auto at = static_cast<std::size_t>(index);
    const int top = at == 0 ? 0 : _ends[at - 1];
    return {0, top, viewport()->width(), _ends[at] - top};
}

int ZListView::contentHeight() const {
    return _ends.empty() ? 0 : _ends.back();
}

int ZListView::firstBelow(int y) const {
    return static_cast<int>(std::upper_bound(_ends.begin(), _ends.end(), y) - _ends.begin());
}

int ZListView::stepOf(int key) const {
    const int page = std::max(1, current() < 0 ? 1 : viewport()->height() / cellPlace(current()).height() - 1);
    switch (key) {
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Down:
        return 1;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    default:
        return 0;
    }
}

void ZListView::paintGround(QPainter& painter, const QRect& place, const CellState& state) const {
    CellView::paintGround(painter, place, state);
    painter.fillRect(QRect(place.left(), place.bottom(), place.width(), 1), token::hairlineRow);
}

} // namespace zdt
