#include "model/configResNode.h"

#include "common/fixtures.h"
#include "model/textResNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using test::namesIn;
using test::readFile;
using test::TemporaryFolder;
using Keys = std::vector<std::string>;

ConfigBlock block() {
    return {{{0x70000007, {"colour", "half"}}, {0x70000004, {"late", "flag"}}, {0x70000001, {"late"}}},
            {{"colour", "#111111"}, {"half", "#80222222"}, {"flag", "false"}, {"unlisted", "#333333"}},
            "color",
            {{"flag", "bool"}, {"unlisted", "bool"}},
            "com.android.mms/"};
}

/// A theme of generation 8 with one block.
class ConfigResNodeTest : public testing::Test {
protected:
    ConfigResNodeTest() {
        root.setPath(folder.path());
        root.setTypeMask(0x50000002);
    }

    ConfigResNode& make() { return root.emplaceChild<ConfigResNode>(typeMask::bigOnly, "text", block()); }
    ConfigResNode& read(const std::string& file) {
        folder.write("com.android.mms/theme.xml", file);
        return make();
    }

    TemporaryFolder folder;
    ResNode root;
};

Keys valuesOf(const ResNode& node) {
    Keys values;
    for (const ResNode* child = node.firstChild(); child; child = child->next())
        values.push_back(child->name() + "=" + child->value());
    return values;
}

const Keys defaults{"colour=#111111", "half=#80222222", "late=", "flag=false"};

TEST(KeyLists, MergeKeepsEachListsOrder) {
    const struct {
        std::vector<Keys> lists;
        Keys merged;
    } cases[] = {
        {{}, {}},
        {{{"a", "b", "c"}}, {"a", "b", "c"}},
        {{{"a", "b", "c"}, {"a", "x", "c"}}, {"a", "b", "x", "c"}},
        {{{"a", "b"}, {"c", "d"}}, {"a", "b", "c", "d"}},
        {{{"a", "b"}, {"x", "a", "y", "b", "z"}}, {"x", "a", "y", "b", "z"}},
        {{{}, {"a"}, {}}, {"a"}},
        {{{"a", "b", "c"}, {"c", "a"}}, {"c", "a", "b"}},
        {{{"a", "c"}, {"b", "c"}, {"a", "b"}}, {"a", "b", "c"}},
        {{{"a", "a", "b"}}, {"a", "b"}},
    };
    for (const auto& [lists, merged] : cases) {
        std::vector<KeyList> masked;
        for (const Keys& keys : lists)
            masked.push_back({1, keys});
        EXPECT_EQ(mergeKeyLists(masked), merged);
    }
}

TEST_F(ConfigResNodeTest, ListedKeysAloneAreBuiltWithTheUnionOfTheirMasks) {
    ConfigResNode& node = make();
    EXPECT_EQ(node.valueKind(), 2);
    EXPECT_EQ(valuesOf(node), defaults);
    EXPECT_EQ(node.findChild("colour")->typeMask(), 0x70000007U);
    EXPECT_EQ(node.findChild("late")->typeMask(), 0x70000005U);
    EXPECT_EQ(dynamic_cast<ColorTextResNode&>(*node.findChild("half")).maxAlpha(), 128);
    EXPECT_EQ(dynamic_cast<ColorTextResNode*>(node.findChild("flag")), nullptr);
    EXPECT_EQ(node.findChild("flag")->setValue("anything"), 0);
}

TEST_F(ConfigResNodeTest, WhatTheFileSaysReplacesTheDefaults) {
    const struct {
        const char* what;
        const char* file;
        Keys values;
    } cases[] = {
        {"broken", "<resources><color name=\"colour\">#aaaaaa</color>", defaults},
        {"empty", "", defaults},
        {"any element and any root",
         "<x><y name=\"colour\">#aaaaaa</y><bool name=\"flag\">true</bool></x>",
         {"colour=#aaaaaa", "half=#80222222", "late=", "flag=true"}},
        {"doubled, the later one counts",
         "<r><color name=\"colour\">#aaaaaa</color><color name=\"colour\">#bbbbbb</color></r>",
         {"colour=#bbbbbb", "half=#80222222", "late=", "flag=false"}},
        {"doubled, the later one without a text",
         "<r><color name=\"colour\">#aaaaaa</color><color name=\"colour\"/></r>",
         {"colour=#aaaaaa", "half=#80222222", "late=", "flag=false"}},
        {"doubled, the later one refused", "<r><c name=\"colour\">#aaaaaa</c><c name=\"colour\">red</c></r>", defaults},
        {"no name, unknown name, nested",
         "<r><color>#aaaaaa</color><color name=\"unlisted\">#aaaaaa</color><g><c name=\"colour\">#aaaaaa</c></g></r>",
         defaults},
        {"not limited to the default's alpha",
         "<r><color name=\"half\">#ff222222</color></r>",
         {"colour=#111111", "half=#ff222222", "late=", "flag=false"}},
    };
    for (const auto& [what, file, values] : cases) {
        SCOPED_TRACE(what);
        EXPECT_EQ(valuesOf(read(file)), values);
    }
}

TEST_F(ConfigResNodeTest, RefusedValueLeavesItsCode) {
    const ConfigResNode& node = read("<resources><color name=\"half\">#fff</color></resources>");
    EXPECT_EQ(node.findChild("half")->errors(), std::vector<int>{-19});
    EXPECT_TRUE(node.findChild("colour")->errors().empty());
}

TEST_F(ConfigResNodeTest, FileHoldsWhatTakesPartOrEverything) {
    ConfigResNode& node = read("<mine/>");
    ASSERT_EQ(node.findChild("flag")->setValue("<&>"), 0);
    const std::string head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<mine>\n    <color name=\"colour\">#111111"
                             "</color>\n    <color name=\"half\">#80222222</color>\n";
    EXPECT_TRUE(node.save(false));
    EXPECT_EQ(readFile(folder.path("com.android.mms/theme.xml")), head + "</mine>\n");
    EXPECT_TRUE(node.save(true));
    EXPECT_EQ(readFile(folder.path("com.android.mms/theme.xml")),
              head + "    <color name=\"late\"/>\n    <bool name=\"flag\">&lt;&amp;&gt;</bool>\n</mine>\n");
    EXPECT_EQ(valuesOf(make()), (Keys{"colour=#111111", "half=#80222222", "late=", "flag=<&>"}));
}

TEST_F(ConfigResNodeTest, NothingToWriteMakesNeitherFileNorFolder) {
    root.setTypeMask(0x90000002);
    ConfigResNode& node = make();
    EXPECT_TRUE(node.save(false));
    EXPECT_TRUE(namesIn(folder.path()).empty());
    EXPECT_TRUE(node.save(true));
    EXPECT_EQ(namesIn(folder.path()), Keys{"com.android.mms"});
}

TEST_F(ConfigResNodeTest, SavingFailsWithoutAPlaceToWrite) {
    ConfigResNode& node = make();
    folder.write("com.android.mms", "a file where the folder should be");
    EXPECT_FALSE(node.save(true));
    root.setPath("");
    EXPECT_FALSE(node.save(true));
}

} // namespace
} // namespace zdt
