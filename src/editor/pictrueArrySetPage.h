#pragma once

#include "editor/pictureGrid.h"
#include "editor/pictureSet.h"
#include "kit/cellView.h"

class QLabel;
class QPushButton;

namespace zdt {

class PictureThumbnail;
class ZElidedLabel;

/// A picture of the grid. Children: `pictureName`, `pictureSize`, `pictureReset`; the button that uploads has the name
/// that the content gives.
class CPictrueArryItem : public PictureCell {
    Q_OBJECT

public:
    explicit CPictrueArryItem(QWidget* parent);

    void fill(const PictureCellContent& content, Thumbnails& thumbnails) override;
    void setState(const CellState& state) override;
    [[nodiscard]] QList<QWidget*> controls() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PictureThumbnail* _thumbnail;
    QPushButton* _reset;
    ZElidedLabel* _name;
    ZElidedLabel* _size;
    QPushButton* _upload;
    CellState _state;
    bool _isChanged = false;
};

/// The view of the grid: each group's head across it, and below it the pictures in rows. Cells are made for what is
/// seen alone.
class PictureGridView : public CellView {
    Q_OBJECT

public:
    explicit PictureGridView(QWidget* parent);

    void setSource(PictureSource* source);
    [[nodiscard]] int columns() const { return _columns; }

protected:
    void measure() override;
    [[nodiscard]] QRect cellPlace(int index) const override;
    [[nodiscard]] int contentHeight() const override { return _layout.height; }
    [[nodiscard]] int firstBelow(int y) const override;
    [[nodiscard]] int stepOf(int key) const override;
    [[nodiscard]] int ringRadius() const override;
    /// Cells draw themselves.
    void paintGround(QPainter&, const QRect&, const CellState&) const override {}

private:
    [[nodiscard]] int rowStep(int direction) const;

    GridLayout _layout;
    int _columns = 1;
};

/// The pictures of a screen as a grid. The grid is its child `pictureGrid`.
class CPictrueArrySetPage : public PictureSet {
    Q_OBJECT

public:
    explicit CPictrueArrySetPage(QWidget* parent = nullptr);

    /// This object for "CPictrueArrySetPage" and "IContainer"; null for any other name.
    [[nodiscard]] void* GetInterface(const QString& name);
};

} // namespace zdt
