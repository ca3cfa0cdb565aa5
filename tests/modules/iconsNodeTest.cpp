#include "modules/iconsNode.h"

#include "common/fixtures.h"
#include "common/nodeNames.h"
#include "model/fileResNode.h"
#include "modules/tables/icons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace zdt {
namespace {

using test::pngHeader;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

Names sortedChildNames(const ResNode& node) {
    Names names = test::childNames(node);
    std::sort(names.begin(), names.end());
    return names;
}

TEST(IconsNode, FolderDecidesWhichThirdPartyIconsThereAre) {
    const TemporaryFolder folder;
    const struct {
        const char* name;
        const char* parent; ///< Null for none below "thirdparty".
    } cases[] = {
        {"com.example.foo.png", "image"},
        {"com.example.主题.png", "image"},
        {"com.example.wrongSize.png", "image"},
        {"icon_background_7.png", "image"},
        {"icon_background_007.png", "image"},
        {"com.example.foo.PNG", nullptr},
        {"com.example.foo.jpg", nullptr},
        {"com.android.browser.png", nullptr},
        {"com.android.contacts.activities.DialtactsActivity.png", nullptr},
        {"icon_background.png", "mode"},
        {"icon_background_07.png", "mode"},
        {"icon_mask.png", "mode"},
        {"icon_border.png", "mode"},
    };
    for (const auto& [name, parent] : cases)
        folder.write(std::string("icons/") + name,
                     pngHeader(192, std::string_view(name).find("wrong") == std::string_view::npos ? 192 : 100));
    folder.write("icons/folder.png/inside", "x");
    ResNode root(0x50000004);
    root.setPath(folder.path());
    auto& icons = root.emplaceChild<IconsNode>();
    std::map<std::string, Names> expected;
    for (const auto& [name, parent] : cases) {
        if (parent)
            expected[parent].push_back(name);
    }
    for (auto& [parent, names] : expected) {
        std::sort(names.begin(), names.end());
        ResNode* node = icons.findByPath(KeyPath{"thirdparty", parent});
        EXPECT_EQ(sortedChildNames(*node), names) << parent;
        for (ResNode* child = node->firstChild(); child; child = child->next()) {
            const bool fits = child->name().find("wrong") == std::string::npos;
            EXPECT_EQ(child->value(), fits ? folder.path("icons/" + child->name()) : "");
            EXPECT_EQ(child->path(), "icons/");
        }
    }
    EXPECT_EQ(icons.findByPath(KeyPath{"system", "static", "com.android.browser.png"})->value(),
              folder.path("icons/com.android.browser.png"));
}

TEST(IconsNode, RulesStandAlsoInAnEmptyTheme) {
    const TemporaryFolder folder;
    ResNode root(0x50000004);
    for (const std::string& directory : {folder.path(), std::string()}) {
        root.setPath(directory);
        root.deleteChildren();
        auto& icons = root.emplaceChild<IconsNode>();
        EXPECT_EQ(sortedChildNames(*icons.findByPath(KeyPath{"thirdparty", "mode"})),
                  (Names{"icon_border.png", "icon_mask.png"}));
        EXPECT_TRUE(icons.findByPath(KeyPath{"thirdparty", "image"})->isLeaf());
    }
}

TEST(IconsNode, GenerationDecidesTheSizesOfAllIcons) {
    const struct {
        TypeMask mask;
        std::vector<SizeRange> sizes;
    } cases[] = {{0x50000001, {SizeRange(192), SizeRange(256)}},
                 {0xa0000002, {SizeRange(192), SizeRange(256)}},
                 {0x50000004, {SizeRange(192)}}};
    for (const auto& [mask, sizes] : cases) {
        ResNode root(mask);
        auto& icons = root.emplaceChild<IconsNode>();
        for (ResNode* leaf : icons.collectLeaves()) {
            const auto* file = dynamic_cast<FileResNode*>(leaf);
            EXPECT_TRUE(file ? file->sizeRanges() == sizes : leaf->name() == "image") << leaf->name();
        }
    }
}

TEST(IconsNode, MovingIconsLieInTheFoldersOfTheirApplications) {
    ResNode root(0x50000004);
    auto& icons = root.emplaceChild<IconsNode>();
    const ResNode& moving = *icons.findByPath(KeyPath{"system", "dynamic_icons"});
    EXPECT_EQ(moving.findChild("calendar_background.png")->path(), "icons/dynamic_icons/com.android.calendar/");
    EXPECT_EQ(moving.findChild("deskclock_bg.png")->path(), "icons/dynamic_icons/com.android.deskclock/");
    for (const char* name : {"cloudy.png", "most-cloudy-night.png", "windy.png", "unknown.png"})
        EXPECT_EQ(moving.findChild(name)->path(), "icons/dynamic_icons/com.zendro.android.totemweather/");
}

TEST(IconsNode, NamesOfThePhoneAreProtected) {
    const struct {
        const char* name;
        bool isProtected;
    } cases[] = {
        {"com.android.browser.png", true},
        {"com.android.systemui.flashlight.FlashlightActivity.png", true},
        {"icon_shortcut_arrow.png", true},
        {"portal_ring_inner_holo.png", true},
        {"calendar_background.png", true},
        {"deskclock_bg.png", true},
        {"thundershowers.png", true},
        {"ic_widget_glowline_safe.png", true},
        {"icon_mask.png", true},
        {"icon_background.png", true},
        {"my_icon_background_copy.txt", true},
        {"com.zendro.smarthome.png", true},
        {"com.android.browser", false},
        {"Com.android.browser.png", false},
        {"com.example.foo.png", false},
        {"", false},
    };
    for (const auto& [name, isProtected] : cases)
        EXPECT_EQ(isProtectedIcon(name), isProtected) << name;
}

TEST(IconsNode, NoNameIsListedTwice) {
    std::set<std::string_view> names{tables::calendarBackground, tables::clockBackground};
    const auto add = [&](const auto& list) { names.insert(list.begin(), list.end()); };
    add(tables::staticIcons);
    EXPECT_EQ(names.size(), 71U + 2);
    add(tables::weatherPictures);
    EXPECT_EQ(names.size(), 71U + 2 + 15);
    add(tables::fixedIcons);
    add(tables::shortcutPictures);
    add(tables::widgetPictures);
    add(tables::iconRules);
    EXPECT_EQ(names.size(), 119U);
}

TEST(IconsNode, BackgroundsAreNumberedInTwoDigits) {
    const struct {
        unsigned index;
        const char* name;
    } cases[] = {{0, "icon_background.png"},
                 {7, "icon_background_07.png"},
                 {99, "icon_background_99.png"},
                 {10, "icon_background_10.png"},
                 {100, ""},
                 {4'000'000'000U, ""}};
    for (const auto& [index, name] : cases)
        EXPECT_EQ(iconBackgroundName(index), name);
}

} // namespace
} // namespace zdt
