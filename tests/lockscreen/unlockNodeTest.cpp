#include "lockscreen/unlockNode.h"

#include "common/fixtures.h"
#include "common/nodeNames.h"
#include "lockscreen/amazingElements.h"
#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/customUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "lockscreen/videoUnlockNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using namespace std::string_literals;
using test::namesIn;
using test::readFile;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

/// A theme directory with nothing but a lock screen.
class UnlockNodeTest : public testing::Test {
protected:
    UnlockNodeTest() {
        root.setPath(folder.path("res/a/"));
        root.setTypeMask(0x50000004);
    }

    UnlockNode& open(const std::string& type = {}) {
        root.deleteChildren();
        auto& unlock = root.emplaceChild<UnlockNode>();
        EXPECT_TRUE(type.empty() || unlock.setValue(type) == 0);
        return unlock;
    }
    std::string write(const std::string& below, std::string_view content) const {
        return folder.write("res/a/unlock/" + below, content);
    }
    std::string read(const std::string& below) const { return readFile(folder.path("res/a/unlock/" + below)); }
    bool exists(const std::string& below) const { return pathExists(folder.path("res/a/unlock/" + below)); }

    TemporaryFolder folder;
    ResNode root;
};

Names missingOf(const AmazingUnlockNode& node) {
    Names lines;
    for (const auto& [path, code] : node.missingFiles())
        lines.push_back(std::to_string(code) + " " + path);
    return lines;
}

TEST_F(UnlockNodeTest, KindIsReadFromStyleAndPackage) {
    const struct {
        const char* file;
        const char* type;
    } cases[] = {
        {"<ZDTheme/>", "slide"},
        {"<ZDTheme><item style='slide'/></ZDTheme>", "slide"},
        {"<ZDTheme><item style='slide'/><item package='com.example'/></ZDTheme>", "slide"},
        {"<ZDTheme><item style='slide'/><item package='com.zendro.ucdlockscreen'/></ZDTheme>", "video"},
        {"<ZDTheme><item package='com.zendro.ucdlockscreen'/></ZDTheme>", "video"},
        {"<ZDTheme><item style=''/><item package='com.ibimuyu.lockscreen'/></ZDTheme>", "zooking"},
        {"<ZDTheme><item style='amazing'/><item package='com.zendro.ucdlockscreen'/></ZDTheme>", "amazing"},
        {"<ZDTheme><item style='custom'/></ZDTheme>", "custom"},
        {"<ZDTheme><item style='magazine'/></ZDTheme>", "magazine"},
        {"<ZDTheme><item style='amazing'/><item style='slide'/></ZDTheme>", "slide"},
        {"<ZDTheme><item style='slide' package='com.zendro.ucdlockscreen'/></ZDTheme>", "slide"},
        {"<ZDTheme><thing style='amazing'/><item/></ZDTheme>", "slide"},
        {"<x><item style='amazing'/></x>", "amazing"},
        {"<ZDTheme><item style='amazing'/>", ""},
        {"", ""},
    };
    EXPECT_EQ(open().value(), "") << "no file";
    for (const auto& [file, type] : cases) {
        write("theme.xml", file);
        EXPECT_EQ(open().value(), type) << file;
    }
}

TEST_F(UnlockNodeTest, KindDecidesWhichAttributesAreWritten) {
    const std::string package = "    <item package=\"com.zendro.ucdlockscreen\"/>\n"
                                "    <item dynamicPath=\"ucdscreenlock\"/>\n"
                                "    <item minversion=\"1.4\"/>\n"
                                "    <item title-cn=\"Zendro主题官方\"/>\n"
                                "    <item title=\"Zendro Themes\"/>\n"
                                "    <item maxHeight=\"2160\"/>\n";
    const std::string layout = "    <item layout=\"layout1\"/>\n";
    const std::string design = layout + "    <item slideinAmaze=\"true\"/>\n    <item maxHeight=\"2160\"/>\n";
    const struct {
        const char* type;
        TypeMask mask;
        const char* style;
        std::string rest;
    } cases[] = {
        {"slide", 0x50000004, "slide", ""},
        {"magazine", 0x50000004, "magazine", ""},
        {"zooking", 0x50000004, "zooking", ""},
        {"amazing", 0x50000004, "amazing", design + "    <item baseVersion=\"6.0\"/>\n"},
        {"amazing", 0xa0000002, "amazing", design + "    <item baseVersion=\"6.0\"/>\n"},
        {"amazing", 0x50000001, "amazing", design},
        {"video", 0x50000001, "slide", layout + package},
        {"custom", 0x50000004, "custom", layout + package},
    };
    for (const auto& [type, mask, style, rest] : cases) {
        SCOPED_TRACE(type);
        root.setTypeMask(mask);
        EXPECT_TRUE(open(type).findChild("config")->save(true));
        std::string expected =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ZDTheme>\n    <item style=\""s + style + "\"/>\n";
        if (const std::size_t place = rest.find(package); place != std::string::npos)
            expected += "    <item layout=\"layout1\"/>\n" + package + "</ZDTheme>\n";
        else
            expected += rest + "</ZDTheme>\n";
        EXPECT_EQ(read("theme.xml"), expected);
        EXPECT_EQ(open().value(), type) << "read back";
    }
}

TEST_F(UnlockNodeTest, AttributesOfTheFileNeverReachTheTree) {
    write("theme.xml", "<ZDTheme><item style='amazing'/><item maxHeight='1920'/><item layout='layout7'/></ZDTheme>");
    ResNode& config = *open().findChild("config");
    EXPECT_EQ(config.findChild("maxHeight")->value(), "2160");
    EXPECT_EQ(config.findChild("layout")->value(), "layout1");
    EXPECT_EQ(config.findChild("style")->value(), "amazing");
    EXPECT_EQ(test::childNames(config), (Names{"style", "layout", "package", "dynamicPath", "slideinAmaze",
                                               "minversion", "title-cn", "title", "maxHeight", "baseVersion"}));
}

TEST_F(UnlockNodeTest, ConfigIsLeftAloneWithoutAKindOrAPart) {
    UnlockNode& unlock = open();
    EXPECT_TRUE(unlock.findChild("config")->save(true));
    EXPECT_FALSE(exists("theme.xml"));
    ASSERT_EQ(unlock.setValue("slide"), 0);
    unlock.findChild("config")->setTypeMask(0x50000001);
    EXPECT_TRUE(unlock.findChild("config")->save(false));
    EXPECT_FALSE(exists("theme.xml"));
    EXPECT_TRUE(unlock.findChild("config")->save(true));
    EXPECT_TRUE(exists("theme.xml"));
    root.setPath("");
    EXPECT_FALSE(unlock.findChild("config")->save(true));
    unlock.findChild("config")->deleteChild(unlock.findByPath(KeyPath{"config", "style"}));
    EXPECT_EQ(unlock.setValue("video"), -1);
    EXPECT_EQ(unlock.value(), "slide");
}

TEST_F(UnlockNodeTest, LayoutIsKeptWithElementsNobodyKnows) {
    write("layout-hdpi/layout1.xml", "<layout newer='1'><!-- c --><future x='1'><deep/></future>"
                                     "<image src='a.png' y='5' x=''/><unlocker><StartPoint/></unlocker></layout>");
    write("drawable-hdpi/a.png", "picture");
    UnlockNode& unlock = open("amazing");
    ResNode& design = *unlock.findChild("amazing");
    EXPECT_EQ(design.validate(""), 0);
    EXPECT_TRUE(design.save(true));
    const std::string kept = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<layout frameRate=\"30\" version=\"3.0\" screenwidth=\"1080\">\n"
                             "    <future x=\"1\">\n        <deep/>\n    </future>\n"
                             "    <image src=\"a.png\" y=\"5\"/>\n"
                             "    <unlocker>\n        <StartPoint/>\n    </unlocker>\n"
                             "</layout>\n";
    EXPECT_EQ(read("layout-hdpi/layout1.xml"), kept);
    root.setPath(folder.path("tmp/a/"));
    EXPECT_TRUE(design.save(false));
    EXPECT_EQ(readFile(folder.path("tmp/a/unlock/layout-hdpi/layout1.xml")), kept);
    EXPECT_EQ(readFile(folder.path("tmp/a/unlock/drawable-hdpi/a.png")), "picture");
    root.setPath("");
    EXPECT_FALSE(design.save(false));
}

TEST_F(UnlockNodeTest, LayoutThatCannotBeReadIsNeverWrittenOver) {
    std::string deep;
    for (int level = 0; level < 5000; ++level)
        deep += "<a>";
    for (const std::string& file : {"<layout><image"s, ""s, "no layout"s, deep}) {
        write("layout-hdpi/layout1.xml", file);
        auto& design = dynamic_cast<AmazingUnlockNode&>(*open("amazing").findChild("amazing"));
        EXPECT_FALSE(design.isReadable());
        EXPECT_TRUE(design.design().elements().empty());
        EXPECT_TRUE(design.save(true));
        EXPECT_TRUE(read("layout-hdpi/layout1.xml") == file);
        EXPECT_EQ(design.validate(""), -2);
        EXPECT_EQ(missingOf(design), Names{"-24 unlock/layout-hdpi/layout1.xml"});
    }
}

TEST_F(UnlockNodeTest, MissingPicturesAreToldOnceAndOnlyForTheDesignedLock) {
    write("drawable-hdpi/number_0.png", "x");
    write("drawable-hdpi/number_2.png", "x");
    folder.write("res/a/unlock/outside.png", "x");
    write("layout-hdpi/layout1.xml", "<layout><image src=\"'number_'+system.time.hour1+'.png'\"/>"
                                     "<image src='number_1.png'><frame src='frame.png'/></image>"
                                     "<image src='../outside.png'/><text src='system.date'/></layout>");
    UnlockNode& unlock = open("amazing");
    auto& design = dynamic_cast<AmazingUnlockNode&>(*unlock.findChild("amazing"));
    EXPECT_EQ(missingOf(design), (Names{"-2 unlock/drawable-hdpi/number_1.png", "-2 unlock/drawable-hdpi/frame.png",
                                        "-2 unlock/drawable-hdpi/../outside.png"}));
    EXPECT_EQ(design.validate(""), -2);
    EXPECT_EQ(design.errors(), std::vector<int>{-2});
    root.setPath(folder.path("tmp/a/"));
    EXPECT_FALSE(design.save(false)) << "a theme saved elsewhere takes its pictures along";
    for (const char* type : {"slide", "custom", "magazine"}) {
        ASSERT_EQ(unlock.setValue(type), 0);
        EXPECT_EQ(design.validate(""), 0) << type;
        EXPECT_TRUE(design.save(false)) << "a design that isn't shown goes along as far as it is there";
    }
    EXPECT_EQ(namesIn(folder.path("tmp/a/unlock/drawable-hdpi")), (Names{"number_0.png", "number_2.png"}));
}

TEST_F(UnlockNodeTest, FullLayoutCountsWhereThereIsOne) {
    root.setTypeMask(0x50000001);
    write("layout-hdpi/layout1.xml", "<layout><text y='680'/></layout>");
    write("layout-hdpi/layout1_full.xml", "<layout><text y='system.screen_height-1240'/></layout>");
    auto& design = dynamic_cast<AmazingUnlockNode&>(*open("amazing").findChild("amazing"));
    ASSERT_EQ(design.design().elements().size(), 1U);
    EXPECT_EQ(design.design().elements()[0]->attribute("y"), "system.screen_height-1240");
    EXPECT_TRUE(design.save(true));
    EXPECT_TRUE(read("layout-hdpi/layout1_full.xml").find("y=\"system.screen_height-1240\"") != std::string::npos);
    EXPECT_TRUE(read("layout-hdpi/layout1.xml").find("y=\"680\"") != std::string::npos);
}

TEST_F(UnlockNodeTest, WallpaperAndHeightFollowLayoutAndGeneration) {
    const struct {
        TypeMask mask;
        std::uint32_t height;
    } cases[] = {{0x50000001, 1920}, {0xa0000002, 1920}, {0x50000004, 2160}};
    write("layout-hdpi/layout1.xml", "<layout><text/><image x='0' y='0' w='1080' h='2160' "
                                     "src=\"'system.screen_height'+'bg_'+system.time.hour1+'.jpg'\"/></layout>");
    for (const char* name : {"bg_0.jpg", "bg_1.jpg", "2160_bg_0.jpg"})
        write("drawable-hdpi/"s + name, "x");
    for (const auto& [mask, height] : cases) {
        root.setTypeMask(mask);
        auto& design = dynamic_cast<AmazingUnlockNode&>(*open("amazing").findChild("amazing"));
        EXPECT_EQ(design.screenHeight(), height);
        EXPECT_TRUE(design.hasWallpaper());
        EXPECT_TRUE(dynamic_cast<LockWallPaper*>(design.design().elements()[1].get()));
        EXPECT_EQ(design.design().elements()[1]->resources(), (Names{"bg_0.jpg", "2160_bg_0.jpg"}));
        EXPECT_EQ(design.validate(""), 0);
    }
}

TEST_F(UnlockNodeTest, PropertiesNameTheVideo) {
    const struct {
        const char* file;
        const char* key;
        const char* value;
        const char* video;
    } cases[] = {
        {"", "unlockVideo", "unlock.mp4", "unlock.mp4"},
        {"unlockVideo=my.mp4\r\n", "unlockVideo", "my.mp4", "my.mp4"},
        {"#unlockVideo=x\nunlockVideo=\n", "unlockVideo", "unlock.mp4", "unlock.mp4"},
        {"extra=1\n", "extra", "1", "unlock.mp4"},
        {"video_mode=2\n", "video_mode", "2", "unlock.mp4"},
        {"wallpaper_video=w.mp4\n", "wallpaper_video", "w.mp4", "unlock.mp4"},
        {"unlockVideo=../../../x.mp4\n", "unlockVideo", "unlock.mp4", "unlock.mp4"},
        {"unlockVideo=..\n", "unlockVideo", "unlock.mp4", "unlock.mp4"},
    };
    for (const auto& [file, key, value, video] : cases) {
        SCOPED_TRACE(file);
        write("ucdscreenlock/ext.properties", file);
        ResNode& node = *open().findChild("video");
        EXPECT_EQ(node.findByPath(KeyPath{"ext.properties", key})->value(), value);
        ASSERT_TRUE(node.findByPath(KeyPath{"image_set", video}));
        EXPECT_EQ(node.findChild("image_set")->firstChild()->next(), nullptr);
        EXPECT_EQ(node.findByPath(KeyPath{"image_set", video})->path(), "unlock/ucdscreenlock/");
    }
}

TEST_F(UnlockNodeTest, VideoHasALimitOfBytes) {
    ResNode* video = open().findByPath(splitKeyPath("video/image_set/unlock.mp4"));
    const std::string source = folder.write("in.mp4", std::string(15'728'640, 'v'));
    EXPECT_EQ(video->setValue(source), 0);
    EXPECT_EQ(video->value(), folder.path("res/a/unlock/ucdscreenlock/unlock.mp4"));
    EXPECT_EQ(open().findByPath(splitKeyPath("video/image_set/unlock.mp4"))->value(),
              folder.path("res/a/unlock/ucdscreenlock/unlock.mp4"))
        << "taken over by the next opening";
    folder.write("in.mp4", std::string(15'728'641, 'v'));
    EXPECT_EQ(root.findByPath(splitKeyPath("unlock/video/image_set/unlock.mp4"))->setValue(source), -20);
}

TEST_F(UnlockNodeTest, VideoFilesAreWrittenForAVideoLockOrOnDemand) {
    const struct {
        const char* type;
        bool all;
        bool written;
    } cases[] = {{"slide", false, false}, {"amazing", false, false}, {"video", false, true}, {"slide", true, true}};
    for (const auto& [type, all, written] : cases) {
        SCOPED_TRACE(type);
        ASSERT_TRUE(removeTree(folder.path("res/a")));
        ResNode& video = *open(type).findChild("video");
        EXPECT_TRUE(video.save(all));
        EXPECT_TRUE(video.findChild("ext.properties")->save(all));
        EXPECT_EQ(exists("livepaper.xml"), written);
        EXPECT_EQ(read("ucdscreenlock/ext.properties"), written ? "unlockVideo=unlock.mp4\nvideo_mode=1\n" : "");
    }
    EXPECT_EQ(read("livepaper.xml"), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ZDTheme>\n"
                                     "    <pkgname>com.zendro.ucdlockscreen</pkgname>\n"
                                     "    <classname>com.zendro.video.VideoWallpaperService</classname>\n</ZDTheme>\n");
    ResNode& video = *root.findByPath(KeyPath{"unlock", "video"});
    root.setPath(folder.path("res/a/unlock/livepaper.xml/"));
    EXPECT_FALSE(video.save(true));
    EXPECT_FALSE(video.findChild("ext.properties")->save(true));
    root.setPath("");
    EXPECT_FALSE(video.save(true));
    EXPECT_FALSE(video.findChild("ext.properties")->save(true));
}

TEST_F(UnlockNodeTest, WithoutADynamicPathTheVideoHasNoPlace) {
    write("ucdscreenlock/unlock.mp4", "v");
    UnlockNode& unlock = open();
    ASSERT_EQ(unlock.findByPath(KeyPath{"config", "dynamicPath"})->setValue(""), 0);
    auto& video = unlock.emplaceChild<VideoUnlockNode>();
    EXPECT_EQ(video.findChild("ext.properties")->path(), "");
    EXPECT_EQ(video.findByPath(splitKeyPath("image_set/unlock.mp4"))->value(), "");
    EXPECT_FALSE(video.findChild("ext.properties")->save(true));
}

TEST_F(UnlockNodeTest, CustomLockStaysApartUntilItIsSavedElsewhere) {
    const std::string package = write("custom/lock.apk", "package");
    write("custom/ext.properties", "version=2\n");
    UnlockNode& unlock = open("custom");
    auto& custom = dynamic_cast<CustomUnlockNode&>(*unlock.findChild("custom"));
    ASSERT_TRUE(custom.package());
    EXPECT_EQ(custom.package()->value(), package);
    ResNode& properties = *custom.findByPath(KeyPath{"file", "ext.properties"});
    EXPECT_TRUE(custom.package()->save(false) && properties.save(false));
    EXPECT_FALSE(exists("ucdscreenlock"));
    const struct {
        const char* type;
        bool written;
    } cases[] = {{"slide", false}, {"video", false}, {"custom", true}};
    for (const auto& [type, written] : cases) {
        ASSERT_EQ(unlock.setValue(type), 0);
        root.setPath(folder.path("tmp/a/"));
        EXPECT_TRUE(custom.package()->save(false) && properties.save(false));
        EXPECT_EQ(readFile(folder.path("tmp/a/unlock/ucdscreenlock/lock.apk")), written ? "package" : "") << type;
        EXPECT_EQ(pathExists(folder.path("tmp/a/unlock/ucdscreenlock/ext.properties")), written) << type;
        root.setPath(folder.path("res/a/"));
    }
    EXPECT_FALSE(pathExists(folder.path("tmp/a/unlock/custom")));
}

TEST_F(UnlockNodeTest, ImportedCustomLockIsTakenFromThePhonesPlace) {
    const std::string package = write("ucdscreenlock/lock.apk", "package");
    const std::string properties = write("ucdscreenlock/ext.properties", "version=2\n");
    write("theme.xml", "<ZDTheme><item style='slide'/></ZDTheme>");
    EXPECT_EQ(dynamic_cast<CustomUnlockNode&>(*open().findChild("custom")).package(), nullptr);
    write("theme.xml", "<ZDTheme><item style='custom'/></ZDTheme>");
    auto& custom = dynamic_cast<CustomUnlockNode&>(*open().findChild("custom"));
    ASSERT_TRUE(custom.package());
    EXPECT_EQ(custom.package()->value(), package);
    EXPECT_EQ(custom.findByPath(KeyPath{"file", "ext.properties"})->value(), properties);
    EXPECT_TRUE(custom.package()->save(true));
    EXPECT_EQ(readFile(package), "package");
}

TEST_F(UnlockNodeTest, CustomPackageHasALimitOfBytes) {
    auto node = makeCustomPackageNode("lock.apk");
    EXPECT_EQ(node->validate(folder.write("a.apk", std::string(10'485'760, 'x'))), 0);
    EXPECT_EQ(node->validate(folder.write("a.apk", std::string(10'485'761, 'x'))), -20);
    EXPECT_EQ(node->path(), "unlock/custom/");
    auto& file = *open().findByPath(KeyPath{"custom", "file"});
    ResNode& added = file.adopt(std::move(node));
    EXPECT_EQ(added.setValue(folder.write("b.apk", "x")), 0);
    EXPECT_EQ(read("custom/lock.apk"), "x");
    EXPECT_EQ(dynamic_cast<CustomUnlockNode&>(*root.findByPath(KeyPath{"unlock", "custom"})).package(), &added);
}

} // namespace
} // namespace zdt
