#include "canvas/drawPictrue.h"
#include "canvas/previewComposition.h"
#include "common/boxAnswers.h"
#include "common/pageFixture.h"
#include "editor/colorItem.h"
#include "editor/colourTyping.h"
#include "editor/screenParts.h"
#include "editor/simplePages.h"
#include "kit/controlSearch.h"
#include "kit/flowView.h"
#include "kit/notificationNames.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <memory>

namespace zdt {
namespace {

const KeyPath dial{"contacts", "dial"};
constexpr const char* highlight = "highlight color";
constexpr const char* highlightKey = "contacts/dial/highlight color";
const QString highlightRow = "contacts|dial|highlight color|color|";

TEST(ColourTyping, KeepsWhatCanStandInItsField) {
    struct Case {
        const char* typed;
        const char* digits;
        const char* alpha;
        const char* percent;
    };
    for (const Case& each : {Case{"", "", "", ""}, Case{"#0e1B2e", "0e1B2e", "0e", "012"},
                             Case{"12345", "12345", "12", "100"}, Case{"zz9-ff 00aa77", "9ff00a", "9f", "100"},
                             Case{"250", "250", "25", "100"}, Case{"7 %", "7", "7", "7"}, Case{"１２", "", "", ""}}) {
        EXPECT_EQ(keptHexDigits(each.typed, typedColourDigits), each.digits) << each.typed;
        EXPECT_EQ(keptHexDigits(each.typed, typedAlphaDigits), each.alpha) << each.typed;
        EXPECT_EQ(keptPercent(each.typed), each.percent) << each.typed;
    }
}

TEST(ColourTyping, TurnsPercentAndAlphaIntoEachOther) {
    for (const auto& [percent, alpha] :
         {std::pair(0, 0), std::pair(1, 2), std::pair(50, 127), std::pair(99, 252), std::pair(100, 255)})
        EXPECT_EQ(alphaOfPercent(percent), alpha);
    for (const auto& [alpha, percent] :
         {std::pair(0, 0), std::pair(1, 0), std::pair(2, 1), std::pair(127, 50), std::pair(254, 100)})
        EXPECT_EQ(percentOfAlpha(alpha), percent);
    EXPECT_EQ(composedColour(QColor(0x0e, 0x1b, 0x2e, 7)), "#070e1b2e");
}

class ScreensPageTest : public test::PageTest {
protected:
    ScreensPageTest() {
        std::filesystem::create_directory_symlink(std::string(ZDT_TEMPLATES_DIR) + "skin/ZDThemeDesign/simplepic",
                                                  store.root() + std::string(skinFolderName) + "simplepic");
    }

    template <typename Page>
    void show(const test::ThemeKind& kind = {2}) {
        openNew("Aurora", kind);
        page = std::make_unique<Page>(bench, nullptr);
        page->resize(1080, 700);
        page->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    }
    template <typename T = QLineEdit>
    T& control(const QString& name) {
        return FindControl<T>(page.get(), name);
    }
    void type(const QString& row, const char* field, const char* text) {
        auto& edit = control(row + field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    [[nodiscard]] std::string value(const KeyPath& block = dial, const char* item = highlight) const {
        return bench.theme()->simpleValue(block, item);
    }
    CDrawPictrue& phone() { return *FindControl<QWidget>(page.get(), "phonePlace").findChild<CDrawPictrue*>(); }
    QRgb shown(const std::string& key) {
        const PreviewComposition& composition = *phone().composition();
        const std::vector<std::size_t> parts = composition.partsOf(key);
        return parts.empty() ? 0 : composition.parts()[parts.front()].colour();
    }

    std::unique_ptr<CColorAndPictureManagerPage> page;
};

TEST_F(ScreensPageTest, AColourIsStoredWithItsLastDigitAndThePhoneFollows) {
    show<CSimpleContactsPage>();
    const std::string before = value();
    type(highlightRow, rowControl::colourEdit, "12a4C");
    EXPECT_EQ(value(), before) << "five digits are no colour";
    const QImage frame = phone().composition()->frame().copy();
    QTest::keyClicks(&control(highlightRow + rowControl::colourEdit), "x8");
    EXPECT_EQ(value(), "#12a4c8");
    EXPECT_EQ(control(highlightRow + rowControl::colourEdit).text(), "12a4C8") << "what is no digit is taken out";
    EXPECT_EQ(shown(highlightKey), 0xff12a4c8U);
    EXPECT_NE(phone().composition()->frame(), frame);
    EXPECT_EQ(store.open("Aurora")->simpleValue(dial, highlight), "#12a4c8") << "it is on disk at once";
}

TEST_F(ScreensPageTest, TheThreeFieldsOfARowSayTheSame) {
    show<CSimpleContactsPage>();
    const auto expect = [this](const char* alpha, const char* percent) {
        EXPECT_EQ(control(highlightRow + rowControl::alphaEdit).text(), alpha);
        EXPECT_EQ(control(highlightRow + rowControl::percentEdit).text(), percent);
    };
    expect("FF", "100");
    type(highlightRow, rowControl::percentEdit, "50");
    expect("7F", "50");
    EXPECT_EQ(qAlpha(shown(highlightKey)), 0x7f);
    type(highlightRow, rowControl::percentEdit, "250");
    expect("FF", "100");
    type(highlightRow, rowControl::alphaEdit, "40");
    expect("40", "25");
    type(highlightRow, rowControl::alphaEdit, "8");
    QTest::keyClick(&control(highlightRow + rowControl::alphaEdit), Qt::Key_Return);
    expect("40", "25");
}

TEST_F(ScreensPageTest, AResetPutsEverySourceBack) {
    show<CSimpleContactsPage>();
    const std::string file = store.root() + "res/Aurora/com.android.contacts/theme.xml";
    ASSERT_TRUE(bench.theme()->applySimple(dial, highlight));
    const std::string before = test::readFile(file);
    type(highlightRow, rowControl::colourEdit, "12a4c8");
    ASSERT_NE(test::readFile(file), before);
    auto& reset = control<QPushButton>(highlightRow + rowControl::reset);
    ASSERT_TRUE(reset.isVisible());
    reset.click();
    EXPECT_EQ(test::readFile(file), before);
    EXPECT_EQ(control(highlightRow + rowControl::colourEdit).text(), "007DFE");
    EXPECT_EQ(shown(highlightKey), 0xff007dfeU);
    EXPECT_FALSE(reset.isVisible());
}

TEST_F(ScreensPageTest, WhatCannotBeWrittenIsSaidAndStaysAsItWas) {
    show<CSimpleContactsPage>();
    const std::string before = value();
    // Nothing can be written where a folder stands in a file's place.
    const std::string file = store.root() + "res/Aurora/com.android.contacts/theme.xml";
    std::filesystem::remove(file);
    std::filesystem::create_directories(file + "/in the way");
    test::BoxAnswers answers(*page);
    type(highlightRow, rowControl::colourEdit, "12a4c8");
    EXPECT_EQ(answers.said().size(), 1);
    EXPECT_EQ(value(), before);
    EXPECT_EQ(control(highlightRow + rowControl::colourEdit).text(), "007DFE");
    EXPECT_EQ(shown(highlightKey), 0xff007dfeU);
}

TEST_F(ScreensPageTest, AShadowThatIsOffIsNotChanged) {
    show<CSimpleLauncherPage>();
    bench.notifications().SendNotify(nullptr, notify::MESSAGE_SET_PREVIEW_INDEX, 1);
    const QString row = "launcher|folder|text shadow|color|";
    auto& box = control<QCheckBox>(row + rowControl::checkBox);
    ASSERT_FALSE(box.isChecked());
    const std::string shadow = "launcher/folder/text shadow";
    const auto isSeen = [&] {
        const PreviewComposition& composition = *phone().composition();
        return composition.parts()[composition.partsOf(shadow).front()].isVisible;
    };
    EXPECT_FALSE(isSeen());
    {
        test::BoxAnswers answers(*page);
        type(row, rowControl::colourEdit, "1");
        EXPECT_EQ(answers.said(), QStringList(Text("key_simple_checkbox_warn")));
    }
    EXPECT_EQ(control(row + rowControl::colourEdit).text(), "000000");
    box.click();
    EXPECT_EQ(value({"launcher", "folder"}, "shadow switch"), "true");
    EXPECT_TRUE(isSeen());
    type(row, rowControl::colourEdit, "112233");
    EXPECT_EQ(value({"launcher", "folder"}, "text shadow"), "#112233");
}

TEST_F(ScreensPageTest, ARowPointsAtItsPlacesAndAPlaceLeadsToItsRow) {
    show<CSimpleContactsPage>();
    auto& row = control<CColorItem>(QString("contacts|dial|highlight color|") + colourRowName);
    QTest::mouseMove(&row, row.rect().center());
    bench.notifications().SendNotify(&row, notify::listitemmousenter);
    const std::vector<std::size_t> places = phone().composition()->partsOf(highlightKey);
    ASSERT_FALSE(places.empty());
    EXPECT_EQ(phone().outlined(), places);
    bench.notifications().SendNotify(&row, notify::listitemmousleave);
    EXPECT_TRUE(phone().outlined().empty());

    QTest::mouseClick(&phone(), Qt::LeftButton, {}, phone().placeOf(places.front()).center());
    EXPECT_EQ(QApplication::focusWidget(), &control(highlightRow + rowControl::colourEdit));
}

TEST_F(ScreensPageTest, AFilterHidesRowsUntilOneIsWanted) {
    show<CSimpleContactsPage>();
    auto& row = control<CColorItem>(QString("contacts|dial|highlight color|") + colourRowName);
    control("contacts|dial|find").setText("nothing like this");
    EXPECT_FALSE(row.isVisible());
    EXPECT_TRUE(page->showKey(highlightKey));
    EXPECT_TRUE(row.isVisible());
    control<QPushButton>("contacts|dial|changed").setChecked(true);
    EXPECT_FALSE(page->showKey("contacts/dial/no such item"));
}

TEST_F(ScreensPageTest, AnotherScreenOrModuleShowsTheSameColour) {
    show<CSimpleContactsPage>();
    type(highlightRow, rowControl::colourEdit, "12a4c8");
    const auto& strip = control<ZFlowView>("screenStrip");
    for (int screen = 0; screen < page->screenCount(); ++screen) {
        bench.notifications().SendNotify(nullptr, notify::MESSAGE_SET_PREVIEW_INDEX, screen);
        EXPECT_EQ(strip.current(), screen);
        EXPECT_EQ(page->screen(), screen);
        const QRgb colour = shown(highlightKey);
        EXPECT_TRUE(colour == 0 || colour == 0xff12a4c8U) << screen;
    }
    bench.notifications().SendNotify(nullptr, notify::MESSAGE_SET_PREVIEW_INDEX, 99);
    EXPECT_EQ(page->screen(), page->screenCount() - 1);
}

TEST_F(ScreensPageTest, FollowsTheThemeAndTheLanguage) {
    show<CSimpleContactsPage>();
    type(highlightRow, rowControl::colourEdit, "12a4c8");
    SetLanguage(chineseLanguage);
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(control<QLabel>("screenTitle").text(), "联系人");
    EXPECT_EQ(shown(highlightKey), 0xff12a4c8U);
    openNew("Lagoon");
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(shown(highlightKey), 0xff007dfeU);
    bench.closeTheme();
    bench.notifications().SendNotify(nullptr, notify::Notify_ReloadDataMsg);
    EXPECT_EQ(page->screenCount(), 0);
    bench.notifications().SendNotify(nullptr, notify::MESSAGE_SET_PREVIEW_INDEX, 0);
    EXPECT_FALSE(page->showKey(highlightKey));
}

TEST_F(ScreensPageTest, EveryPageShowsItsScreensInEveryGeneration) {
    for (unsigned generation = 0; generation < generationCount; ++generation) {
        const auto expectScreens = [&](const char* module, std::size_t count) {
            EXPECT_EQ(shownScreens(*bench.theme(), module).size(), count) << module << " " << generation;
            EXPECT_EQ(page->screenCount(), static_cast<int>(count)) << module << " " << generation;
            EXPECT_FALSE(phone().composition()->frame().isNull());
            page.reset();
        };
        show<CSimpleGoblePage>({generation});
        expectScreens("commonSetting", 4);
        show<CSimpleLauncherPage>({generation});
        expectScreens("launcher", generation == 0 ? 2 : 3);
        show<CSimpleContactsPage>({generation});
        expectScreens("contacts", 4);
        show<CSimpleMmsPage>({generation});
        expectScreens("mms", 4);
        show<CSimpleSystemPage>({generation});
        expectScreens("systemui", 3);
    }
}

} // namespace
} // namespace zdt
