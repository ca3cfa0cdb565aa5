#include "editor/problemPage.h"

#include "common/pageFixture.h"
#include "editor/problemRestore.h"
#include "kit/controlSearch.h"
#include "kit/countChip.h"
#include "kit/listView.h"
#include "kit/notificationNames.h"
#include "model/returnCode.h"
#include "modules/themeNode.h"
#include "store/keyText.h"
#include "support/files.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

namespace zdt {
namespace {

const std::string missing = "contacts/image/dial_num_0_blk_press.png";
const std::string emptied = "icons/system/static/com.android.deskclock.png";
const std::string wrongSize = "icons/system/static/com.zendro.gallery.png";
const std::string damaged = "com.android.mms/theme.xml";

class ProblemPageTest : public test::PageTest {
protected:
    /// A theme with four faults in three modules, and the page that shows them.
    void openFaulty() {
        openNew();
        const std::string folder = bench.theme()->tree().path();
        ASSERT_TRUE(removeFile(fileOf(missing)));
        replace(fileOf(emptied), "");
        replace(fileOf(wrongSize), test::pngHeader(10, 20));
        replace(folder + damaged, "<resources><color");
        reopen();
        show();
        ASSERT_EQ(page->count(), 4);
    }

    void reopen() {
        bench.closeTheme();
        bench.takeTheme(store.open("Aurora"));
    }

    void show() {
        page = std::make_unique<CProblemPage>(bench, nullptr);
        page->resize(1080, 727);
        page->show();
        page->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
        page->check();
    }

    [[nodiscard]] std::string fileOf(const std::string& key) const {
        const ResNode* node = findKey(*bench.theme(), key).node;
        return node ? node->nodeDirectory() + node->name() : "no such key";
    }

    /// A theme's files may be links into the template: they are never written into.
    void replace(const std::string& path, const std::string& content) const {
        ASSERT_TRUE(removeFile(path)) << path;
        store.write(path.substr(store.root().size()), content);
    }

    [[nodiscard]] ZListView& view() const { return FindControl<ZListView>(page.get(), "problemList"); }
    [[nodiscard]] ZCountChip& chip(const char* name) const { return FindControl<ZCountChip>(page.get(), name); }

    /// What the rows say, from the first to the last, heads in brackets.
    [[nodiscard]] std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (int index = 0; const QWidget* cell = view().cellAt(index); ++index) {
            if (const auto* head = cell->findChild<QLabel*>("groupName"))
                texts.push_back("[" + head->text().toStdString() + "]");
            else
                texts.push_back(cell->findChild<QLabel*>("reason")->text().toStdString());
        }
        return texts;
    }

    [[nodiscard]] int rowSaying(const std::string& words) const {
        const std::vector<std::string> texts = shown();
        for (std::size_t at = 0; at < texts.size(); ++at) {
            if (texts[at].find(words) != std::string::npos)
                return static_cast<int>(at);
        }
        ADD_FAILURE() << "no row says " << words;
        return -1;
    }

    void press(int row, const char* button) const {
        ASSERT_TRUE(view().cellAt(row));
        QTest::mouseClick(&FindControl<QPushButton>(view().cellAt(row), button), Qt::LeftButton);
    }

    std::unique_ptr<CProblemPage> page;
};

TEST_F(ProblemPageTest, SaysWhatIsWrongAndCountsByModules) {
    openFaulty();
    EXPECT_EQ(shown(),
              (std::vector<std::string>{"[Contacts]", "The picture is missing. This place takes PNG.", "[Messages]",
                                        "The file can't be read. Restore it; the old one is kept beside it.", "[Icons]",
                                        "The file is empty. This place takes PNG 192 × 192.",
                                        "The picture is 10 × 20. This place takes 192 × 192."}));
    EXPECT_EQ(page->countsByModule(), (std::map<std::string, int>{{"contacts", 1}, {"icons", 2}, {"mms", 1}}));
    EXPECT_EQ(FindControl<QLabel>(page.get(), "problemTitle").text(), "4 problems");
    const QWidget* row = view().cellAt(rowSaying("10 × 20"));
    EXPECT_EQ(row->findChild<QLabel*>("detail")->text(), "com.zendro.gallery.png");
    EXPECT_EQ(row->findChild<QLabel*>("place")->text(), "Icons, Pictures");
}

TEST_F(ProblemPageTest, LeadsToThePlaceByClickAndByEnter) {
    openFaulty();
    const QSignalSpy jumps(page.get(), &CProblemPage::jumpRequested);
    press(rowSaying("10 × 20"), "goTo");
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Home);
    QTest::keyClick(&view(), Qt::Key_Return);
    ASSERT_EQ(jumps.size(), 2);
    EXPECT_EQ(jumps[0][0].toString().toStdString(), wrongSize);
    EXPECT_EQ(jumps[1][0].toString().toStdString(), missing);
}

TEST_F(ProblemPageTest, TabReachesTheButtonsOfTheCurrentRowAlone) {
    openFaulty();
    view().setFocus();
    view().setCurrent(rowSaying("10 × 20"));
    const QSignalSpy jumps(page.get(), &CProblemPage::jumpRequested);
    QTest::keyClick(&view(), Qt::Key_Tab);
    EXPECT_EQ(page->focusWidget(), view().cellAt(view().current())->findChild<QPushButton*>("goTo"));
    QTest::keyClick(page->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(jumps.size(), 1);
    QTest::keyClick(page->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(page->focusWidget(), view().cellAt(view().current())->findChild<QPushButton*>("restore"));
    QTest::keyClick(page->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(jumps.size(), 1);
    EXPECT_EQ(page->count(), 3);
}

/// Hears what other pages would.
class Listener : public INotifyUI {
public:
    void Notify(const Notification& message) override { reloads += message.name == notify::Notify_ReloadDataMsg; }
    int reloads = 0;
};

TEST_F(ProblemPageTest, RestoringMendsAndGoesOnToTheNext) {
    openFaulty();
    Listener others;
    bench.notifications().AddNotifier(others);
    const QSignalSpy counts(page.get(), &CProblemPage::countsChanged);
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Home);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_R}) {
        const int before = page->count();
        QTest::keyClick(&view(), key);
        EXPECT_EQ(page->count(), before - 1);
    }
    EXPECT_EQ(shown()[static_cast<std::size_t>(view().current())],
              "The file is empty. This place takes PNG 192 × 192.");
    page->setFocus();
    press(rowSaying("10 × 20"), "restore");
    EXPECT_TRUE(view().hasFocus()) << "so that Delete goes on";
    EXPECT_EQ(shown()[static_cast<std::size_t>(view().current())],
              "The file is empty. This place takes PNG 192 × 192.");
    press(rowSaying("is empty"), "restore");
    EXPECT_EQ(others.reloads, 4);
    EXPECT_EQ(counts.size(), 4);
    EXPECT_TRUE(page->countsByModule().empty());
    EXPECT_TRUE(FindControl<QWidget>(page.get(), "problemNone").isVisible());
    EXPECT_FALSE(FindControl<QWidget>(page.get(), "ResEditErrorHorLayout").isVisible());
    EXPECT_EQ(readFile(bench.theme()->tree().path() + damaged + ".damaged", 100), "<resources><color");
    reopen();
    page->check();
    EXPECT_EQ(page->count(), 0);
}

TEST_F(ProblemPageTest, ChipsShowASubjectAndThoseWithoutMembersAreLeftOut) {
    openFaulty();
    EXPECT_EQ(chip("problemAll").count(), 4);
    EXPECT_EQ(chip("problemPictures").count(), 3);
    for (const char* name : {"problemColours", "problemTexts", "problemLayouts"})
        EXPECT_FALSE(chip(name).isVisible()) << name;
    QTest::mouseClick(&chip("problemFiles"), Qt::LeftButton);
    EXPECT_EQ(shown().size(), 2U);
    EXPECT_EQ(page->count(), 4);
    press(1, "restore");
    EXPECT_TRUE(chip("problemAll").isChecked());
    EXPECT_EQ(shown().size(), 5U);
}

TEST_F(ProblemPageTest, ShowsAListThatIsHandedOverAsItIs) {
    openFaulty();
    const std::vector<Problem> list{{"gone/image/x.png", "gone/x.png", returnCode::missingFile},
                                    {"contacts/image/no such", {}, returnCode::emptyValue},
                                    {"version", {}, returnCode::foreignVersion}};
    bench.notifications().SendNotify(nullptr, notify::Notify_Error_List_Msg, 0, reinterpret_cast<std::intptr_t>(&list));
    EXPECT_EQ(shown(), (std::vector<std::string>{"[Contacts]", "The value is empty. Enter one.", "[gone]",
                                                 "The file is missing. Upload one.", "[Theme details]",
                                                 "The version is 9.0.100. This theme is for OVUI 9.1."}));
    QTest::keyClick(&view(), Qt::Key_Home);
    QTest::keyClick(&view(), Qt::Key_Delete); // nothing to restore
    EXPECT_EQ(page->count(), 3);
    bench.notifications().SendNotify(nullptr, notify::Notify_Error_List_Msg);
    EXPECT_EQ(page->count(), 3);
    bench.notifications().SendNotify(nullptr, notify::Notify_Error_List_refresh);
    EXPECT_EQ(page->count(), 4);
    bench.closeTheme();
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(page->count(), 0);
}

TEST_F(ProblemPageTest, KeepsItsPlaceOverACheckAndFollowsTheLanguage) {
    openFaulty();
    view().setCurrent(rowSaying("is empty"));
    ASSERT_TRUE(removeFile(fileOf("contacts/image/dial_num_1_blk_press.png")));
    SetLanguage(chineseLanguage);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(page->count(), 5);
    EXPECT_EQ(view().cellAt(view().current())->findChild<QLabel*>("detail")->text(), "com.android.deskclock.png");
    EXPECT_EQ(FindControl<QLabel>(page.get(), "problemTitle").text(), QString::fromUtf8("5 个问题"));
}

TEST_F(ProblemPageTest, ThousandRowsTakeFewCells) {
    openNew();
    show();
    const std::vector<Problem> list(900, {"icons/x.png", "icons/x.png", returnCode::missingFile});
    bench.notifications().SendNotify(nullptr, notify::Notify_Error_List_Msg, 0, reinterpret_cast<std::intptr_t>(&list));
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_End);
    EXPECT_EQ(view().current(), 900);
    EXPECT_LE(view().cellCount(), 30);
}

/// What is put back for faults of other kinds; each leaves a theme that can be exported.
TEST_F(ProblemPageTest, FaultsOfEveryKindAreMended) {
    const struct {
        const char* file;
        const char* content; ///< Null to remove it.
        ProblemRestore restore;
    } cases[]{
        {"description.xml", "<ZdTheme", ProblemRestore::description},
        {"description.xml", "<ZdTheme><version>5.0.1</version></ZdTheme>", ProblemRestore::version},
        {"unlock/theme.xml", "<ZDTheme", ProblemRestore::lockKind},
        {"preview/cover.jpg", nullptr, ProblemRestore::file},
    };
    for (const auto& each : cases) {
        ThemeResource& fresh = openNew("Aurora");
        const std::string path = fresh.tree().path() + each.file;
        ASSERT_TRUE(removeFile(path)) << path;
        if (each.content)
            store.write(path.substr(store.root().size()), each.content);
        reopen();
        std::vector<Problem> problems;
        EXPECT_FALSE(bench.theme()->checkFiles(problems)) << each.file;
        ASSERT_FALSE(problems.empty()) << each.file;
        EXPECT_EQ(restoringOf(*bench.theme(), problems[0]), each.restore) << each.file;
        EXPECT_EQ(restoreProblem(*bench.theme(), problems[0]), 0) << each.file;
        reopen();
        EXPECT_TRUE(bench.theme()->checkFiles(problems)) << each.file << ' ' << problems.size();
        bench.closeTheme();
        ASSERT_TRUE(ThemeResource::deleteTheme("Aurora", store.root()));
    }
}

TEST_F(ProblemPageTest, ColoursAndTextsGoBackToThoseOfANewTheme) {
    openNew();
    for (const auto& [block, name] : {std::pair<KeyPath, const char*>{{"mms", "text"}, "message_pop_send_bg_color"},
                                      {{"mms", "commonSetting", "text"}, "ovui_primary"}}) {
        const std::string before = bench.theme()->getValue(block, name);
        bench.theme()->findLeaf(block, name)->setRawValue("#12");
        const Problem problem{joinKeyPath(block) + "/" + name, {}, returnCode::patternMismatch};
        EXPECT_EQ(restoringOf(*bench.theme(), problem), ProblemRestore::value) << name;
        EXPECT_EQ(restoreProblem(*bench.theme(), problem), 0) << name;
        EXPECT_EQ(bench.theme()->getValue(block, name), before) << name;
    }
}

TEST_F(ProblemPageTest, ADamagedDesignIsReplacedOnlyWhenAskedFor) {
    openNew();
    const std::string folder = bench.theme()->tree().path() + "unlock/layout-hdpi/";
    const std::vector<std::string> layouts = listFiles(folder);
    ASSERT_FALSE(layouts.empty());
    for (const std::string& layout : layouts)
        replace(folder + layout, "<Lock");
    reopen();
    show();
    ASSERT_EQ(page->count(), 1);
    for (const char* answer : {"messageReject", "messageAccept"}) {
        QTimer::singleShot(0, [&] {
            auto* button = qApp->activeModalWidget() ? qApp->activeModalWidget()->findChild<QPushButton*>(answer)
                                                     : page->findChild<QPushButton*>(answer);
            ASSERT_TRUE(button);
            EXPECT_EQ(page->count(), 1);
            QTest::mouseClick(button, Qt::LeftButton);
        });
        press(1, "restore");
    }
    EXPECT_EQ(page->count(), 0);
}

} // namespace
} // namespace zdt
