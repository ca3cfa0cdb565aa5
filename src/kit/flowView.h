#pragma once

#include "kit/cellView.h"

namespace zdt {

/// Cards in rows: as many to a row as fit with their least width, and wider where room is left, so that a row is full.
class ZFlowView : public CellView {
    Q_OBJECT

public:
    explicit ZFlowView(QWidget* parent = nullptr)
        : CellView(parent) {}

    /// Shows a source, which must outlive the view or be replaced; null for none.
    void setSource(ZFlowViewDataSource* source);

    /// Room around all cards: sideways at both ends, and above and below. 0 at first.
    void setMargins(int side, int end);
    [[nodiscard]] int columns() const { return _columns; }

protected:
    void measure() override;
    [[nodiscard]] QRect cellPlace(int index) const override;
    [[nodiscard]] int contentHeight() const override;
    [[nodiscard]] int firstBelow(int y) const override;
    [[nodiscard]] int stepOf(int key) const override;
    [[nodiscard]] int ringRadius() const override;
    /// Cards draw themselves.
    void paintGround(QPainter&, const QRect&, const CellState&) const override {}

private:
    QSize _least{1, 1};
    int _gap = 0;
    int _room = 1; ///< Width of a row of cards.
    int _columns = 1;
    int _side = 0;
    int _end = 0;
};

} // namespace zdt
