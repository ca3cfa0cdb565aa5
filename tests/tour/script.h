#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace zdt::tour {

/// A list of things that a hand does in the window, one after the other. Each waits until what it needs is seen. What a
/// step opens may wait inside the step for its own end, as dialogs do: the next step then runs in the meantime.
class Script : public QObject {
public:
    /// @param window in which controls are looked for, its dialogs included
    /// @param folder of the screenshots
    Script(QWidget& window, QString folder);

    /// Clicks a control, once it is seen and can be clicked.
    void click(const QString& name);
    /// Replaces what stands in a field, by typing.
    void type(const QString& name, const QString& text);
    /// Presses a key in a control; in whatever has the keyboard for an empty name.
    void key(const QString& name, int key, Qt::KeyboardModifiers modifiers = {});
    /// Chooses a file or folder in the file chooser that is open.
    void choose(const QString& path);
    /// Saves what the whole screen shows.
    void shot(const QString& name);
    void waitFor(const QString& what, std::function<bool()> ready);
    void act(const QString& what, std::function<void()> act);
    /// Lets animations and work on other threads come to their end.
    void rest(int milliseconds);

    /// Runs all, and then `done` with whether every step found what it needed.
    void start(std::function<void(bool)> done);

private:
    struct Step {
        QString what;
        std::function<bool()> ready;
        std::function<void()> act;
    };

    void add(QString what, std::function<bool()> ready, std::function<void()> act);
    void tick();
    [[nodiscard]] QWidget* seen(const QString& name) const;

    QWidget& _window;
    QString _folder;
    std::vector<Step> _steps;
    std::size_t _next = 0;
    QElapsedTimer _waiting;
    std::function<void(bool)> _done;
};

} // namespace zdt::tour
