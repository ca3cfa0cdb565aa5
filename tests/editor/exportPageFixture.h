#pragma once

#include "common/pageFixture.h"
#include "editor/exportPage.h"
#include "kit/controlSearch.h"
#include "kit/localisation.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <utility>

namespace zdt::test {

/// The export page in a window of its own, driven by the names of its controls.
class ExportPageTest : public PageTest {
protected:
    CResEditOutPutDlg& openPage() {
        page = std::make_unique<CResEditOutPutDlg>(bench);
        done = std::make_unique<QSignalSpy>(page.get(), &CResEditOutPutDlg::done);
        stored = std::make_unique<QSignalSpy>(page.get(), &CResEditOutPutDlg::valuesStored);
        page->folderChoice.ask = [this](QWidget*, const FileRequest&) {
            const std::string folder = chosenFirst.empty() ? chosen : std::exchange(chosenFirst, {});
            return folder.empty() ? QStringList() : QStringList{QString::fromStdString(folder)};
        };
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

    /// Lets what waits for the event loop come, and all that it begins.
    void settle() {
        QCoreApplication::processEvents();
        page->previews().finish();
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
        std::string path = store.path(name);
        EXPECT_TRUE(image.save(QString::fromStdString(path)));
        return path;
    }

    [[nodiscard]] std::string previewBytes(const std::string& name) {
        return readFile(bench.theme()->getValue({"preview"}, name));
    }

    std::unique_ptr<CResEditOutPutDlg> page;
    std::unique_ptr<QSignalSpy> done;
    std::unique_ptr<QSignalSpy> stored;
    std::string chosenFirst; ///< In the place of `chosen`, once.
    std::string chosen;
    QString shown;
    QStringList said;
};

} // namespace zdt::test
