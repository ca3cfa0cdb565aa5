#pragma once

#include <QString>
#include <QWidget>

namespace zdt {

/// The head of a group of rows, 32 high: its title, and at the right how many there are.
class GroupHead : public QWidget {
public:
    static constexpr int height = 32;

    using QWidget::QWidget;

    void setContent(const QString& title, int count);
    [[nodiscard]] const QString& title() const { return _title; }
    [[nodiscard]] QSize sizeHint() const override { return {0, height}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString _title;
    int _count = 0;
};

} // namespace zdt
