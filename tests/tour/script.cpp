#include "tour/script.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

#include <cstdio>
#include <utility>

namespace zdt::tour {

namespace {

constexpr int pause = 60;        ///< Between two steps, in milliseconds.
constexpr int patience = 60'000; ///< Until a step that can't begin ends the tour.

} // namespace

Script::Script(QWidget& window, QString folder)
    : QObject(&window)
    , _window(window)
    , _folder(std::move(folder)) {}

QWidget* Script::seen(const QString& name) const {
    if (name.isEmpty())
        return QApplication::focusWidget();
    for (QWidget* top : QApplication::topLevelWidgets()) {
        for (QWidget* widget : top->findChildren<QWidget*>(name)) {
            if (widget->isVisible() && widget->isEnabled())
                return widget;
        }
    }
    return nullptr;
}

void Script::add(QString what, std::function<bool()> ready, std::function<void()> act) {
    _steps.push_back({std::move(what), std::move(ready), std::move(act)});
}

void Script::click(const QString& name) {
    add(
        "click " + name, [this, name] { return seen(name) != nullptr; },
        [this, name] { QTest::mouseClick(seen(name), Qt::LeftButton); });
}

void Script::type(const QString& name, const QString& text) {
    add(
        "type into " + name, [this, name] { return seen(name) != nullptr; },
        [this, name, text] {
            QWidget* field = seen(name);
            field->setFocus();
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
            if (text.isEmpty())
                QTest::keyClick(field, Qt::Key_Delete);
            // An input method brings what no key of the keyboard has.
            QInputMethodEvent input;
            input.setCommitString(text);
            QApplication::sendEvent(field, &input);
        });
}

void Script::key(const QString& name, int key, Qt::KeyboardModifiers modifiers) {
    add(
        "press a key in " + name, [this, name] { return seen(name) != nullptr; },
        [this, name, key, modifiers] { QTest::keyClick(seen(name), static_cast<Qt::Key>(key), modifiers); });
}

void Script::choose(const QString& path) {
    const auto dialog = [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); };
    add(
        "choose " + path, [dialog] { return dialog() != nullptr; },
        [dialog, path] {
            auto* name = dialog()->findChild<QLineEdit*>("fileNameEdit");
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
}

void Script::shot(const QString& name) {
    rest(350);
    act("screenshot " + name, [this, name] {
        const QString path = _folder + "/" + name + ".png";
        if (!QApplication::primaryScreen()->grabWindow(0).save(path))
            std::fprintf(stderr, "tour: can't write %s\n", qPrintable(path));
    });
}

void Script::waitFor(const QString& what, std::function<bool()> ready) {
    add(what, std::move(ready), [] {});
}

void Script::act(const QString& what, std::function<void()> act) {
    add(
        what, [] { return true; }, std::move(act));
}

void Script::rest(int milliseconds) {
    add(
        "rest", [this, milliseconds] { return _waiting.elapsed() >= milliseconds; }, [] {});
}

void Script::start(std::function<void(bool)> done) {
    _done = std::move(done);
    _waiting.start();
    QTimer::singleShot(pause, this, &Script::tick);
}

void Script::tick() {
    if (_next == _steps.size()) {
        _done(true);
        return;
    }
    const Step& step = _steps[_next];
    if (!step.ready()) {
        if (_waiting.elapsed() > patience) {
            std::fprintf(stderr, "tour: stuck before: %s\n", qPrintable(step.what));
            QApplication::primaryScreen()->grabWindow(0).save(_folder + "/stuck.png");
            _done(false);
            return;
        }
        QTimer::singleShot(pause, this, &Script::tick);
        return;
    }
    ++_next;
    _waiting.restart();
    // Before the step, which may not come back before the next one was taken.
    QTimer::singleShot(pause, this, &Script::tick);
    step.act();
}

} // namespace zdt::tour
