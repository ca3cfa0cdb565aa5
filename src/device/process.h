#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

/// Programs that are run for the author, by a list of arguments and with no shell between.
namespace zdt {

struct ProcessRequest {
    std::string program;                ///< Its path; it isn't searched for.
    std::vector<std::string> arguments; ///< Behind the program's own name.
    std::chrono::milliseconds limit{10'000};
    std::size_t maxOutput =
        std::size_t{64} * 1024;                ///< Bytes that are kept of each stream; the rest is read and dropped.
    const std::atomic<bool>* cancel = nullptr; ///< Ends the run soon after it is set; may be null.
};

struct ProcessResult {
    enum class End {
        notStarted, ///< There is no such program, or it can't be run; `code` is the system's error number.
        exited,     ///< By itself; `code` is what it gave.
        signalled,  ///< By a signal, whose number is `code`.
        timedOut,   ///< It was killed at the limit.
        cancelled,  ///< It was killed on request.
    };

    End end = End::notStarted;
    int code = 0;
    std::string output; ///< Of the standard output.
    std::string errors; ///< Of the standard error.

    [[nodiscard]] bool succeeded() const { return end == End::exited && code == 0; }
};

/// Runs a program to its end and reads what it writes; its input is empty. At the limit it is killed with all that it
/// started and didn't put into a group of its own. May be called on any thread, on several at once.
[[nodiscard]] ProcessResult runProgram(const ProcessRequest& request);

} // namespace zdt
