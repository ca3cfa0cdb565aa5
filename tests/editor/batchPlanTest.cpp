#include "editor/batchPlan.h"

#include "common/ninePatches.h"
#include "common/pageFixture.h"
#include "editor/batchCompile.h"
#include "editor/batchWords.h"
#include "editor/pictureTable.h"
#include "editor/problemReasons.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace zdt::test {
namespace {

using enum BatchState;
using namespace std::chrono_literals;

TEST(BatchPlanTest, WorkersHaveFiveFilesEach) {
    const std::pair<std::size_t, std::size_t> cases[] = {{0, 1}, {1, 1}, {5, 1}, {6, 2}, {10, 2}, {11, 3}, {1000, 200}};
    for (const auto& [files, workers] : cases)
        EXPECT_EQ(workerCount(files), workers) << files;
}

TEST(BatchPlanTest, StatesHaveTheirCodesAndWords) {
    LoadKeys();
    const std::pair<BatchState, const char*> cases[] = {{tooLarge, "-16"},      {doubled, "-4"},
                                                        {toolFailed, "-40"},    {compileRefused, "-39"},
                                                        {wrongSize, "-22"},     {wrongPatchKind, "-19"},
                                                        {nameNotAllowed, "-5"}, {wrongType, "-23"},
                                                        {unreadable, "-41"},    {fine, "-1"}};
    for (const auto& [state, code] : cases) {
        BatchRefusal refusal{"mms", {}};
        refusal.file.name = "a.png";
        refusal.file.state = state;
        EXPECT_EQ(refusal.line(), std::string("mms/") + code + " a.png");
        const std::vector<Sentence> reason = reasonOf(nullptr, {"mms/image/a.png", {}, batchProblemCode(code)});
        EXPECT_EQ(reason.front().key, "kBatch_reason_" + std::to_string(-std::stoi(code)));
    }
    EXPECT_TRUE(codeTextOf(otherTheme).empty());
    EXPECT_EQ(batchReasonNumber(-22), 0);
}

class BatchFilesTest : public PageTest {
protected:
    BatchFilesTest() { openNew(); }

    std::vector<BatchFile> plan(const std::vector<std::string>& files) {
        return planBatch(expandFiles(files), "launcher", pictureGroupsOf(*bench.theme(), "launcher"));
    }

    std::string script(const std::string& text) {
        const std::string path = given.write("tool", "#!/bin/sh\n" + text + "\n");
        ::chmod(path.c_str(), 0755);
        return path;
    }

    TemporaryFolder given;
};

TEST_F(BatchFilesTest, EachFileGetsItsState) {
    const std::string good = plainPng(192, 192);
    struct Case {
        const char* file;
        std::string content;
        BatchState state;
        bool isClaimed;
    };
    const Case cases[] = {
        {"ic_allapps.png", good, fine, true},
        {"IC_ALLAPPS_pressed.PNG", good, fine, true},
        {"more/ic_allapps.png", good, doubled, true},
        {"bad/ic_allapps_pressed.png", plainPng(1, 1), doubled, true},
        {"folder_add_icon.png", plainPng(10, 10), wrongSize, true},
        {"more/folder_add_icon.png", plainPng(11, 11), wrongSize, true}, // A bad one has no claim to the name.
        {"folder_open_shadow.png", good, wrongPatchKind, true},
        {"ic_arrow.9.png", good, wrongPatchKind, true},
        {"widget_resize_handle_vertical.png", std::string(1024 * 1025, 'x'), tooLarge, true},
        {"widget_resize_handle_horizontal.png", "text", wrongType, true},
        {"launcher_edit_transition_box_current.jpg", good, wrongType, true},
        {"launcher_edit_transition_page_current.png", "", wrongType, true},
        {"btn_check_on.png", good, otherTheme, false},
        {"nobody.png", good, fine, false},
        {"图标.png", good, nameNotAllowed, false},
        {"notes.txt", "text", wrongType, false},
        {"gone.png", "-", unreadable, false},
    };
    std::vector<std::string> files;
    for (const Case& each : cases)
        files.push_back(each.content == "-" ? given.path(each.file) : given.write(each.file, each.content));
    const std::vector<BatchFile> planned = plan(files);
    ASSERT_EQ(planned.size(), std::size(cases));
    for (std::size_t at = 0; at < planned.size(); ++at) {
        EXPECT_EQ(planned[at].state, cases[at].state) << cases[at].file;
        EXPECT_EQ(planned[at].isClaimed(), cases[at].isClaimed) << cases[at].file;
    }
    const std::vector<BatchRefusal> refused = refusalsOf("launcher", planned);
    EXPECT_EQ(refused.size(), planned.size() - 3); // Two fit, one is of another generation.
    for (const BatchRefusal& refusal : refused) {
        EXPECT_FALSE(refusalWords(refusal).isEmpty()) << refusal.line();
        EXPECT_FALSE(refusalReason(refusal).isEmpty()) << refusal.line();
    }
}

TEST_F(BatchFilesTest, FoldersBringTheirPictures) {
    given.write("folder/ic_allapps.png", plainPng(192, 192));
    given.write("folder/readme.txt", "text");
    given.write("folder/deeper/ic_arrow.png", plainPng(96, 96));
    EXPECT_EQ(expandFiles({given.path("folder"), given.path("gone.png")}),
              (std::vector<std::string>{given.path("folder/ic_allapps.png"), given.path("gone.png")}));
    std::vector<std::string> many(maxBatchFiles + 5, given.path("gone.png"));
    EXPECT_EQ(cutToBatch(many), 5U);
    EXPECT_EQ(many.size(), maxBatchFiles);
}

TEST_F(BatchFilesTest, NinePatchesAreCompiledAndRefusedOneByOne) {
    const std::vector<std::string> files{
        given.write("folder_open_shadow.9.png", rawNinePatch()), given.write("ic_mark.9.png", plainPng(12, 12)),
        given.write("ic_allapps.png", plainPng(192, 192)), given.write("unknown.9.png", rawNinePatch())};
    std::vector<BatchFile> planned = plan(files);
    const std::vector<std::size_t> patches = ninePatchesOf(planned);
    const NinePatchCompiler compiler(std::string(ZDT_TOOLS_DIR) + "aapt");
    std::atomic<int> ended = 0;
    ASSERT_TRUE(compileBatch(planned, patches, {compiler, given.path("out/"), nullptr, [&](std::size_t) { ++ended; }}));
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(isCompiledNinePatch(planned[0].file));
    EXPECT_EQ(planned[1].state, compileRefused);
    EXPECT_FALSE(planned[1].reason.empty());
    EXPECT_EQ(planned[3].file, planned[3].path);
}

TEST_F(BatchFilesTest, ToolThatHangsOrIsMissingDoesNotHoldABatch) {
    std::vector<BatchFile> planned(40);
    std::vector<std::size_t> patches;
    for (std::size_t at = 0; at < planned.size(); ++at) {
        planned[at].path = given.write(std::to_string(at) + ".9.png", rawNinePatch());
        patches.push_back(at);
    }
    for (const NinePatchCompiler& compiler :
         {NinePatchCompiler(script("sleep 60"), 100ms), NinePatchCompiler(given.path("none"))}) {
        std::vector<BatchFile> files = planned;
        EXPECT_TRUE(compileBatch(files, patches, {compiler, given.path("out/"), nullptr, {}}));
        EXPECT_TRUE(
            std::all_of(files.begin(), files.end(), [](const BatchFile& file) { return file.state == toolFailed; }));
    }
    const std::atomic<bool> cancel = true;
    const NinePatchCompiler slow(script("sleep 60"));
    EXPECT_FALSE(compileBatch(planned, patches, {slow, given.path("out/"), &cancel, {}}));
}

} // namespace
} // namespace zdt::test
