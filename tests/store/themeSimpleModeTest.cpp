#include "common/storeFixture.h"
#include "model/resNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace zdt {
namespace {

using test::TemporaryStore;

const KeyPath dial{"commonSetting", "dial"};
constexpr const char* highlight = "highlight color";

/// The theme.xml of each block that an item's sources lie in.
std::set<std::string> filesOf(const ThemeResource& theme, const KeyPath& group, const std::string& item) {
    std::set<std::string> files;
    for (const ResNode* source : theme.simpleSources(group, item))
        files.insert(source->parent()->nodeDirectory() + "theme.xml");
    return files;
}

TEST(SharedSettings, AppliedOneReachesEveryModulesFile) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::set<std::string> files = filesOf(*theme, dial, highlight);
    EXPECT_EQ(files.size(), 7U);
    ASSERT_EQ(theme->setSimpleValue(dial, highlight, "#135790"), 0);
    EXPECT_EQ(theme->simpleValue(dial, highlight), "#135790");
    EXPECT_EQ(store.open("T")->simpleValue(dial, highlight), "#007dfe") << "nothing is written yet";
    ASSERT_TRUE(theme->applySimple(dial, highlight));
    for (const std::string& file : files)
        EXPECT_NE(test::readFile(file).find("#135790"), std::string::npos) << file;

    const auto reopened = store.open("T");
    for (const ResNode* source : reopened->simpleSources(dial, highlight))
        EXPECT_TRUE(source->value().ends_with("135790")) << ThemeResource::dirPathOf(*source);
    EXPECT_EQ(reopened->getValue({"launcher", "commonSetting", "text"}, "ovui_accent"), "#007dfe")
        << "the launcher's own item has it";
    EXPECT_EQ(test::problemsOf(*reopened), std::vector<std::string>());
}

TEST(SharedSettings, RefusedValueChangesNothing) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const auto values = [&] {
        std::vector<std::string> list;
        for (const ResNode* source : theme->simpleSources({"mms", "MMS"}, "first level icon text"))
            list.push_back(source->value());
        return list;
    };
    const std::vector<std::string> before = values();
    EXPECT_EQ(theme->setSimpleValue({"mms", "MMS"}, "first level icon text", "red"), -19);
    EXPECT_TRUE(values() == before);
}

TEST(SharedSettings, OnlyAnItemIsFound) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    for (const auto& [group, item] : {std::pair<KeyPath, const char*>{dial, "no such item"},
                                      {{"commonSetting"}, "dial"},
                                      {{}, "launcher"},
                                      {{"nothing", "at all"}, highlight},
                                      {{"commonSetting", "dial", highlight}, ""}}) {
        SCOPED_TRACE(item);
        EXPECT_EQ(theme->setSimpleValue(group, item, "#111111"), -14);
        EXPECT_EQ(theme->simpleValue(group, item), "");
        EXPECT_TRUE(theme->simpleSources(group, item).empty());
        EXPECT_FALSE(theme->simpleTakesPart(group, item));
        EXPECT_FALSE(theme->applySimple(group, item));
    }
    EXPECT_TRUE(theme->simpleNames({"nothing"}).empty());
    EXPECT_EQ(theme->simpleNames(dial), (std::vector<std::string>{"background color", "highlight color"}));
}

TEST(SharedSettings, MovingToAnotherGenerationMovesWhoTakesPart) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const KeyPath folder{"launcher", "folder"};
    EXPECT_TRUE(theme->simpleTakesPart(folder, "text shadow"));
    theme->setVersion(1);
    EXPECT_FALSE(theme->simpleTakesPart(folder, "text shadow")) << "the key is one of generations 5 and 9";
    EXPECT_EQ(theme->simpleValue(folder, "text shadow"), "");
    EXPECT_EQ(theme->simpleSources(folder, "text shadow").size(), 1U);
}

TEST(SharedSettings, BlockThatCannotBeWrittenDoesNotKeepTheOthersBack) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string blocked = store.path("res/T/com.android.contacts/framework-res-zdext");
    ASSERT_TRUE(removeTree(blocked));
    store.write("res/T/com.android.contacts/framework-res-zdext", "a file in the folder's place");
    ASSERT_EQ(theme->setSimpleValue(dial, highlight, "#135790"), 0);
    EXPECT_FALSE(theme->applySimple(dial, highlight));
    const std::set<std::string> files = filesOf(*theme, dial, highlight);
    EXPECT_EQ(std::count_if(
                  files.begin(), files.end(),
                  [](const std::string& file) { return test::readFile(file).find("#135790") != std::string::npos; }),
              6);
}

} // namespace
} // namespace zdt
