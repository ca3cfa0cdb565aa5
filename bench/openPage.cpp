// Opens a big theme of generation 9 in the real window, until its first page can be used, and beside it with the store
// alone. Prints the median of both in milliseconds, and of the page's painting.
//
//     zdt_bench_page STORE NAME        STORE is a folder with res/NAME and the skin; needs no screen
#include "kit/skinFolder.h"
#include "shell/application.h"
#include "shell/mainFrame.h"
#include "store/themeResource.h"

#include <unistd.h>

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace zdt;
using Clock = std::chrono::steady_clock;

constexpr int rounds = 31;

double since(Clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double openStore(const std::string& name) {
    const Clock::time_point begin = Clock::now();
    const auto theme = ThemeResource::openTheme(name, false, workspaceFolder());
    return since(begin);
}

double openWindow(CMainFrameWnd& frame, const std::string& name) {
    frame.returnToStart();
    QApplication::processEvents();
    const Clock::time_point begin = Clock::now();
    frame.openTheme(name);
    return since(begin);
}

double paint(CMainFrameWnd& frame) {
    const Clock::time_point begin = Clock::now();
    frame.repaint();
    return since(begin);
}

void measure(CMainFrameWnd& frame, const std::string& name) {
    std::vector<double> store;
    std::vector<double> window;
    std::vector<double> painting;
    openWindow(frame, name); // Fonts and pages are made once.
    for (int round = 0; round < rounds; ++round) {
        store.push_back(openStore(name));
        window.push_back(openWindow(frame, name));
        painting.push_back(paint(frame));
    }
    std::printf("store %.3f window %.3f painting %.3f\n", median(store), median(window), median(painting));
    QApplication::exit(0);
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3 || ::chdir(argv[1]) != 0) {
        std::fputs("zdt_bench_page STORE NAME\n", stderr);
        return 2;
    }
    const std::string name = argv[2];
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return runWindow(application, [&](CMainFrameWnd& frame) {
        QTimer::singleShot(1000, &frame, [&frame, name] { measure(frame, name); });
    });
}
