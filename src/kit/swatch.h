#pragma once

#include <QAbstractButton>
#include <QColor>

class QPainter;
class QRectF;

namespace zdt {

/// Draws a colour, over a checkerboard where it is see-through, with rounded corners and an edge that is seen on any
/// ground.
void paintSwatch(QPainter& painter, const QRectF& place, const QColor& colour, double radius);

/// A small square of a colour that can be chosen. Its tip and its accessible name are the colour's digits.
class ZSwatch : public QAbstractButton {
    Q_OBJECT

public:
    static constexpr int side = 22;

    explicit ZSwatch(const QColor& colour, QWidget* parent = nullptr);

    [[nodiscard]] const QColor& colour() const { return _colour; }
    [[nodiscard]] QSize sizeHint() const override { return {side, side}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor _colour;
};

} // namespace zdt
