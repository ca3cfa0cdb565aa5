#pragma once

#include <QPushButton>

namespace zdt {

/// One of the tabs above the rows of a screen: a word, and how many rows there are. The one that is chosen has a line
/// below it.
class ScreenTab : public QPushButton {
public:
    explicit ScreenTab(QWidget* parent);

    void setCount(int count);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont wordFont() const;
    [[nodiscard]] int badgeWidth() const;

    int _count = 0;
};

} // namespace zdt
