#include "modules/themeNode.h"

#include "common/fixtures.h"
#include "common/nodeNames.h"
#include "model/fileResNode.h"
#include "model/textResNode.h"

#include <gtest/gtest.h>

#include <map>

namespace zdt {
namespace {

using test::childNames;
using test::readFile;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

bool holdsAValue(const ResNode* node) {
    return dynamic_cast<const FileResNode*>(node) || dynamic_cast<const TextResNode*>(node);
}

/// The leaves of each module that take part in its theme.
std::map<std::string, int> applicableLeaves(ResNode& node) {
    std::map<std::string, int> counts;
    for (ResNode* child = node.firstChild(); child && !child->isLeaf(); child = child->next()) {
        for (ResNode* leaf : child->collectLeaves())
            counts[child->name()] += holdsAValue(leaf) && leaf->isApplicable() ? 1 : 0;
    }
    return counts;
}

TEST(ThemeNode, TreeStandsInItsFixedOrder) {
    ThemeNode theme(0x50000002, "");
    const struct {
        KeyPath path;
        Names children;
    } cases[] = {
        {{}, {"unlock",   "wallpaper", "icons",   "launcher", "preview", "contacts", "phone",
              "recorder", "telecom",   "mms",     "systemui", "title",   "title-cn", "author",
              "designer", "screen",    "version", "font",     "font-cn", "briefinfo"}},
        {{"unlock"}, {"config", "video", "amazing", "custom"}},
        {{"wallpaper"}, {"image", "ext.properties", "image_set"}},
        {{"wallpaper", "image"}, {"home_wallpaper_0.jpg", "unlock_wallpaper_1.jpg"}},
        {{"icons"}, {"system", "thirdparty"}},
        {{"icons", "system"}, {"static", "dynamic_icons"}},
        {{"icons", "thirdparty"}, {"mode", "image"}},
        {{"launcher"}, {"image", "text", "commonSetting"}},
        {{"contacts"}, {"image", "text", "commonSetting"}},
        {{"phone"}, {"image", "text", "commonSetting"}},
        {{"recorder"}, {"text", "commonSetting"}},
        {{"telecom"}, {"telecom_image", "commonSetting"}},
        {{"telecom", "telecom_image"}, {"drawable-hdpi", "drawable-ldrtl-hdpi"}},
        {{"mms"}, {"image", "text", "commonSetting"}},
        {{"systemui"}, {"text", "image", "commonSetting"}},
        {{"mms", "commonSetting"}, {"image", "text"}},
    };
    for (const auto& [path, children] : cases)
        EXPECT_EQ(childNames(*theme.findByPath(path)), children) << joinKeyPath(path);
    EXPECT_EQ(theme.name(), "ZDTheme");
}

// Pictures, keys, pictures and keys of the common block; counted by hand from the lists of what the phone reads.
TEST(ThemeNode, EachKindOfThemeHasItsOwnLeaves) {
    constexpr int ofLockScreen = 10 + 2 + 1 + 1; // attributes, properties, video, the custom lock's properties
    constexpr int ofIcons = 71 + 17 + 2;         // static, moving, rules
    const std::map<std::string, int> always{
        {"unlock", ofLockScreen}, {"wallpaper", 2 + 2 + 1}, {"icons", ofIcons}, {"preview", 9}};
    const char* applications[] = {"contacts", "phone", "recorder", "telecom", "mms", "systemui"};
    const struct {
        TypeMask generation;
        int launcher;
        int common;
        int own[6];
    } cases[] = {
        {0x1, 5 + 18, 15 + 55, {44 + 70, 1 + 0, 0, 2, 14 + 88, 10 + 20}},
        {0x2, 19 + 29 + 17 + 67, 17 + 67, {47 + 75, 1 + 4, 4, 2, 17 + 122, 10 + 20}},
        {0x4, 21 + 26 + 24 + 78, 24 + 78, {34 + 51, 1 + 8, 3, 0, 6 + 184, 5 + 25}},
    };
    for (const auto& [generation, launcher, common, own] : cases) {
        for (const TypeMask kind : {0x50000000U, 0x60000000U, 0x90000000U, 0xa0000000U}) {
            SCOPED_TRACE(testing::Message() << std::hex << (generation | kind));
            std::map<std::string, int> expected = always;
            expected["launcher"] = launcher;
            for (std::size_t index = 0; index < std::size(applications); ++index)
                expected[applications[index]] = kind & typeMask::bigTheme ? own[index] + common : 0;
            ThemeNode theme(generation | kind, "");
            EXPECT_EQ(applicableLeaves(theme), expected);
        }
    }
}

TEST(ThemeNode, SmallThemeLosesTheApplicationsButNotTheLauncher) {
    const struct {
        TypeMask mask;
        KeyPath path;
        bool applicable;
    } cases[] = {
        {0x50000001, {"recorder"}, true},
        {0x90000001, {"recorder"}, false},
        {0x90000001, {"telecom"}, false},
        {0x90000001, {"mms"}, false},
        {0x90000002, {"launcher", "text", "checked"}, true},
        {0x90000001, {"launcher", "text", "checked"}, false},
        {0x90000004, {"launcher", "commonSetting", "text", "ovui_accent"}, true},
        {0x90000004, {"contacts", "commonSetting", "text", "ovui_accent"}, false},
        {0x50000001, {"launcher", "commonSetting"}, false},
        {0x50000001, {"launcher", "commonSetting", "image", "bg_scrollbar.9.png"}, false},
        {0x50000001, {"contacts", "commonSetting", "image", "bg_scrollbar.9.png"}, true},
        {0x90000004, {"launcher", "image", "ic_arrow.png"}, true},
        {0x50000004, {"telecom", "telecom_image"}, false},
        {0xa0000002, {"unlock"}, true},
    };
    for (const auto& [mask, path, applicable] : cases) {
        ThemeNode theme(mask, "");
        EXPECT_EQ(theme.findByPath(path)->isApplicable(), applicable) << joinKeyPath(path) << std::hex << ' ' << mask;
    }
}

TEST(ThemeNode, DescriptionIsReadOverTheDefaults) {
    const TemporaryFolder folder;
    const struct {
        const char* what;
        const char* file;
        const char* key;
        const char* value;
    } cases[] = {
        {"no file", nullptr, "version", "8.0.1"},
        {"no file", nullptr, "title-cn", "主题中文名称"},
        {"no file", nullptr, "briefinfo", ""},
        {"no element", "<ZdTheme><title>A</title></ZdTheme>", "version", "8.0.1"},
        {"element without a text", "<ZdTheme><title/></ZdTheme>", "title", "English Name"},
        {"text", "<ZdTheme><title>A &amp; B</title></ZdTheme>", "title", "A & B"},
        {"text that isn't allowed", "<ZdTheme><version>10</version></ZdTheme>", "version", "10"},
        {"doubled", "<ZdTheme><font>A</font><font>B</font><font/></ZdTheme>", "font", "B"},
        {"another root", "<x><author>A</author></x>", "author", "A"},
        {"broken", "<ZdTheme><author>A</author>", "author", "制作者名称"},
        {"nested deeper", "<ZdTheme><x><author>A</author></x></ZdTheme>", "author", "制作者名称"},
    };
    for (const auto& [what, file, key, value] : cases) {
        SCOPED_TRACE(what);
        if (file)
            folder.write("description.xml", file);
        ThemeNode theme(0x50000002, folder.path());
        EXPECT_EQ(theme.findChild(key)->value(), value);
    }
}

TEST(ThemeNode, DescriptionIsWrittenInOrderWithEmptyElementsAndNothingElse) {
    const TemporaryFolder folder;
    folder.write("description.xml", "<ZdTheme><unknown>x</unknown><version>9.0.100</version></ZdTheme>");
    ThemeNode theme(0x50000004, folder.path());
    EXPECT_EQ(theme.findChild("version")->setValue("10.0.1"), -19);
    EXPECT_EQ(theme.findChild("screen")->setValue("HD"), 0);
    EXPECT_EQ(theme.findChild("title")->setValue(""), -18);
    EXPECT_EQ(theme.findChild("title")->setValue("<Title>"), 0);
    EXPECT_TRUE(theme.save(true));
    EXPECT_EQ(readFile(folder.path("description.xml")), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                        "<ZdTheme>\n"
                                                        "    <title>&lt;Title&gt;</title>\n"
                                                        "    <title-cn>主题中文名称</title-cn>\n"
                                                        "    <author>制作者名称</author>\n"
                                                        "    <designer>设计师名称</designer>\n"
                                                        "    <screen>HD</screen>\n"
                                                        "    <version>9.0.100</version>\n"
                                                        "    <font>Default</font>\n"
                                                        "    <font-cn>默认</font-cn>\n"
                                                        "    <briefinfo/>\n"
                                                        "</ZdTheme>\n");
    EXPECT_FALSE(ThemeNode(0x50000004, "").save(true));
    ThemeNode misplaced(0x50000004, folder.path("description.xml/"));
    EXPECT_FALSE(misplaced.save(true));
}

} // namespace
} // namespace zdt
