#include "device/process.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <string>
#include <thread>

namespace zdt::test {
namespace {

using namespace std::chrono_literals;
using End = ProcessResult::End;

ProcessRequest shell(const std::string& script) {
    ProcessRequest request;
    request.program = "/bin/sh";
    request.arguments = {"-c", script};
    return request;
}

TEST(ProcessTest, EndsAreToldApart) {
    struct Case {
        const char* script;
        End end;
        int code;
        const char* output;
        const char* errors;
    };
    const Case cases[] = {
        {"printf out; printf err >&2", End::exited, 0, "out", "err"},
        {"exit 42", End::exited, 42, "", ""},
        {"kill -TERM $$", End::signalled, SIGTERM, "", ""},
        {"cat; printf done", End::exited, 0, "done", ""},
        {"exec >&- 2>&-; sleep 0.05; exit 3", End::exited, 3, "", ""},
        // What it leaves behind holds the pipes, and isn't waited for.
        {"printf here; sleep 20 & exit 0", End::exited, 0, "here", ""},
    };
    for (const Case& each : cases) {
        const ProcessResult result = runProgram(shell(each.script));
        EXPECT_EQ(result.end, each.end) << each.script;
        EXPECT_EQ(result.code, each.code) << each.script;
        EXPECT_EQ(result.output, each.output) << each.script;
        EXPECT_EQ(result.errors, each.errors) << each.script;
    }
}

TEST(ProcessTest, FailedStartIsNoFailedRun) {
    const TemporaryFolder folder;
    for (const std::string& program :
         {std::string("/nonexistent/tool"), folder.write("plain", "no program"), folder.path(), std::string()}) {
        ProcessRequest request;
        request.program = program;
        const ProcessResult result = runProgram(request);
        EXPECT_EQ(result.end, End::notStarted) << program;
        EXPECT_NE(result.code, 0) << program;
    }
}

TEST(ProcessTest, ArgumentsReachTheProgramAsTheyAre) {
    ProcessRequest request;
    request.program = "/bin/echo";
    request.arguments = {"a b", "$HOME", "'\"", "中"};
    EXPECT_EQ(runProgram(request).output, "a b $HOME '\" 中\n");
}

TEST(ProcessTest, OutputIsBounded) {
    ProcessRequest request = shell("head -c 3000000 /dev/zero; printf end >&2");
    request.maxOutput = 1000;
    const ProcessResult result = runProgram(request);
    EXPECT_TRUE(result.succeeded());
    EXPECT_EQ(result.output.size(), 1000U);
    EXPECT_EQ(result.errors, "end");
}

TEST(ProcessTest, ProgramThatNobodyWaitsForHasEndedToo) {
    const auto before = ::signal(SIGCHLD, SIG_IGN);
    ProcessRequest request = shell("echo done");
    request.limit = 60s;
    const ProcessResult result = runProgram(request);
    ::signal(SIGCHLD, before);
    EXPECT_TRUE(result.succeeded());
    EXPECT_EQ(result.output, "done\n");
}

TEST(ProcessTest, HangingProgramIsKilledWithItsChildren) {
    const TemporaryFolder folder;
    const std::string mark = folder.path("late");
    ProcessRequest request = shell("(sleep 0.6; : > " + mark + ") & sleep 60");
    request.limit = 150ms;
    EXPECT_EQ(runProgram(request).end, End::timedOut);
    std::this_thread::sleep_for(700ms);
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(ProcessTest, RunIsCancelledFromAnotherThread) {
    std::atomic<bool> cancel = false;
    ProcessRequest request = shell("sleep 60");
    request.limit = 60s;
    request.cancel = &cancel;
    std::jthread other([&] {
        std::this_thread::sleep_for(50ms);
        cancel = true;
    });
    EXPECT_EQ(runProgram(request).end, End::cancelled);
}

} // namespace
} // namespace zdt::test
