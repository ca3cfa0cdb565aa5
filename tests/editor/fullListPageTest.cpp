#include "editor/fullListPage.h"

#include "common/boxAnswers.h"
#include "common/pageFixture.h"
#include "kit/baseDialog.h"
#include "kit/controlSearch.h"
#include "kit/listView.h"
#include "kit/notificationNames.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>

namespace zdt {
namespace {

constexpr std::array<const char*, 7> copies{"contacts", "launcher", "systemui", "mms", "phone", "recorder", "telecom"};
const KeyPath messages{"mms", "text"};
const std::string colourKey = "mms/text/message_pop_send_bg_color";
const std::string previewKey = "preview/preview_mms_0.jpg";

/// Counts the notifications that others hear.
class Listener : public INotifyUI {
public:
    void Notify(const Notification& message) override {
        checks += message.name == notify::Notify_Error_List_refresh ? 1 : 0;
        reloads += message.name == notify::Notify_ReloadDataMsg ? 1 : 0;
    }
    int checks = 0;
    int reloads = 0;
};

class FullListPageTest : public test::PageTest {
protected:
    void open(const test::ThemeKind& kind = {2}) {
        openNew("Aurora", kind);
        page = std::make_unique<CFullListPage>(bench, nullptr);
        bench.notifications().AddNotifier(listener);
        page->resize(1080, 700);
        page->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page.get()));
    }

    template <typename T = QWidget>
    T& control(const char* name) {
        return FindControl<T>(page.get(), name);
    }
    ZListView& list() { return control<ZListView>("keyList"); }
    QString text(const char* label) { return control<QLabel>(label).text(); }
    void search(const char* words) {
        auto& field = control<QLineEdit>("keySearch");
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, words);
    }
    void type(const char* field, const char* value) {
        auto& edit = control<QLineEdit>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, value);
    }
    /// What the next box says; it is then accepted.
    void expectBox(const std::function<void()>& act, const QString& words) {
        QString said;
        QTimer::singleShot(0, page.get(), [&] {
            if (auto* box = page->window()->findChild<ZBaseDialog*>()) {
                said = box->accessibleDescription();
                box->accept();
            }
        });
        act();
        EXPECT_TRUE(said.contains(words)) << said.toStdString();
    }
    void drop(const QStringList& files) {
        bench.notifications().SendNotify(nullptr, notify::Notify_Drag_File, 0, reinterpret_cast<std::intptr_t>(&files));
    }
    QString picture(const char* name, int width, int height) {
        const QString path = QString::fromStdString(store.path() + name);
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        EXPECT_TRUE(image.save(path));
        return path;
    }
    [[nodiscard]] bool isPreview(const std::string& bytes) const {
        return test::readFile(value({"preview"}, "preview_mms_0.jpg")) == bytes;
    }
    [[nodiscard]] std::string value(const KeyPath& block, const char* name) const {
        return bench.theme()->getValue(block, name);
    }

    std::unique_ptr<CFullListPage> page;
    Listener listener;
};

TEST_F(FullListPageTest, SearchFiltersAsOneTypes) {
    open();
    page->showModule("mms");
    const int all = list().cellCount() > 0 ? control<QLabel>("keyCount").text().split(' ').first().toInt() : 0;
    EXPECT_GT(all, 100);
    search("pop_SEND 242424");
    EXPECT_EQ(text("keyCount"), "3 keys");
    EXPECT_EQ(text("keyRange"), "Rows 1 to 3 of 3");
    QTest::keyClick(&control("keySearch"), Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(list().current(), 0);
    page->focusSearch();
    EXPECT_TRUE(control("keySearch").hasFocus());
    search("zzz");
    EXPECT_EQ(text("emptyTitle"), "Nothing called “zzz”");
    QTest::mouseClick(&control("emptyAction"), Qt::LeftButton);
    EXPECT_EQ(text("keyCount"), QString("%1 keys").arg(all));
}

TEST_F(FullListPageTest, ColourIsEditedInItsRow) {
    open();
    ASSERT_TRUE(page->showLeaf(colourKey));
    QTest::keyClick(&list(), Qt::Key_F2);
    EXPECT_TRUE(control("editHex").hasFocus());
    QTest::keyClicks(&control("editHex"), "#12ab");
    QTest::keyClick(&control("editHex"), Qt::Key_Return);
    EXPECT_EQ(text("editReason"), "Enter six or eight hex digits");
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#242424");
    EXPECT_EQ(listener.checks, 0);

    const int index = list().current();
    QTest::mouseClick(list().cellAt(index + 1), Qt::LeftButton, {}, QPoint(100, 16));
    EXPECT_EQ(text("keyHint"), "message_pop_send_bg_color wasn't stored: Enter six or eight hex digits");
    QTest::mouseClick(list().cellAt(index), Qt::LeftButton, {}, QPoint(100, 16));
    QTest::keyClick(&list(), Qt::Key_F2);
    QTest::keyClicks(&control("editHex"), "1");
    EXPECT_FALSE(text("keyHint").contains("hex digits"));
    QTest::keyClick(&control("editHex"), Qt::Key_Escape);
    EXPECT_EQ(control<QLineEdit>("editHex").text(), "242424");
    type("editHex", "12abef");
    type("editPercent", "50");
    QTest::keyClick(&control("editPercent"), Qt::Key_Return);
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#8012abef");
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(listener.checks, 1);
    EXPECT_NE(test::readFile(store.root() + "res/Aurora/com.android.mms/theme.xml").find("#8012abef"),
              std::string::npos);

    QTest::mouseClick(&control("keyChanged"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list().current() == 0 && text("keyRange").endsWith("of 1"); }));
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#242424");
}

TEST_F(FullListPageTest, LeavingStoresAndArrowsGoOn) {
    open();
    page->showModule("mms");
    ASSERT_TRUE(page->showLeaf(colourKey));
    const int index = list().current();
    type("editHex", "010203");
    QTest::keyClick(&control("editHex"), Qt::Key_Down);
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#010203");
    EXPECT_EQ(list().current(), index + 1);
    EXPECT_TRUE(control("editHex").hasFocus());
    QTest::keyClick(&control("editHex"), Qt::Key_Up);
    type("editHex", "040506");
    QTest::mouseClick(list().cellAt(index + 1), Qt::LeftButton, {}, QPoint(100, 16));
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#040506");
    EXPECT_EQ(list().current(), index + 1);
    EXPECT_NE(control<QLineEdit>("editHex").text(), "040506");
    QTest::keyClick(&list(), Qt::Key_Up);

    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "#040506");
    QApplication::clipboard()->setText("#80AABBCC");
    QTest::keyClick(&list(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#80aabbcc");
    QApplication::clipboard()->setText("salmon");
    QTest::keyClick(&list(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_NE(text("editReason"), "");
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#80aabbcc");
}

TEST_F(FullListPageTest, SharedKeyIsOneRowAndSetsAllCopies) {
    open();
    ASSERT_EQ(bench.theme()->setValue({"mms", "commonSetting", "text"}, "ovui_primary", "#80ff0102"), 0);
    page->showModule("mms");
    ASSERT_TRUE(page->showLeaf("phone/commonSetting/text/ovui_primary"));
    EXPECT_EQ(control<QComboBox>("keyModule").currentText(), "Global");
    type("editHex", "0a0b0c");
    QTest::keyClick(&control("editHex"), Qt::Key_Return);
    for (const char* module : copies) {
        EXPECT_EQ(value({module, "commonSetting", "text"}, "ovui_primary").substr(0, 7), "#0a0b0c") << module;
    }
    EXPECT_NE(
        test::readFile(store.root() + "res/Aurora/com.android.phone/framework-res-zdext/theme.xml").find("#0a0b0c"),
        std::string::npos);
}

TEST_F(FullListPageTest, PictureIsReplacedByAFileThatIsDropped) {
    open();
    ASSERT_TRUE(page->showLeaf(previewKey));
    const std::string before = test::readFile(value({"preview"}, "preview_mms_0.jpg"));
    expectBox([&] { drop({picture("one.jpg", 1080, 2160), picture("two.jpg", 1080, 2160)}); }, "several files");
    EXPECT_TRUE(isPreview(before)) << "only one file is taken";

    expectBox([&] { drop({picture("small.png", 100, 100)}); }, "1080 × 2160");
    expectBox([&] { drop({"/nowhere.jpg"}); }, "missing");
    EXPECT_EQ(listener.checks, 0);
    EXPECT_TRUE(isPreview(before));

    drop({picture("fits.png", 1080, 2160)});
    EXPECT_EQ(listener.checks, 1);
    const std::string stored = value({"preview"}, "preview_mms_0.jpg");
    EXPECT_EQ(test::readFile(stored).substr(0, 2), "\xff\xd8") << "made into a JPEG";
    EXPECT_EQ(QImage(QString::fromStdString(stored)).size(), QSize(1080, 2160));

    EXPECT_TRUE(QTest::qWaitFor([&] { return control("detailReset").isVisible(); }));
    const auto reset = [&] { QTest::mouseClick(&control("detailReset"), Qt::LeftButton); };
    {
        const test::BoxAnswers answers(*page, "messageReject");
        reset();
        EXPECT_EQ(answers.said().size(), 1);
        EXPECT_FALSE(isPreview(before)) << "a no keeps the author's file";
    }
    expectBox(reset, "preview_mms_0.jpg");
    EXPECT_TRUE(isPreview(before));
    EXPECT_TRUE(list().hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !control("detailReset").isVisible(); }));

    page->hide();
    drop({picture("fits.png", 1080, 2160)});
    EXPECT_TRUE(isPreview(before)) << "a page that isn't seen hears nothing";
}

TEST_F(FullListPageTest, SwatchOpensTheDialogAndTheThemeFollows) {
    open();
    ASSERT_TRUE(page->showLeaf(colourKey));
    for (const bool accept : {false, true}) {
        std::string tried;
        QTimer::singleShot(0, page.get(), [&] {
            auto* dialog = page->window()->findChild<ZBaseDialog*>();
            ASSERT_NE(dialog, nullptr);
            auto& hex = FindControl<QLineEdit>(dialog, "colourHex");
            hex.selectAll();
            QTest::keyClicks(&hex, "ff8800");
            tried = value(messages, "message_pop_send_bg_color");
            QTest::keyClick(&hex, accept ? Qt::Key_Return : Qt::Key_Escape);
        });
        QWidget* cell = list().cellAt(list().current());
        ASSERT_NE(cell, nullptr);
        QTest::mouseClick(cell, Qt::LeftButton, {}, QPoint(34, 16));
        EXPECT_EQ(tried, "#ff8800");
        EXPECT_EQ(value(messages, "message_pop_send_bg_color"), accept ? "#ff8800" : "#242424");
    }
}

TEST_F(FullListPageTest, CancelLeavesCopiesAsTheyDiffered) {
    open();
    const KeyPath block{"mms", "commonSetting", "text"};
    ASSERT_EQ(bench.theme()->setValue(block, "ovui_primary", "#80ff0102"), 0);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    ASSERT_TRUE(page->showLeaf("contacts/commonSetting/text/ovui_primary"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return control("detailEdit").isVisible(); }));
    std::string tried;
    QTimer::singleShot(0, page.get(), [&] {
        auto* dialog = page->window()->findChild<ZBaseDialog*>();
        ASSERT_NE(dialog, nullptr);
        auto& hex = FindControl<QLineEdit>(dialog, "colourHex");
        hex.selectAll();
        QTest::keyClicks(&hex, "ff8800");
        tried = value(block, "ovui_primary");
        dialog->reject();
    });
    QTest::mouseClick(&control("detailEdit"), Qt::LeftButton);
    EXPECT_EQ(tried, "#ff8800");
    EXPECT_EQ(value(block, "ovui_primary"), "#80ff0102");
    EXPECT_EQ(value({"contacts", "commonSetting", "text"}, "ovui_primary"), "#242424");
}

TEST_F(FullListPageTest, AnotherKindOfLockIsReadAnewAndOnlyKnownOnesAreTaken) {
    open();
    page->showModule("unlock");
    ASSERT_TRUE(page->showLeaf("unlock/config/style"));
    type("editText", "custom");
    QTest::keyClick(&control("editText"), Qt::Key_Return);
    EXPECT_EQ(text("editReason"), "Enter slide, magazine, amazing or video");
    EXPECT_EQ(listener.reloads, 0);
    type("editText", "video");
    QTest::keyClick(&control("editText"), Qt::Key_Return);
    EXPECT_EQ(bench.theme()->lockScreenType(), "video");
    EXPECT_EQ(control<QLineEdit>("editText").text(), "video");
    EXPECT_EQ(listener.reloads, 1) << "other rows depend on it";
}

TEST_F(FullListPageTest, DropsGoToARowThatHoldsAFileAndThemesToTheWindow) {
    open();
    ASSERT_TRUE(page->showLeaf(colourKey));
    expectBox([&] { drop({picture("fits.jpg", 1080, 2160)}); }, "holds no file");
    for (const auto& [file, isTaken] : {std::pair{store.path("x.zdt"), false}, {store.path("x.jpg"), true}}) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
        QDragEnterEvent enter({200, 40}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(list().viewport(), &enter);
        EXPECT_EQ(enter.isAccepted(), isTaken) << file;
    }
}

TEST_F(FullListPageTest, ReloadKeepsThePlaceAndTakesWhatIsThere) {
    open();
    page->showModule("mms");
    ASSERT_TRUE(page->showLeaf(colourKey));
    const int index = list().current();
    ASSERT_EQ(bench.theme()->setValue(messages, "message_pop_send_bg_color", "#998877"), 0);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(list().current(), index);
    EXPECT_EQ(control<QLineEdit>("editHex").text(), "998877");
    EXPECT_FALSE(page->showLeaf("mms/text/nothing"));
    EXPECT_FALSE(page->showLeaf("title"));
    EXPECT_TRUE(page->showLeaf("launcher/image/ic_edit_share.9.png#2"));
    EXPECT_TRUE(page->showLeaf("launcher/image/ic_edit_share.9.png")) << "the one that takes part";

    openNew("Small", {2, true});
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_FALSE(page->showLeaf(colourKey));
    bench.closeTheme();
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(text("keyCount"), "0 keys");
    EXPECT_EQ(text("emptyTitle"), "No keys here");
    QTest::keyClick(&list(), Qt::Key_Delete);
    drop({picture("fits.png", 1080, 2160)});
}

TEST_F(FullListPageTest, ThemeThatVanishedKeepsWhatWasShown) {
    open();
    ASSERT_TRUE(page->showLeaf(previewKey));
    std::filesystem::remove_all(store.root() + "res/Aurora");
    test::TemporaryFolder().write("x", "");
    store.write("res/Aurora", "in the way");
    expectBox([&] { drop({picture("fits.jpg", 1080, 2160)}); }, "folder");
    ASSERT_TRUE(page->showLeaf(colourKey));
    type("editHex", "0a0b0c");
    QTest::keyClick(&control("editHex"), Qt::Key_Return);
    EXPECT_NE(text("editReason"), "");
    EXPECT_EQ(value(messages, "message_pop_send_bg_color"), "#242424");
}

} // namespace
} // namespace zdt
