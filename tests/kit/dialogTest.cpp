#include "kit/controlSearch.h"
#include "kit/messageBoxDlg.h"
#include "kit/progressDialog.h"
#include "kit/window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>
#include <memory>
#include <stdexcept>
#include <thread>

namespace zdt {
namespace {

QString same(const QString& key) {
    return key;
}

ZMessageBoxDlg::Message question(bool rejectByDefault = false) {
    ZMessageBoxDlg::Message message;
    message.textKey = "%1 and %2";
    message.acceptKey = "Yes";
    message.rejectKey = "No";
    message.rejectByDefault = rejectByDefault;
    return message;
}

/// A window with a button and a field, as pages have them.
class DialogTest : public testing::Test {
protected:
    DialogTest() {
        auto* content = new QWidget;
        auto* column = new QVBoxLayout(content);
        actions = new QWidget;
        actions->setObjectName("titleActions");
        column->addWidget(actions);
        page = new QPushButton("Export");
        field = new QLineEdit;
        column->addWidget(page);
        column->addWidget(field);
        window.setFrame(content);
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QObject::connect(page, &QPushButton::clicked, &window, [this] { ++pageClicks; });
    }

    /// Does `act` once the next dialog is open.
    template <typename Act>
    void whenOpen(Act act) {
        QTimer::singleShot(50, &window, act);
    }

    ZWindow window;
    QWidget* actions = nullptr;
    QPushButton* page = nullptr;
    QLineEdit* field = nullptr;
    int pageClicks = 0;
};

TEST_F(DialogTest, MessageBoxAnswersToKeysAndClicks) {
    const struct {
        const char* what;
        bool rejectByDefault;
        std::function<void(QWidget&)> act;
        bool answer;
    } cases[]{
        {"Enter", false, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }, true},
        {"Enter where it refuses", true, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }, false},
        {"Escape", false, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }, false},
        {"Yes", true,
         [](QWidget& box) { QTest::mouseClick(&FindControl<QPushButton>(&box, "messageAccept"), Qt::LeftButton); },
         true},
        {"close", false,
         [](QWidget& box) { QTest::mouseClick(&FindControl<QPushButton>(&box, "dialogClose"), Qt::LeftButton); },
         false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        whenOpen([&] { each.act(FindControl<ZMessageBoxDlg>(&window, {})); });
        EXPECT_EQ(ZMessageBoxDlg::ask(question(each.rejectByDefault), same, &window), each.answer);
    }
}

TEST_F(DialogTest, NoKeyReachesWhatLiesUnderAWork) {
    field->setFocus();
    ZProgressDialog progress("Working", &window);
    EXPECT_TRUE(progress.run([&](const Progress&) {
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
            QMetaObject::invokeMethod(
                &window,
                [&] {
                    EXPECT_FALSE(field->hasFocus());
                    QTest::keyClick(QApplication::focusWidget(), key);
                    QTest::keyClick(field, key);
                    QTest::keyClick(page, key);
                },
                Qt::BlockingQueuedConnection);
        }
        return true;
    }));
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(pageClicks, 0);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(DialogTest, MessageShowsArgumentsAsTheyAre) {
    auto message = question();
    message.arguments = QStringList{"%2 <b>", "two"};
    ZMessageBoxDlg box(message, same);
    EXPECT_EQ(FindControl<QLabel>(&box, "messageText").text(), "%2 <b> and two");
    EXPECT_EQ(FindControl<QLabel>(&box, "messageText").textFormat(), Qt::PlainText);
}

TEST_F(DialogTest, NothingUnderADialogIsReachedAndTheFocusComesBack) {
    field->setFocus();
    int shortcuts = 0;
    const QShortcut shortcut(QKeySequence("Ctrl+P"), &window, [&] { ++shortcuts; });
    whenOpen([&] {
        const QPoint place = page->mapTo(&window, page->rect().center());
        EXPECT_NE(window.childAt(place), page);
        EXPECT_FALSE(actions->isEnabled());
        for (int presses = 0; presses < 5; ++presses) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            EXPECT_FALSE(page->hasFocus() || field->hasFocus());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(shortcuts, 0);
        FindControl<ZMessageBoxDlg>(&window, {}).reject();
    });
    (void)ZMessageBoxDlg::ask(question(), same, &window);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_TRUE(actions->isEnabled());
    QTest::mouseClick(page, Qt::LeftButton);
    EXPECT_EQ(pageClicks, 1);
    QTest::keyClick(page, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(shortcuts, 1);
}

TEST_F(DialogTest, ClosingTheWindowRefusesWhatWasAsked) {
    whenOpen([&] { window.close(); });
    EXPECT_FALSE(ZMessageBoxDlg::ask(question(), same, &window));
    EXPECT_FALSE(window.isVisible());
}

TEST_F(DialogTest, AWindowThatGoesAwayRefusesToo) {
    auto other = std::make_unique<QWidget>();
    other->show();
    whenOpen([&] { other.reset(); });
    EXPECT_FALSE(ZMessageBoxDlg::ask(question(), same, other.get()));
}

TEST_F(DialogTest, ABoxOverADialogLeavesItUsable) {
    whenOpen([&] {
        auto& first = FindControl<ZMessageBoxDlg>(&window, {});
        whenOpen([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
        EXPECT_FALSE(ZMessageBoxDlg::ask(question(), same, &first));
        EXPECT_TRUE(first.isVisible() && first.isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_TRUE(ZMessageBoxDlg::ask(question(), same, &window));
}

TEST_F(DialogTest, WorkEndsWithItsResultWhileTheWindowLives) {
    const struct {
        const char* what;
        ZProgressDialog::Job job;
        bool result;
        std::string error;
    } cases[]{
        {"success", [](const Progress& progress) { return progress(1), true; }, true, ""},
        {"failure", [](const Progress&) { return false; }, false, ""},
        {"throws", [](const Progress&) -> bool { throw std::runtime_error("no space"); }, false, "no space"},
        {"odd shares", [](const Progress& progress) { return progress(-3), progress(7), true; }, true, ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        ZProgressDialog dialog("Exporting", &window);
        EXPECT_EQ(dialog.run(each.job), each.result);
        EXPECT_EQ(dialog.error(), each.error);
    }
}

TEST_F(DialogTest, WorkCantBeLeftButByItsCancelButton) {
    ZProgressDialog dialog("Sending", &window);
    dialog.offerCancel("Stop");
    whenOpen([&] {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        window.close();
        EXPECT_TRUE(dialog.isVisible() && window.isVisible());
        EXPECT_EQ(FindControl<QProgressBar>(&dialog, "progressBar").value(), 500);
        QTest::mouseClick(&FindControl<QPushButton>(&dialog, "progressCancel"), Qt::LeftButton);
    });
    EXPECT_FALSE(dialog.run([&](const Progress& progress) {
        progress(0.5);
        while (!dialog.cancelRequested())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return false;
    }));
    EXPECT_TRUE(dialog.cancelRequested());
}

} // namespace
} // namespace zdt
