#pragma once

#include <QLineEdit>

#include <optional>

namespace zdt {

/// A field of the hexadecimal digits of a colour, with a "#" before them. Whatever else is typed or pasted is left
/// out.
class ZHexField : public QLineEdit {
    Q_OBJECT

public:
    explicit ZHexField(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A field of an opacity in percent, 0 to 100, with the sign behind it. Up and Down change it by 1 where nobody else
/// takes these keys.
class ZPercentField : public QLineEdit {
    Q_OBJECT

public:
    explicit ZPercentField(QWidget* parent = nullptr);

    /// Nothing while the field is empty.
    [[nodiscard]] std::optional<int> percent() const;
    void setPercent(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace zdt
