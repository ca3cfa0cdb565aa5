#include "kit/cellView.h"

#include "kit/focusRing.h"
#include "kit/tokens.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace zdt {

namespace {

/// Pixels that one notch of the wheel scrolls, by three steps.
constexpr int scrollStep = 20;

/// Notes for its life that a view is moving its cells.
class Placing {
public:
    explicit Placing(int& depth)
        : _depth(depth) {
        ++_depth;
    }
    ~Placing() { --_depth; }
    Placing(const Placing&) = delete;
    Placing& operator=(const Placing&) = delete;

private:
    int& _depth;
};

/// The ring of the current cell lies over the cells, 2 inside the row.
class CellRing : public QWidget {
public:
    explicit CellRing(QWidget* parent)
        : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName("cellRing");
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(QPen(token::accent, token::ringWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        const int half = token::ringWidth / 2;
        const int radius = property("radius").toInt();
        painter.setRenderHint(QPainter::Antialiasing, radius > 0);
        painter.drawRoundedRect(rect().adjusted(half, half, -half, -half), radius, radius);
    }
};

} // namespace

CellView::CellView(QWidget* parent)
    : QAbstractScrollArea(parent)
    , _ring(new CellRing(viewport())) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(scrollStep);
    _ring->hide();
    if (FocusRing* ring = FocusRing::instance())
        connect(ring, &FocusRing::byKeyboardChanged, this, &CellView::showStates);
}

void CellView::setCellSource(CellSource* source) {
    if (_source)
        _source->disconnect(this);
    freeCells(0, 0);
    for (const Cell& cell : _spare)
        delete cell.widget;
    _spare.clear();
    _source = source;
    _current = -1;
    if (source) {
        connect(source, &CellSource::reset, this, &CellView::start);
        connect(source, &CellSource::changed, this, &CellView::refill);
    }
    start();
}

void CellView::start() {
    const Placing placing(_placing);
    freeCells(0, 0);
    _hovered = -1;
    const int before = _current;
    _current = selectableFrom(std::min(_current, count() - 1), -1);
    relayout();
    findHovered();
    if (_current != before)
        emit currentChanged(_current);
}

void CellView::relayout() {
    measure();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, contentHeight() - viewport()->height()));
    placeCells();
}

QRect CellView::seenPlace(int index) const {
    return cellPlace(index).translated(0, -verticalScrollBar()->value());
}

void CellView::freeCells(int first, int end) {
    const Placing placing(_placing);
    for (auto at = _shown.begin(); at != _shown.end();) {
        if (at->first >= first && at->first < end) {
            ++at;
            continue;
        }
        at->second.widget->hide();
        _spare.push_back(at->second);
        at = _shown.erase(at);
    }
}

CellView::Cell CellView::takeCell(int kind) {
    const auto fitting =
        std::find_if(_spare.begin(), _spare.end(), [&](const Cell& cell) { return cell.kind == kind; });
    if (fitting != _spare.end()) {
        const Cell cell = *fitting;
        _spare.erase(fitting);
        return cell;
    }
    QWidget* widget = _source->makeCell(kind, viewport());
    widget->installEventFilter(this);
    return {widget, kind};
}

void CellView::placeCells() {
    const Placing placing(_placing);
    const int top = verticalScrollBar()->value();
    const int first = firstBelow(top);
    int end = first;
    while (end < count() && cellPlace(end).top() < top + viewport()->height())
        ++end;
    freeCells(first, end);
    for (int index = first; index < end; ++index) {
        const bool fresh = _shown.find(index) == _shown.end();
        if (fresh)
            _shown.emplace(index, takeCell(_source->kindOf(index)));
        QWidget* widget = _shown.at(index).widget;
        if (fresh)
            refill(index, index);
        widget->setGeometry(seenPlace(index));
        widget->show();
    }
    showStates();
}

void CellView::refill(int first, int last) {
    for (auto at = _shown.lower_bound(first); at != _shown.end() && at->first <= last; ++at) {
        _source->fillCell(at->second.widget, at->first);
        at->second.widget->setAccessibleName(_source->accessibleName(at->first));
        _source->showState(at->second.widget, at->first, stateOf(at->first));
    }
}

CellState CellView::stateOf(int index) const {
    const bool current = index == _current;
    return {current, index == _hovered, current && hasFocus() && FocusRing::byKeyboard()};
}

void CellView::showStates() {
    const Placing placing(_placing);
    for (const auto& [index, cell] : _shown)
        _source->showState(cell.widget, index, stateOf(index));
    const bool ringed = _current >= 0 && stateOf(_current).ringed;
    _ring->setProperty("radius", ringRadius());
    if (ringed)
        _ring->setGeometry(seenPlace(_current));
    _ring->setVisible(ringed);
    _ring->raise();
    viewport()->update();
}

QWidget* CellView::cellAt(int index) const {
    const auto found = _shown.find(index);
    return found == _shown.end() ? nullptr : found->second.widget;
}

int CellView::cellCount() const {
    return static_cast<int>(_shown.size() + _spare.size());
}

void CellView::setCurrent(int index) {
    if (index >= count() || index < -1 || (index >= 0 && !_source->isSelectable(index)))
        return;
    if (index >= 0)
        showCell(index);
    if (index == _current)
        return;
    _current = index;
    showStates();
    // A screen reader follows the view, which has the focus: it is told where the view stands.
    setAccessibleDescription(index < 0 ? QString() : _source->accessibleName(index));
    QAccessibleEvent moved(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&moved);
    emit currentChanged(index);
}

void CellView::showCell(int index) {
    const QRect place = cellPlace(index);
    QScrollBar* bar = verticalScrollBar();
    if (place.bottom() >= bar->value() + viewport()->height())
        bar->setValue(place.bottom() + 1 - viewport()->height());
    if (place.top() < bar->value())
        bar->setValue(place.top());
}

void CellView::paintGround(QPainter& painter, const QRect& place, const CellState& state) const {
    if (state.current)
        painter.fillRect(place, token::rowSelected);
    else if (state.hovered)
        painter.fillRect(place, token::rowHover);
}

void CellView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    for (const auto& [index, cell] : _shown)
        paintGround(painter, seenPlace(index), stateOf(index));
}

/// No event tells that another cell came under a pointer that stands still.
void CellView::findHovered() {
    const int hovered = underMouse() ? selectableAt(viewport()->mapFromGlobal(QCursor::pos())) : -1;
    if (hovered == _hovered)
        return;
    _hovered = hovered;
    showStates();
}

void CellView::resizeEvent(QResizeEvent*) {
    relayout();
}

void CellView::scrollContentsBy(int, int) {
    placeCells();
    findHovered();
}

} // namespace zdt
