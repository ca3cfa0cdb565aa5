#pragma once

#include "kit/icons.h"

#include <QPushButton>

#include <optional>

namespace zdt {

/// A chip that chooses what a list shows: a word, how many there are, and perhaps an icon in a colour of its own. Of
/// those below one parent exactly one is chosen; the arrow keys go from one to the next.
class ZCountChip : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(int count READ count WRITE setCount)

public:
    explicit ZCountChip(QWidget* parent = nullptr);

    [[nodiscard]] int count() const { return _count; }
    void setCount(int count);
    void setMark(Icon which, const QColor& colour);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont wordFont() const;
    [[nodiscard]] int contentWidth() const;

    struct Mark {
        Icon icon;
        QColor colour;
    };
    std::optional<Mark> _mark;
    int _count = 0;
};

} // namespace zdt
