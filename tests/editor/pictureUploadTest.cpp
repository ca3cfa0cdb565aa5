#include "editor/pictureUpload.h"

#include "common/ninePatches.h"
#include "common/pageFixture.h"
#include "editor/pictureTable.h"
#include "support/fileComparison.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

namespace zdt::test {
namespace {

class PictureUploadTest : public PageTest {
protected:
    [[nodiscard]] static PictureEntry entryOf(const ThemeResource& theme, const char* module, const char* name) {
        std::vector<PictureGroup> groups = pictureGroupsOf(theme, module);
        const PictureEntry* found = findEntry(groups, name);
        EXPECT_TRUE(found) << name;
        return found ? *found : PictureEntry();
    }

    PictureRefusal upload(PictureEntry& entry, const std::string& path) {
        const PreparedPicture prepared = preparePicture(entry, path, compiler, workspaceFolder());
        UploadResult result = finishUpload(*bench.theme(), entry, path, prepared, changed);
        EXPECT_EQ(result.isStored, entry.uploadedPath == path);
        return result.refusal;
    }

    NinePatchCompiler compiler{std::string(ZDT_TOOLS_DIR) + "aapt"};
    PictureChanged changed;
    TemporaryFolder given;
};

TEST_F(PictureUploadTest, GoodPictureTakesTheRowsPlace) {
    openNew();
    PictureEntry entry = entryOf(*bench.theme(), "launcher", "ic_allapps.png");
    entry.failed = true;
    const std::string path = given.write("mine.png", plainPng(192, 192));
    EXPECT_TRUE(upload(entry, path).isNone());
    EXPECT_TRUE(sameFiles(entry.file(), path));
    EXPECT_EQ(entry.uploadedPath, path);
    EXPECT_FALSE(entry.failed);
    EXPECT_EQ(resetPicture(*bench.theme(), entry, changed), 0);
    EXPECT_TRUE(sameFiles(entry.file(), entry.places.front().fallback));
}

TEST_F(PictureUploadTest, RefusalsNameTheirReasonAndChangeNothing) {
    openNew();
    struct Case {
        const char* row;
        const char* file;
        std::string content;
        const char* message;
    };
    const Case cases[] = {
        {"ic_allapps.png", "a.9.png", rawNinePatch(), "kWarn_replace_right_format_picture"},
        {"folder_open_shadow.9.png", "a.png", rawNinePatch(), "kWarn_replace_nine_patch_picture"},
        {"ic_allapps.png", "a.png", plainPng(192, 191), "kWarn_replace_right_size_picture"},
        {"ic_allapps.png", "a.png", std::string(1024 * 1025, 'x'), "kWarn_upload_lessthenoneM_png_pic"},
        {"ic_allapps.png", "a.png", "", "kWarn_upload_lessthenoneM_png_pic"},
        {"ic_allapps.png", "a.png", "no picture", "KWarn_upload_JPGPNG"},
        {"ic_allapps.png", "a.PNG", plainPng(192, 192), "kWarn_upload_pic_lower"},
        {"ic_allapps.png", "图标.png", plainPng(192, 192), "kWarn_upload_include_ch"},
        {"ic_allapps.png", "a.jpg", plainPng(192, 192), "kWarn_upload_systemui_pic"},
        {"folder_open_shadow.9.png", "a.9.png", plainPng(12, 12), "kWarn_nine_patch_refused"},
        {"ic_allapps.png", "gone.png", "-", ""},
    };
    for (const Case& each : cases) {
        PictureEntry entry = entryOf(*bench.theme(), "launcher", each.row);
        const std::string before = readFile(entry.file());
        const bool isGone = each.content == "-";
        const std::string path = isGone ? given.path(each.file) : given.write(each.file, each.content);
        EXPECT_EQ(upload(entry, path).message, each.message) << each.file << " for " << each.row;
        EXPECT_EQ(readFile(entry.file()), before);
        EXPECT_TRUE(entry.uploadedPath.empty());
    }
}

TEST_F(PictureUploadTest, WrongSizeIsSaidWithBothSizes) {
    openNew();
    PictureEntry entry = entryOf(*bench.theme(), "launcher", "ic_allapps.png");
    const PictureRefusal refusal = upload(entry, given.write("mine.png", plainPng(192, 191)));
    EXPECT_EQ(refusal.arguments, (QStringList{"192*191", "192*192"}));
}

TEST_F(PictureUploadTest, NinePatchesAreCompiledOnTheWay) {
    openNew();
    PictureEntry entry = entryOf(*bench.theme(), "launcher", "folder_open_shadow.9.png");
    EXPECT_TRUE(upload(entry, given.write("mine.9.png", rawNinePatch())).isNone());
    EXPECT_TRUE(isCompiledNinePatch(entry.file()));
    const std::string compiled = given.write("compiled.9.png", readFile(entry.file()));
    compiler = NinePatchCompiler(given.path("none"));
    EXPECT_TRUE(upload(entry, compiled).isNone());
    EXPECT_EQ(upload(entry, given.path("mine.9.png")).message, "kBatch_reason_40");
    EXPECT_TRUE(listEntries("Temp9Png/")->empty());
}

TEST_F(PictureUploadTest, SharedPictureIsSetInAllApplications) {
    openNew();
    PictureEntry entry = entryOf(*bench.theme(), "commonSetting", "spinner_menu.9.png");
    ASSERT_TRUE(upload(entry, given.write("mine.9.png", rawNinePatch())).isNone());
    for (const KeyPlace& place : entry.places)
        EXPECT_TRUE(sameFiles(place.value, entry.file())) << place.block.front();
}

TEST_F(PictureUploadTest, PageThatRefusesTakesThePictureBack) {
    openNew();
    PictureEntry entry = entryOf(*bench.theme(), "launcher", "ic_allapps.png");
    const std::string before = readFile(entry.file());
    const std::string path = given.write("mine.png", plainPng(192, 192));
    struct Case {
        int code;
        const char* message;
    };
    for (const Case& each : {Case{-20, "kWarn_upload_lessthenoneM_png_pic"}, Case{-23, "KWarn_upload_JPGPNG"},
                             Case{-3, "kWarn_upload_systemui_pic"}}) {
        changed = [&](const std::string&, const std::string&) { return each.code; };
        EXPECT_EQ(upload(entry, path).message, each.message);
        EXPECT_EQ(readFile(entry.file()), before);
    }
}

TEST_F(PictureUploadTest, FolderThatCannotBeWrittenIsSaid) {
    openNew();
    PictureEntry entry = entryOf(*bench.theme(), "launcher", "ic_allapps.png");
    const std::string folder = parentPath(entry.file());
    ASSERT_TRUE(removeTree(folder));
    given.write("in the way", "");
    store.write(folder.substr(store.root().size()), "a file where the folder was");
    const std::string path = given.write("mine.png", plainPng(192, 192));
    EXPECT_EQ(upload(entry, path).message, "kWarn_upload_systemui_pic");
}

TEST_F(PictureUploadTest, PictureIsSavedElsewhere) {
    openNew();
    const PictureEntry entry = entryOf(*bench.theme(), "launcher", "ic_allapps.png");
    const std::string target = given.write("copy.png", "older");
    EXPECT_TRUE(savePictureAs(entry, target).isNone());
    EXPECT_TRUE(sameFiles(target, entry.file()));
    EXPECT_EQ(savePictureAs(entry, entry.file()).message, "kProblem_4");
    ASSERT_EQ(::symlink(entry.file().c_str(), given.path("link.png").c_str()), 0);
    EXPECT_EQ(savePictureAs(entry, given.path("link.png")).message, "kProblem_4");
    EXPECT_EQ(savePictureAs(entry, "/proc/none/x.png").message, "kProblem_3");
    EXPECT_FALSE(readFile(entry.file()).empty());
}

} // namespace
} // namespace zdt::test
