#include "shell/helperSweep.h"

#include "support/files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace zdt {

namespace {

/// The program that a process runs; empty for one that has ended or is another user's.
std::string programOf(const std::string& process) {
    std::vector<char> path(PATH_MAX);
    const ssize_t length = ::readlink(("/proc/" + process + "/exe").c_str(), path.data(), path.size());
    std::string program(path.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    constexpr std::string_view replaced = " (deleted)"; // Its file was replaced while it ran.
    if (program.ends_with(replaced))
        program.resize(program.size() - replaced.size());
    return program;
}

bool isProcess(const std::string& name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string resolved(const std::string& path) {
    const std::unique_ptr<char, void (*)(void*)> full(::realpath(path.c_str(), nullptr), &std::free);
    return full ? full.get() : std::string();
}

} // namespace

int endProcessesOf(const std::string& program) {
    struct stat status {};
    // A link shows where it leads to, and what runs there isn't ours alone.
    if (::lstat(program.c_str(), &status) != 0 || S_ISLNK(status.st_mode))
        return 0;
    const std::string full = resolved(program);
    if (full.empty())
        return 0;
    int ended = 0;
    for (const std::string& name : listDirectories("/proc/")) {
        if (!isProcess(name) || programOf(name) != full)
            continue;
        pid_t process = 0;
        std::from_chars(name.data(), name.data() + name.size(), process);
        if (process > 0 && process != ::getpid() && ::kill(process, SIGKILL) == 0)
            ++ended;
    }
    return ended;
}

std::string phoneHelper() {
    return programDirectory() + "tools/adb";
}

} // namespace zdt
