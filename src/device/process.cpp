#include "device/process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <optional>
#include <thread>

namespace zdt {

namespace {

using Clock = std::chrono::steady_clock;

/// How long a wait for output may take before the limit and the cancelling are looked at again, in milliseconds.
constexpr int waitStep = 20;
/// A program that closed its streams ends a moment later.
constexpr std::chrono::milliseconds endStep{1};

/// The reading end of a pipe that a program writes to. Both ends are closed in programs that other threads start.
class Pipe {
public:
    Pipe() {
        if (::pipe2(_ends.data(), O_CLOEXEC) != 0)
            _ends = {-1, -1};
        else
            ::fcntl(_ends[0], F_SETFL, O_NONBLOCK);
    }
    ~Pipe() {
        closeEnd(0);
        closeEnd(1);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    [[nodiscard]] bool isOpen() const { return _ends[0] >= 0; }
    [[nodiscard]] int reader() const { return _ends[0]; }
    [[nodiscard]] int writer() const { return _ends[1]; }
    void closeWriter() { closeEnd(1); }

    /// Reads what is there, and closes at the end.
    void drain(std::string& into, std::size_t most) {
        std::array<char, 4096> chunk{};
        while (isOpen()) {
            const ssize_t count = ::read(_ends[0], chunk.data(), chunk.size());
            if (count > 0)
                into.append(chunk.data(), std::min(static_cast<std::size_t>(count), most - into.size()));
            else if (count == 0 || (errno != EAGAIN && errno != EINTR))
                closeEnd(0);
            else if (errno == EAGAIN)
                return;
        }
    }

private:
    void closeEnd(std::size_t end) {
        if (_ends[end] >= 0)
            ::close(_ends[end]);
        _ends[end] = -1;
    }

    std::array<int, 2> _ends{-1, -1};
};

/// What a program is started with: its streams, a group of its own, and signals as they are in a fresh process.
class StartSettings {
public:
    StartSettings(const Pipe& output, const Pipe& errors) {
        ::posix_spawn_file_actions_init(&_actions);
        ::posix_spawn_file_actions_addopen(&_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&_actions, output.writer(), STDOUT_FILENO);
        ::posix_spawn_file_actions_adddup2(&_actions, errors.writer(), STDERR_FILENO);
        ::posix_spawnattr_init(&_attributes);
        sigset_t none;
        sigset_t pipes;
        ::sigemptyset(&none);
        ::sigemptyset(&pipes);
        ::sigaddset(&pipes, SIGPIPE);
        ::posix_spawnattr_setsigmask(&_attributes, &none);
        ::posix_spawnattr_setsigdefault(&_attributes, &pipes);
        ::posix_spawnattr_setpgroup(&_attributes, 0);
        ::posix_spawnattr_setflags(&_attributes,
                                   POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~StartSettings() {
        ::posix_spawnattr_destroy(&_attributes);
        ::posix_spawn_file_actions_destroy(&_actions);
    }
    StartSettings(const StartSettings&) = delete;
    StartSettings& operator=(const StartSettings&) = delete;

    /// 0, or the system's error number.
    [[nodiscard]] int start(const ProcessRequest& request, pid_t& process) const {
        std::vector<std::string> texts{request.program};
        texts.insert(texts.end(), request.arguments.begin(), request.arguments.end());
        std::vector<char*> arguments;
        for (std::string& text : texts)
            arguments.push_back(text.data());
        arguments.push_back(nullptr);
        return ::posix_spawn(&process, request.program.c_str(), &_actions, &_attributes, arguments.data(), environ);
    }

private:
    posix_spawn_file_actions_t _actions;
    posix_spawnattr_t _attributes;
};

/// A running program that is waited for once.
class Child {
public:
    explicit Child(pid_t process)
        : _process(process) {}

    [[nodiscard]] bool hasEnded() {
        int status = 0;
        const pid_t ended = _status ? 0 : ::waitpid(_process, &status, WNOHANG);
        // Where ended programs aren't kept for their parent, nobody knows how they ended.
        if (ended == _process || (ended < 0 && errno == ECHILD))
            _status = status;
        return _status.has_value();
    }

    void kill() {
        if (_status)
            return;
        ::kill(-_process, SIGKILL);
        int status = 0;
        while (::waitpid(_process, &status, 0) < 0 && errno == EINTR) {
        }
        _status = status;
    }

    void tellEnd(ProcessResult& result) const {
        const int status = _status.value_or(0);
        const bool isSignal = WIFSIGNALED(status);
        result.end = isSignal ? ProcessResult::End::signalled : ProcessResult::End::exited;
        result.code = isSignal ? WTERMSIG(status) : WEXITSTATUS(status);
    }

private:
    pid_t _process;
    std::optional<int> _status;
};

void waitForOutput(const Pipe& output, const Pipe& errors) {
    if (!output.isOpen() && !errors.isOpen()) {
        std::this_thread::sleep_for(endStep);
        return;
    }
    std::array<pollfd, 2> waits{pollfd{output.reader(), POLLIN, 0}, pollfd{errors.reader(), POLLIN, 0}};
    ::poll(waits.data(), waits.size(), waitStep);
}

} // namespace

ProcessResult runProgram(const ProcessRequest& request) {
    ProcessResult result;
    Pipe output;
    Pipe errors;
    if (!output.isOpen() || !errors.isOpen()) {
        result.code = EMFILE;
        return result;
    }
    pid_t process = 0;
    result.code = StartSettings(output, errors).start(request, process);
    if (result.code != 0)
        return result;
    output.closeWriter();
    errors.closeWriter();
    Child child(process);
    const Clock::time_point end = Clock::now() + request.limit;
    const auto isCancelled = [&] { return request.cancel && *request.cancel; };
    while (!child.hasEnded() && !isCancelled() && Clock::now() < end) {
        waitForOutput(output, errors);
        output.drain(result.output, request.maxOutput);
        errors.drain(result.errors, request.maxOutput);
    }
    // What it started may hold the pipes open: only what is there now is read.
    output.drain(result.output, request.maxOutput);
    errors.drain(result.errors, request.maxOutput);
    if (child.hasEnded()) {
        child.tellEnd(result);
        return result;
    }
    child.kill();
    result.end = isCancelled() ? ProcessResult::End::cancelled : ProcessResult::End::timedOut;
    return result;
}

} // namespace zdt
