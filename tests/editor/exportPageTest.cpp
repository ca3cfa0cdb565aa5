#include "editor/exportPage.h"

#include "common/pageFixture.h"
#include "editor/previewCard.h"
#include "editor/stateLine.h"
#include "kit/controlSearch.h"
#include "kit/notificationNames.h"
#include "kit/textLookup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <optional>

namespace zdt {
namespace {

/// Hears the list of problems.
class ProblemEar : public INotifyUI {
public:
    void Notify(const Notification& message) override {
        if (message.name == notify::Notify_Error_List_Msg)
            heard = *reinterpret_cast<const std::vector<Problem>*>(message.lParam);
    }
    std::optional<std::vector<Problem>> heard;
};

class ExportPageTest : public test::PageTest {
protected:
    CResEditOutPutDlg& openPage() {
        page = std::make_unique<CResEditOutPutDlg>(bench);
        done = std::make_unique<QSignalSpy>(page.get(), &CResEditOutPutDlg::done);
        stored = std::make_unique<QSignalSpy>(page.get(), &CResEditOutPutDlg::valuesStored);
        page->chooseFolder = [this](QWidget*, const QString&) { return QString::fromStdString(chosen); };
        page->showFolder = [this](const QString& folder) { shown = folder; };
        page->resize(1280, 727);
        page->show();
        page->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page.get()));
        page->open();
        page->previews().finish();
        return *page;
    }

    template <typename T>
    T& find(const QString& name) {
        return FindControl<T>(page.get(), name);
    }

    void type(const QString& name, const QString& text) {
        auto& field = find<QLineEdit>(name);
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }

    [[nodiscard]] QString text(const QString& name) { return find<QLineEdit>(name).text(); }

    /// Presses the buttons of the boxes that come, one after the other, and keeps what they say.
    void answer(QStringList buttons) {
        auto* timer = new QTimer(page.get());
        QObject::connect(timer, &QTimer::timeout, page.get(), [this, timer, buttons]() mutable {
            for (QWidget* box : QApplication::allWidgets()) {
                const bool isBox = qobject_cast<QDialog*>(box) && box->isVisible();
                auto* words = isBox ? box->findChild<QLabel*>("messageText") : nullptr;
                if (!words)
                    continue;
                said += words->text();
                const QString button = buttons.isEmpty() ? "messageAccept" : buttons.takeFirst();
                if (buttons.isEmpty())
                    timer->deleteLater();
                box->findChild<QPushButton*>(button)->click();
                return;
            }
        });
        timer->start(20);
    }

    void pressOk(const QStringList& answers = {}) {
        said.clear();
        if (!answers.isEmpty())
            answer(answers);
        QTest::mouseClick(&find<QPushButton>("ResOutDlgOKBtn"), Qt::LeftButton);
    }

    [[nodiscard]] std::string package() const { return store.path("out/Aurora.zdt"); }

    /// A theme and a page that could be exported.
    void openGood() {
        openNew();
        openPage();
        type("ResOutDlgENThemeName", "Aurora");
        std::filesystem::create_directory(store.path("out"));
        chosen = store.path("out");
    }

    std::string savedPicture(const std::string& name, const QSize& size, const QColor& colour = Qt::darkRed) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        const std::string path = store.path(name);
        EXPECT_TRUE(image.save(QString::fromStdString(path)));
        return path;
    }

    [[nodiscard]] std::string previewBytes(const std::string& name) {
        return test::readFile(bench.theme()->getValue({"preview"}, name));
    }

    std::unique_ptr<CResEditOutPutDlg> page;
    std::unique_ptr<QSignalSpy> done;
    std::unique_ptr<QSignalSpy> stored;
    std::string chosen;
    QString shown;
    QStringList said;
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
    EXPECT_EQ(
        find<StateLine>("previewsDrawn").text(),
        TextWith("kExport_drawing_ended", TextWith("kTransformation_lock_picture_wallpapers_batch_result_suc", 0)));
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
    find<QPlainTextEdit>("ResOutDlgSummary").setPlainText("A text");
    pressOk({"messageOpenFolder"});
    EXPECT_EQ(said, QStringList{Text("kWarn_popout_sucess")});
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

TEST_F(ExportPageTest, ReplacedLockPreviewIsDrawnAgain) {
    openGood();
    const std::string cover = previewBytes("cover.jpg");
    const QString name = "preview_unlock_0.jpg";
    page->previews().choosePicture = [&](QWidget*, const QString&) {
        return QString::fromStdString(savedPicture("own.png", {1080, 2160}));
    };
    QTest::mouseClick(&find<QPushButton>("replace_" + name), Qt::LeftButton);
    page->previews().finish();
    page->previews().finish();
    EXPECT_NE(previewBytes("cover.jpg"), cover);
    std::vector<Problem> problems;
    EXPECT_TRUE(bench.theme()->checkFiles(problems));
    const PreviewPictureView& view = find<PreviewCard>("card_" + name).view();
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.mark() == Text("kExport_own_picture"); }));
    EXPECT_EQ(find<PreviewCard>("card_preview_icons_0.jpg").view().mark(), "");
}

TEST_F(ExportPageTest, RefusedPicturesLeaveWhatWasThere) {
    openGood();
    const std::string before = previewBytes("preview_icons_0.jpg");
    const std::string small = savedPicture("small.jpg", {100, 100});
    find<QPushButton>("replace_preview_icons_0.jpg").setFocus();
    const auto drop = [&](const QStringList& files) {
        said.clear();
        answer({"messageAccept"});
        bench.notifications().SendNotify(nullptr, notify::Notify_Drag_File, 0, reinterpret_cast<std::intptr_t>(&files));
        page->previews().finish();
    };
    drop({QString::fromStdString(small)});
    EXPECT_EQ(said, QStringList{Text("kWarn_upload_correct_unlock_pic_nine")});
    drop({"a.jpg", "b.jpg"});
    EXPECT_EQ(said, QStringList{Text("kExport_drop_one")});
    EXPECT_EQ(previewBytes("preview_icons_0.jpg"), before);

    const QStringList wanted{"preview_icons_0.jpg", QString::fromStdString(savedPicture("good.jpg", {1080, 2160}))};
    bench.notifications().SendNotify(nullptr, notify::Replace_Picture_Notify, 0,
                                     reinterpret_cast<std::intptr_t>(&wanted));
    page->previews().finish();
    EXPECT_NE(previewBytes("preview_icons_0.jpg"), before);
}

TEST_F(ExportPageTest, HelpOpensBesideItsButton) {
    openNew();
    openPage();
    for (const char* field :
         {"ResOutDlgENThemeName", "ResOutDlgCHThemeName", "ResOutDlgDeveloper", "ResOutDlgDesigner",
          "ResOutDlgOVUIVersion", "ResOutDlgThemeVersion", "ResOutDlgSummary", "ResEditOutPutThemeList"}) {
        find<QAbstractButton>(QString(field) + "_Btn").click();
        QWidget* tip = QApplication::activePopupWidget();
        ASSERT_NE(tip, nullptr) << field;
        EXPECT_EQ(tip->size(), QSize(220, 150));
        EXPECT_NE(FindControl<QLabel>(tip, "exportHelpText").text(), "") << field;
        QTest::keyClick(tip, Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
}

} // namespace
} // namespace zdt
