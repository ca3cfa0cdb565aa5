#pragma once

#include <QPushButton>

namespace zdt {

/// A button with a count behind its text, such as that of the problems; 0 shows none. With `alarm` the count stands
/// white on red right behind the text, otherwise red on a pale ground at the button's end.
class ZCountButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(int count READ count WRITE setCount)
    Q_PROPERTY(bool alarm MEMBER _alarm)

public:
    explicit ZCountButton(QWidget* parent = nullptr);

    [[nodiscard]] int count() const { return _count; }
    void setCount(int count);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int badgeWidth() const;

    int _count = 0;
    bool _alarm = false;
};

} // namespace zdt
