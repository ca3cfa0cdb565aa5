#pragma once

#include "kit/controlSearch.h"
#include "kit/messageBoxDlg.h"

#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWidget>

namespace zdt::test {

/// Answers the message boxes of a window while a test waits inside the call that shows them, and keeps what they said.
class BoxAnswers {
public:
    /// @param button the name of the one that is pressed in each box: "messageAccept" or "messageReject"
    explicit BoxAnswers(QWidget& window, const char* button = "messageAccept")
        : _window(window)
        , _button(button) {
        QObject::connect(&_timer, &QTimer::timeout, [this] { look(); });
        again();
    }

    [[nodiscard]] const QStringList& said() const { return _said; }

private:
    void again() {
        _timer.setSingleShot(true);
        _timer.start(5);
    }

    void look() {
        again(); // A press may open the next box before it comes back.
        auto* box = _window.findChild<ZMessageBoxDlg*>();
        if (!box || !box->isVisible())
            return;
        _said += FindControl<QLabel>(box, "messageText").text();
        auto* pressed = tryFindControl<QPushButton>(box, _button);
        QTest::mouseClick(pressed ? pressed : &FindControl<QPushButton>(box, "messageAccept"), Qt::LeftButton);
    }

    QWidget& _window;
    QString _button;
    QStringList _said;
    QTimer _timer;
};

} // namespace zdt::test
