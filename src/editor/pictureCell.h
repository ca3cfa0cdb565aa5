#pragma once

#include "editor/pictureEntry.h"
#include "kit/cellSource.h"
#include "kit/thumbnails.h"

#include <QString>
#include <QStringList>
#include <QWidget>

class QMimeData;

namespace zdt {

/// What a cell shows of a picture.
struct PictureCellContent {
    PictureEntry entry;
    bool changed = false; ///< Whether it differs from the template's.
    /// Of the controls: "<module>|<preview>|<key>|picture|button".
    QString controlName;
};

/// A picture in a list or a grid: its thumbnail, its name and what can be done with it. Files may be dropped on it.
class PictureCell : public QWidget {
    Q_OBJECT

public:
    explicit PictureCell(QWidget* parent);

    virtual void fill(const PictureCellContent& content, Thumbnails& thumbnails) = 0;
    virtual void setState(const CellState& state) = 0;
    /// The controls of the cell that Tab visits while it is the current one, in order.
    [[nodiscard]] virtual QList<QWidget*> controls() const = 0;

signals:
    void uploadClicked();
    void resetClicked();
    /// The picture itself was clicked: it may be saved elsewhere.
    void saveClicked();
    void filesDropped(const QStringList& files);

protected:
    /// Whether files are being held above the cell.
    [[nodiscard]] bool isDropTarget() const { return _isDropTarget; }
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool _isDropTarget = false;
};

/// The head of a group of pictures: its title, where on the phone it is seen, and how many it has. Children:
/// `pictureGroup`, `pictureGroupPlace`, `pictureGroupCount`.
class PictureHead : public QWidget {
    Q_OBJECT

public:
    /// @param side the space at the left, logical pixels
    PictureHead(int side, QWidget* parent);

    void fill(const PictureGroup& group, int count);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The files and folders that are dragged; none where a theme is among them, which is for the window to take.
[[nodiscard]] QStringList draggedPictures(const QMimeData& data);

/// What a tip says of a picture: what it is, its file and its size.
[[nodiscard]] QString pictureTip(const PictureCellContent& content);

} // namespace zdt
