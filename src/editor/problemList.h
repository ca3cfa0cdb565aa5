#pragma once

#include "editor/problemRows.h"
#include "kit/cellSource.h"
#include "kit/thumbnails.h"

#include <QPixmap>

#include <functional>
#include <string>
#include <vector>

namespace zdt {

/// The problems of a theme as a list shows them: heads of groups, and below each the rows in one card.
class ProblemList : public ZListViewDataSource {
    Q_OBJECT

public:
    explicit ProblemList(QObject* parent);

    using Filter = std::function<bool(const ProblemRow&)>;
    /// Shows those of the rows that pass the filter. They stand group by group.
    void show(const std::vector<ProblemRow>& rows, const Filter& filter);

    /// The row at an index; null for a head.
    [[nodiscard]] const ProblemRow* rowAt(int index) const;
    /// The index of a problem; -1 if it isn't shown.
    [[nodiscard]] int indexOf(const Problem& problem) const;

    [[nodiscard]] int count() const override { return static_cast<int>(_lines.size()); }
    [[nodiscard]] int rowHeight(int index) const override;
    [[nodiscard]] int kindOf(int index) const override { return rowAt(index) ? 0 : 1; }
    [[nodiscard]] bool isSelectable(int index) const override { return rowAt(index) != nullptr; }
    [[nodiscard]] QString accessibleName(int index) const override;
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    void showState(QWidget* cell, int index, const CellState& state) override;

signals:
    void goToClicked(int index);
    void restoreClicked(int index);
    /// A cell that is current was filled, or one that is filled became current.
    void currentShown(QWidget* cell);

private:
    struct Line {
        std::string group;
        int count = 0; ///< Of a head's group.
        int row = -1;  ///< Among `_rows`; -1 for a head.
    };
    [[nodiscard]] const Line& line(int index) const { return _lines[static_cast<std::size_t>(index)]; }
    [[nodiscard]] bool isHead(int index) const { return index >= count() || line(index).row < 0; }
    [[nodiscard]] QPixmap thumbnail(const std::string& path, double ratio);

    std::vector<ProblemRow> _rows;
    std::vector<Line> _lines;
    Thumbnails _thumbnails;
};

} // namespace zdt
