#include "shell/mainFrame.h"

#include "common/boxAnswers.h"
#include "common/pageFixture.h"
#include "editor/exportPage.h"
#include "kit/controlSearch.h"
#include "kit/flowView.h"
#include "kit/layoutError.h"
#include "kit/listView.h"
#include "kit/notificationNames.h"
#include "kit/searchField.h"
#include "kit/segmentedControl.h"
#include "shell/templatePhones.h"
#include "shell/themeImport.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QStackedWidget>
#include <QTest>
#include <QUrl>

#include <algorithm>
#include <array>
#include <functional>

namespace zdt {
namespace {

using test::BoxAnswers;

/// Writes down the notifications that it hears.
class Listener : public INotifyUI {
public:
    void Notify(const Notification& message) override { heard += message.name; }

    QStringList heard;
};

class MainFrameTest : public test::PageTest {
protected:
    MainFrameTest() {
        bench.layouts().registerControl("CTemplatePhones", [](QWidget* parent) { return new CTemplatePhones(parent); });
        store.write("skin/ZDThemeDesign/config.ini",
                    "[Special_for_init_select_language]\nkSpecial_for_init_select_language=2\n");
    }

    CMainFrameWnd& window() {
        if (!_window) {
            _window = std::make_unique<CMainFrameWnd>(bench);
            _window->show();
            EXPECT_TRUE(QTest::qWaitForWindowExposed(_window.get()));
        }
        return *_window;
    }

    template <typename T = QPushButton>
    T& find(const char* name) {
        return FindControl<T>(&window(), name);
    }

    void click(const char* name) { QTest::mouseClick(&find<QAbstractButton>(name), Qt::LeftButton); }
    ZFlowView& cards() { return find<ZFlowView>("MainWelecomeTab"); }
    int tab() { return find<QStackedWidget>("MainFrameTab").currentIndex(); }
    QString title() { return find<QLabel>("ThemeTitle").text(); }

    /// A package of a theme with that name, outside the store.
    QString package(const std::string& name) {
        const auto theme = store.create("ToPack", {2, true});
        const std::string path = outside.path(name + ".zdt");
        EXPECT_TRUE(theme->exportTo(path));
        return QString::fromStdString(path);
    }

    /// What is said while something is done, with each box answered.
    QStringList during(const std::function<void()>& action, const char* button = "messageAccept") {
        const BoxAnswers answers(window(), button);
        action();
        return answers.said();
    }

    std::vector<std::string> themes() { return ThemeResource::listThemes(store.root()); }

    test::TemporaryFolder outside;

private:
    std::unique_ptr<CMainFrameWnd> _window;
};

TEST_F(MainFrameTest, TheFirstVisitHasNoCardsAndASearchFindsThem) {
    EXPECT_EQ(find<QStackedWidget>("startTab").currentIndex(), 1);
    for (const char* name : {"Aurora", "Dunes", "Mint"})
        store.create(name, {2, true}).reset();
    bench.notifications().SendNotify(nullptr, notify::Reload_history_themes);
    EXPECT_EQ(find<QStackedWidget>("startTab").currentIndex(), 0);
    EXPECT_EQ(find<QLabel>("themeCount").text(), "3");
    QTest::keyClicks(&find<ZSearchField>("themeSearch"), "un");
    EXPECT_EQ(find<QLabel>("themeCount").text(), "1");
    QTest::keyClicks(&find<ZSearchField>("themeSearch"), "xx");
    EXPECT_EQ(find<QStackedWidget>("themesFound").currentIndex(), 1);
    EXPECT_EQ(find<QLabel>("emptyTitle").text(), "Nothing called “unxx”");
    click("emptyAction");
    EXPECT_EQ(find<QLabel>("themeCount").text(), "3");
}

TEST_F(MainFrameTest, OpensByEnterAndByDoubleClickAndComesBack) {
    store.create("Aurora").reset();
    store.create("Dunes", {1, true}).reset();
    find<QComboBox>("themeOrder").setCurrentIndex(1);
    cards().setFocus();
    cards().setCurrent(0);
    QTest::keyClick(&cards(), Qt::Key_Return);
    EXPECT_EQ(title(), "OVUI9.1:Aurora");
    EXPECT_EQ(tab(), 1);
    EXPECT_TRUE(find("nav_launcher").isVisible());

    Listener listener;
    bench.notifications().AddNotifier(listener);
    click("ThemePreviewBackBtn");
    EXPECT_EQ(listener.heard, QStringList({notify::Reload_change_unlock_ratio, notify::Reload_history_themes,
                                           notify::Reload_change_unlock_pendant_ratio}));
    EXPECT_EQ(title(), "");
    EXPECT_EQ(tab(), 0);
    EXPECT_TRUE(bench.theme());
    EXPECT_EQ(cards().current(), 0);

    QTest::mouseDClick(cards().viewport(), Qt::LeftButton, {}, cards().cellAt(1)->geometry().center());
    QTest::mouseClick(cards().viewport(), Qt::LeftButton, {}, cards().cellAt(1)->geometry().center());
    QTest::mouseDClick(cards().viewport(), Qt::LeftButton, {}, cards().cellAt(1)->geometry().center());
    EXPECT_EQ(title(), "OVUI8.0:Dunes");
    EXPECT_FALSE(find("nav_launcher").isVisible());
    click("ResPreviewReturn");
    EXPECT_EQ(tab(), 0);
}

TEST_F(MainFrameTest, TheListAndItsNavigationAgree) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    EXPECT_TRUE(find<QAbstractButton>("nav_commonSetting").isChecked());
    QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(find<QWidget>("keySearch").hasFocus());
    auto& modules = find<QComboBox>("keyModule");
    modules.setFocus();
    QTest::keyClick(&modules, Qt::Key_Down);
    EXPECT_TRUE(find<QAbstractButton>("nav_all").isChecked()) << "the module's own row shows its screens";
    QTest::keyClick(&modules, Qt::Key_End);
    EXPECT_FALSE(find<QAbstractButton>("nav_all").isChecked());
    QTest::keyClick(&modules, Qt::Key_Home);
    EXPECT_TRUE(find<QAbstractButton>("nav_all").isChecked());
}

TEST_F(MainFrameTest, AWrongPictureIsFoundInItsRow) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    const std::vector<Problem> problems{{"contacts/image/jing.png", {}, -2}};
    bench.notifications().SendNotify(nullptr, notify::Notify_Error_List_Msg, 0,
                                     reinterpret_cast<std::intptr_t>(&problems));
    auto& view = find<ZListView>("problemList");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::keyClick(&view, Qt::Key_Return);
    const QList<ZListView*> lists = window().findChildren<ZListView*>("pictureList");
    const auto seen = std::find_if(lists.begin(), lists.end(), [](const ZListView* list) { return list->isVisible(); });
    ASSERT_NE(seen, lists.end());
    EXPECT_GT((*seen)->current(), 0);
}

TEST_F(MainFrameTest, WhatAPageOfScreensChangesStandsInTheList) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    click("nav_contacts");
    const QString row = "contacts|dial|highlight color|color|Color_Edit";
    auto& field = find<QLineEdit>(row.toUtf8());
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, "12a4c8");
    QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(find<QAbstractButton>("nav_all").isChecked());
    auto& search = find<QLineEdit>("keySearch");
    EXPECT_TRUE(search.hasFocus());
    QTest::keyClicks(&search, "12a4c8");
    EXPECT_GT(find<ZListView>("keyList").cellCount(), 0) << "values of all modules are looked at";
}

TEST_F(MainFrameTest, EveryProblemLeadsSomewhere) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    const struct {
        const char* key;
        const char* row; ///< Of the navigation; null for the export page.
    } cases[]{{"mms/text", "nav_mms"},
              {"unlock/amazing", "nav_unlock"},
              {"unlock/custom/file", "nav_unlock"},
              {"unlock", "nav_unlock"},
              {"mms/text/message_pop_send_bg_color", "nav_all"},
              {"contacts/image/jing.png", "nav_contacts"},
              {"recorder/commonSetting/image/toolbar_bg.9.png", "nav_commonSetting"},
              {"phone/commonSetting/text/gone", "nav_commonSetting"},
              {"gone/x", "nav_all"},
              {"title", nullptr},
              {"", nullptr}};
    for (const auto& [key, row] : cases) {
        const std::vector<Problem> problems{{key, {}, -2}};
        bench.notifications().SendNotify(nullptr, notify::Notify_Error_List_Msg, 0,
                                         reinterpret_cast<std::intptr_t>(&problems));
        EXPECT_TRUE(find<QAbstractButton>("ResGlobleErrorBtn").isChecked());
        auto& view = find<ZListView>("problemList");
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Home);
        QTest::keyClick(&view, Qt::Key_Return);
        EXPECT_EQ(tab(), row ? 1 : 2) << key;
        if (row)
            EXPECT_TRUE(find<QAbstractButton>(row).isChecked()) << key;
        else
            click("btnClose");
    }
}

TEST_F(MainFrameTest, ChoosingALanguageRelabelsWritesItDownAndTellsTheTheme) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    Listener listener;
    bench.notifications().AddNotifier(listener);
    click("ch_btn");
    EXPECT_EQ(listener.heard, QStringList({notify::Reload_change_unlock_ratio, notify::Notify_ReloadDataMsg,
                                           notify::Notify_Error_List_refresh}));
    EXPECT_EQ(find("exportBtn").text(), Text("kWindow_export"));
    EXPECT_EQ(GetLanguage(), chineseLanguage);
    EXPECT_TRUE(bench.theme()->isChinese());
    EXPECT_NE(test::readFile("skin/ZDThemeDesign/config.ini").find("kSpecial_for_init_select_language=1"),
              std::string::npos);
    click("en_btn");
    EXPECT_EQ(find("exportBtn").text(), "Export");
    EXPECT_FALSE(bench.theme()->isChinese());
}

TEST_F(MainFrameTest, AnUnknownLanguageStaysAsItIs) {
    const std::string config = "[Special_for_init_select_language]\nkSpecial_for_init_select_language=3\n";
    store.write("skin/ZDThemeDesign/config.ini", config);
    EXPECT_TRUE(find("en_btn").isChecked());
    EXPECT_EQ(test::readFile("skin/ZDThemeDesign/config.ini"), config);
}

TEST_F(MainFrameTest, WhatCantBeOpenedIsSaidAndTheStartPageStays) {
    store.create("Word").reset();
    store.write("config/Word_config.txt", "type=big\n");
    const struct {
        const char* name;
        const char* said;
    } cases[]{{"Gone", "isn't there any more"}, {"Word", "isn't a number"}};
    for (const auto& each : cases) {
        const QStringList said = during([&] { window().openTheme(each.name); });
        ASSERT_EQ(said.size(), 1) << each.name;
        EXPECT_TRUE(said[0].contains(each.said)) << said[0].toStdString();
        EXPECT_EQ(tab(), 0);
        EXPECT_FALSE(bench.theme());
    }
}

TEST_F(MainFrameTest, AThemeOfNoGenerationAsksForOne) {
    store.create("None").reset();
    const std::string path = "res/None/description.xml";
    std::string text = test::readFile(store.path(path));
    text.replace(text.find("<version>"), text.find("</version>") - text.find("<version>"), "<version>");
    store.write(path, text);
    store.write("config/None_config.txt", "type=1879048192\n"); // big, in both languages, of no generation
    window();
    const auto answer = [&](const char* button) {
        QTimer::singleShot(50, &window(), [this, button] {
            find<ZSegmented>("generationChoice").setCurrentIndex(1);
            click(button);
        });
        window().openTheme("None");
    };
    answer("generationCancel");
    EXPECT_EQ(tab(), 0);
    EXPECT_FALSE(bench.theme());
    answer("generationAccept");
    EXPECT_EQ(title(), "OVUI8.0:None");
}

TEST_F(MainFrameTest, DeletesAfterAYesAlone) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    click("ThemePreviewBackBtn");
    EXPECT_EQ(during([&] { window().deleteTheme("Aurora"); }, "messageReject").size(), 1);
    EXPECT_EQ(themes().size(), 1U);
    EXPECT_EQ(during([&] { window().deleteTheme("Aurora"); }).size(), 1);
    EXPECT_TRUE(themes().empty());
    EXPECT_FALSE(bench.theme());
    EXPECT_EQ(find<QStackedWidget>("startTab").currentIndex(), 1);
}

TEST_F(MainFrameTest, ImportsWithItsMessages) {
    const QString good = package("Fresh");
    const QString forbidden = QString::fromStdString(outside.write("a*b.zdt", "zip"));
    const QString broken = QString::fromStdString(outside.write("Broken.zdt", "no archive"));
    EXPECT_EQ(during([&] { window().importPaths({forbidden}); }), QStringList{Text("kWarn_newtheme_special_sign")});
    EXPECT_EQ(during([&] { window().importPaths({broken}); }), QStringList{Text("kWarn_import_correct_theme_config")});
    EXPECT_EQ(during([&] {
                  window().importPaths({good + "x", QDir::homePath()});
              }),
              QStringList{Text("kStart_no_package")});
    EXPECT_EQ(during([&] { window().importPaths({good}); }), QStringList{Text("kWarn_Import_theme_sucess")});
    EXPECT_EQ(themes(), (std::vector<std::string>{"Fresh", "ToPack"}));

    store.write("res/Fresh/mark.txt", "old");
    EXPECT_EQ(during([&] { window().importPaths({good}); }, "messageReject"), QStringList{Text("kWarn_File_hadExist")});
    EXPECT_EQ(test::readFile(store.path("res/Fresh/mark.txt")), "old");
    window().openTheme("Fresh");
    EXPECT_EQ(during([&] { window().importPaths({good}); }).size(), 2);
    EXPECT_EQ(test::readFile(store.path("res/Fresh/mark.txt")), "");
    EXPECT_EQ(tab(), 0) << "the open theme was replaced";
    EXPECT_EQ(title(), "");
}

TEST_F(MainFrameTest, SeveralPackagesAndFoldersHaveOneQuestionAndOneResult) {
    QStringList paths{package("One"), package("Two")};
    store.create("A folder v1.0").reset();
    ASSERT_EQ(::rename(store.path("res/A folder v1.0").c_str(), outside.path("A folder v1.0").c_str()), 0);
    paths += QString::fromStdString(outside.path("A folder v1.0/"));
    paths += QString::fromStdString(outside.write("Broken.zdt", "no archive"));
    store.create("Two").reset();
    const QStringList said = during([&] { window().importPaths(paths); });
    EXPECT_EQ(said,
              QStringList({"1 of these themes exist already. Replace them?", "Themes imported: 3. Not imported: 1"}));
    EXPECT_EQ(themes(), (std::vector<std::string>{"A folder v1.0", "One", "ToPack", "Two"}));
    EXPECT_TRUE(test::problemsOf(*store.open("A folder v1.0")).empty());
}

TEST_F(MainFrameTest, DropsAreImportedOrHandedToThePages) {
    const QString theme = package("Dropped");
    const QString picture = QString::fromStdString(outside.write("a.png", "png"));
    const auto drop = [&](const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls += QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window(), &enter);
        QDropEvent fall({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window(), &fall);
        QTest::qWait(300);
        return enter.isAccepted();
    };
    EXPECT_EQ(during([&] { EXPECT_TRUE(drop({theme})); }), QStringList{Text("kWarn_Import_theme_sucess")});
    EXPECT_EQ(during([&] { EXPECT_TRUE(drop({picture})); }), QStringList{Text("kStart_no_package")});
    window().openTheme("Dropped");
    Listener listener;
    bench.notifications().AddNotifier(listener);
    static_cast<void>(during([&] { drop({picture}); }));
    EXPECT_TRUE(listener.heard.contains(notify::Notify_Drag_File));
    // Over a question nothing is taken.
    QTimer::singleShot(50, &window(), [&] {
        EXPECT_FALSE(drop({theme}));
        FindControl<ZMessageBoxDlg>(&window(), {}).reject();
    });
    window().close();
    EXPECT_TRUE(window().isVisible());
}

TEST_F(MainFrameTest, OfOneNameTheSecondIsAskedAboutAndBadNamesAreCounted) {
    const QString one = package("Twice");
    ASSERT_TRUE(QDir(QString::fromStdString(outside.path())).mkdir("other"));
    const QString other = QString::fromStdString(outside.path("other/Twice.zdt"));
    ASSERT_TRUE(QFile::copy(one, other));
    EXPECT_EQ(during(
                  [&] {
                      window().importPaths({one, other});
                  },
                  "messageReject"),
              QStringList({"1 of these themes exist already. Replace them?", "Themes imported: 1. Not imported: 1"}));
    const QStringList bad{QString::fromStdString(outside.write("a*b.zdt", "zip")),
                          QString::fromStdString(outside.write("c?d.zdt", "zip"))};
    EXPECT_EQ(during([&] { window().importPaths(bad); }), QStringList{"Themes imported: 0. Not imported: 2"});
}

TEST_F(MainFrameTest, AThemeThatVanishedIsClosedOnTheWayBackAndGetsNoSettings) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    ASSERT_TRUE(QDir(QString::fromStdString(store.path("res/Aurora"))).removeRecursively());
    ASSERT_TRUE(QFile::remove(QString::fromStdString(store.path("config/Aurora_config.txt"))));
    EXPECT_EQ(during([&] { click("ThemePreviewBackBtn"); }),
              QStringList{"The folder of “Aurora” isn't there any more"});
    EXPECT_FALSE(bench.theme());
    EXPECT_FALSE(QFile::exists(QString::fromStdString(store.path("config/Aurora_config.txt"))));
}

TEST_F(MainFrameTest, KeysLeadToThePagesAndTheEditedThemeComesFirst) {
    for (const char* name : {"Aurora", "Dunes"}) {
        store.create(name).reset();
        const std::string folder = std::string("res/") + name;
        for (const std::string& path : {folder, folder + "/preview", folder + "/preview/cover.jpg",
                                        std::string("config/") + name + "_config.txt"}) {
            const std::array<timespec, 2> longAgo{{{1000, 0}, {1000, 0}}};
            ASSERT_EQ(::utimensat(AT_FDCWD, store.path(path).c_str(), longAgo.data(), 0), 0);
        }
    }
    window().openTheme("Dunes");
    EXPECT_EQ(bench.theme()->setValue({"mms", "text"}, "black", "#102030"), 0);
    QTest::keyClick(&window(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(find("ResGlobleErrorBtn").isChecked());
    QTest::keyClick(&window(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(tab(), 2);
    QTest::keyClick(&window(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(tab(), 1);
    QTest::keyClick(&window(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(tab(), 0);
    EXPECT_TRUE(cards().cellAt(0)->accessibleName().startsWith("Dunes"));
}

TEST_F(MainFrameTest, ClosingAsksWhileAThemeIsShown) {
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    EXPECT_EQ(during([&] { window().close(); }, "messageReject"), QStringList{Text("kWarn_make_sure_close")});
    EXPECT_TRUE(window().isVisible());
    click("ThemePreviewBackBtn");
    EXPECT_EQ(during([&] { click("closebtn"); }), QStringList());
    EXPECT_FALSE(window().isVisible());
}

TEST_F(MainFrameTest, TheExportPageEndsWithWhatItsResultAsksFor) {
    const QStringList reloads{notify::Notify_ReloadDataMsg, notify::Notify_ReloadBigorSmall,
                              notify::Notify_ReloadTopTitleText};
    store.create("Aurora").reset();
    window().openTheme("Aurora");
    const auto exportPage = [&]() -> CResEditOutPutDlg& {
        window().openExport();
        CResEditOutPutDlg& page = *window().findChild<CResEditOutPutDlg*>();
        page.previews().finish();
        static_cast<void>(page.previews().takeChanged());
        find<QLineEdit>("ResOutDlgENThemeName").setText("Aurora");
        return page;
    };
    QString folder;
    exportPage().folderChoice.ask = [&](QWidget*, const FileRequest&) {
        return folder.isEmpty() ? QStringList() : QStringList{folder};
    };
    const auto heard = [&](const std::function<void()>& action, const QStringList& said) {
        Listener listener;
        bench.notifications().AddNotifier(listener);
        EXPECT_EQ(during(action), said);
        return listener.heard;
    };
    EXPECT_EQ(heard([&] { click("ResOutDlgOKBtn"); }, {}), reloads) << "cancelled behind the stored values";
    EXPECT_EQ(tab(), 2);
    EXPECT_EQ(find<QLineEdit>("ResOutDlgENThemeName").text(), "Aurora");
    EXPECT_EQ(heard([&] { click("btnClose"); }, {}), QStringList());
    EXPECT_EQ(tab(), 1);

    folder = QString::fromStdString(outside.path());
    exportPage();
    EXPECT_EQ(heard([&] { click("ResOutDlgOKBtn"); }, {Text("kWarn_popout_sucess").arg(folder + "Aurora.zdt")}),
              reloads + QStringList{notify::Notify_SetFirstPage});
    EXPECT_EQ(tab(), 1);
    EXPECT_FALSE(find("ResGlobleErrorBtn").isChecked());

    ASSERT_TRUE(QFile::remove(folder + "/Aurora.zdt"));
    ASSERT_EQ(bench.theme()->clearFile({"preview", "preview_mms_0.jpg"}), 0);
    exportPage();
    EXPECT_EQ(heard([&] { click("ResOutDlgOKBtn"); }, {Text("kWarn_export_theme_error")}),
              QStringList{notify::Notify_Error_List_Msg} + reloads + QStringList{notify::Notify_SetFirstPage});
    EXPECT_EQ(tab(), 1);
    EXPECT_TRUE(find("ResGlobleErrorBtn").isChecked()) << "the list of problems is shown";
}

TEST_F(MainFrameTest, ABrokenLayoutCostsItsPageAlone) {
    const test::TemporaryFolder skin;
    for (const char* name : {"skin.xml", "start.xml", "problems.xml"})
        skin.write(name, test::readFile(std::string(ZDT_SKIN_DIR) + name));
    std::string start = test::readFile(std::string(ZDT_SKIN_DIR) + "start.xml");
    skin.write("start.xml", start.substr(0, start.size() / 2));
    Workbench poor(SkinLoader({QString::fromStdString(skin.path())}), store.root());
    store.create("Aurora").reset();
    CMainFrameWnd frame(poor);
    frame.show();
    EXPECT_TRUE(frame.findChild<QWidget*>("brokenPage"));
    frame.openTheme("Aurora");
    EXPECT_EQ(FindControl<QLabel>(&frame, "ThemeTitle").text(), "OVUI9.1:Aurora");
    frame.openExport();
    QTest::mouseClick(&FindControl<QPushButton>(&frame, "btnClose"), Qt::LeftButton);
    EXPECT_EQ(FindControl<QStackedWidget>(&frame, "MainFrameTab").currentIndex(), 1);

    Workbench none(SkinLoader({"/nowhere/"}), store.root());
    EXPECT_THROW(CMainFrameWnd{none}, LayoutError);
}

} // namespace
} // namespace zdt
