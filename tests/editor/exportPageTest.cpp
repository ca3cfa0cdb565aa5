#include "editor/exportPageFixture.h"
#include "editor/previewCard.h"
#include "editor/stateLine.h"
#include "kit/notificationNames.h"
#include "kit/textLookup.h"

#include <QButtonGroup>
#include <QPlainTextEdit>

#include <optional>

namespace zdt {
namespace {

using test::ExportPageTest;

/// Hears the list of problems.
class ProblemEar : public INotifyUI {
public:
    void Notify(const Notification& message) override {
        if (message.name == notify::Notify_Error_List_Msg)
            heard = *reinterpret_cast<const std::vector<Problem>*>(message.lParam); // NOLINT(performance-no-int-to-ptr)
    }
    std::optional<std::vector<Problem>> heard;
};

TEST_F(ExportPageTest, OpeningFillsTheFormAndDrawsThePreviews) {
    ThemeResource& theme = openNew("Aurora", {1});
    theme.setValues({}, {{"title", "Northern"},
                         {"title-cn", "极光"},
                         {"author", "A"},
                         {"designer", "D"},
                         {"version", "8.0.7"},
                         {"briefinfo", "two\nlines"}});
    openPage();
    EXPECT_EQ(text("ResOutDlgENThemeName"), "Northern");
    EXPECT_EQ(text("ResOutDlgCHThemeName"), "极光");
    EXPECT_EQ(text("ResOutDlgDeveloper"), "A");
    EXPECT_EQ(text("ResOutDlgDesigner"), "D");
    EXPECT_EQ(text("ResOutDlgThemeVersion"), "7");
    EXPECT_EQ(find<QLabel>("ResOutDlgVersionPrefix").text(), "8.0.");
    EXPECT_EQ(find<QPlainTextEdit>("ResOutDlgSummary").toPlainText(), "two\nlines");
    EXPECT_TRUE(find<QPushButton>("OVUI8Btn").isChecked());
    EXPECT_EQ(find<QPushButton>("OVUI9Btn").group()->objectName(), "newcheckgroup");
    EXPECT_TRUE(find<QPushButton>("OVUI5Btn").isEnabled());
    for (const char* group : {"unlock", "widget", "icons", "contacts", "mms", "systemui"})
        EXPECT_NE(page->findChild<QWidget*>(QString("preview_") + group), nullptr) << group;
    EXPECT_EQ(find<StateLine>("previewsDrawn").text(), "Done, 0 failed");
    std::vector<Problem> problems;
    EXPECT_TRUE(theme.checkFiles(problems));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return find<PreviewCard>("card_preview_mms_0.jpg").view().state() == PreviewPictureView::State::shown;
    }));
}

TEST_F(ExportPageTest, ThemesThatLackSomethingOpen) {
    ThemeResource& theme = openNew();
    ASSERT_EQ(theme.setLockScreenType("video"), 0);
    openPage();
    EXPECT_FALSE(find<QPushButton>("OVUI5Btn").isEnabled());

    theme.setVersion(unknownGeneration);
    std::filesystem::remove_all(store.path("res/Aurora"));
    page->open();
    page->previews().finish();
    EXPECT_EQ(find<QPushButton>("OVUI9Btn").group()->checkedButton(), nullptr);
    EXPECT_TRUE(find<StateLine>("previewsDrawn").text().contains("0"));
    pressOk({"messageAccept"});
    EXPECT_EQ(said, QStringList{Text("kWarn_theme_config_not_complite")});

    bench.closeTheme();
    page->open();
    EXPECT_FALSE(find<QPushButton>("ResOutDlgOKBtn").isEnabled());
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
}

TEST_F(ExportPageTest, TargetSetsPrefixHintAndVersion) {
    openNew();
    openPage();
    const struct {
        const char* button;
        const char* typed;
        const char* prefix;
        const char* hint;
        const char* version;
    } cases[]{{"OVUI5Btn", "", "5.0.", "kEmport_theme_hint", "100"},
              {"OVUI8Btn", "7", "8.0.", "kEmport_theme_hint", "7"},
              {"OVUI9Btn", "", "9.0.", "kEmport_theme_hint_nine", "100"}};
    for (const auto& row : cases) {
        QTest::mouseClick(&find<QPushButton>(row.button), Qt::LeftButton);
        if (*row.typed)
            type("ResOutDlgThemeVersion", row.typed);
        EXPECT_EQ(find<QLabel>("ResOutDlgVersionPrefix").text(), row.prefix);
        EXPECT_EQ(find<QLabel>("ResOutDlgHint").text(), Text(row.hint));
        EXPECT_EQ(text("ResOutDlgThemeVersion"), row.version);
    }
}

TEST_F(ExportPageTest, LeavingTheVersionMendsItButConfirmingInItDoesNot) {
    openGood();
    for (const auto& [typed, left] : {std::pair{"12", "100"}, {"1000", "100"}, {"a1b50", "150"}}) {
        type("ResOutDlgThemeVersion", typed);
        find<QLineEdit>("ResOutDlgDeveloper").setFocus();
        EXPECT_EQ(text("ResOutDlgThemeVersion"), left) << typed;
    }
    chosen.clear();
    type("ResOutDlgThemeVersion", "1000");
    QTest::keyClick(&find<QLineEdit>("ResOutDlgThemeVersion"), Qt::Key_Return);
    EXPECT_EQ(bench.theme()->getValue({}, "version"), "9.0.1000");

    type("ResOutDlgThemeVersion", "50");
    answer({"messageAccept"});
    QTest::keyClick(&find<QLineEdit>("ResOutDlgThemeVersion"), Qt::Key_Return);
    EXPECT_EQ(said, QStringList{Text("kWarn_theme_version")});
    EXPECT_EQ(text("ResOutDlgThemeVersion"), "50") << "a message leaves the form as it is";
}

TEST_F(ExportPageTest, OkTellsTheFirstProblemAndGoesToItsField) {
    openGood();
    const struct {
        const char* field;
        const char* typed;
        const char* message;
    } steps[]{{"ResOutDlgCHThemeName", "a.b", "kWarn_newtheme_special_ch_sign"},
              {"ResOutDlgDesigner", " ", "kWarn_theme_name_canot_empty_DES"},
              {"ResOutDlgDeveloper", "", "kWarn_theme_name_canot_empty_DEV"},
              {"ResOutDlgENThemeName", ".a", "kWarn_newtheme_special_char"}};
    for (const auto& [field, typed, message] : steps) {
        type(field, typed);
        pressOk({"messageAccept"});
        EXPECT_EQ(said, QStringList{Text(message)});
        EXPECT_TRUE(find<QLineEdit>(field).hasFocus()) << field;
        EXPECT_EQ(find<QLineEdit>(field).property("state"), "error") << field;
    }
    EXPECT_TRUE(find<StateLine>("ResOutDlgOpenPoints").text().contains("4"));
    EXPECT_TRUE(done->isEmpty() && stored->isEmpty());
}

TEST_F(ExportPageTest, ChecksWhileTypingAndKeepsItThroughAChangeOfLanguage) {
    openGood();
    type("ResOutDlgENThemeName", "a/b");
    auto& note = find<StateLine>("noteENThemeName");
    EXPECT_EQ(note.text(), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return note.text() == Text("kExport_short_sign"); }));
    SetLanguage(chineseLanguage);
    relabel(page.get(), Text);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(text("ResOutDlgENThemeName"), "a/b");
    EXPECT_EQ(note.text(), Text("kExport_short_sign"));
    EXPECT_EQ(find<QPushButton>("replace_preview_mms_0.jpg").text(), Text("replace_file"));
}

TEST_F(ExportPageTest, WritesThePackageAndShowsItsFolder) {
    openGood();
    find<QPlainTextEdit>("ResOutDlgSummary").setPlainText("😀");
    EXPECT_EQ(find<QLabel>("summaryCount").text(), "Characters: 1");
    find<QPlainTextEdit>("ResOutDlgSummary").setPlainText("A text");
    pressOk({"messageOpenFolder"});
    EXPECT_EQ(said, QStringList{Text("kWarn_popout_sucess").arg(QString::fromStdString(chosen) + "/Aurora.zdt")});
    EXPECT_EQ(shown.toStdString(), chosen);
    ASSERT_EQ(done->count(), 1);
    EXPECT_EQ(done->first().first().toInt(), 1);
    std::string name;
    ASSERT_TRUE(ThemeResource::importTheme(package(), name, store.path("other/")));
    const Description description = ThemeResource::readDescription(name, store.path("other/"));
    EXPECT_EQ(description.at("title"), "Aurora");
    EXPECT_EQ(description.at("briefinfo"), "A text");
    EXPECT_EQ(description.at("version"), "9.0.100");
}

TEST_F(ExportPageTest, AsksBeforeItReplacesAPackage) {
    openGood();
    store.write("out/Aurora.zdt", "old");
    pressOk({"messageReject"});
    EXPECT_EQ(said, QStringList{"Aurora.zdt" + Text("kZdt_ReName_Info")});
    EXPECT_EQ(test::readFile(package()), "old");
    EXPECT_EQ(stored->count(), 1);
    EXPECT_TRUE(done->isEmpty());
    pressOk({"messageAccept", "messageAccept"});
    EXPECT_EQ(said.size(), 2);
    EXPECT_GT(test::readFile(package()).size(), 10000U);
    EXPECT_EQ(done->count(), 1);
}

TEST_F(ExportPageTest, CancellingTheFolderKeepsTheStoredValues) {
    openGood();
    chosen.clear();
    QTest::mouseClick(&find<QPushButton>("OVUI8Btn"), Qt::LeftButton);
    pressOk();
    EXPECT_EQ(stored->count(), 1);
    EXPECT_TRUE(done->isEmpty());
    EXPECT_EQ(bench.theme()->version(), 1U);
    EXPECT_EQ(ThemeResource::readDescription("Aurora", store.root()).at("version"), "8.0.100");
    page->close();
    EXPECT_EQ(done->first().first().toInt(), 2);
}

TEST_F(ExportPageTest, FolderOfTheStoreIsRefusedAndAskedForAgain) {
    openGood();
    chosenFirst = store.path("res/Aurora");
    pressOk({"messageAccept", "messageAccept"});
    EXPECT_EQ(said, QStringList({Text("kExport_store_folder"),
                                 Text("kWarn_popout_sucess").arg(QString::fromStdString(chosen) + "/Aurora.zdt")}));
    EXPECT_FALSE(std::filesystem::exists(store.path("res/Aurora/Aurora.zdt")));
    EXPECT_TRUE(std::filesystem::exists(package()));
}

TEST_F(ExportPageTest, ThemeThatIsClosedBehindAChooserOrABoxEndsTheExport) {
    openGood();
    page->folderChoice.ask = [this](QWidget*, const FileRequest&) {
        bench.closeTheme();
        return QStringList{QString::fromStdString(chosen)};
    };
    pressOk();
    openNew("Aurora2");
    page->open();
    type("ResOutDlgENThemeName", "Aurora");
    page->folderChoice.ask = [this](QWidget*, const FileRequest&) {
        openNew("Aurora3");
        return QStringList{QString::fromStdString(chosen)};
    };
    pressOk();
    EXPECT_FALSE(std::filesystem::exists(package()));
    EXPECT_TRUE(done->isEmpty());
}

TEST_F(ExportPageTest, StoredVersionThatOnlyOkAcceptsIsShownAndLeftAsItIs) {
    ThemeResource& theme = openNew();
    theme.setValues({}, {{"title", "Aurora"}, {"version", "9.0.1000"}});
    openPage();
    EXPECT_EQ(text("ResOutDlgThemeVersion"), "1000");
    find<QPushButton>("ResOutDlgOKBtn").setFocus();
    pressOk();
    EXPECT_EQ(theme.getValue({}, "version"), "9.0.1000");
    EXPECT_EQ(text("ResOutDlgThemeVersion"), "1000");
}

TEST_F(ExportPageTest, VersionIsMendedWhenABoxLeadsToAnotherField) {
    openGood();
    type("ResOutDlgDesigner", "");
    type("ResOutDlgThemeVersion", "1000");
    answer({"messageAccept"});
    QTest::keyClick(&find<QLineEdit>("ResOutDlgThemeVersion"), Qt::Key_Return);
    EXPECT_EQ(said, QStringList{Text("kWarn_theme_name_canot_empty_DES")});
    EXPECT_EQ(text("ResOutDlgThemeVersion"), "100");
}

TEST_F(ExportPageTest, VideoLockThatComesLaterTakesTheOldestTargetAway) {
    ThemeResource& theme = openNew("Aurora", {0});
    openPage();
    type("ResOutDlgENThemeName", "Aurora");
    EXPECT_TRUE(find<QPushButton>("OVUI5Btn").isChecked());
    ASSERT_EQ(theme.setLockScreenType("video"), 0);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(find<QPushButton>("OVUI9Btn").group()->checkedButton(), nullptr);
    EXPECT_EQ(text("ResOutDlgENThemeName"), "Aurora");
    pressOk({"messageAccept"});
    EXPECT_EQ(said, QStringList{Text("kWarn_theme_config_not_complite")});
}

TEST_F(ExportPageTest, HandsOverWhatIsMissing) {
    openGood();
    ASSERT_EQ(bench.theme()->clearFile({"preview", "preview_mms_0.jpg"}), 0);
    ProblemEar ear;
    bench.notifications().AddNotifier(ear);
    pressOk({"messageAccept"});
    EXPECT_EQ(said, QStringList{Text("kWarn_export_theme_error")});
    ASSERT_TRUE(ear.heard && ear.heard->size() == 1);
    EXPECT_EQ(ear.heard->front().key, "preview/preview_mms_0.jpg");
    ASSERT_EQ(done->count(), 1);
    EXPECT_EQ(done->first().first().toInt(), 1);
    EXPECT_FALSE(std::filesystem::exists(package()));
}

TEST_F(ExportPageTest, FolderThatTakesNoPackageIsToldAndThePageStays) {
    openGood();
    chosen = store.path("none");
    pressOk({"messageAccept"});
    EXPECT_EQ(said, QStringList{Text("kWarn_popout_failed")});
    EXPECT_TRUE(done->isEmpty());
    EXPECT_EQ(stored->count(), 1);
}

TEST_F(ExportPageTest, ValuesThatCannotBeWrittenAreToldAndStayTyped) {
    openGood();
    std::filesystem::remove(store.path("res/Aurora/description.xml"));
    store.write("res/Aurora/description.xml/in the way", "");
    pressOk({"messageAccept"});
    EXPECT_EQ(said, QStringList{Text("kExport_not_stored")});
    EXPECT_NE(bench.theme()->getValue({}, "title"), "Aurora");
    EXPECT_EQ(text("ResOutDlgENThemeName"), "Aurora");
    EXPECT_TRUE(done->isEmpty() && stored->isEmpty());
}

} // namespace
} // namespace zdt
