#pragma once

#include <QAbstractButton>
#include <QPixmap>
#include <QStringList>

namespace zdt {

/// One of a few options of which exactly one holds, as a card: a radio mark, a name, up to three lines about it and
/// perhaps a picture. Cards below one parent belong together; the arrow keys choose the next of them, and Tab reaches
/// the chosen one.
///
/// With a picture, or with `pictureWidth` set for one that is to come, the mark stands at the upper right, otherwise
/// at the left. The button's text is its name.
class ZOptionCard : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QStringList lines READ lines WRITE setLines)
    /// Logical pixels; 0 for a card without a picture.
    Q_PROPERTY(int pictureWidth READ pictureWidth WRITE setPictureWidth)

public:
    explicit ZOptionCard(QWidget* parent = nullptr);

    [[nodiscard]] QStringList lines() const { return _lines; }
    void setLines(const QStringList& lines);
    [[nodiscard]] int pictureWidth() const { return _pictureWidth; }
    void setPictureWidth(int width);
    /// Shown at its own size, from the top. A null one leaves the place empty.
    void setPicture(const QPixmap& picture);
    [[nodiscard]] const QPixmap& picture() const { return _picture; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override { return rect().contains(position); }

private:
    void paintCard(QPainter& painter) const;
    void paintMark(QPainter& painter, const QPoint& centre) const;
    void paintTexts(QPainter& painter, const QRect& place, int nameWidth) const;

    QStringList _lines;
    QPixmap _picture;
    int _pictureWidth = 0;
};

} // namespace zdt
