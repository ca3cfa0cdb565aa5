#include "canvas/drawPictrue.h"

#include "canvas/drawPictureCell.h"
#include "canvas/imagePoints.h"
#include "canvas/phoneView.h"
#include "canvas/previewComposition.h"
#include "canvas/shapes.h"
#include "kit/focusRing.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <functional>
#include <utility>

namespace zdt::test {
namespace {

/// A phone of 270 by 540: four pixels of the frame are one of its.
class DrawPictrueTest : public testing::Test {
protected:
    DrawPictrueTest() {
        FocusRing::install(*qApp);
        composition->setDescription(
            {{part(previewFrame, 0xff102030, "back"), part({400, 400, 400, 400}, 0xff00ff00, "box"),
              part({480, 480, 80, 80}, 0xffff0000, "dot"), part({480, 480, 80, 80}, 0x80ffffff, ""),
              part({100, 1600, 200, 80}, 0xffff0000, "dot")},
             ""});
        picture.setComposition(composition);
        picture.resize(270, 540);
        picture.show();
        QApplication::setActiveWindow(&picture);
    }
    QString clicked(const QPoint& at) {
        QSignalSpy picked(&picture, &CDrawPictrue::picked);
        QTest::mouseClick(&picture, Qt::LeftButton, {}, at);
        return picked.isEmpty() ? QString() : picked.last().first().toString();
    }

    TemporaryFolder folder;
    ImagePoints points{{folder.path(), folder.path()}};
    std::shared_ptr<PreviewComposition> composition = std::make_shared<PreviewComposition>(points);
    CDrawPictrue picture;
};

TEST_F(DrawPictrueTest, RepeatedClicksGoDownTheStack) {
    for (const bool isInspecting : {false, true}) {
        picture.setInspecting(isInspecting);
        EXPECT_EQ(clicked({130, 130}), "dot");
        EXPECT_EQ(clicked({131, 129}), "box");
        EXPECT_EQ(clicked({130, 130}), "back");
        EXPECT_EQ(clicked({130, 130}), "dot");
        EXPECT_EQ(clicked({110, 110}), "box");
        EXPECT_EQ(clicked({130, 130}), "dot");
        EXPECT_EQ(clicked({5, 5}), "back");
    }
    composition->setVisible("back", false);
    EXPECT_EQ(clicked({5, 300}), "");
    QSignalSpy picked(&picture, &CDrawPictrue::picked);
    QTest::mouseClick(&picture, Qt::RightButton, {}, {130, 130});
    QTest::mousePress(&picture, Qt::LeftButton, {}, {130, 130});
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, {110, 130});
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(DrawPictrueTest, InspectingTellsWhatIsPointedAt) {
    QSignalSpy pointed(&picture, &CDrawPictrue::pointed);
    QSignalSpy unpointed(&picture, &CDrawPictrue::unpointed);
    QTest::mouseMove(&picture, {130, 130});
    EXPECT_TRUE(pointed.isEmpty());
    picture.setInspecting(true);
    QTest::mouseMove(&picture, {131, 131});
    ASSERT_EQ(pointed.size(), 1);
    EXPECT_EQ(pointed.last()[0].toString(), "dot");
    EXPECT_EQ(pointed.last()[1].toRect(), QRect(120, 120, 20, 20));
    QTest::mouseMove(&picture, {105, 105});
    EXPECT_EQ(pointed.last()[0].toString(), "box");
    // What a click picked below stays told until the pointer leaves the place.
    QTest::mouseClick(&picture, Qt::LeftButton, {}, {130, 130});
    QTest::mouseClick(&picture, Qt::LeftButton, {}, {130, 130});
    QTest::mouseMove(&picture, {132, 130});
    EXPECT_EQ(pointed.last()[0].toString(), "box");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&picture, &leave);
    EXPECT_EQ(unpointed.size(), 1);
    picture.setInspecting(false);
    EXPECT_EQ(picture.focusPolicy(), Qt::NoFocus);
}

TEST_F(DrawPictrueTest, KeyboardWalksFromKeyToKey) {
    picture.setInspecting(true);
    QSignalSpy pointed(&picture, &CDrawPictrue::pointed);
    QSignalSpy picked(&picture, &CDrawPictrue::picked);
    picture.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(picture.hasFocus());
    QStringList walked{pointed.last()[0].toString()};
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Home}) {
        QTest::keyClick(&picture, key);
        walked += pointed.last()[0].toString();
    }
    EXPECT_EQ(walked, (QStringList{"back", "box", "dot", "dot", "box", "back"}));
    QTest::keyClick(&picture, Qt::Key_End);
    QTest::keyClick(&picture, Qt::Key_Return);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_EQ(picked.last()[0].toString(), "dot");
}

TEST_F(DrawPictrueTest, ClickPicksWhatIsPointedAt) {
    picture.setInspecting(true);
    QSignalSpy pointed(&picture, &CDrawPictrue::pointed);
    const auto leave = [this] {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&picture, &event);
    };
    const auto farther = [this] { QTest::mouseMove(&picture, {105, 105}); };
    const auto larger = [this] { picture.resize(271, 542); };
    for (const std::function<void()>& between : {std::function<void()>(leave), {farther}, {larger}}) {
        EXPECT_EQ(clicked({130, 130}), "dot");
        between();
        QTest::mouseMove(&picture, {131, 130});
        EXPECT_EQ(clicked({130, 130}), "dot");
        EXPECT_EQ(pointed.last()[0].toString(), "dot");
        QTest::mouseMove(&picture, {5, 5});
    }
    // From the second place of a key the keyboard goes on from the key.
    QTest::mouseMove(&picture, {40, 405});
    QTest::keyClick(&picture, Qt::Key_Left);
    QTest::keyClick(&picture, Qt::Key_Left);
    EXPECT_EQ(pointed.last()[0].toString(), "box");
}

TEST_F(DrawPictrueTest, OutlinesOfAnotherListAreGone) {
    picture.setOutlined(composition->partsOf("box"));
    picture.pulseParts(composition->partsOf("dot"));
    composition->setDescription({composition->parts(), ""});
    picture.refresh();
    EXPECT_EQ(picture.outlined(), composition->partsOf("box"));
    composition->setDescription({{composition->parts().back()}, ""});
    picture.refresh();
    EXPECT_TRUE(picture.outlined().empty());
    EXPECT_FALSE(picture.isPulsing());
}

TEST_F(DrawPictrueTest, ShowsWhatChangedAndItsOutlines) {
    const auto at = [this](const QPoint& point) { return picture.grab().toImage().pixelColor(point); };
    EXPECT_EQ(at({110, 110}), QColor(Qt::green));
    composition->setColour("box", 0xff0000ff);
    picture.refresh();
    EXPECT_EQ(at({110, 110}), QColor(Qt::blue));
    const QColor before = at({97, 150});
    picture.setOutlined(composition->partsOf("box"));
    EXPECT_NE(at({97, 150}), before);
    EXPECT_EQ(at({90, 150}), before);
    // A large place keeps its colour, which is judged.
    const QColor back = at({30, 30});
    picture.setOutlined(composition->partsOf("back"));
    EXPECT_EQ(at({30, 30}), back);
    picture.setOutlined({99});
    picture.pulseParts(composition->partsOf("dot"));
    EXPECT_TRUE(picture.isPulsing());
    EXPECT_EQ(at({97, 150}), before);
    picture.setComposition(nullptr);
    EXPECT_FALSE(picture.isPulsing());
    EXPECT_EQ(clicked({130, 130}), "");
    EXPECT_FALSE(picture.savePreview(folder.path("a.jpg"), 80));
    picture.setComposition(composition);
    EXPECT_TRUE(picture.savePreview(folder.path("a.jpg"), 80));
    EXPECT_EQ(QImage(QString::fromStdString(folder.path("a.jpg"))).size(), previewFrame.size());
}

TEST(PhoneView, FitsZoomsAboutThePointerAndPans) {
    ZPhoneView view;
    view.resize(760, 647);
    view.show();
    EXPECT_EQ(view.picture().size(), QSize(294, 588));
    EXPECT_LE((view.phonePlace().center() - view.rect().center()).manhattanLength(), 2);
    view.setZoom(1000);
    EXPECT_EQ(view.zoom(), 200);
    EXPECT_EQ(view.picture().size(), QSize(588, 1176));
    view.zoomOut();
    EXPECT_EQ(view.zoom(), 175);
    const QPoint before = view.picture().pos();
    QTest::mousePress(&view.picture(), Qt::MiddleButton, {}, {200, 400});
    QTest::mouseMove(&view.picture(), {200, 430});
    QTest::mouseRelease(&view.picture(), Qt::MiddleButton);
    EXPECT_EQ(view.picture().pos(), before + QPoint(0, 30));

    view.zoomToFit();
    const QPoint pointer = view.picture().pos() + QPoint(150, 120);
    QWheelEvent wheel(pointer, view.mapToGlobal(pointer), {}, {0, 8 * 120}, Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    const QPoint frameBefore = view.picture().toFrame(view.picture().mapFrom(&view, pointer));
    QApplication::sendEvent(&view, &wheel);
    EXPECT_EQ(view.zoom(), 200);
    const QPoint frameAfter = view.picture().toFrame(view.picture().mapFrom(&view, pointer));
    EXPECT_LE(std::abs(frameAfter.y() - frameBefore.y()), 8);
    view.setZoom(100);
    const auto zoomBy = [&view, pointer](int units) {
        QWheelEvent step(pointer, view.mapToGlobal(pointer), {}, {0, units}, Qt::NoButton, Qt::ControlModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &step);
    };
    for (int i = 0; i < 60; ++i)
        zoomBy(2);
    EXPECT_EQ(view.zoom(), 110);
    view.resize(40, 40);
    EXPECT_GT(view.picture().width(), 0);
}

TEST(PhoneView, FollowsTheKeyboard) {
    TemporaryFolder folder;
    ImagePoints points{{folder.path(), folder.path()}};
    const auto composition = std::make_shared<PreviewComposition>(points);
    composition->setDescription(
        {{part({10, 10, 80, 80}, 0xff102030, "first"), part({900, 2000, 100, 100}, 0xff00ff00, "last")}, ""});
    ZPhoneView view;
    view.resize(400, 647);
    view.show();
    view.setZoom(200);
    CDrawPictrue& picture = view.picture();
    picture.setComposition(composition);
    picture.setInspecting(true);
    for (const auto& [key, part] : {std::pair(Qt::Key_End, 1U), {Qt::Key_Home, 0U}}) {
        QTest::keyClick(&picture, key);
        EXPECT_TRUE(view.rect().contains(picture.placeOf(part).translated(picture.pos()))) << part;
    }
}

TEST(DrawPictureCell, LongCaptionIsToldInFull) {
    CCDrawPictureCell cell;
    cell.resize(cell.sizeHint());
    cell.show();
    cell.setCaption("Dial");
    EXPECT_EQ(cell.toolTip(), "");
    cell.setCaption("A caption that is far too long");
    EXPECT_EQ(cell.toolTip(), cell.caption());
    EXPECT_EQ(cell.picture().size(), QSize(78, 156));
    EXPECT_EQ(cell.picture().pos(), QPoint(5, 5));
}

} // namespace
} // namespace zdt::test
