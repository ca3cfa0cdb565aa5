#pragma once

#include "editor/pictureCell.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zdt {

class PictureThumbnail;
class ZBadge;
class ZElidedLabel;

/// A row of the list of pictures. Children: `pictureName`, `pictureSize`, `pictureFormat`, `pictureError`,
/// `picturePath`, `pictureReset`; the button that uploads has the name that the content gives.
class CPictureItem : public PictureCell {
    Q_OBJECT

public:
    /// Logical pixels, the hairline below included.
    static constexpr int plainHeight = 77;
    static constexpr int tallHeight = 99; ///< With an error, or the path that was given.

    explicit CPictureItem(QWidget* parent);

    void fill(const PictureCellContent& content, Thumbnails& thumbnails) override;
    void setState(const CellState& state) override;
    [[nodiscard]] QList<QWidget*> controls() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeControls();
    void showReset();
    /// As much of the path as there is room for.
    void showPath();

    PictureThumbnail* _thumbnail;
    ZElidedLabel* _name;
    QLabel* _dot;
    ZBadge* _format;
    ZElidedLabel* _size;
    QPushButton* _reset;
    QPushButton* _upload;
    QLabel* _errorSign;
    ZElidedLabel* _error;
    QLineEdit* _path;
    QString _given; ///< The path that the author gave; empty for none.
    CellState _state;
    bool _isChanged = false;
    bool _isFailed = false;
};

} // namespace zdt
