#include "editor/fullListPage.h"
#include "kit/controlSearch.h"
#include "kit/kitStyle.h"
#include "kit/localisation.h"
#include "kit/skinFolder.h"
#include "kit/workbench.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

/// A word is typed letter by letter into the search of the full list, with a real big theme of generation 9, and taken
/// back. Prints the longest event handler in milliseconds; a frame at 60 Hz leaves 16 to it.
namespace zdt {
namespace {

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

void settle() {
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(120);
    while (Clock::now() < end)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

void press(QWidget& field, int key, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &up);
    settle();
}

int run(TimedApplication& application) {
    const Store store;
    if (!applyKitStyle(application, QStringList{ZDT_SKIN_DIR}))
        return EXIT_FAILURE;
    LoadKeys();
    SetLanguage(englishLanguage);
    Workbench bench{SkinLoader(QStringList{ZDT_SKIN_DIR}), store.root()};
    bench.takeTheme(ThemeResource::createTheme("T", 2, 0, false, true, store.root()));
    CFullListPage page(bench, nullptr);
    page.resize(1080, 727);
    page.show();
    page.focusSearch();
    settle();
    auto& search = FindControl<QLineEdit>(&page, "keySearch");
    std::printf("first            %7.2f ms\n", application.takeLongest());
    double longest = 0;
    constexpr std::string_view word = "background";
    for (std::size_t round = 0; round < 5; ++round) {
        for (const char letter : word)
            press(search, letter - 'a' + Qt::Key_A, QString(QChar(letter)));
        for (std::size_t taken = 0; taken < word.size(); ++taken)
            press(search, Qt::Key_Backspace, {});
        const double ofRound = application.takeLongest();
        std::printf("typed and erased %7.2f ms\n", ofRound);
        longest = std::max(longest, ofRound);
    }
    std::printf("longest handler  %7.2f ms\n", longest);
    return EXIT_SUCCESS;
}

} // namespace
} // namespace zdt

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    zdt::TimedApplication application(argc, argv);
    return zdt::run(application);
}
