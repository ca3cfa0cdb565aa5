#pragma once

#include <QFrame>
#include <QImage>
#include <QPixmap>

class QMimeData;
class QPushButton;
class QToolButton;

namespace zdt {

class ZElidedLabel;

/// The picture of a card: fitted into 96 by 192, or a dashed place where there is none.
class PreviewPictureView : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPictureView(QWidget* parent = nullptr);

    enum class State { empty, loading, shown, broken };
    void setState(State state, const QImage& picture = {});
    [[nodiscard]] State state() const { return _state; }
    /// What stands in the corner of a picture that isn't the template's; empty for nothing.
    void setMark(const QString& mark);
    [[nodiscard]] const QString& mark() const { return _mark; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintPicture(QPainter& painter) const;
    void paintMark(QPainter& painter) const;

    State _state = State::empty;
    QPixmap _picture;
    QString _mark;
};

/// A preview of the list: its picture, its name in words, and the button that replaces it or, where there is none, asks
/// for one. A picture that the program draws has its size in the place of the button. One file may be dropped on it.
///
/// What its signals lead to may take the card away, so that they carry their own names and are to be heard queued.
class PreviewCard : public QFrame {
    Q_OBJECT

public:
    PreviewCard(QString name, bool isDrawn, QWidget* parent);

    static constexpr int width = 124;
    static constexpr int height = 264;

    /// The picture's file name; also names the controls: `card_…`, `replace_…`, `remove_…`.
    [[nodiscard]] const QString& name() const { return _name; }
    [[nodiscard]] bool isDrawn() const { return !_button; }
    void setCaption(const QString& caption);
    /// The size in words, told by tool tip, or in the place of the button.
    void setSizeText(const QString& text);
    void setEmpty();
    void setLoading();
    /// Null for a file that can't be decoded.
    void setPicture(const QImage& picture);
    void setOwn(bool isOwn);
    /// Whether the author may take the picture away.
    void setRemovable(bool isRemovable);
    /// Says its words in the present language.
    void retell();
    /// Whether a file that is dropped on the window is meant for this one.
    void setCurrent(bool isCurrent);
    [[nodiscard]] PreviewPictureView& view() const { return *_view; }

signals:
    void replaceAsked(QString name);
    void removeAsked(QString name);
    void filesDropped(QString name, const QStringList& files);
    void touched(QString name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeButton();
    void makeRemove();
    void setHovered(bool isHovered);

    QString _name;
    QString _caption;
    PreviewPictureView* _view;
    ZElidedLabel* _label;
    QWidget* _foot;                 ///< The button, or the size of a picture that is drawn.
    QPushButton* _button = nullptr; ///< Null for a picture that is drawn.
    QToolButton* _remove;           ///< In the lower corner of the picture.
    bool _isOwn = false;
    bool _isCurrent = false;
    bool _isHovered = false;
};

/// The local files of what is dragged.
[[nodiscard]] QStringList draggedFiles(const QMimeData& data);

} // namespace zdt
