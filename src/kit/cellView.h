#pragma once

#include "kit/cellSource.h"

#include <QAbstractScrollArea>
#include <QPointer>

#include <map>
#include <vector>

namespace zdt {

/// What lists and card views share: cells only for what is seen, one current cell, the pointer and the keys. Arrows,
/// Home, End and the page keys move the current cell, Enter and a double click activate it.
class CellView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit CellView(QWidget* parent);

    /// The index of the current cell, or -1.
    [[nodiscard]] int current() const { return _current; }
    /// Makes a cell current and shows it; -1 for none. An index that isn't there or can't be current changes nothing.
    void setCurrent(int index);
    /// Scrolls as little as it takes to see the whole cell.
    void showCell(int index);
    /// The widget of a cell that is seen, else null. It may show another one after the next scrolling.
    [[nodiscard]] QWidget* cellAt(int index) const;
    /// How many widgets there are for cells.
    [[nodiscard]] int cellCount() const;

signals:
    void currentChanged(int index);
    void activated(int index);
    /// The menu of a cell was asked for, by the right button or by key; global position.
    void menuRequested(int index, const QPoint& position);

protected:
    void setCellSource(CellSource* source);
    [[nodiscard]] CellSource* cellSource() const { return _source; }
    [[nodiscard]] int count() const { return _source ? _source->count() : 0; }

    /// Measures all cells anew for the width of the viewport.
    virtual void measure() = 0;
    /// Where a cell lies, from the top left of all that can be scrolled.
    [[nodiscard]] virtual QRect cellPlace(int index) const = 0;
    [[nodiscard]] virtual int contentHeight() const = 0;
    /// The first cell that ends below `y`; `count()` if there is none.
    [[nodiscard]] virtual int firstBelow(int y) const = 0;
    /// How many cells a key passes: 0 for one that moves nothing.
    [[nodiscard]] virtual int stepOf(int key) const = 0;
    /// Measures, and places the cells again.
    void relayout();
    /// The corners of the ring around the current cell.
    [[nodiscard]] virtual int ringRadius() const { return 0; }
    /// Draws what lies under a cell, in the viewport.
    virtual void paintGround(QPainter& painter, const QRect& place, const CellState& state) const;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] CellState stateOf(int index) const;

private:
    struct Cell {
        QWidget* widget;
        int kind;
    };

    void start();
    void placeCells();
    void freeCells(int first, int end);
    [[nodiscard]] Cell takeCell(int kind);
    void refill(int first, int last);
    void findHovered();
    void showStates();
    void step(int by);
    [[nodiscard]] int selectableFrom(int index, int direction) const;
    [[nodiscard]] int selectableAt(const QPoint& position) const;
    [[nodiscard]] int indexAt(const QPoint& position) const;
    [[nodiscard]] QRect seenPlace(int index) const;

    QPointer<CellSource> _source;
    std::map<int, Cell> _shown;
    std::vector<Cell> _spare;
    QWidget* _ring;
    int _current = -1;
    int _hovered = -1;
    /// Above 0 while cells come, go and change: each that is hidden or shown under the pointer tells that it is left or
    /// entered, which is not to be answered then.
    int _placing = 0;
};

} // namespace zdt
