#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <string_view>

namespace zdt {

enum class NinePatchOutcome {
    done,            ///< The output was written.
    alreadyCompiled, ///< The input is compiled as it is; nothing was written.
    missingTool,     ///< The tool isn't there or can't be run.
    timedOut,
    cancelled,
    refused,    ///< By the tool, whose reason says why.
    unreadable, ///< The input can't be read, its name isn't a nine-patch's, or the output's folder can't be made.
};

struct NinePatchResult {
    NinePatchOutcome outcome = NinePatchOutcome::unreadable;
    std::string reason; ///< In the tool's own words, one line; empty if it gave none.

    [[nodiscard]] bool succeeded() const {
        return outcome == NinePatchOutcome::done || outcome == NinePatchOutcome::alreadyCompiled;
    }
};

/// Compiles nine-patches: the black marks around a picture become a chunk of the file, as the phone wants it. May be
/// used by several threads at once.
class NinePatchCompiler {
public:
    static constexpr std::chrono::milliseconds timeLimit{10'000};

    /// With the tool of the program folder.
    NinePatchCompiler();
    explicit NinePatchCompiler(std::string tool, std::chrono::milliseconds limit = timeLimit);

    /// @param input a file whose name ends in ".9.png"
    /// @param output where the compiled picture goes, whose folder is made; it comes whole or not at all
    /// @param cancel ends the run soon after it is set; may be null
    [[nodiscard]] NinePatchResult compile(const std::string& input, const std::string& output,
                                          const std::atomic<bool>* cancel = nullptr) const;

private:
    std::string _tool;
    std::chrono::milliseconds _limit;
};

/// Whether a file is a PNG with a nine-patch chunk in front of its pixels.
[[nodiscard]] bool isCompiledNinePatch(const std::string& path);

/// What the tool said, as one line: without the file's name in front and with single blanks.
[[nodiscard]] std::string ninePatchReason(std::string_view errors);

} // namespace zdt
