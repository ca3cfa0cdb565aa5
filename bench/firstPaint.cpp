// Shows a window, says "painted" once its first picture is on its way to the screen, and ends. The time from the start
// of the process to that word is measured by whoever starts it.
//
//     zdt_bench_first_paint bare|designer
#include "shell/application.h"
#include "shell/mainFrame.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <string_view>

namespace {

/// Hears the first painting of the window. What is painted goes to the screen before the next timer is due.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& window)
        : _window(window) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &_window && event->type() == QEvent::Paint) {
            _window.removeEventFilter(this);
            QTimer::singleShot(0, [] {
                std::puts("painted");
                std::fflush(stdout);
                std::_Exit(0);
            });
        }
        return false;
    }

private:
    QWidget& _window;
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc > 1 && std::string_view(argv[1]) == "designer")
        return zdt::runWindow(application, [](zdt::CMainFrameWnd& frame) { new PaintWatch(frame); });
    QWidget window;
    window.resize(1280, 775);
    window.show();
    const PaintWatch watch(window);
    return QApplication::exec();
}
