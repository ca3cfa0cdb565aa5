#include "editor/exportPageFixture.h"
#include "editor/previewCard.h"
#include "editor/stateLine.h"
#include "kit/notificationNames.h"

#include <QAbstractButton>
#include <QToolButton>

namespace zdt {
namespace {

class ExportPreviewsTest : public test::ExportPageTest {
protected:
    void choosePicture(const std::string& name) {
        const QString file = QString::fromStdString(savedPicture(name, {1080, 2160}));
        page->previews().pictureChoice.ask = [file](QWidget*, const FileRequest&) { return QStringList{file}; };
    }
};

TEST_F(ExportPreviewsTest, ReplacedLockPreviewIsDrawnAgain) {
    openGood();
    const std::string cover = previewBytes("cover.jpg");
    const QString name = "preview_unlock_0.jpg";
    choosePicture("own.png");
    QTest::mouseClick(&find<QPushButton>("replace_" + name), Qt::LeftButton);
    settle();
    EXPECT_NE(previewBytes("cover.jpg"), cover);
    std::vector<Problem> problems;
    EXPECT_TRUE(bench.theme()->checkFiles(problems));
    const PreviewPictureView& view = find<PreviewCard>("card_" + name).view();
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.mark() == Text("kExport_own_picture"); }));
    EXPECT_EQ(find<PreviewCard>("card_preview_icons_0.jpg").view().mark(), "");
}

TEST_F(ExportPreviewsTest, RefusedPicturesLeaveWhatWasThere) {
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

TEST_F(ExportPreviewsTest, SparePictureOfTheContactsComesAndGoes) {
    openGood();
    const QString name = "preview_contacts_2.jpg";
    EXPECT_TRUE(find<QLabel>("previewsReady").text().startsWith("11/11"));
    for (const char* more : {"preview_contacts_1.jpg", "preview_contacts_2.jpg"})
        ASSERT_EQ(bench.theme()->deletePreview(bench.theme()->getValue({"preview"}, more)), 0);
    page->open();
    page->previews().finish();
    EXPECT_EQ(find<QPushButton>("replace_" + name).text(), Text("file_load"));
    EXPECT_TRUE(find<QLabel>("previewsReady").text().startsWith("9/9"))
        << find<QLabel>("previewsReady").text().toStdString();
    choosePicture("own.png");
    QTest::mouseClick(&find<QPushButton>("replace_" + name), Qt::LeftButton);
    settle();
    EXPECT_FALSE(previewBytes(name.toStdString()).empty());
    auto& remove = find<QToolButton>("remove_" + name);
    EXPECT_TRUE(QTest::qWaitFor([&] { return remove.isVisible(); }));
    EXPECT_FALSE(find<QToolButton>("remove_preview_contacts_0.jpg").isVisible());
    const auto press = [&](const char* button) {
        answer({button});
        QTest::mouseClick(&find<QToolButton>("remove_" + name), Qt::LeftButton);
        settle();
        return bench.theme()->findLeaf({"preview"}, name.toStdString()) != nullptr;
    };
    EXPECT_TRUE(press("messageReject"));
    EXPECT_FALSE(press("messageAccept"));
    EXPECT_EQ(find<QPushButton>("replace_" + name).text(), Text("file_load"));
}

TEST_F(ExportPreviewsTest, WorkReachesNoOtherThemeAndNoneThatWasLeft) {
    openGood();
    const std::string own = savedPicture("own.jpg", {1080, 2160});
    const std::string before = previewBytes("preview_mms_0.jpg");
    const auto replace = [&] { page->previews().replace("preview_mms_0.jpg", QString::fromStdString(own)); };
    replace();
    replace(); // Waits behind the first.
    page->previews().refresh();
    bench.closeTheme();
    bench.takeTheme(store.open("Aurora"));
    page->previews().finish();
    EXPECT_EQ(previewBytes("preview_mms_0.jpg"), before) << "opened again";
    page->open();
    page->previews().finish();
    EXPECT_EQ(find<StateLine>("previewsDrawn").text(), "Done, 0 failed");
    replace();
    page->hide();
    page->previews().finish();
    EXPECT_EQ(previewBytes("preview_mms_0.jpg"), before) << "left";
}

TEST_F(ExportPreviewsTest, OthersHearOfNewPreviewsWhenThePageIsLeft) {
    openGood();
    static_cast<void>(page->previews().takeChanged());
    const QSignalSpy changed(page.get(), &CResEditOutPutDlg::previewsChanged);
    page->open();
    page->previews().finish();
    page->close();
    EXPECT_EQ(changed.count(), 0) << "drawn again, and the same";
    page->previews().replace("preview_mms_0.jpg", QString::fromStdString(savedPicture("own.jpg", {1080, 2160})));
    page->previews().finish();
    page->close();
    page->close();
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ExportPreviewsTest, HelpOpensBesideItsButton) {
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
