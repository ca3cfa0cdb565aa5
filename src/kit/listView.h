#pragma once

#include "kit/cellView.h"

namespace zdt {

/// A list of rows as wide as the view, each as high as the source says.
class ZListView : public CellView {
    Q_OBJECT
    Q_PROPERTY(int sideMargin READ sideMargin WRITE setSideMargin)

public:
    explicit ZListView(QWidget* parent = nullptr)
        : CellView(parent) {}

    /// Shows a source, which must outlive the view or be replaced; null for none.
    void setSource(ZListViewDataSource* source);

    /// The space at both sides of the rows, in which the scroll bar stands; 0 at first.
    [[nodiscard]] int sideMargin() const { return _sideMargin; }
    void setSideMargin(int margin);

protected:
    void measure() override;
    [[nodiscard]] QRect cellPlace(int index) const override;
    [[nodiscard]] int contentHeight() const override;
    [[nodiscard]] int firstBelow(int y) const override;
    [[nodiscard]] int stepOf(int key) const override;
    void paintGround(QPainter& painter, const QRect& place, const CellState& state) const override;

private:
    void keepSideMargin();

    int _sideMargin = 0;
    /// Where each row ends.
    std::vector<int> _ends;
};

} // namespace zdt
