#include "common/fixtures.h"
#include "common/nodeNames.h"
#include "model/returnCode.h"
#include "model/textResNode.h"
#include "modules/simpleModeNode.h"
#include "modules/simpleModeTree.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace zdt {
namespace {

using test::childNames;
using Names = std::vector<std::string>;

constexpr TypeMask bigNine = 0x50000004;

/// A block of colours in a theme of generation 9, and an item over them.
class SimpleModeItem : public testing::Test {
protected:
    ColorTextResNode& colour(const std::string& name, const std::string& value, TypeMask mask = typeMask::everywhere) {
        return theme.adopt(std::make_unique<ColorTextResNode>(mask, name, value));
    }
    TextResNode& text(const std::string& name, const std::string& value) {
        return theme.adopt(std::make_unique<TextResNode>(name, value));
    }
    SimpleModeImplNode& itemOfAll() {
        std::vector<ResNode*> sources;
        for (ResNode* child = theme.firstChild(); child; child = child->next())
            sources.push_back(child);
        return tree.emplaceChild<SimpleModeImplNode>("item", sources);
    }

    ResNode theme{bigNine, "theme"};
    ResNode tree{"simple mode"};
};

TEST(SimpleModeValue, MostSourcesDecide) {
    struct Source {
        const char* value;
        bool isColour = true;
        TypeMask mask = typeMask::everywhere;
    };
    constexpr TypeMask elsewhere = typeMask::generation5;
    struct Case {
        const char* title;
        std::vector<Source> sources;
        const char* value;
    };
    for (const Case& each :
         {Case{"majority", {{"#242424"}, {"#000000"}, {"#242424"}}, "#242424"},
          {"tie", {{"#bbbbbb"}, {"#aaaaaa"}, {"#bbbbbb"}, {"#aaaaaa"}}, "#aaaaaa"},
          {"alpha is ignored", {{"#123456"}, {"#80242424"}, {"#242424"}}, "#242424"},
          {"nothing", {}, ""},
          {"a plain value alone", {{"false", false}}, "false"},
          {"a plain value ends the walk", {{"#222222"}, {"#111111", false}, {"#222222"}, {"#222222"}}, "#111111"},
          {"only the first plain value counts", {{"b", false}, {"a", false}, {"a", false}}, "b"},
          {"other generations don't count",
           {{"#111111", true, elsewhere}, {"x", false, elsewhere}, {"#222222"}, {"#111111", true, elsewhere}},
           "#222222"},
          {"none takes part", {{"#111111", true, elsewhere}}, ""},
          {"no colour yet", {{""}, {""}, {"#111111"}}, ""}}) {
        SCOPED_TRACE(each.title);
        ResNode theme(bigNine, "theme");
        std::vector<ResNode*> sources;
        for (const Source& source : each.sources) {
            if (source.isColour)
                sources.push_back(&theme.adopt(std::make_unique<ColorTextResNode>(source.mask, "key", source.value)));
            else
                sources.push_back(&theme.adopt(std::make_unique<TextResNode>(source.mask, "key", source.value)));
        }
        const SimpleModeImplNode item(nullptr, "item", sources);
        EXPECT_EQ(item.majorityValue(), each.value);
        EXPECT_EQ(item.takesPart(), std::any_of(sources.begin(), sources.end(),
                                                [](const ResNode* source) { return source->typeMask() != elsewhere; }));
    }
}

TEST_F(SimpleModeItem, SettingReachesSourcesOfEveryGenerationWithinTheirTransparency) {
    colour("opaque", "#111111");
    colour("half", "#80111111");
    colour("gone", "#00111111");
    colour("old", "#111111", typeMask::generation5);
    text("plain", "#111111");
    SimpleModeImplNode& item = itemOfAll();
    ASSERT_EQ(item.setValue("#AbCdEf"), returnCode::success);
    Names values;
    for (const ResNode* source : item.sources())
        values.push_back(source->value());
    EXPECT_EQ(values, (Names{"#AbCdEf", "#80AbCdEf", "#00AbCdEf", "#AbCdEf", "#AbCdEf"}));
    ASSERT_EQ(item.setValue("#80112233"), returnCode::success);
    EXPECT_EQ(theme.findChild("opaque")->value(), "#80112233");
    EXPECT_EQ(theme.findChild("half")->value(), "#40112233");
}

TEST_F(SimpleModeItem, ValueThatOneSourceRefusesChangesNone) {
    text("plain", "first");
    colour("colour", "#111111");
    SimpleModeImplNode& item = itemOfAll();
    EXPECT_EQ(item.setValue("red"), returnCode::patternMismatch);
    EXPECT_EQ(item.setValue(""), returnCode::emptyValue);
    EXPECT_EQ(theme.findChild("plain")->value(), "first");
    EXPECT_EQ(theme.findChild("colour")->value(), "#111111");
    SimpleModeImplNode nothing(nullptr, "nothing", {});
    EXPECT_EQ(nothing.setValue("#111111"), returnCode::notFound);
    EXPECT_TRUE(nothing.save(true));
}

/// Counts its savings.
class CountingBlock : public ResNode {
public:
    explicit CountingBlock(ResNode* parent, bool result)
        : ResNode(parent)
        , _result(result) {}
    bool save(bool all) override {
        ++(all ? forced : plain);
        return _result;
    }
    int forced = 0;
    int plain = 0;

private:
    bool _result;
};

TEST(SimpleModeSave, EachBlockIsSavedOnceWhateverTheOthersGive) {
    ResNode theme;
    std::vector<ResNode*> sources;
    std::vector<CountingBlock*> blocks;
    for (const bool result : {true, false, true}) {
        blocks.push_back(&theme.emplaceChild<CountingBlock>(result));
        for (const char* name : {"one", "two"})
            sources.push_back(&blocks.back()->emplaceChild<ResNode>(typeMask::everywhere, name));
    }
    std::swap(sources.front(), sources.back());
    EXPECT_FALSE(SimpleModeImplNode(nullptr, "item", sources).save(true));
    EXPECT_FALSE(SimpleModeImplNode(nullptr, "item", sources).save(false));
    EXPECT_TRUE(SimpleModeImplNode(nullptr, "item", {sources[1], sources[4]}).save(true));
    for (const CountingBlock* block : blocks) {
        EXPECT_EQ(block->forced, block == blocks[1] ? 1 : 2);
        EXPECT_EQ(block->plain, 1);
    }
}

/// The tree of a theme of defaults.
class SimpleModeTree : public testing::Test {
protected:
    SimpleModeImplNode& item(const std::string& path) {
        auto* const found = dynamic_cast<SimpleModeImplNode*>(tree->findByPath(splitKeyPath(path)));
        if (!found)
            throw std::runtime_error("no item " + path);
        return *found;
    }
    Names sourcesOf(const std::string& path) {
        Names keys;
        for (const ResNode* source : item(path).sources())
            keys.push_back(joinKeyPath(source->keyPath()));
        return keys;
    }
    std::vector<SimpleModeImplNode*> items(bool common) {
        std::vector<SimpleModeImplNode*> found;
        for (ResNode* node : tree->nodesInOrder()) {
            if (node->isLeaf() && (node->keyPath().front() == "commonSetting") == common)
                found.push_back(dynamic_cast<SimpleModeImplNode*>(node));
        }
        return found;
    }

    ThemeNode theme{bigNine, ""};
    std::unique_ptr<ResNode> tree = buildSimpleModeTree(theme);
};

TEST_F(SimpleModeTree, ModulesGroupsAndItemsStandInTheirOrder) {
    EXPECT_EQ(tree->name(), "simple mode");
    EXPECT_EQ(childNames(*tree), (Names{"launcher", "commonSetting", "contacts", "mms", "systemui"}));
    const struct {
        const char* path;
        Names names;
    } cases[] = {
        {"launcher", {"launcher", "folder", "simple mode"}},
        {"launcher/folder", {"app text", "text shadow", "shadow switch"}},
        {"commonSetting", {"dial", "dialing settings", "contact list", "contact details"}},
        {"contacts", {"dial", "contact list"}},
        {"mms", {"mms list", "MMS", "smart message", "mms settings"}},
        {"systemui", {"drop down notification", "switch sort"}},
    };
    for (const auto& [path, names] : cases)
        EXPECT_EQ(childNames(*tree->findByPath(splitKeyPath(path))), names) << path;
    EXPECT_EQ(items(true).size() + items(false).size(), 32U);
}

TEST_F(SimpleModeTree, SourcesFollowTheBlockThenTheAddedOnes) {
    EXPECT_EQ(sourcesOf("launcher/launcher/highlight color"),
              (Names{"launcher/text/ic_home_bg_pressed_color", "launcher/text/checked",
                     "launcher/text/alphaindexer_pop_text_color", "launcher/text/ic_home_checkbox_color",
                     "launcher/text/ic_home_checkbox_off_rim_color", "launcher/commonSetting/text/ovui_accent",
                     "launcher/commonSetting/text/ovui_checkbox_boxedge",
                     "launcher/commonSetting/text/ovui_switch_outline_off",
                     "launcher/commonSetting/text/ovui_switch_bg_on", "launcher/commonSetting/text/ovui_color_gray_5"}))
        << "a key that the block lacks is left out";
    EXPECT_EQ(sourcesOf("launcher/folder/shadow switch"), (Names{"launcher/text/folder_app_text_shadow"}));
    EXPECT_EQ(item("launcher/folder/shadow switch").majorityValue(), "false");
    EXPECT_EQ(item("launcher/folder/text shadow").majorityValue(), "#000000");
    EXPECT_EQ(sourcesOf("systemui/switch sort/separator color"),
              (Names{"systemui/text/qs_customize_divider_backgroundcolor",
                     "systemui/commonSetting/text/ovui_black_color_alpha_5"}));
}

TEST_F(SimpleModeTree, CommonItemDrivesEveryCopyThatNoOwnItemHas) {
    const auto copiesOf = [&](const std::string& path, const std::string& key) {
        Names modules;
        for (const ResNode* source : item(path).sources()) {
            if (source->name() == key)
                modules.push_back(source->keyPath().front());
        }
        return modules;
    };
    const std::string background = "commonSetting/dial/background color";
    EXPECT_EQ(copiesOf(background, "ovui_toolbar_bg"),
              (Names{"contacts", "launcher", "systemui", "mms", "phone", "recorder", "telecom"}));
    EXPECT_EQ(copiesOf(background, "ovui_color_bg"), (Names{"launcher", "mms", "phone", "recorder", "telecom"}));
    EXPECT_EQ(copiesOf("commonSetting/dial/highlight color", "ovui_accent"), (Names{"phone", "recorder", "telecom"}));
    EXPECT_EQ(copiesOf("commonSetting/dialing settings/first level icon text", "color_50_black"), (Names{"launcher"}))
        << "a key of an application's own block has no copies";
}

TEST_F(SimpleModeTree, NoSourceStandsTwiceInAnItemOrInACommonAndAnOwnOne) {
    std::set<const ResNode*> own;
    for (const SimpleModeImplNode* each : items(false))
        own.insert(each->sources().begin(), each->sources().end());
    for (const bool common : {true, false}) {
        for (const SimpleModeImplNode* each : items(common)) {
            const std::set<const ResNode*> sources(each->sources().begin(), each->sources().end());
            EXPECT_EQ(sources.size(), each->sources().size()) << each->name();
            EXPECT_FALSE(sources.empty()) << each->name();
            EXPECT_TRUE(!common || std::none_of(sources.begin(), sources.end(), [&](const ResNode* source) {
                return own.contains(source);
            })) << each->name();
        }
    }
}

TEST_F(SimpleModeTree, SecondThemeHasSourcesOfItsOwn) {
    ThemeNode other(0xa0000001, "");
    const auto otherTree = buildSimpleModeTree(other);
    for (ResNode* node : otherTree->nodesInOrder()) {
        const auto* const each = dynamic_cast<SimpleModeImplNode*>(node);
        if (!each)
            continue;
        ASSERT_EQ(each->sources().size(), item(joinKeyPath(each->keyPath())).sources().size());
        for (std::size_t index = 0; index < each->sources().size(); ++index) {
            EXPECT_EQ(each->sources()[index]->rootNode(), &other);
            EXPECT_EQ(each->sources()[index]->keyPath(),
                      item(joinKeyPath(each->keyPath())).sources()[index]->keyPath());
        }
    }
}

} // namespace
} // namespace zdt
