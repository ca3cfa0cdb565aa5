#pragma once

#include <QAbstractSlider>
#include <QColor>
#include <QWidget>

namespace zdt {

/// A colour as the colour dialog moves in it: a grey keeps the hue it came from, and black its saturation too.
struct HsvColour {
    int hue = 0;        ///< Degrees, 0 to 359.
    int saturation = 0; ///< 0 to 255, as the value and the alpha.
    int value = 0;
    int alpha = 255;

    [[nodiscard]] QColor colour() const { return QColor::fromHsv(hue, saturation, value, alpha); }
    /// Goes to a colour, and leaves what that doesn't tell.
    void goTo(const QColor& colour);
};

/// The square of all colours of one hue: saturation grows to the right, value upwards. The arrow keys move the choice
/// by 1, with Shift by 10.
class ColourSquare : public QWidget {
    Q_OBJECT

public:
    explicit ColourSquare(QWidget* parent = nullptr);

    void setChoice(int hue, int saturation, int value);

signals:
    /// The author moved the choice.
    void moved(int saturation, int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void moveTo(int saturation, int value);
    void moveToPointer(const QPointF& position);

    int _hue = 0;
    int _saturation = 0;
    int _value = 0;
};

/// A slider over a strip of colours. The arrow keys move it by 1, with Shift by 10.
class ColourSlider : public QAbstractSlider {
    Q_OBJECT

public:
    enum class Kind { hue, alpha };

    ColourSlider(Kind kind, QWidget* parent = nullptr);

    /// What a slider of alphas fades, and what the handle of either shows.
    void setColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void moveToPointer(double x);

    Kind _kind;
    QColor _colour;
};

/// The colour that was, at the left, beside the one that is tried.
class ColourComparison : public QWidget {
public:
    ColourComparison(const QColor& before, QWidget* parent = nullptr);

    void setColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor _before;
    QColor _colour;
};

} // namespace zdt
