#include "bench/timedPage.h"
#include "canvas/drawPictrue.h"
#include "editor/colorItem.h"
#include "editor/simplePages.h"
#include "kit/controlSearch.h"
#include "kit/kitStyle.h"
#include "kit/localisation.h"
#include "kit/workbench.h"
#include "store/themeResource.h"

#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

/// Colours are typed on a page of screens, with a real big theme of generation 9. Each key is stored, the preview
/// composed and the window painted. Prints the longest of these in milliseconds, of which a frame at 60 Hz leaves 16,
/// and beside it the painting of a plain widget of the phone's size.
namespace zdt {
namespace {

class Blank : public QWidget {
protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(rect(), Qt::darkCyan); }
};

double milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double paintBlank(const QSize& size) {
    Blank blank;
    blank.resize(size);
    blank.show();
    settle();
    std::vector<double> times;
    for (int round = 0; round < 31; ++round) {
        const Clock::time_point begin = Clock::now();
        blank.repaint();
        times.push_back(milliseconds(Clock::now() - begin));
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// From the key to the picture.
double typeDigit(QLineEdit& field, const QString& text) {
    field.selectAll();
    field.insert(text.left(text.size() - 1));
    const Clock::time_point begin = Clock::now();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, text.right(1));
    QCoreApplication::sendEvent(&field, &down);
    // What is to be painted waits as an event of the window.
    QCoreApplication::sendPostedEvents();
    const double time = milliseconds(Clock::now() - begin);
    settle();
    return time;
}

int run(TimedApplication& application) {
    const Store store;
    if (!applyKitStyle(application, QStringList{ZDT_SKIN_DIR}))
        return EXIT_FAILURE;
    LoadKeys();
    SetLanguage(englishLanguage);
    Workbench bench{SkinLoader(QStringList{ZDT_SKIN_DIR}), store.root()};
    bench.takeTheme(ThemeResource::createTheme("T", 2, 0, false, true, store.root()));
    double longest = 0;
    const auto measure = [&](std::unique_ptr<CColorAndPictureManagerPage> page, const QString& row) {
        page->resize(1080, 727);
        page->show();
        settle();
        auto& field = FindControl<QLineEdit>(page.get(), row + "|color|" + rowControl::colourEdit);
        field.setFocus();
        settle();
        static_cast<void>(application.takeLongest());
        std::vector<double> times;
        for (const char* text : {"12a4c8", "c812a4", "a4c812", "0e1b2e", "f0f0f0", "112233", "ffffff"})
            times.push_back(typeDigit(field, text));
        const double handler = application.takeLongest();
        std::sort(times.begin(), times.end());
        std::printf("%-52s median %6.2f ms  longest %6.2f ms  longest handler %6.2f ms\n", qPrintable(row),
                    times[times.size() / 2], times.back(), handler);
        longest = std::max({longest, times.back(), handler});
    };
    measure(std::make_unique<CSimpleContactsPage>(bench, nullptr), "contacts|dial|background color");
    measure(std::make_unique<CSimpleContactsPage>(bench, nullptr), "contacts|dial|commonSetting/dial/background color");
    measure(std::make_unique<CSimpleMmsPage>(bench, nullptr), "mms|mms list|background color");
    measure(std::make_unique<CSimpleGoblePage>(bench, nullptr), "commonSetting|dial|background color");
    measure(std::make_unique<CSimpleSystemPage>(bench, nullptr), "systemui|drop down notification|background color");
    std::printf("longest          %7.2f ms\n", longest);
    std::printf("paint a blank    %7.2f ms\n", paintBlank({294, 588}));
    return EXIT_SUCCESS;
}

} // namespace
} // namespace zdt

int main(int argc, char* argv[]) {
    return zdt::runTimed(argc, argv, zdt::run);
}
