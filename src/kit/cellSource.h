#pragma once

#include <QObject>
#include <QSize>
#include <QString>

class QWidget;

namespace zdt {

/// How a cell stands in its view.
struct CellState {
    bool current = false;
    bool hovered = false;
    /// Current in a view that has the focus, moved there by keys.
    bool ringed = false;

    bool operator==(const CellState&) const = default;
};

/// What a view of cells shows. A view makes widgets for the cells that are seen and fills them again for others.
class CellSource : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual int count() const = 0;
    /// Makes an empty cell of a kind; the view owns it.
    [[nodiscard]] virtual QWidget* makeCell(int kind, QWidget* parent) = 0;
    /// Makes a cell show what is at `index`, whatever it showed before.
    virtual void fillCell(QWidget* cell, int index) = 0;
    /// What a screen reader says of the cell.
    [[nodiscard]] virtual QString accessibleName(int index) const = 0;

    /// Cells of one kind can be filled with each other's content.
    [[nodiscard]] virtual int kindOf(int /*index*/) const { return 0; }
    /// False for heads and the like, which can't become current.
    [[nodiscard]] virtual bool isSelectable(int /*index*/) const { return true; }
    /// For cells that show their state themselves.
    virtual void showState(QWidget* /*cell*/, int /*index*/, const CellState& /*state*/) {}

signals:
    /// All may be different: the count, the order, the heights.
    void reset();
    /// The content of the cells from `first` to `last`, both inclusive, is different.
    void changed(int first, int last);
};

/// What a list shows.
class ZListViewDataSource : public CellSource {
    Q_OBJECT

public:
    using CellSource::CellSource;

    /// Logical pixels, the hairline below the row included.
    [[nodiscard]] virtual int rowHeight(int index) const = 0;
};

/// What a view of cards shows.
class ZFlowViewDataSource : public CellSource {
    Q_OBJECT

public:
    using CellSource::CellSource;

    /// The least width of a cell, and its height; logical pixels.
    [[nodiscard]] virtual QSize cellSize() const = 0;
    /// Between cells, sideways and downwards.
    [[nodiscard]] virtual int gap() const { return 16; }
};

} // namespace zdt
