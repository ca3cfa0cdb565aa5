#include "kit/colourDialog.h"

#include "kit/colourText.h"
#include "kit/controlSearch.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace zdt {
namespace {

QString same(const QString& key) {
    return key;
}

std::string textOf(const QString& given) {
    const std::optional<QColor> colour = colourOf(given);
    return colour ? colourText(*colour).toStdString() : "none";
}

TEST(ColourText, TakesTheThemesFormAndNoOther) {
    const struct {
        const char* given;
        const char* text;
    } cases[] = {{"#0E1B2E", "#0e1b2e"},
                 {" 0e1b2e\n", "#0e1b2e"},
                 {"#4D242424", "#4d242424"},
                 {"#FF242424", "#242424"},
                 {"#00abcdef", "#00abcdef"},
                 {"#fff", "none"},
                 {"", "none"},
                 {"#", "none"},
                 {"##0e1b2e", "none"},
                 {"red", "none"},
                 {"#0e1b2", "none"},
                 {"#0e1b2e4", "none"},
                 {"#0e1b2e4d5", "none"},
                 {"#0e1b2g", "none"},
                 {"#-e1b2e", "none"},
                 {"\xef\xbc\x91"
                  "23456",
                  "none"}};
    for (const auto& [given, text] : cases)
        EXPECT_EQ(textOf(given), text) << given;
}

TEST(ColourText, FieldsKeepWhatTheyDoNotTell) {
    EXPECT_EQ(hexDigitsOf("color: #0e-1B 2g!e"), "C0E1B2E");
    EXPECT_EQ(hexDigitsOf("#123456789a"), "12345678");
    const QColor see = *colourOf("#4d242424");
    EXPECT_EQ(colourText(*typedColour("0E1B2E", see)), "#4d0e1b2e");
    EXPECT_EQ(colourText(*typedColour("FF0E1B2E", see)), "#0e1b2e");
    EXPECT_FALSE(typedColour("0E1B2", see));
    for (int alpha = 0; alpha <= 255; ++alpha) {
        QColor colour = see;
        colour.setAlpha(alpha);
        EXPECT_EQ(withPercent(colour, percentOf(colour)), colour);
    }
    for (int percent = 0; percent <= 100; ++percent)
        EXPECT_EQ(percentOf(withPercent(see, percent)), percent);
    EXPECT_EQ(withPercent(see, 400).alpha(), 255);
}

class ColourDialogTest : public testing::Test {
protected:
    void open(const char* colour, const char* fallback = nullptr) {
        ZColourDialog::Request request{*colourOf(colour), std::nullopt, {Qt::red, Qt::green, Qt::red}};
        if (fallback)
            request.fallback = colourOf(fallback);
        dialog = std::make_unique<ZColourDialog>(request, same);
        QObject::connect(dialog.get(), &ZColourDialog::colourChanged, dialog.get(),
                         [this](const QColor& tried) { heard.push_back(colourText(tried).toStdString()); });
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    template <typename T = QWidget>
    T& control(const char* name) {
        return FindControl<T>(dialog.get(), name);
    }
    void type(const char* name, const char* text) {
        auto& field = control<QLineEdit>(name);
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }
    [[nodiscard]] std::string now() const { return colourText(dialog->colour()).toStdString(); }

    std::unique_ptr<ZColourDialog> dialog;
    std::vector<std::string> heard;
};

TEST_F(ColourDialogTest, DigitsAndPercentAreHeardWhileTheyAreTyped) {
    open("#4d242424");
    EXPECT_EQ(control<QLineEdit>("colourHex").text(), "242424");
    EXPECT_EQ(control<QLineEdit>("colourPercent").text(), "30");
    type("colourHex", "#z16-283f");
    EXPECT_EQ(now(), "#4d16283f");
    type("colourPercent", "100");
    EXPECT_EQ(now(), "#16283f");
    type("colourPercent", "x4567");
    EXPECT_EQ(control<QLineEdit>("colourPercent").text(), "45");
    EXPECT_EQ(heard.front(), "#4d16283f");
    EXPECT_EQ(heard.back(), now());

    QApplication::clipboard()->setText("#80FF0102");
    auto& hex = control<QLineEdit>("colourHex");
    hex.selectAll();
    hex.setFocus();
    QTest::keyClick(&hex, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(now(), "#80ff0102");
    QTest::keyClick(&hex, Qt::Key_Tab);
    EXPECT_EQ(hex.text(), "FF0102");
}

TEST_F(ColourDialogTest, EscapeBringsTheOldColourBackAndEnterTakesTheNew) {
    open("#123456");
    type("colourHex", "abcdef");
    QTest::keyClick(&control("colourHex"), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(heard, (std::vector<std::string>{"#abcdef", "#123456"}));
    EXPECT_EQ(dialog->result(), QDialog::Rejected);

    open("#123456");
    type("colourHex", "abcdef");
    QTest::keyClick(&control("colourHex"), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(now(), "#abcdef");
}

TEST_F(ColourDialogTest, EnterRefusesDigitsThatAreNoColour) {
    open("#123456");
    type("colourHex", "abcde");
    QTest::keyClick(&control("colourHex"), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(control("colourError").isVisible());
    EXPECT_EQ(control<QLineEdit>("colourHex").text(), "ABCDE");
    QTest::keyClick(&control("colourHex"), Qt::Key_End);
    QTest::keyClicks(&control("colourHex"), "f");
    EXPECT_FALSE(control("colourError").isVisible());
    QTest::keyClick(&control("colourHex"), Qt::Key_Return);
    EXPECT_EQ(now(), "#abcdef");
}

TEST_F(ColourDialogTest, ArrowsMoveWhatHasTheFocus) {
    const struct {
        const char* name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* colour;
    } cases[] = {
        {"colourSquare", Qt::Key_Down, Qt::NoModifier, "#fe0000"},
        {"colourSquare", Qt::Key_Up, Qt::NoModifier, "#ff0000"},
        {"colourSquare", Qt::Key_Left, Qt::ShiftModifier, "#ff0a0a"},
        {"colourSquare", Qt::Key_Right, Qt::ShiftModifier, "#ff0000"},
        {"colourHue", Qt::Key_Right, Qt::ShiftModifier, "#ff2b00"},
        {"colourHue", Qt::Key_Left, Qt::NoModifier, "#ff2600"},
        {"colourAlpha", Qt::Key_Left, Qt::NoModifier, "#feff2600"},
        {"colourAlpha", Qt::Key_Left, Qt::ShiftModifier, "#f4ff2600"},
    };
    open("#ff0000");
    for (const auto& [name, key, modifiers, colour] : cases) {
        control(name).setFocus();
        QTest::keyClick(&control(name), key, modifiers);
        EXPECT_EQ(now(), colour) << name;
        EXPECT_NE(control(name).accessibleName(), "") << name;
    }
}

TEST_F(ColourDialogTest, GreyKeepsItsHue) {
    open("#ff0000");
    control("colourHue").setFocus();
    QTest::keyClick(&control("colourHue"), Qt::Key_Right, Qt::ShiftModifier);
    type("colourHex", "808080");
    for (int pressed = 0; pressed < 26; ++pressed)
        QTest::keyClick(&control("colourSquare"), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(dialog->colour().hsvHue(), 10);
}

TEST_F(ColourDialogTest, ResetIsThereOnlyWithADefault) {
    open("#123456");
    EXPECT_EQ(dialog->findChild<QPushButton*>("colourReset"), nullptr);
    open("#123456", "#4dffffff");
    QTest::mouseClick(&control("colourReset"), Qt::LeftButton);
    EXPECT_EQ(now(), "#4dffffff");
}

TEST_F(ColourDialogTest, SwatchesLeadBackToColours) {
    open("#123456");
    EXPECT_EQ(dialog->findChild<QWidget*>("themeColour2"), nullptr) << "doubles are left out";
    QTest::mouseClick(&control("themeColour1"), Qt::LeftButton);
    EXPECT_EQ(now(), "#00ff00");
    for (int blue = 0; blue < 10; ++blue) {
        open("#123456");
        type("colourHex", ("00000" + std::to_string(blue)).c_str());
        dialog->accept();
    }
    const QList<QColor> recent = ZColourDialog::recentColours();
    ASSERT_EQ(recent.size(), ZColourDialog::recentCount);
    EXPECT_EQ(colourText(recent.first()), "#000009");
    EXPECT_EQ(colourText(recent.last()), "#000002");
    open("#123456");
    QTest::mouseClick(&control("recentColour1"), Qt::LeftButton);
    EXPECT_EQ(now(), "#000008");
}

} // namespace
} // namespace zdt
