#include "common/storeFixture.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zdt {
namespace {

using test::jpegHeader;
using test::namesIn;
using test::pngHeader;
using test::readFile;
using test::TemporaryStore;
using Names = std::vector<std::string>;

const KeyPath designBlock{"unlock", "amazing"};

class LockScreenTest : public testing::Test {
protected:
    std::string unlock(const std::string& below) const { return store.path("res/T/unlock/" + below); }
    std::string layout() const { return readFile(unlock("layout-hdpi/layout1.xml")); }
    bool hasPicture(const std::string& name) const { return pathExists(unlock("drawable-hdpi/" + name)); }
    /// A picture file whose bytes tell it from others.
    std::string jpeg(const std::string& name, char mark) const {
        return store.write(name, jpegHeader(1080, 1920) + mark);
    }
    std::string png(const std::string& name) const { return store.write(name, pngHeader(30, 40)); }
    /// The last signs of the wallpaper's pictures, in the order in which they show.
    static std::string marks(const ThemeResource& theme) {
        std::string found;
        for (const auto& [low, tall] : theme.amazingNode().wallpaperPictures()) {
            for (const std::string& file : {low, tall}) {
                if (!file.empty())
                    found += readFile(file).back();
            }
        }
        return found;
    }

    TemporaryStore store;
};

TEST_F(LockScreenTest, KindIsWrittenAtOnceOrNotAtAll) {
    const auto theme = store.create("T");
    const std::string design = layout();
    for (const char* type : {"slide", "magazine", "video", "zooking", "custom", "amazing"}) {
        ASSERT_EQ(theme->setLockScreenType(type), 0) << type;
        EXPECT_EQ(store.open("T")->lockScreenType(), type);
        EXPECT_EQ(pathExists(unlock("livepaper.xml")), std::string(type) != "slide" && std::string(type) != "magazine")
            << "written with the first video, and left in its place";
        EXPECT_TRUE(layout() == design) << type;
    }
    EXPECT_EQ(theme->setLockScreenType(""), -18);
    EXPECT_EQ(theme->setLockScreenType(" "), -9);
    EXPECT_EQ(theme->setLockScreenType("a\x01"), -9);
    ASSERT_TRUE(removeFile(unlock("theme.xml")));
    ASSERT_TRUE(makePath(unlock("theme.xml/below/")));
    EXPECT_EQ(theme->setLockScreenType("slide"), -3);
    EXPECT_EQ(theme->lockScreenType(), "amazing");
    EXPECT_EQ(theme->getValue({"unlock", "config"}, "style"), "amazing");
}

TEST_F(LockScreenTest, ThemeWithoutADesignGetsANewOneWithItsPictures) {
    store.create("T", {0});
    ASSERT_TRUE(removeTree(unlock("layout-hdpi/")) && removeTree(unlock("drawable-hdpi/")));
    auto theme = store.open("T");
    std::size_t index = 0;
    EXPECT_EQ(theme->addDecoration(png("a.png"), {}, {}, index), -1) << "there is no design to change";
    EXPECT_EQ(theme->addLockWallpaper({jpeg("w.jpg", 'a'), {}}), -1);
    EXPECT_FALSE(pathExists(unlock("drawable-hdpi")));
    EXPECT_EQ(theme->setLockScreenType("amazing"), 0);
    theme = store.open("T");
    EXPECT_EQ(test::problemsOf(*theme), Names{});
    EXPECT_EQ(theme->amazingNode().design().clockBits(), 31U);
    EXPECT_TRUE(pathExists(unlock("layout-hdpi/layout1_full.xml")));
}

TEST_F(LockScreenTest, DamagedDesignStaysUntilANewOneIsStarted) {
    store.create("T");
    store.write("res/T/unlock/layout-hdpi/layout1.xml", "<layout><cut");
    auto theme = store.open("T");
    EXPECT_EQ(test::problemsOf(*theme), Names{"unlock/amazing (-24)"});
    EXPECT_EQ(theme->setLockScreenType("amazing"), 0);
    EXPECT_EQ(theme->addLockClock(), -1);
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(layout(), "<layout><cut");
    theme->startLockDesign();
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(readFile(unlock("layout-hdpi/layout1.xml.damaged")), "<layout><cut");
    EXPECT_EQ(test::problemsOf(*store.open("T")), Names{});
}

TEST_F(LockScreenTest, PictureGetsASafeNameAndGoesWithItsLastElement) {
    auto theme = store.create("T");
    const std::size_t before = theme->amazingNode().design().elements().size();
    const struct {
        const char* file;
        const char* name;
    } cases[] = {{"star.png", "star.png"},
                 {"star.PNG", "star_2.png"},
                 {"主 a+'b'.png", "____a__b_.png"},
                 {"system.time.hour1.png", "system_time_hour1.png"},
                 {"number_0.jpg", "number_0_2.png"}};
    std::size_t index = 0;
    for (const auto& [file, name] : cases) {
        ASSERT_EQ(theme->addDecoration(png(file), {1, 2, 30, 40}, {{"name", "p"}}, index), 0) << file;
        EXPECT_EQ(theme->amazingNode().design().elements()[index]->src(), name);
        EXPECT_TRUE(hasPicture(name)) << name;
    }
    ASSERT_EQ(theme->addDecoration(unlock("drawable-hdpi/star.png"), {}, {}, index), 0);
    EXPECT_EQ(theme->amazingNode().design().elements()[index]->src(), "star.png") << "it stands there already";
    EXPECT_TRUE(theme->applyNode(designBlock));

    EXPECT_EQ(theme->removeDecoration(index), 0);
    EXPECT_EQ(theme->removeDecoration(before + 1), 0);
    EXPECT_TRUE(hasPicture("star_2.png")) << "the layout on disk still names it";
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_FALSE(hasPicture("star_2.png"));
    EXPECT_TRUE(hasPicture("star.png")) << "another element names it";
    EXPECT_EQ(test::problemsOf(*store.open("T")), Names{});
}

TEST_F(LockScreenTest, RefusedPictureChangesNothing) {
    auto theme = store.create("T");
    const Names pictures = namesIn(unlock("drawable-hdpi"));
    std::size_t index = 0;
    const struct {
        std::string file;
        int code;
    } cases[] = {{store.path("none.png"), -2},
                 {store.path("res"), -2},
                 {store.write("empty.png", ""), -20},
                 {store.write("text.png", "no picture"), -23},
                 {store.write("large.png", pngHeader(1, 1) + std::string(0xa00000, ' ')), -20}};
    for (const auto& [file, code] : cases) {
        EXPECT_EQ(theme->addDecoration(file, {}, {}, index), code) << file;
        EXPECT_EQ(theme->setClockPicture(file), code) << file;
        EXPECT_EQ(theme->addLockWallpaper({file, {}}), code) << file;
        EXPECT_EQ(theme->setChargePicture(0, file), code) << file;
    }
    EXPECT_EQ(theme->addLockWallpaper({png("a.png"), {}}), -21) << "its pictures end in .jpg";
    EXPECT_EQ(theme->setClockPicture(jpeg("a.jpg", 'a')), -21);
    EXPECT_EQ(theme->setClockDigitPicture(ClockDigit::hour1, 3, png("a.png")), -6) << "no hour begins with a 3";
    EXPECT_EQ(theme->replaceLockPicture("slide_knob.png", png("a.png")), -6) << "not of this design";
    EXPECT_EQ(namesIn(unlock("drawable-hdpi")), pictures);
    EXPECT_EQ(theme->setClockDigitPicture(ClockDigit::min2, 9, png("a.png")), 0);
    EXPECT_EQ(readFile(unlock("drawable-hdpi/number_9.png")), pngHeader(30, 40));
}

TEST_F(LockScreenTest, WallpapersKeepTheirOrderAndComeInPairs) {
    auto theme = store.create("T");
    EXPECT_EQ(theme->setLockWallpaperInterval(WallpaperInterval::hour), -1);
    for (const char mark : {'a', 'c', 'e'})
        ASSERT_EQ(theme->addLockWallpaper({jpeg("low.jpg", mark), jpeg("tall.jpg", static_cast<char>(mark + 1))}), 0);
    EXPECT_EQ(marks(*theme), "abcdef");
    EXPECT_EQ(theme->addLockWallpaper({jpeg("low.jpg", 'x'), {}}), -9) << "half a pair";
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(marks(*store.open("T")), "abcdef");

    ASSERT_EQ(theme->removeLockWallpaper(1), 0);
    ASSERT_EQ(theme->replaceLockWallpaper(0, {jpeg("low.jpg", 'y'), jpeg("tall.jpg", 'z')}), 0);
    EXPECT_EQ(theme->removeLockWallpaper(2), -6);
    EXPECT_EQ(marks(*theme), "yzef");
    EXPECT_EQ(marks(*store.open("T")), "abcdef") << "until the layout is written";
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(marks(*store.open("T")), "yzef");
    const Names pictures = namesIn(unlock("drawable-hdpi"));
    EXPECT_EQ(
        std::count_if(pictures.begin(), pictures.end(), [](const std::string& name) { return name.ends_with(".jpg"); }),
        4)
        << "nothing is left of the others";
    EXPECT_EQ(theme->removeLockWallpaper(0), 0);
    EXPECT_EQ(theme->removeLockWallpaper(0), -9) << "the last stays";
    EXPECT_TRUE(theme->amazingNode().hasWallpaper());
}

TEST_F(LockScreenTest, IntervalShowsSoManyPicturesInTurn) {
    auto theme = store.create("T", {1});
    const struct {
        WallpaperInterval interval;
        std::size_t most;
    } cases[] = {{WallpaperInterval::tenMinutes, 6}, {WallpaperInterval::minute, 10}, {WallpaperInterval::hour, 10}};
    ASSERT_EQ(theme->addLockWallpaper({jpeg("w.jpg", 'a'), {}}), 0);
    std::string expected = "a";
    for (const auto& [interval, most] : cases) {
        ASSERT_EQ(theme->setLockWallpaperInterval(interval), 0);
        while (expected.size() < most) {
            expected += static_cast<char>(expected.back() + 1);
            ASSERT_EQ(theme->addLockWallpaper({jpeg("w.jpg", expected.back()), {}}), 0);
            ASSERT_EQ(marks(*theme), expected);
        }
        EXPECT_EQ(theme->addLockWallpaper({jpeg("w.jpg", 'z'), {}}), -9);
        EXPECT_EQ(theme->amazingNode().wallpaperInterval(), interval);
    }
    EXPECT_EQ(theme->setLockWallpaperInterval(WallpaperInterval::tenMinutes), -9);
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(marks(*store.open("T")), expected);
    EXPECT_EQ(test::problemsOf(*store.open("T")), Names{});
}

TEST_F(LockScreenTest, MusicControlWithoutItsPicturesIsTold) {
    auto theme = store.create("T");
    for (const std::string& name : namesIn(unlock("drawable-hdpi"))) {
        if (name.starts_with("music_")) {
            ASSERT_TRUE(removeFile(unlock("drawable-hdpi/" + name)));
        }
    }
    ASSERT_EQ(theme->amazingNode().missingFiles().size(), 7U);
    EXPECT_EQ(theme->amazingNode().missingFiles().front().code, -4);
    for (const auto& [path, code] : theme->amazingNode().missingFiles())
        ASSERT_EQ(theme->replaceLockPicture(fileName(path), png("m.png")), 0) << path;
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(test::problemsOf(*store.open("T")), Names{});
    ASSERT_EQ(theme->removeMusicControl(), 0);
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_FALSE(hasPicture("music_bg.png"));
    ASSERT_EQ(theme->addMusicControl(), 0);
    EXPECT_TRUE(theme->amazingNode().missingFiles().empty()) << "the template has them";
}

TEST_F(LockScreenTest, VideoIsTheOnlyOneAndServesAnEmptyWallpaperToo) {
    auto theme = store.create("T");
    const std::string design = layout();
    ASSERT_EQ(theme->setLockScreenType("video"), 0);
    const Names missing{"wallpaper/image_set/wallpaper.mp4 (-2)", "unlock/video/image_set/unlock.mp4 (-2)"};
    Names problems = test::problemsOf(*theme);
    std::sort(problems.rbegin(), problems.rend());
    EXPECT_EQ(problems, missing);
    const std::string first = store.write("first.mp4", "first");
    const std::string second = store.write("second.mp4", "second");
    ASSERT_EQ(theme->setValue({"unlock", "video", "image_set"}, "unlock.mp4", first), 0);
    ASSERT_EQ(theme->setLockVideo(second), 0);
    EXPECT_EQ(readFile(unlock("ucdscreenlock/unlock.mp4")), "second");
    EXPECT_EQ(readFile(store.path("res/T/wallpaper/wallpaper.mp4")), "first");
    EXPECT_EQ(test::problemsOf(*theme), Names{});

    ASSERT_TRUE(theme->saveTo(store.path("out")));
    LayoutElements texts;
    ASSERT_TRUE(readLayout(store.path("out/unlock/layout-hdpi/layout1.xml"), texts));
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0]->src(), "system.date");
    EXPECT_EQ(texts[1]->src(), "system.time.ampm");
    EXPECT_FALSE(pathExists(store.path("out/unlock/drawable-hdpi")));
    EXPECT_TRUE(layout() == design) << "switching back finds the design";
    ASSERT_EQ(theme->setLockScreenType("amazing"), 0);
    EXPECT_EQ(theme->addLockText("system.date"), 0);
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_TRUE(layout() == design);
}

TEST_F(LockScreenTest, RefusedVideoLeavesNothingAndPropertiesAreKept) {
    auto theme = store.create("T");
    ASSERT_EQ(theme->setLockScreenType("slide"), 0);
    store.write("res/T/unlock/ucdscreenlock", "in the folder's place");
    EXPECT_EQ(theme->setLockScreenType("video"), -3);
    EXPECT_FALSE(pathExists(unlock("livepaper.xml")));
    ASSERT_TRUE(removeFile(unlock("ucdscreenlock")));
    const std::string large = "mine=1\n" + std::string(1100000, '#') + "\n";
    store.write("res/T/unlock/ucdscreenlock/ext.properties", large);
    theme = store.open("T");
    EXPECT_EQ(theme->setLockScreenType("video"), 0);
    EXPECT_TRUE(readFile(unlock("ucdscreenlock/ext.properties.damaged")) == large);
    store.write("res/T/unlock/ucdscreenlock/ext.properties", "unlockVideo=ext.properties\n");
    EXPECT_TRUE(store.open("T")->findLeaf({"unlock", "video", "image_set"}, "unlock.mp4"));
}

TEST_F(LockScreenTest, DesignIsEditableWhileAVideoIsTheLockScreen) {
    auto theme = store.create("T");
    ASSERT_EQ(theme->setLockScreenType("video"), 0);
    ASSERT_EQ(theme->removeLockText("system.date"), 0);
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_EQ(layout().find("system.date"), std::string::npos);
}

TEST_F(LockScreenTest, FullFormGoesWhenTheDesignIsSavedForAnotherGeneration) {
    store.create("T", {0});
    auto theme = store.open("T");
    ASSERT_TRUE(theme->changeGeneration(1));
    EXPECT_TRUE(pathExists(unlock("layout-hdpi/layout1_full.xml")));
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_FALSE(pathExists(unlock("layout-hdpi/layout1_full.xml")));
    EXPECT_NE(layout().find("y=\"system.screen_height-"), std::string::npos);
    ASSERT_TRUE(theme->changeGeneration(0));
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_TRUE(pathExists(unlock("layout-hdpi/layout1_full.xml")));
    EXPECT_EQ(layout().find("system.screen_height"), std::string::npos);
}

TEST_F(LockScreenTest, NameThatLeadsOutOfTheDesignIsNeverWrittenTo) {
    store.create("T");
    store.write("res/T/unlock/layout-hdpi/layout1.xml",
                "<layout><image src='../../description.xml'/><image src='../theme.xml'/></layout>");
    ASSERT_TRUE(removeFile(unlock("theme.xml")));
    store.write("res/T/description.xml", "<ZdTheme><title>Mine</title></ZdTheme>");
    auto theme = store.open("T");
    ASSERT_EQ(theme->addLockClock(), 0);
    ASSERT_EQ(theme->addMusicControl(), 0);
    EXPECT_EQ(readFile(store.path("res/T/description.xml")), "<ZdTheme><title>Mine</title></ZdTheme>");
    EXPECT_FALSE(pathExists(unlock("theme.xml")));
}

TEST_F(LockScreenTest, RefusedOperationLeavesNoPicture) {
    auto theme = store.create("T");
    const Names pictures = namesIn(unlock("drawable-hdpi"));
    std::size_t index = 0;
    EXPECT_EQ(theme->setDecorationPicture(9999, png("a.png")), -6);
    EXPECT_EQ(theme->addDecoration(png("a.png"), {0, 0, -1, 0}, {}, index), -9);
    EXPECT_EQ(namesIn(unlock("drawable-hdpi")), pictures);
    std::string name;
    ASSERT_EQ(theme->importLockPicture(png("frame.9.png"), name), 0);
    EXPECT_EQ(name, "frame.9.png");
    EXPECT_EQ(theme->setLockElementChildren({0}, {AmazingChild("frame", {{"src", name}})}), 0);
    EXPECT_TRUE(theme->applyNode(designBlock));
    EXPECT_TRUE(hasPicture(name));
}

TEST_F(LockScreenTest, WallpaperOfAnotherRhythmIsReplacedInItsPlace) {
    store.create("T");
    store.write("res/T/unlock/layout-hdpi/layout1.xml",
                "<layout><image x='0' y='0' w='1080' h='2160' src=\"'system.screen_height'+'h'+system.time.hour1+"
                "system.time.hour2+'.jpg'\"/></layout>");
    for (const char* name : {"h00.jpg", "h01.jpg", "2160_h00.jpg", "2160_h01.jpg"})
        store.write(std::string("res/T/unlock/drawable-hdpi/") + name, jpegHeader(1080, 1920) + name[0]);
    auto theme = store.open("T");
    EXPECT_EQ(marks(*theme), "h2h2");
    EXPECT_EQ(theme->replaceLockWallpaper(1, {{}, jpeg("x.jpg", 'x')}), 0);
    EXPECT_EQ(theme->replaceLockWallpaper(0, {jpeg("y.jpg", 'y'), png("p.png")}), -21);
    EXPECT_EQ(marks(*theme), "h2hx");
    EXPECT_EQ(theme->addLockWallpaper({jpeg("x.jpg", 'x'), jpeg("x.jpg", 'x')}), -9);
    EXPECT_EQ(theme->removeLockWallpaper(0), -9);
    EXPECT_EQ(theme->setLockWallpaperInterval(WallpaperInterval::hour), 0);
    EXPECT_EQ(theme->removeLockWallpaper(0), 0);
    EXPECT_EQ(marks(*theme), "hx");
    EXPECT_TRUE(theme->amazingNode().hasWallpaper());
    EXPECT_EQ(theme->removeLockElement(0), 0);
    EXPECT_FALSE(theme->amazingNode().hasWallpaper());
}

} // namespace
} // namespace zdt
