#include "common/fixtures.h"
#include "shell/crashHandler.h"
#include "shell/firstWindow.h"
#include "shell/helperSweep.h"
#include "shell/languageChoice.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>

namespace zdt {
namespace {

using test::namesIn;
using test::readFile;
using test::TemporaryFolder;

TEST(FirstWindow, FitsTheScreenBySteps) {
    const struct {
        WindowSize screen;
        WindowSize window;
    } cases[] = {{{1366, 768}, {1280, 768}}, {{1920, 1080}, {1280, 775}}, {{1024, 700}, {1024, 740}},
                 {{1100, 900}, {1100, 775}}, {{800, 600}, {1024, 740}},   {{1025, 767}, {1025, 740}},
                 {{1280, 769}, {1280, 775}}, {{0, 0}, {1024, 740}}};
    for (const auto& [screen, window] : cases)
        EXPECT_EQ(firstWindowSize(screen), window) << screen.width << " x " << screen.height;
}

TEST(CrashDump, IsNamedByTheLocalTime) {
    const struct {
        std::time_t moment;
        long offset;
        const char* name;
    } cases[] = {{1571101501, 8 * 3600, "2019.10.15_09.05.01.dmp"}, {0, 0, "1970.01.01_00.00.00.dmp"},
                 {951782399, 0, "2000.02.28_23.59.59.dmp"},         {951782400, 0, "2000.02.29_00.00.00.dmp"},
                 {1709164800, -3600, "2024.02.28_23.00.00.dmp"},    {4107542400, 0, "2100.03.01_00.00.00.dmp"}};
    for (const auto& [moment, offset, expected] : cases) {
        std::array<char, dumpNameBytes> name{};
        writeDumpName(name, moment, offset);
        EXPECT_STREQ(name.data(), expected);
    }
}

TEST(CrashDump, HoldsTheSignalAndTheProcessStillDiesOfIt) {
    const TemporaryFolder folder;
    for (const int signal : {SIGSEGV, SIGABRT}) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            if (::chdir(folder.path().c_str()) == 0) {
                installCrashHandler();
                ::raise(signal);
            }
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal);
        const std::vector<std::string> dumps = namesIn(folder.path());
        ASSERT_EQ(dumps.size(), 1U);
        EXPECT_EQ(readFile(folder.path(dumps[0]))
                      .find("signal " + std::string(signal < 10 ? "0" : "") + std::to_string(signal) + "\n"),
                  0U);
        ASSERT_TRUE(removeFile(folder.path(dumps[0])));
    }
}

/// A process of a program, ended at the latest with the test.
class Running {
public:
    explicit Running(const std::string& program) {
        _process = ::fork();
        if (_process == 0) {
            ::execl(program.c_str(), "sleep", "60", nullptr);
            ::_exit(1);
        }
        for (int tries = 0; tries < 500 && fileName(programPath()) != fileName(program); ++tries)
            ::usleep(1000); // until it runs
    }
    ~Running() {
        if (_process > 0) {
            ::kill(_process, SIGKILL);
            ::waitpid(_process, nullptr, 0);
        }
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    bool wasKilled() {
        int status = 0;
        if (::waitpid(_process, &status, 0) != _process)
            return false;
        _process = 0;
        return WIFSIGNALED(status);
    }
    [[nodiscard]] bool isAlive() const { return ::waitpid(_process, nullptr, WNOHANG) == 0; }

private:
    [[nodiscard]] std::string programPath() const {
        std::array<char, 4096> path{};
        const std::string link = "/proc/" + std::to_string(_process) + "/exe";
        return ::readlink(link.c_str(), path.data(), path.size() - 1) > 0 ? path.data() : "";
    }

    pid_t _process = 0;
};

TEST(HelperSweep, EndsOurOwnHelperAndNoOther) {
    const TemporaryFolder folder;
    const std::string ours = folder.path("tools/adb");
    const std::string others = folder.path("other/adb");
    for (const std::string& program : {ours, others}) {
        ASSERT_TRUE(copyFile("/usr/bin/sleep", program));
        ASSERT_EQ(::chmod(program.c_str(), 0755), 0);
    }
    Running one(ours);
    Running two(ours);
    const Running foreign(others);
    EXPECT_EQ(endProcessesOf(ours), 2);
    EXPECT_TRUE(one.wasKilled());
    EXPECT_TRUE(two.wasKilled());
    EXPECT_TRUE(foreign.isAlive());
    EXPECT_EQ(endProcessesOf(ours), 0);
    EXPECT_EQ(endProcessesOf(folder.path("none")), 0);
}

TEST(LanguageChoice, FollowsTheSettingAndThenTheSystem) {
    const std::string head = "[Special_for_init_select_language]\n";
    const std::string key = "kSpecial_for_init_select_language";
    const struct {
        std::string config;
        bool chineseSystem;
        std::optional<int> language;
    } cases[] = {{"", true, 0},
                 {"", false, 1},
                 {head + key + "=0\n", true, 0},
                 {head + key + "=\r\n", false, 1},
                 {head + key + "=1", false, 0},
                 {head + " " + key + " = 2 \r\n", true, 1},
                 {head + key + "=3\n", true, std::nullopt},
                 {"[Other]\n" + key + "=1\n", false, 1},
                 {key + "=1\n", false, 1},
                 {"noise\n[Other]\na=b\n" + head + "a=b\n" + key + "=1\n", false, 0}};
    for (const auto& [config, chineseSystem, language] : cases)
        EXPECT_EQ(languageAtStart(languageSetting(config), chineseSystem), language) << config;
    for (const char* locale : {"zh_CN.UTF-8", "zh_CN", "zh_SG.GB2312", "zh_Hans_CN", "zh_CN@pinyin"})
        EXPECT_TRUE(isSimplifiedChinese(locale)) << locale;
    for (const char* locale : {"zh_TW.UTF-8", "zh_HK", "zh", "en_US.UTF-8", "C", ""})
        EXPECT_FALSE(isSimplifiedChinese(locale)) << locale;
}

TEST(LanguageChoice, IsWrittenInItsPlaceAndKeepsTheRest) {
    const std::string section = "[Special_for_init_select_language]\nkSpecial_for_init_select_language=";
    EXPECT_EQ(withLanguage("", 0), section + "1\n");
    EXPECT_EQ(withLanguage("[a]\nb=c", 1), "[a]\nb=c\n" + section + "2\n");
    EXPECT_EQ(withLanguage("# x\n" + section + "1\n[a]\nb=c\n", 1), "# x\n" + section + "2\n[a]\nb=c\n");
    EXPECT_EQ(languageSetting(withLanguage(section + "\n", 0)), "1");
}

} // namespace
} // namespace zdt
