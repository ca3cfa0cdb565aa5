#include "editor/screenPictures.h"

#include "canvas/drawPictrue.h"
#include "canvas/previewComposition.h"
#include "common/boxAnswers.h"
#include "common/ninePatches.h"
#include "common/pageFixture.h"
#include "editor/batchDialog.h"
#include "editor/colorAndPictureSetPage.h"
#include "editor/pictureSet.h"
#include "editor/pictureTable.h"
#include "editor/simplePages.h"
#include "kit/flowView.h"
#include "kit/listView.h"
#include "kit/notificationNames.h"
#include "support/fileComparison.h"

#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QStackedWidget>
#include <QUrl>

#include <filesystem>

namespace zdt::test {
namespace {

class ScreenPicturesTest : public PageTest {
protected:
    ScreenPicturesTest() {
        std::filesystem::create_directory_symlink(std::string(ZDT_TEMPLATES_DIR) + "skin/ZDThemeDesign/simplepic",
                                                  store.root() + std::string(skinFolderName) + "simplepic");
        openNew();
        page = new CSimpleContactsPage(bench, nullptr);
        stack.addWidget(page);
        stack.addWidget(new QWidget);
        stack.resize(1080, 700);
        stack.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&stack));
        QTest::mouseClick(&FindControl<QWidget>(page, "contacts|dial|picture|option"), Qt::LeftButton);
        QObject::connect(page, &CColorAndPictureManagerPage::edited, [this] { ++edits; });
        std::vector<PictureGroup> groups = pictureGroupsOf(*bench.theme(), "contacts", "dial");
        entry = *findEntry(groups, "dial_num_1_blk.png");
        page->showKey(entry.key());
    }

    CDrawPictrue& phone() { return *FindControl<QWidget>(page, "phonePlace").findChild<CDrawPictrue*>(); }
    CColorAndPictureSetPage& set() {
        return *static_cast<CColorAndPictureSetPage*>(FindControl<QStackedWidget>(page, "screenSets").currentWidget());
    }
    ZListView& list() { return FindControl<ZListView>(&set(), "pictureList"); }
    QPushButton& upload() {
        const QString name = "contacts|dial|" + QString::fromStdString(entry.name) + "|picture|button";
        return FindControl<QPushButton>(&list(), name);
    }
    template <typename T>
    T& inRow(const char* name) {
        return FindControl<T>(upload().parentWidget(), name);
    }
    [[nodiscard]] std::string good() const { return given.write("mine.png", plainPng(100, 100, Qt::magenta)); }
    void uploadFile(const std::string& path) {
        page->pictureChoice.ask = [path](QWidget*, const FileRequest&) {
            return QStringList{QString::fromStdString(path)};
        };
        QTest::mouseClick(&upload(), Qt::LeftButton);
        QTest::qWait(50);
    }
    [[nodiscard]] std::string stored() const { return readFile(entry.file()); }
    /// Whether the set page takes the files that are dragged over it; they are dropped if it does.
    bool drop(const QStringList& files) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls += QUrl::fromLocalFile(file);
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&set(), &enter);
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted())
            QApplication::sendEvent(&set(), &drop);
        return enter.isAccepted();
    }

    TemporaryFolder given;
    QStackedWidget stack;
    CSimpleContactsPage* page = nullptr;
    PictureEntry entry;
    int edits = 0;
};

TEST_F(ScreenPicturesTest, AnUploadIsStoredShownAndRememberedAndAResetTakesItBack) {
    const std::string before = stored();
    const QImage frame = phone().composition()->frame().copy();
    uploadFile(good());
    EXPECT_EQ(stored(), readFile(good()));
    EXPECT_NE(phone().composition()->frame(), frame);
    EXPECT_EQ(edits, 1);
    bench.notifications().SendNotify(page, notify::MESSAGE_SET_PREVIEW_INDEX, 1);
    bench.notifications().SendNotify(page, notify::MESSAGE_SET_PREVIEW_INDEX, 0);
    page->showKey(entry.key());
    EXPECT_TRUE(inRow<QLineEdit>("picturePath").isVisible());
    EXPECT_EQ(inRow<QLineEdit>("picturePath").toolTip().toStdString(), given.path("mine.png"));

    const BoxAnswers agree(stack);
    list().setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return inRow<QPushButton>("pictureReset").isVisible(); }, 2000));
    QTest::mouseClick(&inRow<QPushButton>("pictureReset"), Qt::LeftButton);
    QTest::qWait(50);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(phone().composition()->frame(), frame);
    EXPECT_FALSE(inRow<QLineEdit>("picturePath").isVisible());
}

TEST_F(ScreenPicturesTest, WhatIsNotStoredLeavesRowAndPreview) {
    const std::string before = stored();
    const QImage frame = phone().composition()->frame().copy();
    const BoxAnswers answers(stack);
    uploadFile(given.write("mine.9.png", rawNinePatch()));
    EXPECT_EQ(answers.said(), QStringList{Text("kWarn_replace_right_format_picture")});
    const std::string whole = readFile(good());
    uploadFile(given.write("cut.png", whole.substr(0, whole.size() / 2)));
    ASSERT_EQ(answers.said().size(), 2);
    EXPECT_EQ(answers.said()[1], Text("kPicture_damaged"));
    uploadFile(given.path("gone.png"));
    uploadFile(given.path()); // A folder.
    EXPECT_EQ(answers.said().size(), 2);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(inRow<QLineEdit>("picturePath").isVisible());
    EXPECT_EQ(phone().composition()->frame(), frame);
}

TEST_F(ScreenPicturesTest, APictureIsSavedElsewhere) {
    const std::string target = given.path("copy.png");
    page->pictureChoice.ask = [&](QWidget*, const FileRequest& request) {
        EXPECT_EQ(request.name.toStdString(), entry.name);
        return QStringList{QString::fromStdString(target)};
    };
    QTest::mouseClick(&inRow<QWidget>("pictureThumbnail"), Qt::LeftButton);
    QTest::qWait(50);
    EXPECT_TRUE(sameFiles(target, entry.file()));
    EXPECT_EQ(edits, 0);
}

TEST_F(ScreenPicturesTest, APointedRowIsOutlinedAndAHiddenPageForgetsIt) {
    EXPECT_TRUE(phone().isPulsing()) << "a row that was gone to is found on the phone";
    list().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(phone().outlined(), phone().composition()->partsOf(entry.key()));
    stack.setCurrentIndex(1);
    EXPECT_TRUE(phone().outlined().empty());
    auto* sets = page->findChild<ScreenPictures*>();
    bench.notifications().SendNotify(sets->sets().front(), notify::Notify_Pic_Hint);
    EXPECT_TRUE(phone().outlined().empty());
    stack.setCurrentIndex(0);
    EXPECT_TRUE(phone().composition());
}

TEST_F(ScreenPicturesTest, AJumpTellsModulesApart) {
    EXPECT_TRUE(page->showKey("contacts/" + entry.name));
    EXPECT_FALSE(page->showKey("mms/" + entry.name));
    EXPECT_FALSE(page->showKey("phone/" + entry.name));
}

TEST_F(ScreenPicturesTest, FilesDroppedAnywhereBesideThePicturesAreABatch) {
    const std::string file = given.write(entry.name, plainPng(100, 100, Qt::magenta));
    const QStringList files{QString::fromStdString(file), QString::fromStdString(given.write("nobody.png", "x"))};
    EXPECT_FALSE(drop({QString::fromStdString(given.write("theme.zdt", "x"))})) << "the window imports it";
    QTest::mouseClick(&FindControl<QWidget>(page, "contacts|dial|color|option"), Qt::LeftButton);
    EXPECT_FALSE(drop(files));
    QTest::mouseClick(&FindControl<QWidget>(page, "contacts|dial|picture|option"), Qt::LeftButton);
    QString situation;
    QTimer timer; // The summary waits for an answer inside the loop that waits for it.
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* summary = stack.findChild<BatchDialog*>();
        if (!summary || !summary->isVisible())
            return;
        situation = FindControl<QLabel>(summary, "batchSituation").text();
        summary->accept();
    });
    timer.start(20);
    EXPECT_TRUE(drop(files));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !situation.isEmpty(); }, 20'000));
    QTest::qWait(50);
    EXPECT_EQ(situation, "Pictures stored: 1, refused: 1");
    EXPECT_EQ(stored(), readFile(file));
    page->showKey(entry.key());
    EXPECT_EQ(inRow<QLineEdit>("picturePath").toolTip().toStdString(), file);
}

TEST_F(ScreenPicturesTest, TheCaptureBecomesThePreview) {
    const std::string before = readFile(bench.theme()->getValue({"preview"}, "preview_contacts_0.jpg"));
    const BoxAnswers answers(stack);
    QTest::mouseClick(&FindControl<QPushButton>(page, "screenCapture"), Qt::LeftButton);
    EXPECT_EQ(answers.said(), QStringList{Text("kScreen_Capture_remind")});
    const std::string after = readFile(bench.theme()->getValue({"preview"}, "preview_contacts_0.jpg"));
    EXPECT_FALSE(after.empty());
    EXPECT_NE(after, before);
    EXPECT_EQ(edits, 1);
}

} // namespace
} // namespace zdt::test
