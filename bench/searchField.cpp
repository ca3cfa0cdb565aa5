#include "bench/timedPage.h"
#include "editor/fullListPage.h"
#include "kit/controlSearch.h"
#include "kit/kitStyle.h"
#include "kit/localisation.h"
#include "kit/workbench.h"
#include "store/themeResource.h"

#include <QLineEdit>

#include <algorithm>
#include <cstdio>
#include <string_view>

/// A word is typed letter by letter into the search of the full list, with a real big theme of generation 9, and taken
/// back. Prints the longest event handler in milliseconds; a frame at 60 Hz leaves 16 to it.
namespace zdt {
namespace {

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
    return zdt::runTimed(argc, argv, zdt::run);
}
