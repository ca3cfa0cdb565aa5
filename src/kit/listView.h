#pragma once

#include "kit/cellView.h"

namespace zdt {

/// A list of rows as wide as the view, each as high as the source says.
class ZListView : public CellView {
    Q_OBJECT

public:
    explicit ZListView(QWidget* parent = nullptr)
        : CellView(parent) {}

    /// Shows a source, which must outlive the view or be replaced; null for none.
    void setSource(ZListViewDataSource* source);

protected:
    void measure() override;
    [[nodiscard]] QRect cellPlace(int index) const override;
    [[nodiscard]] int contentHeight() const override;
    [[nodiscard]] int firstBelow(int y) const override;
    [[nodiscard]] int stepOf(int key) const override;
    void paintGround(QPainter& painter, const QRect& place, const CellState& state) const override;

private:
    /// Where each row ends.
    std::vector<int> _ends;
};

} // namespace zdt
