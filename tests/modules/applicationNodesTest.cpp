#include "modules/applicationNodes.h"

#include "common/fixtures.h"
#include "model/fileResNode.h"
#include "model/textResNode.h"
#include "modules/commonSettingNode.h"
#include "modules/imageNode.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zdt {
namespace {

using test::pngHeader;
using test::readFile;
using test::TemporaryFolder;

const KeyPath modules[] = {{"launcher"}, {"contacts"}, {"phone"}, {"recorder"}, {"telecom"}, {"mms"}, {"systemui"}};

TEST(ApplicationNodes, KeysKeepTheirTypesAndDefaults) {
    ThemeNode theme(0x50000004, "");
    const struct {
        const char* block;
        const char* key;
        const char* value;
        bool colour;
    } cases[] = {
        {"launcher/text", "folder_app_text_shadow", "false", false},
        {"launcher/text", "folderadd_text_shadow", "false", false},
        {"launcher/text", "workspace_app_text_shadow", "true", false},
        {"launcher/text", "wallpaper_setting_catagory_color", "#08000000", true},
        {"launcher/text", "navigation_deskspot_current", "#FFFFFF", true},
        {"mms/text", "text_color_black", "#242424", false},
        {"mms/text", "attahcment_tab_text_selected", "#007dfe", true},
        {"mms/text", "duoq_url_voice_color", "#242424", true},
        {"contacts/text", "background_change", "#00000002", true},
        {"systemui/text", "qs_customize_divider_backgroundcolor", "#f0f0f0", true},
        {"phone/commonSetting/text", "zd_blur_effect_enable", "false", false},
        {"telecom/commonSetting/text", "divider_horizontal_color_ovui", "#cacaca", true},
    };
    for (const auto& [block, key, value, colour] : cases) {
        SCOPED_TRACE(std::string(block) + "/" + key);
        ResNode* node = theme.findByPathAndName(splitKeyPath(block), key);
        ASSERT_TRUE(node);
        EXPECT_EQ(node->value(), value);
        EXPECT_EQ(dynamic_cast<ColorTextResNode*>(node) != nullptr, colour);
    }
    for (const KeyPath& module : modules) {
        const auto texts = theme.findByPath(module)->collectLeaves();
        for (ResNode* leaf : texts)
            EXPECT_TRUE(!dynamic_cast<ColorTextResNode*>(leaf) || leaf->validate(leaf->value()) == 0) << leaf->name();
    }
}

/// One number (FNV-1a) for the names, masks, values or folders, and sizes of a block's children, in their order.
std::uint64_t sumOf(const ResNode& block) {
    std::ostringstream text;
    for (const ResNode* child = block.firstChild(); child; child = child->next()) {
        text << child->name() << ' ' << std::hex << child->typeMask() << std::dec << ' ';
        if (const auto* file = dynamic_cast<const FileResNode*>(child)) {
            text << file->path();
            for (const SizeRange& range : file->sizeRanges())
                text << ' ' << range.minWidth;
        } else {
            text << child->value();
        }
        text << '\n';
    }
    std::uint64_t sum = 0xcbf29ce484222325;
    for (const char byte : text.str())
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return sum;
}

// A slip in one of the 548 keys or in a picture shows nowhere but on a phone. The sums were taken from the phone's
// lists, not from the tables; who means to change a table takes the new one.
TEST(ApplicationNodes, NoKeyOrPictureWasChangedByASlip) {
    ThemeNode theme(0x50000002, "");
    const struct {
        const char* block;
        std::uint64_t sum;
    } cases[] = {
        {"launcher/text", 0x0a7c66a799a96db3},
        {"contacts/text", 0x14c97cc0df0b5985},
        {"phone/text", 0xfc111784218ba576},
        {"recorder/text", 0x2d991681659dd895},
        {"mms/text", 0xc2ad4ecd9c90c1ba},
        {"systemui/text", 0xd90d8bb409df7fa1},
        {"mms/commonSetting/text", 0x6e03fd97b40385b1},
        {"launcher/image", 0x876c8cd22bf1e089},
        {"contacts/image", 0x04d61a190915291e},
        {"mms/image", 0xff9a0e4c29c156a4},
        {"systemui/image", 0x49c6fb32f7d232ba},
        {"mms/commonSetting/image", 0xf39e6617794367fe},
    };
    for (const auto& [block, sum] : cases)
        EXPECT_EQ(sumOf(*theme.findByPath(splitKeyPath(block))), sum) << block;
}

TEST(ApplicationNodes, PicturesLieInTheirFoldersWithTheirSizes) {
    ThemeNode theme(0x50000002, "");
    const struct {
        const char* parent;
        const char* name;
        int n;
        const char* folder; ///< In the module's package.
        TypeMask mask;
        std::uint32_t side; ///< 0 for any size.
    } cases[] = {
        {"launcher/image", "btn_check_on.png", 1, "res/drawable-xxhdpi/", 0xf0000003, 57},
        {"launcher/image", "ic_edit_share.9.png", 1, "res/drawable-xxhdpi/", 0xf0000002, 0},
        {"launcher/image", "ic_edit_share.9.png", 2, "res/drawable-xxhdpi/", 0xf0000004, 0},
        {"contacts/image", "profile_simple_card_background.9.png", 1, "res/drawable-xxhdpi/", 0x70000007, 0},
        {"contacts/image", "profile_simple_card_background.9.png", 2, "res/drawable-land-xxhdpi/", 0x70000003, 0},
        {"contacts/image", "contact_edit_text_background.9.png", 1, "res/drawable-nodpi/", 0x70000003, 0},
        {"contacts/image", "dial_num_3_blkpress.png", 1, "res/drawable-xxhdpi/", 0x70000007, 0},
        {"phone/image", "preference_category_backgound.9.png", 1, "res/drawable-xxxhdpi/", 0x70000004, 0},
        {"telecom/telecom_image/drawable-hdpi", "ic_arrow.png", 1, "res/drawable-hdpi/", 0x70000003, 48},
        {"telecom/telecom_image/drawable-ldrtl-hdpi", "ic_arrow.png", 1, "res/drawable-ldrtl-hdpi/", 0x70000003, 48},
        {"mms/image", "mic_st_widget_normal.png", 1, "res/drawable-xxhdpi/", 0x70000002, 1032},
        {"mms/commonSetting/image", "toolbar_bg.9.png", 1, "framework-res-zdext/res/drawable-xxhdpi/", 0x70000003, 0},
        {"launcher/commonSetting/image", "toolbar_bg.9.png", 1, "framework-res-zdext/res/drawable-xxhdpi/", 0xf0000002,
         0},
    };
    for (const auto& [parent, name, n, folder, mask, side] : cases) {
        SCOPED_TRACE(std::string(parent) + "/" + name);
        const KeyPath path = splitKeyPath(parent);
        auto* node = dynamic_cast<FileResNode*>(theme.findByPath(path)->findNth(name, n));
        ASSERT_TRUE(node);
        EXPECT_EQ(node->path(), theme.findChild(path[0])->path() + folder);
        EXPECT_EQ(node->typeMask(), mask);
        EXPECT_EQ(node->sizeRanges(), side == 0 ? std::vector<SizeRange>() : std::vector<SizeRange>{SizeRange(side)});
        EXPECT_EQ(node->allowedKinds(), fileKind::png);
    }
    EXPECT_EQ(theme.findByPath(KeyPath{"launcher", "image", "ic_widget_bg.png"}), nullptr);
}

TEST(ApplicationNodes, FilesOfTheThemeAreTakenOverInEveryGeneration) {
    const TemporaryFolder folder;
    const std::string arrow =
        folder.write("com.zendro.android.launcher/res/drawable-xxhdpi/ic_arrow.png", pngHeader(96, 96));
    folder.write("com.zendro.android.launcher/res/drawable-xxhdpi/ic_allapps.png", pngHeader(96, 96));
    const std::string share =
        folder.write("com.zendro.android.launcher/res/drawable-xxhdpi/ic_edit_share.9.png", pngHeader(7, 9));
    const std::string mirrored =
        folder.write("com.android.server.telecom/res/drawable-ldrtl-hdpi/ic_arrow.png", pngHeader(48, 48));
    folder.write("com.android.contacts/framework-res-zdext/theme.xml",
                 "<resources><color name=\"ovui_accent\">#abcdef</color></resources>");
    ThemeNode theme(0x50000001, folder.path());
    ResNode& images = *theme.findByPath(KeyPath{"launcher", "image"});
    EXPECT_EQ(images.findChild("ic_arrow.png")->value(), arrow) << "read, though generation 5 has no such picture";
    EXPECT_EQ(images.findChild("ic_allapps.png")->value(), "") << "of the wrong size";
    EXPECT_EQ(images.findNth("ic_edit_share.9.png", 1)->value(), share);
    EXPECT_EQ(images.findNth("ic_edit_share.9.png", 2)->value(), share);
    const KeyPath telecom{"telecom", "telecom_image"};
    EXPECT_EQ(theme.findByPath(telecom)->findByPath(KeyPath{"drawable-ldrtl-hdpi", "ic_arrow.png"})->value(), mirrored);
    EXPECT_EQ(theme.findByPath(telecom)->findByPath(KeyPath{"drawable-hdpi", "ic_arrow.png"})->value(), "");
    EXPECT_EQ(theme.findByPath(splitKeyPath("contacts/commonSetting/text/ovui_accent"))->value(), "#abcdef");
    EXPECT_EQ(theme.findByPath(splitKeyPath("phone/commonSetting/text/ovui_accent"))->value(), "#007dfe");
}

TEST(ApplicationNodes, BlockIsWrittenIntoItsOwnPackage) {
    const TemporaryFolder folder;
    ThemeNode theme(0x50000001, folder.path());
    const struct {
        const char* key;
        const char* file;
    } cases[] = {{"phone/text", "com.android.phone/theme.xml"},
                 {"mms/commonSetting/text", "com.android.mms/framework-res-zdext/theme.xml"},
                 {"recorder/text", "com.android.phone.recorder/theme.xml"}};
    for (const auto& [key, file] : cases) {
        EXPECT_TRUE(theme.findByPath(splitKeyPath(key))->save(true));
        EXPECT_TRUE(readFile(folder.path(file)).find("<resources>") != std::string::npos) << file;
    }
    ASSERT_TRUE(removeFile(folder.path("com.android.phone/theme.xml")));
    EXPECT_TRUE(theme.findByPath(KeyPath{"phone", "text"})->save(false));
    EXPECT_FALSE(pathExists(folder.path("com.android.phone/theme.xml"))) << "generation 5 has no key there";
    EXPECT_TRUE(theme.findByPath(KeyPath{"mms", "text"})->save(false));
    const std::string messages = readFile(folder.path("com.android.mms/theme.xml"));
    EXPECT_TRUE(messages.find("<drawable name=\"text_color_black\">#242424</drawable>") != std::string::npos);
    EXPECT_TRUE(messages.find("loading_text_color") == std::string::npos) << "a key of generation 9 alone";
}

TEST(LancherNode, ShadowColoursMayBeGivenAnyAlpha) {
    ThemeNode theme(0x50000004, "");
    const struct {
        const char* key;
        int limit;
    } cases[] = {{"folder_app_text_shadowColor", 255},
                 {"folderadd_text_shadowColor", 255},
                 {"workspace_app_text_shadowColor", 0},
                 {"icon_shadow", 0},
                 {"navigation_blackspot_normal", 77}};
    for (const auto& [key, limit] : cases) {
        auto* node = dynamic_cast<ColorTextResNode*>(theme.findByPath(KeyPath{"launcher", "text", key}));
        ASSERT_TRUE(node);
        EXPECT_EQ(node->maxAlpha(), limit) << key;
    }
    EXPECT_EQ(theme.findByPath(KeyPath{"launcher", "commonSetting"})->typeMask(), 0xf0000006U);
}

TEST(CommonSettingNodeDeathTest, ParentWithoutAPackageIsAProgrammingError) {
    ResNode module("module");
    EXPECT_DEATH(CommonSettingNode{&module}, "!directoryPath.empty\\(\\).*commonSettingNode");
    EXPECT_DEATH(ImageCommonSettingNode{&module}, "!path.empty\\(\\).*imageCommonSettingNode");
}

} // namespace
} // namespace zdt
