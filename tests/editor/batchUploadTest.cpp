#include "editor/batchUpload.h"

#include "common/ninePatches.h"
#include "common/pageFixture.h"
#include "editor/batchDialog.h"
#include "editor/pictureTable.h"
#include "kit/controlSearch.h"
#include "kit/listView.h"
#include "kit/notificationNames.h"
#include "support/fileComparison.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace zdt::test {
namespace {

/// Notes what goes through the hub.
class Listener : public INotifyUI {
public:
    explicit Listener(CPaintManagerUI& hub) { hub.AddNotifier(*this); }
    void Notify(const Notification& message) override {
        names += message.name + " " + QString::number(message.wParam);
        if (message.name == notify::Notify_Error_List_Msg)
            problems = *reinterpret_cast<const std::vector<Problem>*>(message.lParam);
    }
    QStringList names;
    std::vector<Problem> problems;
};

class BatchUploadTest : public PageTest {
protected:
    BatchUploadTest() {
        openNew();
        window.resize(1024, 740);
        window.show();
        QObject::connect(&batch, &BatchUpload::finished, [this](const BatchResult& done) { result = done; });
        batch.compiler = NinePatchCompiler(std::string(ZDT_TOOLS_DIR) + "aapt");
    }

    /// Runs a batch and answers the box that comes at its end.
    void run(const QStringList& files, const std::function<void(QDialog&)>& answer) {
        bool isAnswered = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            for (QDialog* dialog : window.findChildren<QDialog*>()) {
                const bool isSummary = dialog->isVisible() && !dialog->findChild<QWidget*>("progressBar");
                if (isSummary && !isAnswered) {
                    isAnswered = true;
                    answer(*dialog);
                }
            }
        });
        timer.start(20);
        batch.start(files);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isAnswered && !batch.isBusy(); }, 20'000));
        QTest::qWait(0);
    }

    [[nodiscard]] QString file(const std::string& name, const std::string& content) const {
        return QString::fromStdString(given.write(name, content));
    }

    [[nodiscard]] PictureEntry entry(const std::string& key) const {
        std::vector<PictureGroup> groups = pictureGroupsOf(*bench.theme(), "launcher");
        return *findEntry(groups, key);
    }

    TemporaryFolder given;
    QWidget window;
    Listener listener{bench.notifications()};
    BatchUpload batch{bench, "launcher", window};
    BatchResult result;
};

TEST_F(BatchUploadTest, GoodBatchIsStoredAndSaidInABox) {
    const QString plain = file("ic_allapps.png", plainPng(192, 192));
    run({plain, file("folder_open_shadow.9.png", rawNinePatch())}, [](QDialog& box) {
        EXPECT_FALSE(dynamic_cast<BatchDialog*>(&box));
        box.accept();
    });
    EXPECT_EQ(result.matched.size(), 2U);
    EXPECT_TRUE(result.refused.empty());
    EXPECT_TRUE(sameFiles(entry("ic_allapps.png").file(), plain.toStdString()));
    EXPECT_TRUE(isCompiledNinePatch(entry("folder_open_shadow.9.png").file()));
    EXPECT_EQ(listener.names, (QStringList{"Notify_Drag_File_Simple 1", "Notify_Drag_File_Simple_9PNG 0",
                                           "Notify_Drag_File_Simple 2", "Notify_ReloadDataMsg 0"}));
    EXPECT_TRUE(test::namesIn("Temp9Png").empty());
}

TEST_F(BatchUploadTest, EachRunTellsItsEnd) {
    QStringList files;
    for (const PictureSetRow& row : pictureSetRows()) {
        for (const std::string_view name : row.names) {
            if (row.module == "commonSetting" && name.ends_with(".9.png"))
                files += file(std::string(name), rawNinePatch());
        }
    }
    files.removeDuplicates();
    BatchUpload common(bench, "commonSetting", window);
    common.compiler = batch.compiler;
    std::size_t stored = 0;
    QObject::connect(&common, &BatchUpload::finished, [&](const BatchResult& done) { stored = done.matched.size(); });
    bool isAnswered = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        for (QDialog* dialog : window.findChildren<QDialog*>()) {
            if (dialog->isVisible() && !dialog->findChild<QWidget*>("progressBar")) {
                isAnswered = true;
                dialog->accept();
            }
        }
    });
    timer.start(20);
    common.start(files);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isAnswered; }, 20'000));
    EXPECT_GT(stored, 5U);
    EXPECT_EQ(listener.names.filter("9PNG").size(), static_cast<qsizetype>(workerCount(stored)));
}

TEST_F(BatchUploadTest, RefusedFilesAreListedWithAWayOut) {
    const QString good = file("fitting.png", plainPng(192, 192));
    QStringList chosen{good, QString::fromStdString(given.path("gone.png"))};
    batch.pictureChoice.ask = [&](QWidget*, const FileRequest&) { return QStringList{chosen.takeLast()}; };
    run({file("ic_allapps.png", plainPng(10, 10)), file("nobody.png", plainPng(10, 10))}, [&](QDialog& box) {
        std::vector<PictureGroup> groups = pictureGroupsOf(*bench.theme(), "launcher");
        batch.markEntries(groups);
        EXPECT_EQ(findEntry(groups, "ic_allapps.png")->error, "10*10 refused, needs 192*192");
        QTest::mouseClick(&FindControl<QPushButton>(&box, "batchCopy"), Qt::LeftButton);
        EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("launcher/-22 ic_allapps.png\t10*10"));
        EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("launcher/-1 nobody.png"));
        QTest::mouseClick(&FindControl<QPushButton>(&box, "refusedAnother"), Qt::LeftButton);
        QTest::qWait(0);
        EXPECT_EQ(FindControl<QLabel>(&box, "batchSituation").text(), "Pictures stored: 0, refused: 2");
        EXPECT_EQ(batch.problemFiles.size(), 1U) << "a file that has gone replaces nothing";
        QTest::mouseClick(&FindControl<QPushButton>(&box, "refusedAnother"), Qt::LeftButton);
        QTest::qWait(0);
        EXPECT_EQ(FindControl<QLabel>(&box, "batchSituation").text(), "Pictures stored: 1, refused: 1");
        QTest::mouseClick(&FindControl<QPushButton>(&box, "batchProblems"), Qt::LeftButton);
    });
    EXPECT_EQ(result.refused.size(), 2U);
    EXPECT_TRUE(batch.problemFiles.empty());
    EXPECT_TRUE(sameFiles(entry("ic_allapps.png").file(), good.toStdString()));
    ASSERT_EQ(listener.problems.size(), 1U);
    EXPECT_EQ(listener.problems[0].key, "launcher/image/nobody.png");
    EXPECT_EQ(batchReasonNumber(listener.problems[0].code), 1);
}

TEST_F(BatchUploadTest, FileWithoutARowIsGivenOne) {
    const QString mine = file("mine.png", plainPng(192, 192));
    run({mine}, [&](QDialog& box) {
        QTimer::singleShot(100, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Right);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        });
        auto& button = FindControl<QPushButton>(&box, "refusedAnother");
        EXPECT_EQ(button.text(), "Choose place");
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::qWait(300);
        box.accept();
    });
    EXPECT_TRUE(sameFiles(entry("ic_allapps_pressed.png").file(), mine.toStdString()));
}

TEST_F(BatchUploadTest, NamesThatMatchNoRowAreAllListed) {
    QStringList files;
    for (int number = 0; number < 1000; ++number)
        files += file("nobody" + std::to_string(number) + ".png", "x");
    run(files, [](QDialog& box) { box.reject(); });
    ASSERT_EQ(result.refused.size(), 1000U);
    for (const BatchRefusal& refusal : result.refused)
        EXPECT_EQ(refusal.code(), "-1");
}

TEST_F(BatchUploadTest, ToolThatHangsIsCancelledWithNothingStored) {
    const std::string tool = given.write("tool", "#!/bin/sh\nsleep 60\n");
    ::chmod(tool.c_str(), 0755);
    batch.compiler = NinePatchCompiler(tool);
    const std::string before = test::readFile(entry("ic_allapps.png").file());
    batch.start({file("ic_allapps.png", plainPng(192, 192)), file("folder_open_shadow.9.png", rawNinePatch())});
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (auto* cancel = window.findChild<QPushButton*>("progressCancel"); cancel && cancel->isVisible())
            cancel->click();
    });
    timer.start(100);
    ASSERT_TRUE(QTest::qWaitFor([&] { return result.cancelled; }, 5000));
    EXPECT_TRUE(result.matched.empty());
    EXPECT_EQ(test::readFile(entry("ic_allapps.png").file()), before);
}

TEST_F(BatchUploadTest, ProblemsGoWithTheirTheme) {
    run({file("ic_allapps.png", plainPng(10, 10))}, [](QDialog& box) { box.accept(); });
    EXPECT_EQ(batch.problemFiles.size(), 1U);
    bench.notifications().SendNotify(nullptr, notify::Reload_history_themes);
    EXPECT_TRUE(batch.problemFiles.empty());
}

TEST_F(BatchUploadTest, NothingBeginsWithoutAThemeOrFiles) {
    batch.start({});
    bench.closeTheme();
    batch.start({"/a.png"});
    openNew("Other");
    batch.start({"/a.png"});
    bench.closeTheme(); // Before the batch began.
    QTest::qWait(50);
    EXPECT_TRUE(result.refused.empty());
    EXPECT_FALSE(batch.isBusy());
}

} // namespace
} // namespace zdt::test
