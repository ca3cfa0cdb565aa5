#pragma once

#include <QString>
#include <QWidget>

namespace zdt {

/// Lies over a window while something that it takes is dragged over it: a border inside the edge, and what happens if
/// it is let go.
class DropVeil : public QWidget {
public:
    explicit DropVeil(QWidget* window);

    void present(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString _text;
};

} // namespace zdt
