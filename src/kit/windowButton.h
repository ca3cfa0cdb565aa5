#pragma once

#include <QAbstractButton>

namespace zdt {

/// One of the buttons at the end of a title bar, 46 by 47, drawn with lines of 10 pixels. `sign` is "minimise",
/// "maximise", "restore" or "close".
class WindowButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString sign MEMBER _sign)

public:
    explicit WindowButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString _sign;
};

} // namespace zdt
