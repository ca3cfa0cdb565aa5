#include "editor/problemReasons.h"

#include "editor/fileWords.h"
#include "editor/moduleWords.h"
#include "editor/problemWords.h"
#include "model/returnCode.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zdt {

void PrintTo(const Sentence& sentence, std::ostream* out) {
    *out << sentence.key << '(' << sentence.word << ')';
}

namespace {

using Sentences = std::vector<Sentence>;

FileFacts pictureFacts() {
    return {{SizeRange(168)}, 1024 * 1024, fileKind::png, 2000, {192, 192}, fileKind::png};
}

FileFacts with(auto change) {
    FileFacts facts = pictureFacts();
    change(facts);
    return facts;
}

TEST(ProblemReasons, FilesTellWhatIsWrongAndWhatIsNeeded) {
    const FileFacts plain = pictureFacts();
    const struct {
        int code;
        FileFacts facts;
        Sentences reason;
    } cases[]{
        {returnCode::missingFile, plain, {{"kProblems_missing_picture", ""}, {"kProblems_takes", "PNG 168 × 168"}}},
        {returnCode::missingFile,
         with([](FileFacts& facts) { facts.kinds = fileKind::png | fileKind::jpeg, facts.sizes.clear(); }),
         {{"kProblems_missing_picture", ""}, {"kProblems_takes", "PNG / JPG"}}},
        {returnCode::missingFile, with([](FileFacts& facts) { facts.kinds = fileKind::other; }), {}},
        {returnCode::wrongByteSize,
         with([](FileFacts& facts) { facts.bytes = 1024 * 1024 + 1; }),
         {{"kProblems_is_large", "1.1 MB"}, {"kProblems_at_most", "1 MB"}}},
        {returnCode::wrongByteSize,
         with([](FileFacts& facts) { facts.bytes = 0; }),
         {{"kProblems_is_empty", ""}, {"kProblems_takes", "PNG 168 × 168"}}},
        {returnCode::wrongDimensions, plain, {{"kProblems_is_size", "192 × 192"}, {"kProblems_takes", "168 × 168"}}},
        {returnCode::wrongDimensions,
         with([](FileFacts& facts) {
             facts.sizes = iconSizes(false), facts.size = {10, 20};
         }),
         {{"kProblems_is_size", "10 × 20"}, {"kProblems_takes", "192 × 192 / 256 × 256"}}},
        {returnCode::unreadablePicture,
         with([](FileFacts& facts) { facts.content = fileKind::other; }),
         {{"kProblems_unreadable", ""}}},
        {returnCode::unreadablePicture,
         with([](FileFacts& facts) { facts.content = fileKind::jpeg; }),
         {{"kProblems_really", "JPG"}, {"kProblems_takes", "PNG 168 × 168"}}},
        {returnCode::wrongKind, plain, {}},
    };
    for (const auto& [code, facts, reason] : cases)
        EXPECT_EQ(fileReason(code, facts), reason) << code;
}

TEST(ProblemReasons, SizesReadWellAndNeverLikeTheLimitTheyPass) {
    const std::pair<std::uint64_t, const char*> cases[]{{0, "0 B"},          {1023, "1023 B"},    {1024, "1 KB"},
                                                        {307200, "300 KB"},  {307201, "301 KB"},  {1048576, "1 MB"},
                                                        {1048577, "1.1 MB"}, {3040870, "2.9 MB"}, {10485760, "10 MB"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(bytesText(bytes), text);
}

TEST(ProblemRows, GroupAndModuleFollowFromTheKey) {
    const struct {
        const char* key;
        const char* module;
        const char* group;
    } cases[]{{"contacts/image/a.png", "contacts", "contacts"},
              {"contacts/commonSetting/image/a.png", "contacts", "commonSetting"},
              {"unlock", "unlock", "unlock"},
              {"version", "", ""},
              {"", "", ""},
              {"gone/x", "gone", "gone"}};
    for (const auto& each : cases) {
        EXPECT_EQ(moduleOf(each.key), each.module) << each.key;
        EXPECT_EQ(groupOf(each.key), each.group) << each.key;
    }
}

TEST(ProblemRows, StandByGroupsEvenWithoutATheme) {
    const std::vector<ProblemRow> rows = problemRows(nullptr, {{"icons/b.png", "icons/b.png", -2},
                                                               {"gone/x", {}, -14},
                                                               {"contacts/a", {}, -18},
                                                               {"icons/c.png", "icons/c.png", -23}});
    std::vector<std::string> keys;
    for (const ProblemRow& row : rows)
        keys.push_back(row.problem.key);
    EXPECT_EQ(keys, (std::vector<std::string>{"contacts/a", "icons/b.png", "icons/c.png", "gone/x"}));
    EXPECT_EQ(rows[3].reason, (Sentences{{"kProblem_14", ""}}));
    EXPECT_EQ(rows[3].restore, ProblemRestore::none);
    EXPECT_EQ(countByGroup(rows), (std::map<std::string, int>{{"contacts", 1}, {"gone", 1}, {"icons", 2}}));
}

} // namespace
} // namespace zdt
