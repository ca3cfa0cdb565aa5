#include "device/ninePatchCompiler.h"

#include "common/fixtures.h"
#include "common/ninePatches.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <string>

namespace zdt::test {
namespace {

using namespace std::chrono_literals;
using enum NinePatchOutcome;

class NinePatchCompilerTest : public testing::Test {
protected:
    [[nodiscard]] std::string script(const std::string& name, const std::string& text) const {
        const std::string path = folder.write(name, "#!/bin/sh\n" + text + "\n");
        ::chmod(path.c_str(), 0755);
        return path;
    }

    TemporaryFolder folder;
    std::string output = folder.path("out/compiled.9.png");
    NinePatchCompiler compiler{std::string(ZDT_TOOLS_DIR) + "aapt"};
};

TEST_F(NinePatchCompilerTest, GoodOneIsCompiledAndPassesTheNextTime) {
    const std::string input = folder.write("a b;'.9.png", rawNinePatch());
    EXPECT_FALSE(isCompiledNinePatch(input));
    EXPECT_EQ(compiler.compile(input, output).outcome, done);
    EXPECT_TRUE(isCompiledNinePatch(output));
    EXPECT_EQ(readFile(input), rawNinePatch());
    const std::string again = folder.path("again.9.png");
    EXPECT_EQ(compiler.compile(output, again).outcome, alreadyCompiled);
    EXPECT_TRUE(readFile(again).empty());
}

TEST_F(NinePatchCompilerTest, BadInputsAreToldApartAndLeaveNothing) {
    struct Case {
        const char* name;
        std::string content;
        NinePatchOutcome outcome;
        const char* reason;
    };
    const Case cases[] = {
        {"border.9.png", plainPng(12, 12), refused, "Must have one-pixel frame that is either transparent or white."},
        {"marks.9.png", plainPng(12, 12, Qt::transparent), refused,
         "No marked region found along edge. Found along top edge."},
        {"text.9.png", "no picture at all", refused, nullptr},
        {"cut.9.png", rawNinePatch().substr(0, 60), refused, nullptr},
        {"empty.9.png", "", refused, nullptr},
        {"plain.png", rawNinePatch(), unreadable, ""},
    };
    for (const Case& each : cases) {
        const NinePatchResult result = compiler.compile(folder.write(each.name, each.content), output);
        EXPECT_EQ(result.outcome, each.outcome) << each.name;
        EXPECT_TRUE(!each.reason || result.reason == each.reason) << each.name << ": " << result.reason;
        EXPECT_TRUE(namesIn(folder.path("out")).empty()) << each.name;
    }
    EXPECT_EQ(compiler.compile(folder.path("gone.9.png"), output).outcome, unreadable);
    EXPECT_EQ(compiler.compile(folder.write("in.9.png", rawNinePatch()), "/proc/none/out.9.png").outcome, unreadable);
}

TEST_F(NinePatchCompilerTest, ToolsThatFailAreToldApart) {
    const std::string input = folder.write("in.9.png", rawNinePatch());
    EXPECT_EQ(NinePatchCompiler(folder.path("none")).compile(input, output).outcome, missingTool);
    EXPECT_EQ(NinePatchCompiler(folder.write("noRights", "x")).compile(input, output).outcome, missingTool);
    const std::string slow = script("slow", "echo part > \"$5\"; sleep 60");
    EXPECT_EQ(NinePatchCompiler(slow, 100ms).compile(input, output).outcome, timedOut);
    EXPECT_TRUE(readFile(output).empty());
    // It says that it did it, and made nothing.
    EXPECT_EQ(NinePatchCompiler(script("idle", "exit 0")).compile(input, output).outcome, refused);
    const std::atomic<bool> cancel = true;
    EXPECT_EQ(NinePatchCompiler(slow).compile(input, output, &cancel).outcome, cancelled);
}

TEST(NinePatchReasonTest, IsOneReadableLine) {
    EXPECT_EQ(ninePatchReason("ERROR: 9-patch image /a/b.9.png malformed.\n       No  marks.\n  Top.\n"),
              "No marks. Top.");
    EXPECT_EQ(ninePatchReason("libpng error: Read Error\n"), "libpng error: Read Error");
    EXPECT_EQ(ninePatchReason(" \n "), "");
    EXPECT_EQ(ninePatchReason(std::string(5000, 'x')).size(), 200U);
}

TEST(CompiledNinePatchTest, HeadersAreReadWithCare) {
    const TemporaryFolder folder;
    const std::string begin = "\x89PNG\r\n\x1a\n";
    const std::string huge = begin + std::string("\xff\xff\xff\xff", 4) + "IHDR";
    for (const std::string& content : {std::string(), begin, begin + "xx", huge, begin + std::string(40000, '\0'),
                                       std::string("npTc"), plainPng(4, 4)})
        EXPECT_FALSE(isCompiledNinePatch(folder.write("x.9.png", content)));
}

} // namespace
} // namespace zdt::test
