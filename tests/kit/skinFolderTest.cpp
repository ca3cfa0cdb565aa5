#include "kit/skinFolder.h"

#include "common/fixtures.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using test::TemporaryFolder;

TEST(SkinFolder, FileOfTheWorkspaceHidesTheShippedOne) {
    const TemporaryFolder workspace;
    const TemporaryFolder program;
    const SkinRoots roots{workspace.path(), program.path()};
    const std::string shipped = program.write("skin/ZDThemeDesign/config.ini", "0");
    EXPECT_EQ(skinFile("config.ini", roots), shipped);
    const std::string own = workspace.write("skin/ZDThemeDesign/config.ini", "1");
    EXPECT_EQ(skinFile("config.ini", roots), own);
    EXPECT_EQ(resolveSkinPath("./skin/ZDThemeDesign/config.ini", roots), own);
    EXPECT_EQ(skinFile("missing.xml", roots), program.path("skin/ZDThemeDesign/missing.xml"));
}

TEST(SkinFolder, PathsThatLeadOutsideMeanNothing) {
    const TemporaryFolder folder;
    const SkinRoots roots{folder.path(), folder.path()};
    for (const char* path :
         {"", "/etc/passwd", "./res/a.png", "skin/../res/a.png", "./skin/..", "../skin/a.png", "skin"})
        EXPECT_EQ(resolveSkinPath(path, roots), "") << path;
    EXPECT_EQ(skinFile("../../a", roots), "");
    EXPECT_EQ(writableSkinFile("../../a", roots), "");
    EXPECT_EQ(resolveSkinPath("skin/a..png", roots), folder.path("skin/a..png"));
}

TEST(SkinFolder, WritingGoesToTheWorkspaceAndMakesItsFolder) {
    const TemporaryFolder workspace;
    const TemporaryFolder program;
    const SkinRoots roots{workspace.path(), program.path()};
    (void)program.write("skin/ZDThemeDesign/config.ini", "0");
    const std::string path = writableSkinFile("config.ini", roots);
    EXPECT_EQ(path, workspace.path("skin/ZDThemeDesign/config.ini"));
    EXPECT_TRUE(isFolder(workspace.path("skin/ZDThemeDesign/")));
    const SkinRoots blocked{workspace.write("file", "") + "/", program.path()};
    EXPECT_EQ(writableSkinFile("config.ini", blocked), "");
}

TEST(SkinFolder, WorkspaceIsTheProgramFolderIfThatCanBeWritten) {
    const TemporaryFolder folder;
    EXPECT_EQ(chooseWorkspace(folder.path(), "/data"), folder.path());
    EXPECT_EQ(chooseWorkspace(folder.path("missing/"), "/data"), "/data/zdtheme-designer/");
    EXPECT_EQ(chooseWorkspace(folder.write("file", ""), "/data/"), "/data/zdtheme-designer/");
}

} // namespace
} // namespace zdt
