#pragma once

#include <QAbstractButton>

namespace zdt {

/// A switch of 32 by 18 that is on or off at once.
class ZSwitch : public QAbstractButton {
    Q_OBJECT

public:
    explicit ZSwitch(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {32, 18}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

} // namespace zdt
