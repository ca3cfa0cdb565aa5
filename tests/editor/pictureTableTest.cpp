#include "editor/pictureTable.h"

#include "common/pageFixture.h"
#include "editor/sizeHint.h"
#include "modules/tables/pictures.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace zdt::test {
namespace {

std::set<std::string> namesOf(std::string_view subModule) {
    std::set<std::string> names;
    for (const PictureSetRow& row : pictureSetRows()) {
        if (row.subModule == subModule)
            names.insert(row.names.begin(), row.names.end());
    }
    return names;
}

template <typename Table>
std::set<std::string> namesIn(const Table& table) {
    std::set<std::string> names;
    for (const tables::PictureRow& row : table)
        names.insert(std::string(row.name));
    return names;
}

TEST(PictureRowsTest, EveryPictureStandsOnAScreen) {
    EXPECT_EQ(namesOf("launcher"), namesIn(tables::launcherPictures));
    EXPECT_EQ(namesOf("contacts"), namesIn(tables::contactsPictures));
    EXPECT_EQ(namesOf("phone"), namesIn(tables::phonePictures));
    EXPECT_EQ(namesOf("mms"), namesIn(tables::mmsPictures));
    EXPECT_EQ(namesOf("systemui"), namesIn(tables::systemuiPictures));
    EXPECT_EQ(namesOf("commonSetting"), namesIn(tables::commonSettingPictures));
}

TEST(PictureRowsTest, ModulesKnowTheirNamesInAnyCase) {
    EXPECT_TRUE(isPictureOf("contacts", "LIST_section_divider_ovui.9.PNG"));
    EXPECT_FALSE(isPictureOf("contacts", "ic_allapps.png"));
    EXPECT_FALSE(isPictureOf("contacts", ""));
}

class PictureTableTest : public PageTest {};

TEST_F(PictureTableTest, RowsSayWhatTheirPlaceTakes) {
    ThemeResource& theme = openNew();
    std::vector<PictureGroup> groups = pictureGroupsOf(theme, "launcher");
    struct Case {
        const char* name;
        const char* hint;
        const char* format;
        std::size_t places;
    };
    for (const Case& each : {Case{"ic_allapps.png", "192*192", ".png", 1},
                             Case{"widget_resize_handle_vertical.png", "Any size", ".png", 1},
                             Case{"folder_open_shadow.9.png", "", ".9.png", 1}}) {
        const PictureEntry* entry = findEntry(groups, each.name);
        ASSERT_TRUE(entry) << each.name;
        EXPECT_EQ(entry->sizeHint, each.hint);
        EXPECT_EQ(entry->format, each.format);
        EXPECT_EQ(entry->places.size(), each.places);
        EXPECT_FALSE(entry->text.isEmpty());
        EXPECT_FALSE(entry->file().empty());
    }
    EXPECT_FALSE(findEntry(groups, "btn_check_on.png")); // Of older generations.
}

TEST_F(PictureTableTest, SharedOnesStandForAllTheirCopies) {
    ThemeResource& theme = openNew();
    std::vector<PictureGroup> groups = pictureGroupsOf(theme, "commonSetting", "contact details");
    const PictureEntry* toast = findEntry(groups, "toast_frame_ovui.9.png");
    const PictureEntry* menu = findEntry(groups, "spinner_menu.9.png");
    EXPECT_FALSE(toast);
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->places.size(), 7U);
    EXPECT_EQ(menu->places.front().block.front(), "contacts");
}

TEST_F(PictureTableTest, ScreensFollowTheThemeThatIsOpen) {
    for (const unsigned generation : {0U, 1U, 2U}) {
        ThemeResource& theme = openNew("G" + std::to_string(generation), {generation});
        for (const PictureSetRow& row : pictureSetRows()) {
            for (const PictureGroup& group : pictureGroupsOf(theme, row.module, row.screen)) {
                EXPECT_FALSE(group.title.isEmpty() || group.description.isEmpty()) << row.group;
                EXPECT_FALSE(group.entries.empty());
            }
        }
        std::set<std::string> known;
        for (const PictureGroup& group : pictureGroupsOf(theme, "commonSetting")) {
            for (const PictureEntry& entry : group.entries)
                EXPECT_TRUE(known.insert(entry.name).second) << entry.name;
        }
    }
    EXPECT_TRUE(pictureGroupsOf(*bench.theme(), "launcher", "simple mode").empty());
    EXPECT_TRUE(pictureGroupsOf(*bench.theme(), "nowhere", "").empty());
}

TEST(SizeHintTest, RulesAreReadFromTheWords) {
    using enum SizeRule::Kind;
    struct Case {
        const char* hint;
        SizeRule rule;
    };
    const Case cases[] = {
        {"168*168", {exactly, 168, 168}},
        {"1*2", {exactly, 1, 2}},
        {"1080*1920", {exactly, 1080, 1920}},
        {"10800*19", {}}, // The star stands too far behind.
        {"*12", {}},
        {"12*", {}},
        {"ab*12", {}},
        {"12*x", {}},
        {"0*12", {}},
        {"-1*12", {}},
        {"9999*99999", {}},
        {"168*168 px", {exactly, 168, 168}},
        {"≤100*80", {atMost, 100, 80}},
        {"≤10000*80", {atMost, 10000, 80}},
        {"≤100", {}},
        {"≤", {}},
        {"建议168*168", {}},
        {"168*168 (建议)", {}},
        {"Suggested 168*168", {}},
        {"Any size", {}},
        {"99999999999999999999*3", {}},
        {"", {}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(parseSizeHint(each.hint), each.rule) << each.hint;
}

TEST(SizeHintTest, PicturesAreTestedAgainstTheRule) {
    EXPECT_TRUE(parseSizeHint("≤100*100").allows(100, 50));
    EXPECT_FALSE(parseSizeHint("≤100*100").allows(101, 50));
    EXPECT_FALSE(parseSizeHint("100*100").allows(100, 50));
    EXPECT_TRUE(parseSizeHint("100*100").allows(100, 100));
    EXPECT_TRUE(parseSizeHint("").allows(1, 9999));
}

} // namespace
} // namespace zdt::test
