#include "shell/importPlan.h"

#include "common/fixtures.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zdt {
namespace {

using Names = std::vector<std::string>;
using Step = ImportPlan::Step;

TEST(ImportPlan, AsksBeforeAThemeIsReplacedAndRefusesNamesThatNoneCanHave) {
    const struct {
        const char* package;
        Step step;
        const char* key;
        const char* name;
    } cases[] = {{"/a/Lagoon.zdt", Step::ask, "kWarn_File_hadExist", "Lagoon"},
                 {"/a/Dune.zdt", Step::import, "", "Dune"},
                 {"/a/Dune 2.0.zdt", Step::import, "", "Dune 2.0"},
                 {"/a/沙丘.zdt", Step::import, "", "沙丘"},
                 {"/a/a:b.zdt", Step::refuse, "kWarn_newtheme_special_sign", "a:b"},
                 {"/a/...zdt", Step::refuse, "kWarn_newtheme_special_sign", ".."},
                 {"/a/.zdt", Step::refuse, "kWarn_newtheme_special_sign", ""},
                 {"/a/a\nb.zdt", Step::refuse, "kWarn_newtheme_special_sign", "a\nb"}};
    for (const auto& [package, step, key, name] : cases) {
        const ImportPlan plan = planImport(package, {"Lagoon"});
        EXPECT_TRUE(plan.step == step) << package;
        EXPECT_EQ(plan.messageKey, key) << package;
        EXPECT_EQ(plan.name, name) << package;
    }
    EXPECT_NE(importResultKey(true), importResultKey(false));
}

TEST(ImportPlan, TakesPackagesAloneFromADrop) {
    const test::TemporaryFolder folder;
    const std::string one = folder.write("a.zdt", "x");
    const std::string two = folder.write("b.ZDT", "x");
    folder.write("folder.zdt/c.zdt", "x");
    ASSERT_EQ(::mkfifo(folder.path("pipe.zdt").c_str(), 0600), 0);
    EXPECT_EQ(packagesAmong({one, folder.write("a.png", "x"), two, one, folder.path("folder.zdt"),
                             folder.path("pipe.zdt"), folder.path("gone.zdt")}),
              (Names{one, two}));
}

} // namespace
} // namespace zdt
