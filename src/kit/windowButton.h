#pragma once

#include <QAbstractButton>

namespace zdt {

/// One of the buttons at the end of a title bar, 46 by 47, drawn with lines of 10 pixels.
class WindowButton : public QAbstractButton {
    Q_OBJECT

public:
    enum class Kind { Minimise, Maximise, Restore, Close };

    WindowButton(Kind kind, QWidget* parent);

    void setKind(Kind kind);
    void setTexts(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    Kind _kind;
};

} // namespace zdt
