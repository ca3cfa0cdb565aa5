#include "editor/exportPageFixture.h"
#include "editor/previewCard.h"
#include "kit/notificationNames.h"

#include <QAbstractButton>

namespace zdt {
namespace {

using ExportPreviewsTest = test::ExportPageTest;

TEST_F(ExportPreviewsTest, ReplacedLockPreviewIsDrawnAgain) {
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
