#include "common/pageFixture.h"
#include "kit/controlSearch.h"
#include "kit/layoutError.h"
#include "kit/optionCard.h"
#include "kit/window.h"
#include "shell/newThemeDialog.h"
#include "shell/newThemeRules.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zdt {
namespace {

TEST(NewThemeRules, OfferAFreeName) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(freeThemeName("My theme", {}), "My theme");
    EXPECT_EQ(freeThemeName("My theme", Names{"My theme 2", "my THEME"}), "My theme 3");
    EXPECT_EQ(checkThemeName(freeThemeName(offeredThemeName, {}), {}), NameProblem::none);
}

class NewThemeTest : public test::PageTest {
protected:
    void open(std::vector<std::string> taken = {"Aurora"}) {
        dialog = std::make_unique<CNewThemeDialog>(bench, std::move(taken), nullptr);
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    template <typename T = QLineEdit>
    T& control(const char* name) {
        return FindControl<T>(dialog.get(), name);
    }
    std::string words(const char* name) { return control<QLabel>(name).text().toStdString(); }

    void type(const char* field, const QString& text) {
        auto& edit = control<>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Backspace);
        // As an input method does, which gives Chinese words whole.
        QInputMethodEvent typed;
        typed.setCommitString(text);
        QApplication::sendEvent(&edit, &typed);
    }
    void press(Qt::Key key) { QTest::keyClick(dialog->focusWidget(), key); }

    std::unique_ptr<CNewThemeDialog> dialog;
};

TEST_F(NewThemeTest, SaysOfANameWhatItIsWhileItIsTyped) {
    open();
    EXPECT_EQ(words("newEnglishWords"), "This name is free");
    const struct {
        const char* field;
        QString text;
        const char* label;
        std::string said;
        bool isWrong;
    } cases[]{
        {"newEnglishName", "Aurora", "newEnglishWords", "A theme has this name. Choose another", true},
        {"newEnglishName", "Aurora 2", "newEnglishWords", "This name is free", false},
        {"newEnglishName", " Aurora ", "newEnglishWords", "A theme has this name. Choose another", true},
        {"newEnglishName", "a/b", "newEnglishWords", R"(Leave out / \ : * ? " < > and |)", true},
        {"newEnglishName", "..", "newEnglishWords", "The name is only dots. Add a letter", true},
        {"newEnglishName", "  ", "newEnglishWords", "The name is empty. Enter one", true},
        {"newEnglishName", QString(32, 'n'), "newEnglishWords", "This name is free", false},
        {"newEnglishName", QString(33, 'n'), "newEnglishWords", Text("kExport_short_long_EN").toStdString(), true},
        {"newEnglishName", "Dune!", "newEnglishWords", Text("kExport_short_sign").toStdString(), true},
        {"newEnglishName", "Dune.", "newEnglishWords", Text("kExport_short_dot").toStdString(), true},
        {"newEnglishName", QString(80, QChar(0x4e3b)), "newEnglishWords", "The name is too long. Shorten it", true},
        {"newChineseName", "a.b", "newChineseWords", "Use only characters, digits, _ - and :", true},
        {"newChineseName", QString(17, QChar(0x4e3b)), "newChineseWords", "Use at most 16 characters", true},
        {"newChineseName", QString(16, QChar(0x4e3b)), "newChineseWords", "Shown on phones set to Chinese", false},
    };
    for (const auto& each : cases) {
        type(each.field, each.text);
        EXPECT_TRUE(QTest::qWaitFor([&] { return words(each.label) == each.said; }, 2000))
            << each.text.toStdString() << ": " << words(each.label);
        EXPECT_EQ(control<>(each.field).property("state").toString() == "error", each.isWrong) << each.said;
    }
}

TEST_F(NewThemeTest, OpensWithAFreeNameChosenThatTypingReplaces) {
    open({"My theme"});
    EXPECT_EQ(dialog->focusWidget(), &control<>("newEnglishName"));
    EXPECT_EQ(control<>("newEnglishName").selectedText(), "My theme 2");
    QTest::keyClicks(dialog->focusWidget(), "Lagoon");
    EXPECT_EQ(dialog->chosen().name, "Lagoon");
    EXPECT_EQ(dialog->chosen().generation, 2U);
    EXPECT_FALSE(dialog->chosen().small);
}

TEST_F(NewThemeTest, EnterStaysAtWhatIsWrongAndTakesWhatIsRight) {
    open();
    type("newEnglishName", "Aurora");
    press(Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(words("newEnglishWords"), "A theme has this name. Choose another");
    EXPECT_EQ(dialog->focusWidget(), &control<>("newEnglishName"));
    type("newEnglishName", "Lagoon");
    type("newChineseName", "a.b");
    QTest::mouseClick(&control<QPushButton>("newCreate"), Qt::LeftButton);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->focusWidget(), &control<>("newChineseName"));
    type("newChineseName", "");
    press(Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(NewThemeTest, CardsAreChosenByKeysAloneAndByClicks) {
    open();
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget(), &control<>("newChineseName"));
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget(), &control<ZOptionCard>("newGeneration9"));
    press(Qt::Key_Right);
    EXPECT_EQ(dialog->chosen().generation, 1U);
    press(Qt::Key_Right);
    EXPECT_EQ(dialog->chosen().generation, 0U);
    press(Qt::Key_Left);
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget(), &control<ZOptionCard>("newBig"));
    press(Qt::Key_Right);
    press(Qt::Key_Backtab);
    EXPECT_EQ(dialog->focusWidget(), &control<ZOptionCard>("newGeneration8"));
    EXPECT_TRUE(dialog->chosen().small);
    QTest::mouseClick(&control<ZOptionCard>("newGeneration5"), Qt::LeftButton);
    QTest::mouseClick(&control<ZOptionCard>("newGeneration5"), Qt::LeftButton);
    EXPECT_EQ(dialog->chosen().generation, 0U);
    for (const char* card : {"newGeneration5", "newGeneration8", "newGeneration9"})
        EXPECT_EQ(control<ZOptionCard>(card).picture().deviceIndependentSize().width(), 64) << card;
}

TEST_F(NewThemeTest, AskGivesWhatWasTypedInItsWindowOrNothing) {
    ZWindow window;
    window.resize(1024, 740);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const bool isAccepted : {true, false}) {
        QTimer::singleShot(0, &window, [&] {
            QTest::keyClicks(QApplication::focusWidget(), " Lagoon ");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
            QTest::keyClick(QApplication::focusWidget(), isAccepted ? Qt::Key_Return : Qt::Key_Escape);
        });
        const std::optional<ThemeWish> asked = CNewThemeDialog::ask(bench, {}, &window);
        ASSERT_EQ(asked.has_value(), isAccepted);
        if (asked) {
            EXPECT_EQ(asked->name, "Lagoon");
            EXPECT_EQ(asked->generation, 1U);
            EXPECT_TRUE(store.create(asked->name, {asked->generation, asked->small}));
        }
    }
}

TEST_F(NewThemeTest, SaysSoWithoutItsLayout) {
    Workbench bare{SkinLoader(QStringList{QString::fromStdString(store.root())}), store.root()};
    EXPECT_THROW(CNewThemeDialog(bare, {}, nullptr), LayoutError);
}

} // namespace
} // namespace zdt
