#include "canvas/drawPreview.h"

#include "canvas/groupParts.h"
#include "common/boxAnswers.h"
#include "common/pageFixture.h"
#include "kit/notificationNames.h"
#include "packaging/pictureConversion.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QMouseEvent>
#include <QTest>

#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zdt {
namespace {

class Heard : public INotifyUI {
public:
    void Notify(const Notification& message) override {
        names += message.name;
        last = message;
    }

    QStringList names;
    Notification last;
};

class FakeParts : public GroupParts {
public:
    [[nodiscard]] std::vector<GroupPart> read(const ElementPath& /*group*/) const override { return parts; }
    [[nodiscard]] bool write(const ElementPath& /*group*/, const std::vector<GroupPart>& places) override {
        ++writes;
        if (takes)
            parts = places;
        return takes;
    }

    std::vector<GroupPart> parts;
    int writes = 0;
    bool takes = true;
};

class CountedAnimation : public ItemAnimation {
public:
    CountedAnimation(int steps, int pause, bool again)
        : _steps(steps)
        , _interval(pause)
        , _loop(again) {}
    void advance() override {
        ++_elapsed;
        ++advanced;
    }
    [[nodiscard]] bool finished() const override { return _elapsed >= _steps; }
    [[nodiscard]] int interval() const override { return _interval; }
    [[nodiscard]] bool loop() const override { return _loop; }
    void reset() override { _elapsed = 0; }
    void apply(AnimatedLook& look) const override { look.opacity *= 0.5; }

    int advanced = 0;

private:
    int _steps;
    int _interval;
    bool _loop;
    int _elapsed = 0;
};

/// A canvas of 270 by 540 on a high screen: each of its pixels is 4 of the design space.
class DrawPreview : public test::PageTest {
protected:
    DrawPreview() {
        canvas.set2160Height();
        canvas.setMode2(true);
        canvas.resize(270, 540);
        canvas.setNotifications(&bench.notifications());
        canvas.enableSelectionNotification(true);
        canvas.setGroupParts(&parts);
        bench.notifications().AddNotifier(heard);
        canvas.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&canvas));
    }

    template <typename Item = CDrawItem>
    Item& add(const QString& name, const EdgeRect& rect) {
        auto item = std::make_unique<Item>(name);
        item->SetRect(rect);
        item->placement.timeAreaChecked = true;
        return static_cast<Item&>(canvas.addItem(std::move(item)));
    }

    void press(const QPoint& design) { QTest::mousePress(&canvas, Qt::LeftButton, {}, design / 4); }
    void moveTo(const QPoint& design, Qt::MouseButtons held = Qt::LeftButton) {
        const QPointF point = design / 4;
        QMouseEvent event(QEvent::MouseMove, point, canvas.mapToGlobal(point), Qt::NoButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void release(const QPoint& design) { QTest::mouseRelease(&canvas, Qt::LeftButton, {}, design / 4); }
    void drag(const QPoint& from, const QPoint& to) {
        press(from);
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
    }

    /// What was told since the last call, of notifications and of boxes.
    QStringList takeHeard() {
        QCoreApplication::processEvents();
        return std::exchange(heard.names, {});
    }
    /// Waits for a box and gives the only thing it says.
    QString said() {
        const test::BoxAnswers answers(canvas);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !answers.said().isEmpty(); }, 2000));
        return answers.said().join(" | ");
    }

    Heard heard;
    FakeParts parts;
    CDrawPreview canvas;
};

TEST_F(DrawPreview, APressSelectsAndADragMoves) {
    const CDrawItem& item = add("one", {200, 200, 600, 600});
    press({400, 400});
    EXPECT_EQ(canvas.selectedItem(), &item);
    release({400, 400});
    EXPECT_EQ(takeHeard(), QStringList{notify::Nodfiy_SendMsg_Select_Item}) << "nothing was moved";
    drag({400, 400}, {440, 300});
    EXPECT_EQ(item.rect(), (EdgeRect{240, 100, 640, 500}));
    EXPECT_EQ(takeHeard(), (QStringList{notify::Nodfiy_SendMsg_Select_Item, notify::Nodfiy_SendMsg_MouseMove_Item}));
    EXPECT_TRUE(heard.last.async);
    EXPECT_EQ(canvas.nameOf(heard.last.wParam), "one");
    press({1000, 2000});
    EXPECT_EQ(canvas.selectedItem(), nullptr);
}

TEST_F(DrawPreview, ACornerResizes) {
    CDrawItem& item = add("one", {200, 200, 600, 600});
    drag({580, 580}, {620, 660});
    EXPECT_EQ(item.rect(), (EdgeRect{200, 200, 640, 680}));
    EXPECT_EQ(takeHeard().last(), notify::Nodfiy_SendMsg_MouseSize_Item);
    item.ratioLocked = true;
    item.ratio = 1;
    drag({620, 660}, {660, 660});
    EXPECT_EQ(item.rect(), (EdgeRect{200, 200, 680, 680}));
    item.fixedSize = true;
    drag({660, 660}, {700, 660});
    EXPECT_EQ(item.rect(), (EdgeRect{240, 200, 720, 680})) << "an item of fixed size is moved by its corners too";
}

TEST_F(DrawPreview, ARefusedDropJumpsBackAndSaysWhy) {
    CDrawItem& item = add("one", {0, 300, 200, 500});
    item.placement.safeAreaChecked = true;
    drag({100, 400}, {600, 1400});
    EXPECT_EQ(item.rect(), (EdgeRect{0, 300, 200, 500}));
    EXPECT_EQ(said(), Text("kWarn_SafeArea_duplication_interaction"));
    EXPECT_EQ(takeHeard(), QStringList{notify::Nodfiy_SendMsg_Select_Item});
    drag({100, 400}, {100, 600});
    EXPECT_EQ(item.rect(), (EdgeRect{0, 500, 200, 700})) << "the next drag begins afresh";
}

TEST_F(DrawPreview, EscapeTakesBackADrag) {
    CDrawItem& item = add<CDrawContainer>("one", {200, 200, 600, 600});
    auto child = std::make_unique<CDrawItem>("child");
    child->SetRect({300, 300, 400, 400});
    const CDrawItem& inner = *child;
    static_cast<CDrawContainer&>(item).children.push_back(std::move(child));
    press({580, 580});
    moveTo({780, 780});
    EXPECT_EQ(canvas.handState(), HandState::resizing);
    EXPECT_EQ(inner.rect(), (EdgeRect{425, 425, 575, 575})) << "what a container holds is resized with it";
    QTest::keyClick(&canvas, Qt::Key_Escape);
    EXPECT_EQ(item.rect(), (EdgeRect{200, 200, 600, 600}));
    EXPECT_EQ(inner.rect(), (EdgeRect{300, 300, 400, 400}));
    moveTo({900, 900});
    release({900, 900});
    EXPECT_EQ(item.rect(), (EdgeRect{200, 200, 600, 600}));
    EXPECT_EQ(takeHeard().size(), 1);
}

TEST_F(DrawPreview, ALostReleaseTakesTheDragBack) {
    const CDrawItem& item = add("one", {200, 200, 600, 600});
    const EdgeRect place = item.rect();
    const auto deactivate = [&](QEvent::Type type) {
        QEvent event(type);
        QCoreApplication::sendEvent(&canvas, &event);
    };
    const std::vector<std::pair<const char*, std::function<void()>>> losses{
        {"a move with no button",
         [&] {
             moveTo({700, 700}, Qt::NoButton);
         }},
        {"another window", [&] { deactivate(QEvent::WindowDeactivate); }},
        {"a box", [&] { deactivate(QEvent::WindowBlocked); }},
        {"a press elsewhere",
         [&] {
             press({1000, 2000});
         }},
    };
    for (const auto& [what, lose] : losses) {
        press({400, 400});
        moveTo({500, 500});
        EXPECT_NE(item.rect(), place) << what;
        lose();
        EXPECT_EQ(canvas.handState(), HandState::idle) << what;
        EXPECT_EQ(item.rect(), place) << what;
        release({500, 500});
    }
    EXPECT_FALSE(takeHeard().contains(notify::Nodfiy_SendMsg_MouseMove_Item));
}

TEST_F(DrawPreview, BesideTheScreenNothingIsTaken) {
    canvas.resize(470, 540);
    CDrawItem& item = add("one", {0, 200, 400, 600});
    EXPECT_EQ(canvas.pressEffect({100, 100}), PressEffect::move);
    EXPECT_EQ(canvas.pressEffect({99, 100}), PressEffect::nothing);
    canvas.setSelectedItem(&item);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, {99, 100});
    EXPECT_EQ(canvas.selectedItem(), nullptr);
    EXPECT_EQ(canvas.handState(), HandState::idle);
}

TEST_F(DrawPreview, FlagsHoldAnItem) {
    CDrawItem& item = add("one", {200, 200, 600, 600});
    const EdgeRect place = item.rect();
    item.locked = true;
    drag({400, 400}, {500, 500});
    EXPECT_EQ(canvas.selectedItem(), nullptr);
    canvas.setSelectedItem(&item);
    QTest::keyClick(&canvas, Qt::Key_Right);
    EXPECT_EQ(item.rect(), place);
    item.locked = false;

    item.dragRefused = true;
    press({400, 400});
    moveTo({500, 500});
    EXPECT_EQ(canvas.selectedItem(), nullptr);
    EXPECT_EQ(canvas.handState(), HandState::idle);
    EXPECT_EQ(said(), Text("kTransformation_pendant_apply"));
    release({500, 500});
    EXPECT_EQ(item.rect(), place);
    item.dragRefused = false;

    item.placement.fixedHorizontal = true;
    drag({580, 580}, {780, 620});
    EXPECT_EQ(item.rect(), (EdgeRect{200, 240, 600, 640})) << "it moves up and down, also by a corner";
    drag({400, 400}, {400, 100});
    EXPECT_EQ(said(), Text("kUpUnlock_Area"));
}

TEST_F(DrawPreview, KeysMoveAndSelect) {
    const CDrawItem& first = add("first", {200, 200, 600, 600});
    add("locked", {0, 0, 1080, 2160}).locked = true;
    const CDrawItem& last = add("last", {700, 700, 800, 800});
    QTest::keyClick(&canvas, Qt::Key_Space);
    EXPECT_EQ(canvas.selectedItem(), &first);
    QTest::keyClick(&canvas, Qt::Key_Right);
    QTest::keyClick(&canvas, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(first.rect(), (EdgeRect{201, 190, 601, 590}));
    EXPECT_EQ(takeHeard().count(notify::Nodfiy_SendMsg_MouseMove_Item), 2);
    QTest::keyClick(&canvas, Qt::Key_Space);
    EXPECT_EQ(canvas.selectedItem(), &last);
    QTest::keyClick(&canvas, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(canvas.selectedItem(), &first);
    canvas.findItem("first")->placement.timeAreaChecked = false;
    canvas.findItem("first")->SetRect({0, 0, 400, 400});
    QTest::keyClick(&canvas, Qt::Key_Left);
    EXPECT_EQ(first.rect(), (EdgeRect{0, 0, 400, 400}));
    EXPECT_EQ(said(), Text("kWarn_Time_duplication_interaction"));
}

TEST_F(DrawPreview, TheCursorTellsWhatAPressDoes) {
    CDrawItem& item = add("one", {200, 200, 600, 600});
    const auto effect = [&](int x, int y) { return canvas.pressEffect(QPoint(x, y) / 4); };
    EXPECT_EQ(effect(400, 400), PressEffect::move);
    EXPECT_EQ(effect(208, 208), PressEffect::resizeFalling);
    EXPECT_EQ(effect(592, 208), PressEffect::resizeRising);
    EXPECT_EQ(effect(1000, 1000), PressEffect::nothing);
    EXPECT_EQ(effect(604, 604), PressEffect::nothing);
    canvas.setSelectedItem(&item);
    EXPECT_EQ(effect(604, 604), PressEffect::resizeFalling) << "the handles of what is selected reach outwards";
    item.placement.fixedHorizontal = true;
    EXPECT_EQ(effect(208, 208), PressEffect::moveUpDown);
    item.dragRefused = true;
    EXPECT_EQ(effect(400, 400), PressEffect::refused);
    item.locked = true;
    EXPECT_EQ(effect(400, 400), PressEffect::nothing);
}

TEST_F(DrawPreview, PartsOfAGroupFollowIt) {
    CDrawItem& item = add("group", {200, 200, 600, 600});
    item.isGroup = true;
    item.element = {2};
    parts.parts = {{1, {300, 300, 400, 350}}};
    drag({400, 400}, {440, 400});
    EXPECT_EQ(parts.parts[0], (GroupPart{1, {340, 300, 440, 350}}));
    drag({620, 580}, {820, 580});
    EXPECT_EQ(parts.parts[0], (GroupPart{1, {465, 362, 615, 437}}));
    EXPECT_EQ(parts.writes, 2) << "once a drop, and not for what is dragged";
    parts.takes = false;
    const EdgeRect before = item.rect();
    drag({500, 400}, {540, 400});
    EXPECT_EQ(item.rect(), before);
    EXPECT_EQ(said(), Text("kCanvas_parts_not_stored"));
}

TEST_F(DrawPreview, PartsAreThoseOfTheThemesDesign) {
    ThemeResource& theme = openNew();
    std::size_t index = 0;
    ASSERT_EQ(theme.setLockScreenType("amazing"), 0);
    ASSERT_EQ(theme.addDecoration(test::TemporaryStore::templateFile("default9.1/preview/cover.jpg"), {0, 0, 100, 100},
                                  {}, index),
              0);
    AmazingChild placed("image", {{"x", "10"}, {"y", "20"}, {"w", "30"}, {"h", "40"}});
    ASSERT_EQ(theme.setLockElementChildren({index}, {AmazingChild("Triggers"), placed}), 0);
    StoreGroupParts design(bench);
    const std::vector<GroupPart> read = design.read({index});
    EXPECT_EQ(read, (std::vector<GroupPart>{{1, {10, 20, 40, 60}}})) << "what has no place is no part";
    EXPECT_TRUE(design.write({index}, {{1, {11, 21, 41, 61}}}));
    EXPECT_EQ(design.read({index})[0].rect, (EdgeRect{11, 21, 41, 61}));
    EXPECT_FALSE(design.write({index}, {{1, {0, 0, 9, 9}}, {7, {0, 0, 9, 9}}}));
    EXPECT_EQ(design.read({index})[0].rect, (EdgeRect{11, 21, 41, 61})) << "all parts or none";
    bench.closeTheme();
    EXPECT_TRUE(design.read({index}).empty());
}

TEST_F(DrawPreview, NewElementsMayOverlapNothing) {
    CDrawItem& item = add("one", {200, 200, 600, 600});
    EXPECT_EQ(canvas.CheckRect({300, 300, 400, 400}), PlacementFault::none) << "one that isn't safe doesn't count";
    item.placement.safeAreaChecked = true;
    item.listOrder = 4;
    EXPECT_EQ(canvas.CheckRect({300, 300, 400, 400}), PlacementFault::duplicate);
    EXPECT_EQ(canvas.CheckRect({600, 300, 700, 400}), PlacementFault::none);
    EXPECT_EQ(canvas.CheckRect({300, 300, 400, 400}, 4), PlacementFault::none);
    EXPECT_EQ(canvas.CheckRect({300, 300, 400, 400}, -1), PlacementFault::duplicate);
    EXPECT_EQ(canvas.CheckRect({400, 1300, 500, 1400}), PlacementFault::safeArea);
    EXPECT_EQ(canvas.CheckRect({400, 2100, 500, 2161}), PlacementFault::safeScreen);
    canvas.setSelectedItem(&item);
    EXPECT_EQ(canvas.CheckRect({300, 300, 400, 400}), PlacementFault::none);
}

TEST_F(DrawPreview, ItemsComeAndGo) {
    CDrawItem& item = add("one", {200, 200, 600, 600});
    add("two", {300, 300, 600, 600});
    const std::intptr_t id = item.id();
    press({400, 250});
    moveTo({440, 290});
    canvas.removeItem(item);
    moveTo({480, 290});
    release({480, 290});
    EXPECT_EQ(canvas.findItem("one"), nullptr);
    EXPECT_EQ(canvas.nameOf(id), "");
    EXPECT_EQ(canvas.deletedNames(), QStringList{"one"});
    EXPECT_EQ(canvas.selectedItem(), nullptr);
    canvas.removeAllItems();
    EXPECT_TRUE(canvas.items().empty());
    EXPECT_TRUE(canvas.deletedNames().isEmpty());
}

TEST_F(DrawPreview, CapturesAreToldAfterAPaintAndHoldTheThemeAlone) {
    QImage red(400, 400, QImage::Format_RGB32);
    red.fill(Qt::red);
    CDrawItem& item = add("one", {200, 200, 600, 600});
    item.setPicture(red);
    CDrawItem& area = add("area", {0, 1000, 1080, 1400});
    area.isArea = true;
    area.fillColor = 0x7fff0000;
    canvas.setSelectedItem(&item);
    canvas.requestCapture(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !heard.names.isEmpty(); }, 2000));
    EXPECT_EQ(takeHeard(), QStringList{notify::Notify_ScreenCapture_ChangeUnlockMsg});
    EXPECT_EQ(heard.last.wParam, 1);
    canvas.hide();
    canvas.requestCapture(4);
    EXPECT_EQ(takeHeard(), QStringList{notify::Notify_ScreenCapture_VideoUnlockMsg});
    canvas.show();
    static_cast<void>(QTest::qWaitForWindowExposed(&canvas));
    for (const int kind : {1, 4, 1})
        canvas.requestCapture(kind);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !heard.names.isEmpty(); }, 2000));
    EXPECT_EQ(takeHeard(),
              (QStringList{notify::Notify_ScreenCapture_ChangeUnlockMsg, notify::Notify_ScreenCapture_VideoUnlockMsg}));

    const std::string file = store.path() + "capture.jpg";
    ASSERT_TRUE(canvas.saveJpeg(file, 90));
    const QImage captured = loadPicture(file);
    EXPECT_EQ(captured.size(), QSize(1080, 2160));
    EXPECT_GT(qRed(captured.pixel(400, 400)), 240);
    EXPECT_LT(qGreen(captured.pixel(400, 400)), 20);
    EXPECT_GT(qGreen(captured.pixel(190, 190)), 240) << "no marks of a selection";
    EXPECT_GT(qGreen(captured.pixel(500, 1200)), 240) << "no areas";
    EXPECT_FALSE(canvas.saveJpeg(store.path() + "no/folder.jpg", 90));
}

TEST_F(DrawPreview, BadPicturesAreLeftUndrawn) {
    CDrawItem& item = add("one", {200, 200, 600, 600});
    const std::string cover = test::readFile(test::TemporaryStore::templateFile("default9.1/preview/cover.jpg"));
    store.write("cut.png", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
    QByteArray huge("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\x7f\xff\xff\xff\x7f\xff\xff\xff\x08\x06\0\0\0", 29);
    store.write("huge.png", huge.toStdString() + std::string(100, '\0'));
    for (const char* name : {"missing.png", "cut.png", "huge.png"}) {
        EXPECT_FALSE(item.setPicture(store.path() + name)) << name;
        EXPECT_EQ(item.imageWidth, 0);
        canvas.setBackgroundPicture(store.path() + name);
        EXPECT_EQ(canvas.grab().toImage().pixelColor(100, 100), QColor(Qt::white)) << name;
    }
    store.write("half.jpg", cover.substr(0, cover.size() / 2));
    static_cast<void>(item.setPicture(store.path() + "half.jpg"));
    item.SetRect({INT_MIN, INT_MIN, INT_MAX, INT_MAX});
    item.imageWidth = INT_MAX;
    canvas.refresh();
    EXPECT_FALSE(canvas.grab().isNull());
    canvas.resize(0, 0);
    EXPECT_EQ(canvas.pressEffect({0, 0}), PressEffect::nothing);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, QPoint(0, 0));
    EXPECT_EQ(canvas.handState(), HandState::idle);
}

TEST_F(DrawPreview, ADraggedFrameIsThatOfAFullPaint) {
    for (int index = 0; index < 6; ++index) {
        QImage picture(300, 300, QImage::Format_ARGB32);
        picture.fill(QColor::fromHsv(index * 60, 255, 255, 160));
        add("item", {150 * index, 200 * index, 150 * index + 300, 200 * index + 300}).setPicture(picture);
    }
    press({500, 500});
    for (const QPoint& point : {QPoint(600, 700), QPoint(800, 1500), QPoint(300, 900)}) {
        moveTo(point);
        const QImage dragged = canvas.grab().toImage();
        canvas.refresh();
        EXPECT_EQ(dragged, canvas.grab().toImage()) << point.x();
    }
    release({300, 900});
    const QImage dropped = canvas.grab().toImage();
    canvas.refresh();
    EXPECT_EQ(dropped, canvas.grab().toImage());
}

TEST_F(DrawPreview, PlayingEndsWithANotification) {
    auto& pendant = add<CDrawPendant>("one", {200, 200, 600, 600});
    pendant.animations.push_back(std::make_unique<CountedAnimation>(2, -1, false));
    QObject owner;
    canvas.startAnimation(&owner);
    EXPECT_TRUE(canvas.isPlaying());
    press({400, 400});
    EXPECT_EQ(canvas.selectedItem(), nullptr) << "nothing is selected while it plays";
    release({400, 400});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !heard.names.isEmpty(); }, 5000));
    EXPECT_EQ(takeHeard(), QStringList{notify::Notify_Pendatn_Play_Stop_Msg});
    EXPECT_EQ(heard.last.sender, &owner);
    EXPECT_FALSE(canvas.isPlaying());
    canvas.startAnimation();
    canvas.stopAnimation();
    EXPECT_EQ(takeHeard(), QStringList()) << "whoever stops it knows";
    canvas.startAnimation();
    pendant.animations.clear();
    pendant.animations.push_back(std::make_unique<CountedAnimation>(1, -1, true));
    EXPECT_FALSE(QTest::qWaitFor([&] { return !canvas.isPlaying(); }, 200)) << "what it gained plays too";
    canvas.removeItem(pendant);
    EXPECT_FALSE(canvas.isPlaying()) << "before an item is freed";
    EXPECT_EQ(takeHeard(), QStringList{notify::Notify_Pendatn_Play_Stop_Msg});
}

TEST_F(DrawPreview, WhatPlaysShowsUntilItEnds) {
    QImage red(100, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    auto& group = add<CDrawContainer>("group", {200, 200, 600, 600});
    auto pendant = std::make_unique<CDrawPendant>("pendant");
    pendant->SetRect({300, 300, 400, 400});
    pendant->setPicture(red);
    pendant->animations.push_back(std::make_unique<CountedAnimation>(2, -1, false));
    group.children.push_back(std::move(pendant));
    const auto seen = [&] { return canvas.grab().toImage().pixelColor(87, 87); };
    canvas.refresh();
    EXPECT_EQ(seen(), QColor(Qt::red));
    canvas.startAnimation();
    EXPECT_NEAR(seen().green(), 127, 2) << "half of it, though it lies in a container";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !canvas.isPlaying(); }, 5000));
    EXPECT_EQ(seen(), QColor(Qt::red)) << "as the author placed it";
}

TEST(AnimationRun, StepsAtThePhonesSpeedAndRepeatsWhatRepeats) {
    CountedAnimation once(2, -1, false);
    CountedAnimation again(2, 0, false);
    CountedAnimation paused(2, 90, false);
    CountedAnimation looped(2, 500, true);
    const ItemAnimations all{&once, &again, &paused, &looped};
    AnimationRun run;
    EXPECT_EQ(run.pass(all, 0), AnimationRun::Pass::unchanged);
    run.start(all, 0);
    int steps = 0;
    for (int now = 0; now <= 1000; now += animationPass)
        steps += run.pass(all, now) == AnimationRun::Pass::changed;
    EXPECT_EQ(steps, 20) << "one in 50 ms, though a pass comes every 20";
    EXPECT_EQ(once.advanced, 2);
    EXPECT_EQ(again.advanced, 20);
    EXPECT_EQ(paused.advanced, 10) << "two steps, and two of waiting for 90 ms";
    EXPECT_EQ(looped.advanced, 20) << "a loop doesn't wait";
    EXPECT_EQ(run.pass(all, 9000), AnimationRun::Pass::changed);
    EXPECT_EQ(run.pass(all, 9049), AnimationRun::Pass::unchanged) << "what was missed isn't caught up";
    run.start({&once}, 0);
    EXPECT_EQ(run.pass({&once}, 50), AnimationRun::Pass::changed);
    EXPECT_EQ(run.pass({&once}, 100), AnimationRun::Pass::changed);
    EXPECT_EQ(run.pass({&once}, 120), AnimationRun::Pass::ended);
    EXPECT_FALSE(run.isPlaying());
    EXPECT_EQ(run.pass({&once}, 140), AnimationRun::Pass::unchanged);
}

} // namespace
} // namespace zdt
