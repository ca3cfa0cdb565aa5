#include "kit/skinLoader.h"

#include "common/fixtures.h"
#include "kit/controlSearch.h"
#include "kit/layoutError.h"
#include "kit/listView.h"
#include "kit/segmentedControl.h"
#include "kit/textLookup.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zdt {
namespace {

QByteArray form(const QByteArray& inside) {
    return "<ui version=\"4.0\"><class>Page</class><widget class=\"QWidget\" name=\"page\">" + inside +
           "</widget></ui>";
}

QByteArray textProperty(const QByteArray& name, const QByteArray& value) {
    return "<property name=\"" + name + "\" stdset=\"0\"><string notr=\"true\">" + value + "</string></property>";
}

QString shout(const QString& key) {
    return key.toUpper();
}

TEST(SkinLoader, MakesStandardAndOwnControlsByTheirNames) {
    const SkinLoader loader({});
    const auto page =
        loader.loadText(form("<widget class=\"QPushButton\" name=\"go\">" + textProperty("iconName", "add") +
                             "</widget><widget class=\"ZListView\" name=\"a|b\"/>"),
                        "page.xml");
    ASSERT_TRUE(page.widget) << page.error.toStdString();
    EXPECT_FALSE(FindControl<QPushButton>(page.widget.get(), "go").icon().isNull());
    EXPECT_EQ(FindControl<ZListView>(page.widget.get(), "a|b").objectName(), "a|b");
    EXPECT_EQ(tryFindControl<QPushButton>(page.widget.get(), "a|b"), nullptr);
}

TEST(SkinLoader, TellsWhatIsWrongWithALayout) {
    const struct {
        const char* what;
        QByteArray layout;
        QStringList told;
    } cases[]{
        {"empty", "", {"page.xml"}},
        {"cut", form("<widget class=\"QPushButton\"").left(120), {"line 1", "column"}},
        {"not a form", "<html/>", {"page.xml"}},
        {"no widget", "<ui version=\"4.0\"></ui>", {"page.xml"}},
        {"unknown class", form("<widget class=\"ZNobody\" name=\"who\"/>"), {"ZNobody", "who"}},
        {"unknown class in a layout",
         form("<layout class=\"QVBoxLayout\"><item><widget class=\"ZNobody\" name=\"who\"/></item></layout>"),
         {"ZNobody", "who"}},
        {"unknown root", "<ui version=\"4.0\"><widget class=\"ZNobody\" name=\"who\"/></ui>", {"ZNobody"}},
    };
    const SkinLoader loader({});
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        const auto result = loader.loadText(each.layout, "page.xml");
        EXPECT_FALSE(result.widget);
        for (const QString& part : each.told)
            EXPECT_TRUE(result.error.contains(part)) << result.error.toStdString();
    }
}

TEST(SkinLoader, ReadsFilesOfItsFolderAndTellsOfMissingOnes) {
    const test::TemporaryFolder folder;
    folder.write("skin.xml", form("").toStdString());
    const SkinLoader loader(QStringList{"/nowhere/", QString::fromStdString(folder.path())});
    EXPECT_TRUE(loader.load("skin.xml").widget);
    folder.write("broken/skin.xml", "<ui");
    const QString broken = QString::fromStdString(folder.path("broken/"));
    EXPECT_TRUE(SkinLoader({broken, QString::fromStdString(folder.path())}).load("skin.xml").widget);
    EXPECT_FALSE(SkinLoader({broken}).load("skin.xml").widget);
    const auto missing = loader.load("nothing.xml");
    EXPECT_FALSE(missing.widget);
    EXPECT_TRUE(missing.error.contains("nothing.xml"));
}

TEST(SkinLoader, UsesTheFactoryThatWasRegistered) {
    SkinLoader loader({});
    loader.registerControl("CPreview", [](QWidget* parent) { return new QLabel("ours", parent); });
    const auto page = loader.loadText(form("<widget class=\"CPreview\" name=\"preview\"/>"), "page.xml");
    ASSERT_TRUE(page.widget);
    EXPECT_EQ(FindControl<QLabel>(page.widget.get(), "preview").text(), "ours");
}

TEST(FindControl, ListsTheNamesThatExist) {
    QWidget root;
    root.setObjectName("page");
    (new QLabel(&root))->setObjectName("title");
    try {
        (void)FindControl<QPushButton>(&root, "export");
        FAIL() << "found what isn't there";
    } catch (const LayoutError& error) {
        EXPECT_STREQ(error.what(),
                     "no control \"export\" of class QPushButton; there are: page (QWidget), title (QLabel)");
    }
}

TEST(Relabel, GivesEveryPropertyItsTextAndFollowsTheLanguage) {
    const QByteArray inside =
        "<widget class=\"QPushButton\" name=\"go\">" + textProperty("textKey", "go") +
        textProperty("toolTipKey", "go_tip") + "</widget><widget class=\"QLineEdit\" name=\"name\">" +
        textProperty("placeholderKey", "name_here") + textProperty("accessibleKey", "name_field") +
        "</widget><widget class=\"QToolButton\" name=\"undo\">" + textProperty("toolTipKey", "undo") + "</widget>" +
        textProperty("titleKey", "page");
    const auto page = SkinLoader({}).loadText(form(inside), "page.xml");
    ASSERT_TRUE(page.widget) << page.error.toStdString();
    QWidget* root = page.widget.get();
    for (const TextLookup& lookup : {TextLookup(shout), TextLookup([](const QString& key) { return "zh " + key; })}) {
        relabel(root, lookup);
        EXPECT_EQ(root->windowTitle(), lookup("page"));
        EXPECT_EQ(FindControl<QPushButton>(root, "go").text(), lookup("go"));
        EXPECT_EQ(FindControl<QPushButton>(root, "go").toolTip(), lookup("go_tip"));
        EXPECT_EQ(FindControl<QLineEdit>(root, "name").placeholderText(), lookup("name_here"));
        EXPECT_EQ(FindControl<QLineEdit>(root, "name").accessibleName(), lookup("name_field"));
        EXPECT_EQ(FindControl<QWidget>(root, "undo").accessibleName(), lookup("undo"));
    }
}

TEST(Relabel, KeepsTheChoiceOfSegments) {
    ZSegmented control;
    control.setProperty("labelKeys", QStringList{"one", "two"});
    relabel(&control, shout);
    control.setCurrentIndex(1);
    relabel(&control, [](const QString& key) { return key; });
    EXPECT_EQ(control.labels(), (QStringList{"one", "two"}));
    EXPECT_EQ(control.currentIndex(), 1);
}

} // namespace
} // namespace zdt
