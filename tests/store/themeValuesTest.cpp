#include "common/storeFixture.h"
#include "lockscreen/amazingUnlockNode.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using test::TemporaryStore;

const KeyPath launcherText{"launcher", "text"};
const KeyPath launcherImages{"launcher", "image"};
const KeyPath icons{"icons", "system", "static"};

TEST(Values, TextReachesDiskWhenItsBlockIsApplied) {
    const TemporaryStore store;
    auto theme = store.create("T");
    ASSERT_EQ(theme->setValue(launcherText, "widget_text_color", "#123456"), 0);
    EXPECT_EQ(store.open("T")->getValue(launcherText, "widget_text_color"), "#ffffff");
    EXPECT_TRUE(theme->applyNode(launcherText));
    EXPECT_EQ(store.open("T")->getValue(launcherText, "widget_text_color"), "#123456");
    EXPECT_FALSE(theme->applyNode({"launcher", "nothing"}));
}

TEST(Values, RefusedValuesLeaveWhatWasThere) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    store.write("wrong.png", test::pngHeader(10, 10));
    store.write("a.gif", "GIF89a");
    struct Case {
        KeyPath block;
        const char* name;
        std::string value;
        int code;
    };
    for (const Case& each :
         {Case{launcherText, "widget_text_color", "#fff", -19}, Case{launcherText, "widget_text_color", "", -18},
          Case{{}, "version", "7.0.1", -19}, Case{{}, "title", "", -18}, Case{{}, "screen", "4K", -19},
          Case{icons, "com.android.browser.png", store.path("missing.png"), -2},
          Case{icons, "com.android.browser.png", store.path("wrong.png"), -22},
          Case{icons, "com.android.browser.png", store.path("a.gif"), -21},
          Case{icons, "com.android.browser.png", store.path(), -2},
          Case{icons, "no.such.icon.png", store.path("wrong.png"), -14}, Case{{"no", "such"}, "block", "x", -14}}) {
        SCOPED_TRACE(joinKeyPath(each.block) + "/" + each.name);
        const std::string before = theme->getValue(each.block, each.name);
        EXPECT_EQ(theme->setValue(each.block, each.name, each.value), each.code);
        EXPECT_EQ(theme->getValue(each.block, each.name), before);
    }
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>());
}

TEST(Values, SeveralAreSetAtOnceAndUnknownOnesSkipped) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    EXPECT_EQ(theme->setValues({}, {{"title", "New"}, {"screen", "4K"}, {"unknown", "x"}}),
              (std::map<std::string, int>{{"title", 0}, {"screen", -19}}));
    EXPECT_EQ(theme->setValues({"nothing"}, {{"title", "New"}}), (std::map<std::string, int>{{"parent key", -14}}));
}

TEST(Values, OnlyWhatTakesPartInTheThemeIsShown) {
    const TemporaryStore store;
    const auto big = store.create("big");
    const auto small = store.create("small", {2, true});
    const KeyPath mmsText{"mms", "text"};
    EXPECT_EQ(big->getValue(mmsText, "chips_bg_color"), "#f0f0f0");
    EXPECT_EQ(small->getValue(mmsText, "chips_bg_color"), "");
    EXPECT_EQ(small->childValues(mmsText).size(), 0U);
    EXPECT_EQ(big->childValues(launcherText).size(), 26U) << "keys of generation 9: 12 + 4 + 5 + 5";
    std::map<std::string, std::string> out{{"old", "x"}};
    big->childValues({"launcher"}, "text", out);
    EXPECT_EQ(out, big->childValues(launcherText));
    EXPECT_EQ(big->childPairs(launcherText).front().first, "workspace_app_text_color");
    EXPECT_EQ(big->childPairs(launcherText).size(), out.size());
}

TEST(Values, NamesakeThatTakesPartIsMeantAndItsTwinFollows) {
    const TemporaryStore store;
    const std::string name = "ic_edit_share.9.png";
    KeyPath path = launcherImages;
    path.push_back(name);
    // Generation 8 has the first of the two, generation 9 the second, and 5 outside China both.
    for (const auto& [kind, number] : {std::pair{test::ThemeKind{1}, 1}, {test::ThemeKind{2}, 2}}) {
        SCOPED_TRACE(kind.name());
        const auto theme = store.create(kind.name(), kind);
        EXPECT_EQ(theme->getValue(launcherImages, name), theme->getValueNth(path, number));
        EXPECT_NE(theme->getValue(launcherImages, name), "");
        EXPECT_EQ(theme->getValueNth(path, 3), "");
        EXPECT_EQ(theme->getValueNth(path, 0), "");
        EXPECT_EQ(theme->setValueNth(path, 3, "x"), -14);
    }
    const auto theme = store.create("twins", {0, false, false});
    const std::string picture = store.write("new.9.png", test::pngHeader(30, 30));
    ASSERT_EQ(theme->clearFile(path), 0);
    EXPECT_EQ(theme->getValueNth(path, 2), "") << "the twin's file is gone, too";
    EXPECT_EQ(theme->clearFile(path), 0) << "nothing is left to remove";
    ASSERT_EQ(theme->setValueNth(path, 2, picture), 0);
    EXPECT_EQ(theme->getValueNth(path, 1), theme->getValueNth(path, 2));
    EXPECT_EQ(test::readFile(theme->getValueNth(path, 1)), test::pngHeader(30, 30));
    EXPECT_EQ(theme->clearFile({"nothing"}), -14);
}

TEST(Values, TextThatReadsLikeAPathNeverStandsForTheFile) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string precious = store.write("precious.txt", "precious");
    ASSERT_EQ(theme->setValue({}, "title", precious), 0);
    EXPECT_EQ(theme->clearFile({"title"}), 0);
    EXPECT_EQ(test::readFile(precious), "precious");
    EXPECT_EQ(theme->getValue({}, "title"), precious);
}

TEST(Values, FileIsPutBackToTheTemplates) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const KeyPath lockPicture{"wallpaper", "image", "unlock_wallpaper_1.jpg"};
    const std::string file = store.path("res/T/wallpaper/unlock_wallpaper_1.jpg");
    const std::string fresh = test::readFile(file);
    store.write("other.jpg", test::jpegHeader(1080, 2160));
    ASSERT_EQ(theme->setValue({"wallpaper", "image"}, "unlock_wallpaper_1.jpg", store.path("other.jpg")), 0);
    ASSERT_NE(test::readFile(file), fresh);
    ResNode* node = theme->tree().findByPath(lockPicture);
    EXPECT_EQ(theme->restoreDefault(node), 0);
    EXPECT_EQ(test::readFile(file), fresh);
    EXPECT_EQ(node->defaultValue(), store.path("default9.1/wallpaper/unlock_wallpaper_1.jpg"));
    EXPECT_EQ(theme->restoreDefault(theme->tree().findByPath(KeyPath{"preview"})), -1);
}

TEST(Values, SharedWidgetsFollowTheContacts) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const KeyPath from{"contacts", "commonSetting", "text"};
    ASSERT_EQ(theme->setValue(from, "ovui_text_dark", "#abcdef"), 0);
    struct Case {
        const char* module;
        std::vector<const char*> targets;
    };
    for (const Case& each : {Case{"mms", {"mms"}}, Case{"systemui", {"systemui"}}, Case{"launcher", {"launcher"}},
                             Case{"contacts", {"phone", "recorder", "telecom"}}}) {
        EXPECT_EQ(theme->syncCommonSetting(each.module), 0);
        for (const char* target : each.targets)
            EXPECT_EQ(theme->getValue({target, "commonSetting", "text"}, "ovui_text_dark"), "#abcdef") << target;
    }
    EXPECT_EQ(theme->syncCommonSetting("phone"), -9);
}

TEST(Values, PathsAndHeights) {
    const TemporaryStore store;
    const auto theme = ThemeResource::openTheme("a_b", true, store.root());
    EXPECT_EQ(theme->configFilePath("config.txt"), store.path("config/a_b_config.txt"));
    EXPECT_EQ(theme->configFilePath(""), "");
    EXPECT_EQ(theme->themeDirectory("x", false), store.path("res/x/"));
    EXPECT_EQ(theme->themeDirectory("x", true), store.path("tmp/x/"));
    EXPECT_EQ(theme->themeDirectory("", true), "");
    EXPECT_EQ(ThemeResource::dirPathOf(*theme->tree().findByPath(launcherText)), "launcher/text");
    EXPECT_EQ(theme->setScreenHeight(1919), -9);
    EXPECT_EQ(theme->setScreenHeight(1920), 0);
    EXPECT_EQ(theme->amazingNode().screenHeight(), 1920U);
}

} // namespace
} // namespace zdt
