#include "kit/page.h"

#include "common/fixtures.h"
#include "kit/layoutError.h"
#include "kit/notificationNames.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace zdt {
namespace {

class CountingPage : public ZPage {
public:
    explicit CountingPage(Workbench& bench)
        : ZPage(bench, "page.xml", nullptr)
        , title(control<QLabel>("title")) {}

    void reload() override { ++reloads; }

    QLabel& title;
    int reloads = 0;
};

TEST(Page, IsMadeOfItsLayoutAndReloadsOnNotice) {
    const test::TemporaryFolder folder;
    const SkinLoader loader({QString::fromStdString(folder.path())});
    Workbench bench(loader, {});
    EXPECT_THROW(CountingPage page(bench), LayoutError); // no file
    folder.write("page.xml", R"(<ui version="4.0"><class>P</class><widget class="QWidget" name="P"/></ui>)");
    EXPECT_THROW(CountingPage page(bench), LayoutError); // no title in it
    folder.write("page.xml", R"(<ui version="4.0"><class>P</class><widget class="QWidget" name="P">
        <widget class="QLabel" name="title"/></widget></ui>)");
    CountingPage page(bench);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    bench.notifications().SendNotify(nullptr, "notify_reloaddatamsg");
    EXPECT_EQ(page.reloads, 1);
}

} // namespace
} // namespace zdt
