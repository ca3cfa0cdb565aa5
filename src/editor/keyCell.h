#pragma once

#include "kit/cellSource.h"
#include "kit/icons.h"
#include "model/typeMask.h"

#include <QColor>
#include <QImage>
#include <QRect>
#include <QString>
#include <QWidget>

#include <optional>

namespace zdt {

/// Where the parts of a row of the full list lie, in logical pixels from its left.
struct KeyColumns {
    int dot = 14; ///< The middle.
    int swatch = 24;
    int key = 60;
    int keyWidth = 0;
    int value = 0;
    int valueWidth = 0;
    int generations = 0;
    int applies = 0;
    int appliesWidth = 0; ///< 0 where there is no room for it.
};

/// The columns of a row that wide: a narrow one has no last column, a wide one longer keys.
[[nodiscard]] KeyColumns keyColumns(int width);

/// Of a row, without the hairline below it.
inline constexpr int keyRowHeight = 32;
inline constexpr int swatchSide = 20;

/// What a row shows.
struct KeyCellContent {
    QString name;
    bool changed = false;
    std::optional<QColor> colour;
    QImage thumbnail;
    Icon icon = Icon::TextFields; ///< Where there is neither.
    QString value;
    QString detail;       ///< Behind the value, in grey: an opacity.
    bool isMuted = false; ///< Whether the value only tells that there is none.
    TypeMask generations = 0;
    QString appliesTo;
};

/// A row of the full list. It is painted, so that hundreds of them pass by quickly.
class KeyCell : public QWidget {
    Q_OBJECT

public:
    explicit KeyCell(QWidget* parent);

    void setContent(const KeyCellContent& content);
    void setState(const CellState& state);
    /// The texts of the tips, in the language of the moment.
    void setChangedTip(const QString& tip) { _changedTip = tip; }

signals:
    void swatchClicked();
    /// The value of the row that was current before the click.
    void valueClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    enum class Part { none, swatch, value };

    [[nodiscard]] Part partAt(const QPoint& position) const;
    void paintSign(QPainter& painter) const;
    void paintValue(QPainter& painter, const KeyColumns& columns) const;
    void paintGenerations(QPainter& painter, int left) const;
    [[nodiscard]] QString tipAt(const QPoint& position) const;

    KeyCellContent _content;
    CellState _state;
    Part _pressed = Part::none;
    QString _changedTip;
};

} // namespace zdt
