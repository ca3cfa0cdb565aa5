#include "model/template.h"

#include "common/fixtures.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using test::TemporaryFolder;

TEST(Template, DirectoryFollowsTheGeneration) {
    const char* names[] = {"default5.0/", "default8.0/", "default9.1/", "", ""};
    for (unsigned index = 0; index < std::size(names); ++index) {
        EXPECT_EQ(templateDirectory(index), names[index]);
        EXPECT_TRUE(index <= 2 || locateTemplate("/root/", index).empty());
    }
}

TEST(Template, StoreRootComesBeforeTheProgramFolder) {
    const TemporaryFolder folder;
    folder.write("default8.0/description.xml", "");
    EXPECT_EQ(locateTemplate(folder.path(), 1), folder.path("default8.0/"));
    const bool besideProgram = isFolder(programDirectory() + "default5.0");
    EXPECT_EQ(locateTemplate(folder.path(), 0), (besideProgram ? programDirectory() : folder.path()) + "default5.0/");
}

TEST(Template, LockScreenIsLookedForInBothOfItsFolders) {
    const TemporaryFolder folder;
    folder.write("unlock_slide/theme.xml", "");
    folder.write("unlock_slide/both", "");
    folder.write("unlock_amazing/both", "");
    const struct {
        const char* file;
        const char* place;
    } cases[] = {
        {"icons/a.png", "icons/a.png"},
        {"unlock/theme.xml", "unlock_slide/theme.xml"},
        {"unlock/both", "unlock_amazing/both"},
        {"unlock/none", "unlock_amazing/none"},
        {"unlocked", "unlocked"},
    };
    for (const auto& [file, place] : cases)
        EXPECT_EQ(templateFile(folder.path(), file), folder.path(place));
}

TEST(Template, StoreRootLiesTwoLevelsAboveATheme) {
    const struct {
        const char* theme;
        const char* root;
    } cases[] = {{"/store/res/a/", "/store/"},
                 {"/store/res/a", "/store/"},
                 {"./res/a/", "./"},
                 {"res/a/", ""},
                 {"/res/a/", "/"},
                 {"", "./"},
                 {"s/res/a//", "s/"}};
    for (const auto& [theme, root] : cases)
        EXPECT_EQ(storeRootOf(theme), root) << theme;
}

} // namespace
} // namespace zdt
