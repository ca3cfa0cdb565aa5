#include "common/storeFixture.h"
#include "lockscreen/amazingUnlockNode.h"
#include "model/fileResNode.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zdt {
namespace {

using test::TemporaryStore;

FileResNode& file(const ThemeResource& theme, const KeyPath& keyPath) {
    return dynamic_cast<FileResNode&>(*theme.tree().findByPath(keyPath));
}

bool isProblem(const ThemeResource& theme, const std::string& line) {
    const std::vector<std::string> problems = test::problemsOf(theme);
    return std::find(problems.begin(), problems.end(), line) != problems.end();
}

TEST(Generation, MoveToNineAsksForTallPicturesAndSmallIcons) {
    const TemporaryStore store;
    const auto theme = store.create("T", {1});
    const std::string large = store.write("large.png", test::pngHeader(256, 256));
    const KeyPath icons{"icons", "system", "static"};
    ASSERT_EQ(theme->setValue(icons, "com.android.browser.png", large), 0);
    ASSERT_TRUE(theme->changeGeneration(2));
    EXPECT_EQ(theme->version(), 2U);
    EXPECT_EQ(theme->amazingNode().screenHeight(), 2160U);
    EXPECT_TRUE(isProblem(*theme, "icons/system/static/com.android.browser.png (-22)")) << "256 no longer fits";
    EXPECT_TRUE(isProblem(*theme, "wallpaper/image/home_wallpaper_0.jpg (-22)"));
    EXPECT_TRUE(isProblem(*theme, "preview/preview_mms_0.jpg (-22)"));
    EXPECT_EQ(theme->getValue({"preview"}, "cover.jpg"), store.path("res/T/preview/cover.jpg"));
    EXPECT_EQ(theme->getValue({}, "version"), "9.0.100");
    EXPECT_EQ(ThemeResource::readDescription("T", store.root()).at("version"), "9.0.100");

    ASSERT_TRUE(theme->changeGeneration(1));
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>()) << "what fits again is back";
    EXPECT_EQ(file(*theme, {"icons", "thirdparty", "mode", "icon_mask.png"}).sizeRanges().size(), 2U);
}

TEST(Generation, MoveBetweenFiveAndEightChangesNoSizes) {
    const TemporaryStore store;
    const auto theme = store.create("T", {0});
    const auto sizes = file(*theme, {"wallpaper", "image", "home_wallpaper_0.jpg"}).sizeRanges();
    theme->setVersion(1);
    EXPECT_EQ(file(*theme, {"wallpaper", "image", "home_wallpaper_0.jpg"}).sizeRanges(), sizes);
    EXPECT_EQ(theme->version(), 1U);
    EXPECT_EQ(theme->getValue({}, "version"), "5.0.1") << "the text follows only where the author is told";
}

TEST(Generation, SmallThemeGetsDefaultsForWhatItLacksThen) {
    const TemporaryStore store;
    for (const unsigned from : {0U, 1U, 2U}) {
        for (const unsigned to : {0U, 1U, 2U}) {
            const std::string name = std::to_string(from) + "to" + std::to_string(to);
            SCOPED_TRACE(name);
            const auto theme = store.create(name, {from, true});
            ASSERT_TRUE(theme->changeGeneration(to));
            for (const std::string& problem : test::problemsOf(*theme))
                EXPECT_FALSE(problem.starts_with("launcher/commonSetting/image/")) << problem;
        }
    }
}

TEST(Generation, LanguageDecidesAboutPicturesOfGenerationFive) {
    const TemporaryStore store;
    struct Case {
        test::ThemeKind kind;
        bool launcherPicture;
        bool overseasIcon;
    };
    for (const Case& each : {Case{{0, false, true}, false, false}, Case{{0, false, false}, true, true},
                             Case{{1, false, true}, true, true}, Case{{2, false, false}, true, true}}) {
        SCOPED_TRACE(each.kind.name());
        const auto theme = store.create(each.kind.name(), each.kind);
        const auto takesPart = [&](const KeyPath& key) { return theme->tree().findByPath(key)->isApplicable(); };
        EXPECT_EQ(takesPart({"launcher", "image", "ic_mark.9.png"}), each.launcherPicture);
        EXPECT_EQ(takesPart({"icons", "system", "static", "com.zendro.smarthome.png"}), each.overseasIcon);
        EXPECT_EQ(takesPart({"icons", "system", "static", "com.zendro.video.overseas.png"}), each.overseasIcon);
        theme->setLanguageBit(!theme->isChinese());
        EXPECT_EQ(takesPart({"launcher", "image", "ic_mark.9.png"}),
                  each.launcherPicture != (each.kind.versionIndex == 0));
    }
}

TEST(Generation, ThemeWithoutOneCanBeOpenedReadAndGivenOne) {
    const TemporaryStore store;
    store.create("T");
    store.write("config/T_config.txt", "type=" + std::to_string(0x50000000) + "\n");
    const auto theme = store.open("T");
    EXPECT_EQ(theme->version(), 3U);
    EXPECT_NE(theme->getValue({"launcher", "text"}, "checked"), "");
    EXPECT_EQ(theme->restoreDefault(theme->tree().findByPath(KeyPath{"wallpaper", "image", "home_wallpaper_0.jpg"})),
              -1);
    EXPECT_FALSE(theme->changeGeneration(3));
    EXPECT_TRUE(theme->changeGeneration(2));
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>());
}

} // namespace
} // namespace zdt
