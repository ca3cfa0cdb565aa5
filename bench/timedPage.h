#pragma once

#include "kit/skinFolder.h"
#include "support/files.h"

#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

/// What the benchmarks share that type into a page and look for the longest event handler.
namespace zdt {

using Clock = std::chrono::steady_clock;

/// Notes the longest of its outermost event handlers.
class TimedApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        ++_depth;
        const Clock::time_point begin = Clock::now();
        const bool taken = QApplication::notify(receiver, event);
        if (--_depth == 0)
            _longest = std::max(_longest, Clock::now() - begin);
        return taken;
    }

    /// Milliseconds since the last call.
    double takeLongest() {
        const std::chrono::duration<double, std::milli> longest = std::exchange(_longest, Clock::duration::zero());
        return longest.count();
    }

private:
    int _depth = 0;
    Clock::duration _longest = Clock::duration::zero();
};

/// A store with a new theme, which is the folder that the program works in.
class Store {
public:
    Store() {
        std::string folder = "/tmp/zdt-bench-XXXXXX";
        if (!::mkdtemp(folder.data()))
            throw std::runtime_error("no temporary folder");
        _root = folder + "/";
        std::filesystem::create_directory_symlink(ZDT_TEMPLATES_DIR "default9.1", _root + "default9.1");
        std::filesystem::create_directories(_root + std::string(skinFolderName));
        std::filesystem::create_directory_symlink(ZDT_TEMPLATES_DIR "skin/ZDThemeDesign/simplepic",
                                                  _root + std::string(skinFolderName) + "simplepic");
        for (const char* name : {"English.ini", "Chinese.ini", "Key.ini", "config.ini"}) {
            if (!copyFile(std::string(ZDT_SKIN_DIR) + name, _root + std::string(skinFolderName) + name))
                throw std::runtime_error("no words");
        }
        if (::chdir(_root.c_str()) != 0)
            throw std::runtime_error("no way into the store");
    }
    ~Store() { std::filesystem::remove_all(_root); }
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    [[nodiscard]] const std::string& root() const { return _root; }

private:
    std::string _root;
};

inline void settle() {
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(120);
    while (Clock::now() < end)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

inline void press(QWidget& field, int key, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &up);
    settle();
}

/// The `main` of a benchmark, on a screen in memory.
inline int runTimed(int argc, char* argv[], int (*run)(TimedApplication&)) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    TimedApplication application(argc, argv);
    return run(application);
}

} // namespace zdt
