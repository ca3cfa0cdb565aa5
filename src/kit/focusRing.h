#pragma once

#include <QObject>
#include <QPointer>

class QApplication;
class QWidget;

namespace zdt {

/// The one ring around what has the keyboard's focus, in whichever window. It shows after Tab or an arrow key and goes
/// with the next click. Fields show their focus by their border and views by a ring in the row, so it isn't drawn
/// around them; nor around a widget whose property `focusRing` is false. `focusRadius` gives the corners of a widget
/// (default 4).
class FocusRing : public QObject {
    Q_OBJECT

public:
    /// Makes the ring of the program; a second call does nothing.
    static void install(QApplication& application);
    /// The ring of the program, or null before `install`.
    [[nodiscard]] static FocusRing* instance();

    /// Whether the focus was moved by keys last.
    [[nodiscard]] static bool byKeyboard();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void byKeyboardChanged(bool byKeyboard);

private:
    explicit FocusRing(QApplication& application);

    void setByKeyboard(bool byKeyboard);
    void follow();
    void followSoon();

    bool _byKeyboard = false;
    bool _following = false;
    QPointer<QWidget> _ring;
};

} // namespace zdt
