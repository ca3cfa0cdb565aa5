#include "common/ninePatches.h"
#include "common/pageFixture.h"
#include "editor/pictrueArrySetPage.h"
#include "editor/pictureItem.h"
#include "editor/pictureSetPage.h"
#include "editor/pictureTable.h"
#include "editor/pictureUpload.h"
#include "kit/controlSearch.h"
#include "kit/labels.h"
#include "kit/listView.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QUrl>

#include <memory>
#include <vector>

namespace zdt::test {
namespace {

TEST(PictureGridTest, CellsLieAtTheirPlaces) {
    struct Columns {
        int width;
        int side;
        int bar;
        int columns;
    };
    for (const Columns& each : {Columns{320, 16, 10, 3}, Columns{297, 16, 10, 3}, Columns{296, 16, 10, 2},
                                Columns{85, 0, 0, 1}, Columns{10, 16, 10, 1}, Columns{0, 0, 0, 1}})
        EXPECT_EQ(gridColumns(each.width, each.side, each.bar), each.columns) << each.width;
    EXPECT_EQ(gridRows(0, 3), 0);
    EXPECT_EQ(gridRows(3, 3), 1);
    EXPECT_EQ(gridRows(4, 3), 2);
    const std::vector<int> counts{4, 0, 1};
    const GridLayout layout = layOutGrid(counts, 3, 16, 310);
    ASSERT_EQ(layout.places.size(), 8U);
    EXPECT_EQ(layout.height, 3 * 41 + 3 * 156);
    EXPECT_EQ(layout.places[0], QRect(0, 0, 310, 41));
    EXPECT_EQ(layout.places[3], QRect(16 + 2 * 85, 41, 85, 146));
    EXPECT_EQ(layout.places[4], QRect(16, 41 + 156, 85, 146));
    EXPECT_EQ(layout.places[5], QRect(0, 41 + 2 * 156, 310, 41));
    EXPECT_EQ(layout.places[6], QRect(0, 2 * 41 + 2 * 156, 310, 41));
    EXPECT_EQ(layOutGrid({}, 3, 16, 310).height, 0);
}

/// The list and the grid, which do the same.
class PictureSetTest : public PageTest, public testing::WithParamInterface<bool> {
protected:
    PictureSetTest() {
        openNew();
        if (GetParam())
            set = std::make_unique<CPictrueArrySetPage>();
        else
            set = std::make_unique<CPictureSetPage>();
        set->resize(320, 600);
        set->setScreen("contacts", "dial");
        set->setGroups(pictureGroupsOf(*bench.theme(), "contacts", "dial"));
        const auto note = [this](const QString& what) {
            return [this, what](const PictureEntry& entry) { asked += what + QString::fromStdString(entry.name); };
        };
        QObject::connect(set.get(), &PictureSet::uploadRequested, note("upload "));
        QObject::connect(set.get(), &PictureSet::resetRequested, note("reset "));
        QObject::connect(set.get(), &PictureSet::saveRequested, note("save "));
        QObject::connect(set.get(), &PictureSet::hovered, [this](const QString& key) { asked += "over " + key; });
        QObject::connect(set.get(), &PictureSet::unhovered, [this] { asked += "out"; });
        QObject::connect(set.get(), &PictureSet::batchDropped,
                         [this](const QStringList& files) { asked += "batch " + QString::number(files.size()); });
        QObject::connect(set.get(), &PictureSet::dropped, [this](const PictureEntry& entry, const QStringList& files) {
            asked += "drop " + QString::fromStdString(entry.name) + " " + files.join("");
        });
        set->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(set.get()));
    }

    [[nodiscard]] QPushButton& button(const QString& key) {
        return FindControl<QPushButton>(set.get(), "contacts|dial|" + key + "|picture|button");
    }

    [[nodiscard]] CellView& view() const { return *set->findChild<CellView*>(); }

    [[nodiscard]] int shownCount() const {
        int count = 0;
        for (const QWidget* cell : set->findChildren<PictureCell*>())
            count += cell->isVisible() ? 1 : 0;
        return count;
    }

    /// Makes the picture another than the template's, and shows it so.
    void change(const std::string& key) {
        std::vector<PictureGroup> groups = set->groups();
        PictureEntry entry = *findEntry(groups, key);
        const std::string path = given.write("other.png", plainPng(30, 30));
        const PreparedPicture prepared = preparePicture(entry, path, NinePatchCompiler(), workspaceFolder());
        ASSERT_TRUE(finishUpload(*bench.theme(), entry, path, prepared, {}).isStored);
        set->updateEntry(entry);
        ASSERT_TRUE(QTest::qWaitFor([&] { return set->changedCount() == 1; }));
    }

    TemporaryFolder given;
    QStringList asked;
    std::unique_ptr<PictureSet> set;
};

TEST_P(PictureSetTest, ButtonsAndKeysAsk) {
    QTest::mouseClick(&button("dial_num_1_blk.png"), Qt::LeftButton);
    QTest::qWait(0);
    EXPECT_EQ(asked, QStringList{"upload dial_num_1_blk.png"});
    asked.clear();
    view().setFocus();
    view().setCurrent(1);
    QTest::keyClick(&view(), GetParam() ? Qt::Key_Right : Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Return);
    EXPECT_EQ(asked.filter("upload"), QStringList{"upload dial_num_1_blk_press.png"});
    asked.clear();
    QWidget* thumbnail = view().cellAt(1)->findChild<QWidget*>("pictureThumbnail");
    QTest::mouseClick(thumbnail, Qt::LeftButton);
    QTest::qWait(0);
    EXPECT_EQ(asked.filter("save"), QStringList{"save dial_num_1_blk.png"});
}

TEST_P(PictureSetTest, ChangedPictureMayBePutBack) {
    EXPECT_EQ(button("dial_num_1_blk.png").text(), "Upload");
    change("dial_num_1_blk.png");
    EXPECT_EQ(button("dial_num_1_blk.png").text(), "Replace");
    view().setCurrent(1);
    auto& reset = FindControl<QPushButton>(view().cellAt(1), "pictureReset");
    EXPECT_TRUE(reset.isVisible());
    QTest::mouseClick(&reset, Qt::LeftButton);
    QTest::qWait(0);
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Delete);
    QTest::keyClick(&view(), GetParam() ? Qt::Key_Right : Qt::Key_Down);
    QTest::keyClick(&view(), Qt::Key_Delete); // Of one that isn't changed.
    EXPECT_EQ(asked.filter("reset"), (QStringList{"reset dial_num_1_blk.png", "reset dial_num_1_blk.png"}));
}

TEST_P(PictureSetTest, FiltersLeaveWhatWasAskedFor) {
    set->setFilter("KEY 7", false);
    EXPECT_EQ(shownCount(), 2);
    set->setFilter("nothing of that name", false);
    EXPECT_EQ(shownCount(), 0);
    EXPECT_TRUE(FindControl<QWidget>(set.get(), "picturesEmpty").isVisible());
    set->setFilter("", true);
    QTest::qWait(50);
    EXPECT_EQ(shownCount(), 0);
    change("dial_num_4_blk.png");
    EXPECT_EQ(shownCount(), 1);
    set->setFilter("", false);
    set->showPicture("contacts/contact_dialpad.9.png");
    EXPECT_FALSE(FindControl<QWidget>(set.get(), "picturesEmpty").isVisible());
    set->setGroups({});
    EXPECT_TRUE(FindControl<QWidget>(set.get(), "picturesEmpty").isVisible());
}

TEST_P(PictureSetTest, CellsAreMadeForWhatIsSeen) {
    const int few = view().cellCount();
    EXPECT_LT(few, set->entryCount());
    view().verticalScrollBar()->setValue(view().verticalScrollBar()->maximum());
    QTest::qWait(0);
    EXPECT_LE(view().cellCount(), few + 4);
    set->showPicture("contacts/dial_num_1_blk.png");
    EXPECT_TRUE(button("dial_num_1_blk.png").isVisible());
}

TEST_P(PictureSetTest, PointedPictureIsTold) {
    view().clearFocus();
    asked.clear();
    QWidget* cell = view().cellAt(2);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(cell, &enter);
    QApplication::sendEvent(cell, &leave);
    EXPECT_EQ(asked.join(", ").toStdString(), "over contacts/dial_num_1_blk_press.png, out");
}

TEST_P(PictureSetTest, OneDroppedFileIsForItsRowAndManyAreABatch) {
    const auto drop = [&](QWidget* target, const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls += QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
        QTest::qWait(0);
    };
    view().clearFocus();
    asked.clear();
    drop(view().cellAt(1), {"/a/b.png"});
    drop(view().cellAt(1), {"/a/b.png", "/a/c.png"});
    drop(view().cellAt(1), {QString::fromStdString(given.path())});
    drop(set.get(), {"/a/b.png"});
    EXPECT_EQ(asked.join(", ").toStdString(), "drop dial_num_1_blk.png /a/b.png, batch 2, batch 1, batch 1");
}

INSTANTIATE_TEST_SUITE_P(Variants, PictureSetTest, testing::Bool(),
                         [](const auto& variant) { return variant.param ? "Grid" : "List"; });

TEST(PictureInterfaceTest, GridAnswersItsTwoNames) {
    CPictrueArrySetPage page;
    EXPECT_EQ(page.GetInterface("CPictrueArrySetPage"), &page);
    EXPECT_EQ(page.GetInterface("IContainer"), &page);
    EXPECT_EQ(page.GetInterface("ZFlowView"), nullptr);
}

} // namespace
} // namespace zdt::test
