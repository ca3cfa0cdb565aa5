#pragma once

#include "kit/cellSource.h"

#include <QWidget>

#include <memory>

namespace zdt {

class CDrawPictrue;
class PreviewComposition;

/// A cell of the strip of screens: the composed preview in a frame, and its caption below. It takes no clicks of its
/// own: the view that holds it does.
class CCDrawPictureCell : public QWidget {
    Q_OBJECT

public:
    explicit CCDrawPictureCell(QWidget* parent = nullptr);

    /// Logical pixels. A wider cell has more room for its caption.
    static constexpr int leastWidth = 88;
    static constexpr int cellHeight = 186;

    void setComposition(std::shared_ptr<PreviewComposition> composition);
    /// In the present language; ends with an ellipsis, and shows in full as its tool tip, where it is too long.
    void setCaption(const QString& caption);
    [[nodiscard]] const QString& caption() const { return _caption; }
    /// As it stands in its view: the current one is the chosen screen.
    void setState(const CellState& state);
    /// Marks it with a border of 2 pixels, such as for a picture that is pointed at.
    void setHighlighted(bool isHighlighted);
    [[nodiscard]] bool isHighlighted() const { return _isHighlighted; }
    /// To be called after the composition was changed.
    void refresh();

    [[nodiscard]] CDrawPictrue& picture() const { return *_picture; }
    [[nodiscard]] QSize sizeHint() const override { return {leastWidth, cellHeight}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QRect framePlace() const;
    [[nodiscard]] QFont captionFont() const;
    void showCaption();

    CDrawPictrue* _picture;
    QString _caption;
    CellState _state;
    bool _isHighlighted = false;
};

} // namespace zdt
