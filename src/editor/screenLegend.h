#pragma once

#include <QColor>
#include <QFrame>

class QLabel;

namespace zdt {

class ZElidedLabel;

/// The card beside the phone that names what the pointer is on, and in how many places of the screen it is.
class ScreenLegend : public QFrame {
public:
    static constexpr int cardWidth = 160;

    explicit ScreenLegend(QWidget* parent);

    void setContent(const QString& name, const QString& places);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* _name;
    QLabel* _places;
};

} // namespace zdt
