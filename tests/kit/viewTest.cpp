#include "kit/controlSearch.h"
#include "kit/flowView.h"
#include "kit/focusRing.h"
#include "kit/listView.h"
#include "kit/windowFrame.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

namespace zdt {
namespace {

/// Numbered cells; every tenth is a head, which can't be current.
template <typename Base>
class Numbers : public Base {
public:
    [[nodiscard]] int count() const override { return cells; }
    [[nodiscard]] int kindOf(int index) const override { return index % 10 == 0; }
    [[nodiscard]] bool isSelectable(int index) const override { return !heads || index % 10 != 0; }
    [[nodiscard]] QString accessibleName(int index) const override { return prefix + QString::number(index); }
    QWidget* makeCell(int, QWidget* parent) override { return new QLabel(parent); }
    void fillCell(QWidget* cell, int index) override { static_cast<QLabel*>(cell)->setText(accessibleName(index)); }

    int cells = 1000;
    bool heads = true;
    QString prefix = "n";
};

class Rows : public Numbers<ZListViewDataSource> {
public:
    [[nodiscard]] int rowHeight(int index) const override { return index % 10 == 0 ? 20 : 40; }
};

class Cards : public Numbers<ZFlowViewDataSource> {
public:
    Cards() { heads = false; }
    [[nodiscard]] QSize cellSize() const override { return {100, 50}; }
    [[nodiscard]] int gap() const override { return 10; }
};

template <typename View>
void present(View& view, const QSize& size) {
    view.resize(size);
    view.show();
    view.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    view.setFocus();
}

QString textAt(const CellView& view, int index) {
    const auto* label = qobject_cast<QLabel*>(view.cellAt(index));
    return label ? label->text() : QString("none");
}

TEST(ListView, MakesOnlyWhatIsSeenAndScrollsToTheLast) {
    Rows rows;
    ZListView view;
    view.setSource(&rows);
    present(view, {300, 400});
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(view.current(), 999);
    EXPECT_EQ(textAt(view, 999), "n999");
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    EXPECT_EQ(view.cellAt(999)->geometry().bottom(), view.viewport()->height() - 1);
    for (int value = 0; value < view.verticalScrollBar()->maximum(); value += 97)
        view.verticalScrollBar()->setValue(value);
    EXPECT_LE(view.cellCount(), 20);
}

TEST(ListView, KeysPassHeadsAndStopAtTheEnds) {
    Rows rows;
    ZListView view;
    view.setSource(&rows);
    present(view, {300, 400});
    const struct {
        Qt::Key key;
        int current;
    } steps[]{{Qt::Key_Home, 1},  {Qt::Key_Up, 1},         {Qt::Key_PageDown, 11}, {Qt::Key_Up, 9},  {Qt::Key_Down, 11},
              {Qt::Key_End, 999}, {Qt::Key_PageDown, 999}, {Qt::Key_Home, 1},      {Qt::Key_Down, 2}};
    for (const auto& step : steps) {
        QTest::keyClick(&view, step.key);
        EXPECT_EQ(view.current(), step.current);
    }
}

TEST(ListView, ClicksAndEnterReachTheRowUnderThem) {
    Rows rows;
    ZListView view;
    view.setSource(&rows);
    present(view, {300, 400});
    std::vector<int> activated;
    QObject::connect(&view, &CellView::activated, &view, [&](int index) { activated.push_back(index); });
    QTest::mouseClick(view.cellAt(3), Qt::LeftButton);
    EXPECT_EQ(view.current(), 3);
    QTest::mouseClick(view.cellAt(0), Qt::LeftButton);
    EXPECT_EQ(view.current(), 3);
    QTest::keyClick(&view, Qt::Key_Return);
    QTest::mouseDClick(view.cellAt(3), Qt::LeftButton);
    EXPECT_EQ(activated, (std::vector<int>{3, 3}));
    EXPECT_EQ(view.accessibleDescription(), "n3");
}

TEST(ListView, FollowsChangesOfItsSource) {
    Rows rows;
    ZListView view;
    view.setSource(&rows);
    present(view, {300, 400});
    rows.prefix = "new ";
    emit rows.changed(2, 2);
    EXPECT_EQ(textAt(view, 2), "new 2");
    EXPECT_EQ(textAt(view, 3), "n3");
    view.setCurrent(999);
    rows.cells = 2;
    emit rows.reset();
    EXPECT_EQ(view.current(), 1);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
    rows.cells = 0;
    emit rows.reset();
    EXPECT_EQ(view.current(), -1);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Return})
        QTest::keyClick(&view, key);
    EXPECT_EQ(view.current(), -1);
}

/// Cards that tell, as the system does of one that is hidden under the pointer, that they were left.
class Left : public Cards {
public:
    void showState(QWidget* cell, int, const CellState&) override {
        ASSERT_LT(++depth, 3);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(cell, &leave);
        --depth;
    }

    int depth = 0;
};

TEST(FlowView, CellsThatComeAndGoUnderThePointerAreNotAnsweredInCircles) {
    Left cards;
    ZFlowView view;
    view.setSource(&cards);
    present(view, {330, 250});
    view.verticalScrollBar()->setValue(60);
    emit cards.reset();
    EXPECT_EQ(cards.depth, 0);
}

TEST(FlowView, FillsItsRowsAtEveryWidth) {
    Cards cards;
    ZFlowView view;
    view.setSource(&cards);
    present(view, {330, 200});
    for (const int width : {60, 330, 475, 1003}) {
        view.resize(width, 200);
        const int columns = view.columns();
        EXPECT_EQ(columns, std::max(1, (view.viewport()->width() + 10) / 110));
        const int end = std::max(100, view.viewport()->width());
        EXPECT_EQ(view.cellAt(columns - 1)->geometry().right(), end - 1);
        EXPECT_EQ(view.cellAt(columns)->geometry().topLeft(), QPoint(0, 60));
    }
}

TEST(FlowView, KeysMoveInTwoDirectionsAndOnlySeenCellsAreMade) {
    Cards cards;
    ZFlowView view;
    view.setSource(&cards);
    present(view, {450, 230});
    ASSERT_EQ(view.columns(), 4);
    const struct {
        Qt::Key key;
        int current;
    } steps[]{{Qt::Key_Home, 0}, {Qt::Key_Right, 1}, {Qt::Key_Down, 5}, {Qt::Key_Left, 4},    {Qt::Key_Up, 0},
              {Qt::Key_Up, 0},   {Qt::Key_End, 999}, {Qt::Key_Up, 995}, {Qt::Key_PageUp, 983}};
    for (const auto& step : steps) {
        QTest::keyClick(&view, step.key);
        EXPECT_EQ(view.current(), step.current);
        EXPECT_EQ(textAt(view, step.current), cards.accessibleName(step.current));
    }
    EXPECT_LE(view.cellCount(), 40);
}

TEST(FocusRingTest, ShowsAfterTabAndGoesWithAClick) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* first = new QPushButton("First");
    auto* second = new QPushButton("Second");
    column->addWidget(first);
    column->addWidget(second);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTest::mouseClick(first, Qt::LeftButton);
    QTest::keyClick(first, Qt::Key_Tab);
    const auto& ring = FindControl<QWidget>(&window, "focusRing");
    EXPECT_TRUE(ring.isVisible());
    EXPECT_EQ(ring.geometry().center(), second->geometry().center());
    QTest::mouseClick(first, Qt::LeftButton);
    EXPECT_FALSE(ring.isVisible());
}

TEST(WindowFrame, EdgesAreHeldFromInsideAndCornersReachFurther) {
    const QSize size(800, 600);
    const struct {
        QPoint at;
        Qt::Edges edges;
    } cases[]{
        {{0, 300}, Qt::LeftEdge},
        {{799, 300}, Qt::RightEdge},
        {{400, 0}, Qt::TopEdge},
        {{400, 599}, Qt::BottomEdge},
        {{400, 300}, {}},
        {{-1, 300}, {}},
        {{9, 0}, Qt::TopEdge | Qt::LeftEdge},
        {{799, 592}, Qt::BottomEdge | Qt::RightEdge},
    };
    for (const auto& each : cases)
        EXPECT_EQ(edgesAt(size, each.at), each.edges) << each.at.x() << " " << each.at.y();
}

} // namespace
} // namespace zdt
