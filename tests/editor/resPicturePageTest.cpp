#include "editor/resPicturePage.h"

#include "common/ninePatches.h"
#include "common/pageFixture.h"
#include "editor/frameIntake.h"
#include "editor/positionFrame.h"
#include "kit/controlSearch.h"
#include "kit/flowView.h"
#include "kit/notificationNames.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zdt::test {
namespace {

/// The smallest GIF: a red pixel, `frames` times.
std::string gif(int frames) {
    using namespace std::string_literals;
    std::string bytes = "GIF89a\1\0\1\0\x80\0\0\xff\0\0\0\0\0"s;
    for (int frame = 0; frame < frames; ++frame)
        bytes += ",\0\0\0\0\1\0\1\0\0\2\2D\1\0"s;
    return bytes + ";";
}

class ResPicturePageTest : public PageTest {
protected:
    ResPicturePageTest() {
        strip.resize(320, 400);
        QObject::connect(&strip, &ZResPicturePage::filesChanged, [this] { ++changes; });
        strip.show();
    }

    QStringList stills(int count) {
        QStringList files;
        for (int number = 0; number < count; ++number)
            files += QString::fromStdString(given.write(std::to_string(number) + ".png", plainPng(20, 20)));
        return files;
    }

    /// Adds files and closes the box that says what stands in the way.
    QString add(const QStringList& files) {
        QString said;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            for (QDialog* box : strip.findChildren<QDialog*>()) {
                if (box->isVisible() && !box->findChild<QWidget*>("progressBar")) {
                    for (const QLabel* label : box->findChildren<QLabel*>())
                        said += label->text();
                    box->accept();
                }
            }
        });
        timer.start(10);
        strip.addFiles(files);
        return said;
    }

    [[nodiscard]] QPushButton& button(const QString& name) { return FindControl<QPushButton>(&strip, name); }

    TemporaryFolder given;
    int changes = 0;
    ZResPicturePage strip{bench, "frames"};
};

TEST_F(ResPicturePageTest, PicturesAreAddedUpToTheLimit) {
    EXPECT_TRUE(add(stills(4)).isEmpty());
    EXPECT_EQ(strip.files().size(), 4U);
    EXPECT_TRUE(add(stills(8)).contains(Text("kWarn_frame_upload_tenpicture")));
    EXPECT_EQ(strip.files().size(), 10U);
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(tryFindControl<QPushButton>(&strip, "frames_ITEM_BTN_ADD") &&
                 button("frames_ITEM_BTN_ADD").isVisible());
    strip.setMode(1);
    strip.setFiles({});
    EXPECT_FALSE(add(stills(10)).isEmpty());
    EXPECT_EQ(strip.files().size(), 9U);
}

TEST_F(ResPicturePageTest, ButtonsAndKeysWorkOnTheirPicture) {
    const QStringList files = stills(3);
    strip.pictureChoice.ask = [&](QWidget*, const FileRequest&) { return files; };
    QTest::mouseClick(&button("frames_ITEM_BTN_ADD"), Qt::LeftButton);
    QTest::qWait(0);
    ASSERT_EQ(strip.files().size(), 3U);
    strip.pictureChoice.ask = [&](QWidget*, const FileRequest&) { return QStringList{files.back()}; };
    QTest::mouseClick(&button("frames0_ITEM_BTN_REP"), Qt::LeftButton);
    QTest::qWait(0);
    EXPECT_EQ(strip.files().front(), files.back().toStdString());
    int chosen = -1;
    QObject::connect(&strip, &ZResPicturePage::pictureChosen, [&](int index) { chosen = index; });
    QTest::mouseClick(&button("frames1_ITEM_BTN_CHECK"), Qt::LeftButton);
    QTest::qWait(0);
    EXPECT_EQ(chosen, 1);
    QTest::mouseClick(&button("frames1_ITEM_BTN_DEL"), Qt::LeftButton);
    QTest::qWait(0);
    EXPECT_EQ(strip.files().size(), 2U);
    auto& view = FindControl<ZFlowView>(&strip, "frames_view");
    view.setCurrent(0);
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(strip.files(), std::vector<std::string>{files.back().toStdString()});
    EXPECT_EQ(changes, 4);
}

TEST_F(ResPicturePageTest, GifIsTakenApartAloneOnly) {
    const QString good = QString::fromStdString(given.write("a.gif", gif(3)));
    EXPECT_TRUE(add(stills(1) + QStringList{good}).contains(Text("kWarn_frame_upload_gifonlyone")));
    EXPECT_TRUE(strip.files().empty());
    EXPECT_TRUE(add({good}).isEmpty());
    ASSERT_EQ(strip.files().size(), 3U);
    EXPECT_TRUE(QString::fromStdString(strip.files()[2]).contains("GifToImage/"));
    EXPECT_TRUE(QString::fromStdString(strip.files()[2]).endsWith("/GifToPic2.jpg"));
    const QString large = QString::fromStdString(given.write("b.gif", gif(101)));
    EXPECT_TRUE(add({large}).contains(Text("kWarn_frame_upload_hundred")));
    EXPECT_EQ(strip.files().size(), 3U);
}

TEST_F(ResPicturePageTest, BadFilesAreRefusedWithTheirMessage) {
    struct Case {
        const char* file;
        std::string content;
        const char* message;
    };
    const Case cases[] = {{"a.png", std::string(1024 * 1025, 'x'), "kWarn_upload_lessthenoneM_pic"},
                          {"b.png", "text", "KWarn_upload_JPGPNG"},
                          {"c.gif", "text", "KWarn_upload_JPGPNG"},
                          {"d.txt", "text", "kWarn_upload_jpgorpngorgif_pic"}};
    for (const Case& each : cases) {
        const FrameFiles taken = takeFrames({given.write(each.file, each.content)}, 0, 0, given.path());
        EXPECT_EQ(taken.message.toStdString(), each.message) << each.file;
        EXPECT_TRUE(taken.frames.empty());
    }
    EXPECT_EQ(takeFrames({given.path("gone.png")}, 0, 0, given.path()).message, "KWarn_upload_JPGPNG");
    const std::string good = given.write("good.png", plainPng(4, 4));
    const FrameFiles some = takeFrames({given.path("a.png"), good, given.path("b.png")}, 0, 0, given.path());
    EXPECT_EQ(some.frames, std::vector<std::string>{good});
    EXPECT_EQ(some.leftOut, "a.png");
    EXPECT_EQ(some.message, "kWarn_upload_lessthenoneM_pic");
    EXPECT_FALSE(takeFrame(given.write("e.gif", gif(1))).message.isEmpty());
}

class PositionListener : public INotifyUI {
public:
    void Notify(const Notification& message) override {
        if (message.name == notify::textchanged)
            changed += message.sender->objectName();
    }
    QStringList changed;
};

TEST_F(ResPicturePageTest, PositionFrameTellsWhatIsTyped) {
    PositionListener owner;
    bench.notifications().AddNotifier(owner);
    CPositionFrame frame(bench);
    frame.show();
    EXPECT_FALSE(frame.position());
    frame.setPosition({10, -20, 300, 400});
    EXPECT_TRUE(owner.changed.isEmpty());
    EXPECT_EQ(frame.position(), QRect(10, -20, 300, 400));
    auto& width = FindControl<QLineEdit>(&frame, "Position_W_Edit");
    width.selectAll();
    QTest::keyClicks(&width, "-x55");
    EXPECT_EQ(frame.position(), QRect(10, -20, 55, 400));
    EXPECT_EQ(owner.changed.count("Position_W_Edit"), 2);
    frame.clear();
    EXPECT_FALSE(frame.position());
}

} // namespace
} // namespace zdt::test
