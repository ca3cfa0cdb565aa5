#include "common/storeFixture.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace zdt {
namespace {

using test::TemporaryStore;
using test::ThemeKind;

TEST(CreateTheme, NewThemeOfEveryKindIsReadyForAnExport) {
    const TemporaryStore store;
    for (const ThemeKind& kind : test::allThemeKinds()) {
        SCOPED_TRACE(kind.name());
        store.create(kind.name(), kind);
        const auto theme = store.open(kind.name());
        EXPECT_EQ(theme->version(), kind.versionIndex);
        EXPECT_EQ(theme->isBigTheme(), !kind.small);
        EXPECT_EQ(theme->isChinese(), kind.chinese);
        EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>());
        EXPECT_EQ(theme->getValue({}, "title-cn"), kind.chinese ? "主题中文名称" : "Chinese Name");
        EXPECT_EQ(theme->getValue({}, "version"),
                  (std::vector<std::string>{"5.0.1", "8.0.1", "9.0.100"})[kind.versionIndex]);
    }
    EXPECT_EQ(ThemeResource::listThemes(store.root()).size(), test::allThemeKinds().size());
}

TEST(CreateTheme, LockScreensOfTheTemplateLandInOneFolder) {
    const TemporaryStore store;
    store.create("T");
    EXPECT_TRUE(isPlainFile(store.path("res/T/unlock/theme.xml")));
    EXPECT_TRUE(isPlainFile(store.path("res/T/unlock/layout-hdpi/layout1.xml")));
    for (const char* folder : {"unlock_amazing", "unlock_slide", "unlock_magazine"})
        EXPECT_FALSE(pathExists(store.path(std::string("res/T/") + folder))) << folder;
    EXPECT_FALSE(pathExists(store.path("tmp/T.part")));
}

TEST(CreateTheme, TakenNameStandsUnlessItIsOverwritten) {
    const TemporaryStore store;
    store.create("T")->setName("T");
    store.write("res/T/mine.txt", "mine");
    EXPECT_NE(ThemeResource::createTheme("T", 0, 0, false, true, store.root()), nullptr);
    EXPECT_EQ(test::readFile(store.path("res/T/mine.txt")), "mine");
    EXPECT_NE(ThemeResource::createTheme("T", 0, 0, true, true, store.root()), nullptr);
    EXPECT_FALSE(pathExists(store.path("res/T/mine.txt"))) << "removed, and nothing copied in its place";
}

TEST(CreateTheme, WhatCannotBeMadeLeavesNothing) {
    const TemporaryStore store;
    EXPECT_EQ(ThemeResource::createTheme("T", 3, 0, false, true, store.root()), nullptr);
    const test::TemporaryFolder bare;
    EXPECT_EQ(ThemeResource::createTheme("T", 0, 0, false, true, bare.path()), nullptr) << "there is no template";
    EXPECT_FALSE(pathExists(bare.path("res/T")));
}

TEST(ThemeNames, NameThatCouldLeadElsewhereIsRefusedByEveryOperation) {
    const TemporaryStore store;
    store.create("T");
    const std::string long200(200, 'n');
    for (const std::string& name :
         std::vector<std::string>{"", ".", "..", "a/b", "../T", "T/", "/", "a\\b", "a\nb", std::string("a\0b", 3),
                                  "\x7f", "\xff\xfe", long200 + "n"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(ThemeResource::createTheme(name, 2, 0, true, true, store.root()), nullptr);
        EXPECT_FALSE(ThemeResource::deleteTheme(name, store.root()));
        if (!name.empty()) {
            EXPECT_EQ(ThemeResource::openTheme(name, true, store.root()), nullptr);
        }
    }
    for (const std::string& name :
         std::vector<std::string>{"...", "a b", "主题", "it's \"quoted\"", "-x", "~", long200}) {
        SCOPED_TRACE(name);
        EXPECT_NE(ThemeResource::createTheme(name, 2, 1, false, true, store.root()), nullptr);
        EXPECT_NE(store.open(name), nullptr);
        EXPECT_TRUE(isPlainFile(store.path("config/" + name + "_config.txt")));
        EXPECT_TRUE(ThemeResource::deleteTheme(name, store.root()));
    }
    EXPECT_EQ(ThemeResource::listThemes(store.root()), std::vector<std::string>{"T"});
}

TEST(DeleteTheme, SettingsWithTheNamesPrefixGoAndLinksAreNotFollowed) {
    const TemporaryStore store;
    store.write("elsewhere/precious.txt", "precious");
    for (const char* name : {"a", "a_b", "ab"})
        store.create(name, {2, true});
    ASSERT_EQ(::symlink(store.path("elsewhere").c_str(), store.path("res/a/away").c_str()), 0);
    EXPECT_TRUE(ThemeResource::deleteTheme("a", store.root()));
    EXPECT_EQ(test::readFile(store.path("elsewhere/precious.txt")), "precious");
    EXPECT_EQ(test::namesIn(store.path("config/")), std::vector<std::string>{"ab_config.txt"});
    EXPECT_EQ(ThemeResource::listThemes(store.root()), (std::vector<std::string>{"a_b", "ab"}));
}

TEST(OpenTheme, KindIsTakenFromTheSettingsElseDerivedFromWhatStandsThere) {
    const TemporaryStore store;
    struct Case {
        const char* what;
        const char* settings;
        const char* description;
        bool hasMms;
        TypeMask mask;
    };
    const std::string version = "<ZdTheme><version>";
    const std::string five = version + "5.0.1</version></ZdTheme>";
    const std::string eight = version + "8.1.2</version></ZdTheme>";
    const std::string seven = version + "7</version></ZdTheme>";
    for (const Case& each :
         {Case{"settings win", "type=2684354564", five.c_str(), true, 0x90000004},
          Case{"bits of no kind are dropped, and all but one generation", "type=4294967295", five.c_str(), true,
               0xd0000001},
          Case{"five, small", nullptr, five.c_str(), false, 0x90000001},
          Case{"eight, big", nullptr, eight.c_str(), true, 0x50000002},
          Case{"any other sign is nine", nullptr, seven.c_str(), true, 0x50000004},
          Case{"no description", nullptr, nullptr, true, 0x50000004},
          Case{"broken description", nullptr, "<ZdTheme><version>5", true, 0x50000004},
          Case{"no version", nullptr, "<ZdTheme><title>x</title></ZdTheme>", true, 0x50000004},
          Case{"empty version", nullptr, "<ZdTheme><version></version></ZdTheme>", true, 0x50000000},
          Case{"settings without a type", "lock wallpaper=true", eight.c_str(), false, 0x90000002}}) {
        SCOPED_TRACE(each.what);
        static_cast<void>(ThemeResource::deleteTheme("T", store.root()));
        ASSERT_TRUE(makePath(store.path("res/T/")));
        if (each.settings)
            store.write("config/T_config.txt", each.settings);
        if (each.description)
            store.write("res/T/description.xml", each.description);
        if (each.hasMms)
            store.write("res/T/com.android.mms/theme.xml", "<resources/>");
        EXPECT_EQ(ThemeResource::openTheme("T", true, store.root())->tree().typeMask(), each.mask);
    }
}

TEST(OpenTheme, TypeThatIsNoNumberIsToldByAnException) {
    const TemporaryStore store;
    store.create("T");
    for (const char* type : {"big", "", "99999999999999999999999", "4294967296", "0x50000004", "1342177284x", "-1"}) {
        store.write("config/T_config.txt", std::string("type=") + type + "\n");
        if (*type)
            EXPECT_THROW(static_cast<void>(store.open("T")), std::invalid_argument) << type;
        else
            EXPECT_NO_THROW(static_cast<void>(store.open("T"))) << "a line with nothing behind = is no setting";
    }
}

TEST(OpenTheme, NothingThatATreeHoldsKeepsItFromOpening) {
    const TemporaryStore store;
    store.create("T");
    const std::vector<std::string> ruined{"res/T/description.xml",
                                          "res/T/unlock/theme.xml",
                                          "res/T/unlock/layout-hdpi/layout1.xml",
                                          "res/T/com.android.mms/theme.xml",
                                          "res/T/icons/com.android.browser.png",
                                          "res/T/wallpaper/home_wallpaper_0.jpg"};
    for (const char* content : {"", "<", "\xff\xfe\x00", "<?xml version=\"1.0\"?><a><b></a>"}) {
        SCOPED_TRACE(content);
        for (const std::string& file : ruined)
            store.write(file, content);
        EXPECT_FALSE(test::problemsOf(*store.open("T")).empty());
    }
    for (const std::string& file : ruined) {
        ASSERT_TRUE(removeFile(store.path(file)));
        ASSERT_TRUE(makePath(store.path(file) + "/"));
    }
    EXPECT_FALSE(test::problemsOf(*store.open("T")).empty()) << "folders where files should be";
    ASSERT_TRUE(removeTree(store.path("res/T")));
    EXPECT_FALSE(test::problemsOf(*store.open("T")).empty()) << "no folder at all";
}

TEST(Settings, ClosingWritesAllKeysInOrder) {
    const TemporaryStore store;
    auto theme = store.create("T", {0, true, false});
    theme->setDynamicIcon(DynamicIcon::clock, true);
    theme.reset();
    EXPECT_EQ(test::readFile(store.path("config/T_config.txt")),
              "com.android.calendar=false\ncom.android.deskclock=true\ncom.zendro.android.totemweather=false\n"
              "lock wallpaper=false\ntype=2684354561\n");
    EXPECT_TRUE(store.open("T")->hasDynamicIcon(DynamicIcon::clock));
    EXPECT_FALSE(store.open("T")->isChinese());
}

TEST(Settings, WithoutThemTheFoldersTellOfDynamicIcons) {
    const TemporaryStore store;
    ASSERT_TRUE(makePath(store.path("res/T/icons/dynamic_icons/com.android.calendar/")));
    const auto theme = store.open("T");
    EXPECT_TRUE(theme->hasDynamicIcon(DynamicIcon::calendar));
    EXPECT_FALSE(theme->hasDynamicIcon(DynamicIcon::weather));
}

TEST(ThemeFacts, DescriptionPreviewsAndSizeAreReadWithoutOpening) {
    const TemporaryStore store;
    store.write("res/T/description.xml", "<ZdTheme><title>Name</title><unknown>x</unknown></ZdTheme>");
    store.write("res/T/preview/cover.jpg", "12345");
    store.write("res/T/preview/notes.txt", "123");
    const Description description = ThemeResource::readDescription("T", store.root());
    EXPECT_EQ(description.at("title"), "Name");
    EXPECT_EQ(description.at("version"), "");
    EXPECT_EQ(description.size(), 9U);
    EXPECT_EQ(ThemeResource::previewFiles("T", store.root()),
              std::vector<std::string>{store.path("res/T/preview/cover.jpg")});
    EXPECT_EQ(ThemeResource::themeSize("T", store.root()), 8 + fileSize(store.path("res/T/description.xml")));
}

} // namespace
} // namespace zdt
