#include "common/storeFixture.h"
#include "modules/themeNode.h"
#include "packaging/zipFolder.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace zdt {
namespace {

using test::TemporaryStore;
using test::ThemeKind;

/// Key and value of each leaf that takes part; of a file, its content.
std::map<std::string, std::string> valuesOf(const ThemeResource& theme) {
    std::map<std::string, std::string> values;
    for (const ResNode* node : theme.tree().nodesInOrder()) {
        if (!node->isLeaf() || !node->isApplicable() || node->value().empty())
            continue;
        const bool isFile = node->value().starts_with(theme.tree().path());
        values[ThemeResource::dirPathOf(*node)] = isFile ? test::readFile(node->value()) : node->value();
    }
    return values;
}

TEST(Package, ThemeOfEveryKindComesBackWithTheSameValues) {
    const TemporaryStore store;
    const TemporaryStore other;
    for (const ThemeKind& kind : test::allThemeKinds()) {
        SCOPED_TRACE(kind.name());
        const auto theme = store.create("T", kind);
        ASSERT_EQ(theme->setValue({"launcher", "text"}, "calendar_dynamic", "#80112233"), 0);
        ASSERT_EQ(theme->setValue({}, "briefinfo", "two\nlines & <signs>"), 0);
        ASSERT_TRUE(theme->applyNode({"launcher", "text"}) && theme->applyNode({}));
        theme->setDynamicIcon(DynamicIcon::weather, true);
        std::map<std::string, std::string> before = valuesOf(*theme);
        ASSERT_TRUE(theme->exportTo(other.path("T.zdt")));

        std::string name;
        ASSERT_TRUE(ThemeResource::importTheme(other.path("T.zdt"), name, other.root()));
        EXPECT_EQ(name, "T");
        const auto imported = ThemeResource::openTheme("T", kind.chinese, other.root());
        EXPECT_EQ(imported->tree().typeMask(), theme->tree().typeMask());
        EXPECT_TRUE(imported->hasDynamicIcon(DynamicIcon::weather));
        EXPECT_FALSE(imported->hasDynamicIcon(DynamicIcon::clock));
        // What the theme leaves out isn't in the package.
        before.erase("icons/system/dynamic_icons/calendar_background.png");
        before.erase("icons/system/dynamic_icons/deskclock_bg.png");
        const std::map<std::string, std::string> after = valuesOf(*imported);
        EXPECT_EQ(before.size(), after.size());
        for (const auto& [key, value] : before) {
            const auto entry = after.find(key);
            EXPECT_TRUE(entry != after.end() && entry->second == value) << key;
        }
        EXPECT_EQ(test::problemsOf(*imported), std::vector<std::string>());
        ASSERT_TRUE(ThemeResource::deleteTheme("T", store.root()));
    }
}

TEST(Package, ModulesAreArchivesWithoutAnEndingAndTheRestStandsOpen) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    ASSERT_TRUE(theme->exportTo(store.path("T.zdt")));
    ASSERT_TRUE(UnzipToFolder(store.path("T.zdt"), store.path("out/")));
    EXPECT_EQ(test::namesIn(store.path("out/")),
              (std::vector<std::string>{"com.android.contacts", "com.android.mms", "com.android.phone",
                                        "com.android.phone.recorder", "com.android.server.telecom",
                                        "com.android.systemui", "com.zendro.android.launcher", "description.xml",
                                        "icons", "preview", "unlock", "wallpaper"}));
    EXPECT_TRUE(isFolder(store.path("out/preview/")));
    ASSERT_TRUE(isPlainFile(store.path("out/com.android.mms")));
    ASSERT_TRUE(UnzipToFolder(store.path("out/com.android.mms"), store.path("mms/")));
    EXPECT_TRUE(isPlainFile(store.path("mms/framework-res-zdext/theme.xml")));
    EXPECT_FALSE(pathExists(store.path("out/icons/dynamic_icons")));
    EXPECT_FALSE(pathExists(store.path("out/unlock/ext.properties")));

    const auto small = store.create("S", {2, true});
    ASSERT_TRUE(small->exportTo(store.path("S.zdt")));
    ASSERT_TRUE(UnzipToFolder(store.path("S.zdt"), store.path("small/")));
    EXPECT_EQ(test::namesIn(store.path("small/")),
              (std::vector<std::string>{"com.zendro.android.launcher", "description.xml", "icons", "preview", "unlock",
                                        "wallpaper"}));
}

TEST(Package, ExportLeavesTheThemeAndNothingUnfinishedBehind) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const auto before = valuesOf(*theme);
    const std::uint64_t size = ThemeResource::themeSize("T", store.root());
    std::vector<double> steps;
    store.write("out/T.zdt", "an older package");
    ASSERT_TRUE(theme->exportTo(store.path("out/T.zdt"), [&](double done) { steps.push_back(done); }));
    EXPECT_GT(fileSize(store.path("out/T.zdt")), 100000U);
    EXPECT_EQ(test::namesIn(store.path("out/")), std::vector<std::string>{"T.zdt"});
    EXPECT_EQ(test::namesIn(store.path("tmp/")), std::vector<std::string>{"T"});
    EXPECT_EQ(valuesOf(*theme), before);
    EXPECT_EQ(ThemeResource::themeSize("T", store.root()), size);
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_DOUBLE_EQ(steps.back(), 1);
}

TEST(Package, FailedExportLeavesThePackageThatStoodThere) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    store.write("T.zdt", "an older package");
    EXPECT_FALSE(theme->exportTo(""));
    EXPECT_FALSE(theme->exportTo(store.path("no/such/folder/T.zdt")));
    ASSERT_TRUE(makePath(store.path("folder/")));
    EXPECT_FALSE(theme->exportTo(store.path("folder")));
    ASSERT_TRUE(removeFile(store.path("res/T/icons/com.android.browser.png")));
    EXPECT_FALSE(theme->exportTo(store.path("T.zdt"))) << "a file vanished";
    EXPECT_EQ(test::readFile(store.path("T.zdt")), "an older package");
    EXPECT_EQ(theme->tree().path(), store.path("res/T/")) << "the tree stands in the project again";
}

TEST(Check, EachThingThatIsMissingIsListedOnceInTheTreesOrder) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    // The optional icon is no problem.
    ASSERT_EQ(theme->clearFile({"icons", "system", "static", "com.zendro.zdmarket.vr.png"}), 0);
    ASSERT_EQ(theme->clearFile({"preview", "cover.jpg"}), 0);
    ASSERT_EQ(theme->clearFile({"wallpaper", "image", "home_wallpaper_0.jpg"}), 0);
    ASSERT_TRUE(removeFile(store.path("res/T/unlock/drawable-hdpi/number_3.png")));
    theme->tree().findByPath(KeyPath{"title"})->clearValue();
    std::vector<Problem> problems;
    EXPECT_FALSE(theme->checkFiles(problems));
    ASSERT_EQ(problems.size(), 4U);
    EXPECT_EQ(problems[0].path, "unlock/drawable-hdpi/number_3.png");
    EXPECT_EQ(problems[0].key, "unlock/amazing");
    EXPECT_EQ(problems[1].path, "wallpaper/home_wallpaper_0.jpg");
    EXPECT_EQ(problems[2].path, "preview/cover.jpg");
    EXPECT_EQ(problems[3].path, "");
    EXPECT_EQ(problems[3].code, -18);

    EXPECT_EQ(theme->tree().findByPath(KeyPath{"unlock"})->setValue("slide"), 0);
    EXPECT_FALSE(theme->checkFiles(problems));
    EXPECT_EQ(problems.size(), 3U) << "another kind of lock screen needs no designed one";
}

TEST(Check, DamagedDocumentIsListedAndKeptWhenItIsWrittenAnew) {
    const TemporaryStore store;
    store.create("T");
    struct Case {
        const char* file;
        const char* problem;
        KeyPath block;
    };
    for (const Case& each :
         {Case{"com.android.mms/theme.xml", "mms/text (-24)", {"mms", "text"}}, Case{"description.xml", " (-24)", {}},
          Case{"unlock/theme.xml", "unlock (-24)", {"unlock", "config"}}}) {
        SCOPED_TRACE(each.file);
        const std::string path = store.path(std::string("res/T/") + each.file);
        const std::string damaged = test::readFile(path).substr(0, 100);
        store.write(std::string("res/T/") + each.file, damaged);
        const auto theme = store.open("T");
        EXPECT_EQ(test::problemsOf(*theme).front(), each.problem);
        ASSERT_EQ(theme->tree().findByPath(KeyPath{"unlock"})->setValue("amazing"), 0);
        ASSERT_TRUE(theme->changeGeneration(2) && theme->applyNode(each.block));
        EXPECT_EQ(test::readFile(path + ".damaged"), damaged);
        EXPECT_EQ(test::problemsOf(*store.open("T")), std::vector<std::string>());

        store.write(std::string("res/T/") + each.file, "<again");
        const auto again = store.open("T");
        ASSERT_EQ(again->tree().findByPath(KeyPath{"unlock"})->setValue("amazing"), 0);
        ASSERT_TRUE(again->changeGeneration(2) && again->applyNode(each.block));
        EXPECT_EQ(test::readFile(path + ".damaged"), damaged) << "the first one stays";
        EXPECT_EQ(test::readFile(path + ".damaged-2"), "<again");
    }
}

TEST(Check, VersionOfAnotherGenerationStandsInTheWay) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    ASSERT_EQ(theme->setValue({}, "version", "8.0.7"), 0);
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>{"version (-25)"});
    ASSERT_EQ(theme->setValue({}, "version", "9.1.200"), 0);
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>());
}

TEST(Check, KindOfLockScreenAndFlagsDecideWhatIsNeeded) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const auto needs = [&](const std::string& key) {
        for (const std::string& problem : test::problemsOf(*theme)) {
            if (problem.starts_with(key))
                return true;
        }
        return false;
    };
    ASSERT_EQ(theme->clearFile({"wallpaper", "image", "home_wallpaper_0.jpg"}), 0);
    EXPECT_TRUE(needs("wallpaper/image/"));
    EXPECT_FALSE(needs("wallpaper/image_set/"));
    ASSERT_EQ(theme->tree().findByPath(KeyPath{"unlock"})->setValue("video"), 0);
    EXPECT_FALSE(needs("wallpaper/image/")) << "a video takes the pictures' place";
    EXPECT_TRUE(needs("wallpaper/image_set/"));
    EXPECT_TRUE(needs("unlock/video/image_set/"));

    const KeyPath calendar{"icons", "system", "dynamic_icons", "calendar_background.png"};
    ASSERT_EQ(theme->clearFile(calendar), 0);
    EXPECT_FALSE(needs("icons/"));
    theme->setDynamicIcon(DynamicIcon::calendar, true);
    EXPECT_TRUE(needs(joinKeyPath(calendar)));

    for (const unsigned version : {1U, 2U}) {
        const auto previews = store.create("P" + std::to_string(version), {version});
        std::string path;
        const std::string file = store.write("p.jpg", test::jpegHeader(1080, version == 2 ? 2160 : 1920));
        ASSERT_EQ(previews->setPreview(file, "preview_icons_", 1, path), 0);
        ASSERT_EQ(previews->clearFile({"preview", "preview_icons_1.jpg"}), 0);
        EXPECT_EQ(test::problemsOf(*previews).size(), version == 2 ? 1U : 0U)
            << "an empty further preview stands in the way from generation 9 on";
    }
}

TEST(Import, FailureIsToldAndLeavesTheThemeThatStoodThere) {
    const TemporaryStore store;
    auto theme = store.create("T");
    ASSERT_TRUE(theme->exportTo(store.path("good.zdt")));
    theme.reset();
    const auto before = valuesOf(*store.open("T"));
    const std::string package = test::readFile(store.path("good.zdt"));
    ASSERT_TRUE(UnzipToFolder(store.path("good.zdt"), store.path("x/")));
    const auto repack = [&](const std::string& file) {
        ASSERT_TRUE(ZipFolder(store.path("x/"), store.path(file), false));
    };
    store.write("a/T.zdt", package.substr(0, package.size() / 2));
    store.write("b/T.zdt", "no archive at all");
    store.write("c/T.zdt", "");
    ASSERT_TRUE(makePath(store.path("d/T.zdt/")));
    ASSERT_TRUE(makePath(store.path("e/")) && makePath(store.path("f/")) && makePath(store.path("g/")));
    store.write("x/broken.module", "no archive");
    repack("e/T.zdt");
    ASSERT_TRUE(removeFile(store.path("x/broken.module")) && removeFile(store.path("x/description.xml")));
    repack("f/T.zdt");
    store.write("a/...zdt", package);

    struct Case {
        const char* file;
        ImportFailure failure;
    };
    for (const Case& each : {Case{"a/T.zdt", ImportFailure::notAPackage}, Case{"b/T.zdt", ImportFailure::notAPackage},
                             Case{"c/T.zdt", ImportFailure::notAPackage}, Case{"d/T.zdt", ImportFailure::notAPackage},
                             Case{"e/T.zdt", ImportFailure::notAPackage}, Case{"f/T.zdt", ImportFailure::notAPackage},
                             Case{"g/T.zdt", ImportFailure::missing}, Case{"a/...zdt", ImportFailure::badName},
                             Case{"", ImportFailure::missing}}) {
        SCOPED_TRACE(each.file);
        std::string name;
        ImportFailure failure = ImportFailure::none;
        const std::string path = *each.file ? store.path(each.file) : std::string();
        EXPECT_FALSE(ThemeResource::importTheme(path, name, store.root(), &failure));
        EXPECT_EQ(failure, each.failure);
        EXPECT_EQ(test::namesIn(store.path("tmp/")), std::vector<std::string>{"T"});
    }
    EXPECT_EQ(ThemeResource::listThemes(store.root()), std::vector<std::string>{"T"});
    EXPECT_EQ(valuesOf(*store.open("T")), before);
}

TEST(Import, TakesThePlaceOfAThemeWithNothingLeftOfIt) {
    const TemporaryStore store;
    ASSERT_TRUE(store.create("new", {1})->exportTo(store.path("T.zdt")));
    store.create("T", {2, true});
    store.write("res/T/leftover.txt", "x");
    std::string name;
    ASSERT_TRUE(ThemeResource::importTheme(store.path("T.zdt"), name, store.root()));
    EXPECT_FALSE(pathExists(store.path("res/T/leftover.txt")));
    const auto theme = store.open("T");
    EXPECT_EQ(theme->version(), 1U) << "the old settings don't count for the new theme";
    EXPECT_TRUE(theme->isBigTheme());
}

} // namespace
} // namespace zdt
