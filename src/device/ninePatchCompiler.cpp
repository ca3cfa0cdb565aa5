#include "device/ninePatchCompiler.h"

#include "device/process.h"
#include "support/files.h"
#include "support/plainFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <utility>

namespace zdt {

namespace {

constexpr std::string_view ninePatchEnding = ".9.png";
constexpr std::string_view errorMark = "ERROR: ";
constexpr std::string_view malformedMark = " malformed.";
constexpr std::string_view spaces = " \t\r\n";
constexpr std::size_t maxReason = 200;

constexpr std::size_t signatureSize = 8;
constexpr std::size_t chunkHead = 8;
constexpr std::size_t chunkAround = 12; ///< Length, type and checksum.
/// Chunks in front of the pixels; no picture has so many.
constexpr int maxChunks = 1000;

std::string oneLine(std::string_view text) {
    std::string line;
    for (std::size_t at = text.find_first_not_of(spaces); at != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(spaces, at), text.size());
        line += (line.empty() ? "" : " ") + std::string(text.substr(at, end - at));
        at = text.find_first_not_of(spaces, end);
    }
    return line;
}

/// As it is given to a program: a name that begins with "-" is no option.
std::string argumentOf(const std::string& path) {
    return path.starts_with('-') ? "./" + path : path;
}

NinePatchOutcome outcomeOf(const ProcessResult& run) {
    switch (run.end) {
    case ProcessResult::End::notStarted:
        return NinePatchOutcome::missingTool;
    case ProcessResult::End::timedOut:
        return NinePatchOutcome::timedOut;
    case ProcessResult::End::cancelled:
        return NinePatchOutcome::cancelled;
    case ProcessResult::End::exited:
        return run.code == 0 ? NinePatchOutcome::done : NinePatchOutcome::refused;
    case ProcessResult::End::signalled:
        return NinePatchOutcome::refused;
    }
    return NinePatchOutcome::refused;
}

} // namespace

bool isCompiledNinePatch(const std::string& path) {
    const PlainFile file(path);
    std::array<char, signatureSize> signature{};
    if (!file.isOpen() || file.read(0, signature.data(), signatureSize) != signatureSize ||
        std::memcmp(signature.data(), "\x89PNG\r\n\x1a\n", signatureSize) != 0)
        return false;
    std::uint64_t at = signatureSize;
    for (int chunk = 0; chunk < maxChunks; ++chunk) {
        std::array<unsigned char, chunkHead> head{};
        if (file.read(at, head.data(), head.size()) != head.size())
            return false;
        const std::string_view type(reinterpret_cast<const char*>(head.data()) + 4, 4);
        if (type == "npTc" || type == "IDAT")
            return type == "npTc";
        const std::uint64_t length = (std::uint64_t{head[0]} << 24) | (std::uint64_t{head[1]} << 16) |
                                     (std::uint64_t{head[2]} << 8) | std::uint64_t{head[3]};
        at += length + chunkAround;
    }
    return false;
}

std::string ninePatchReason(std::string_view errors) {
    std::string_view rest = errors;
    if (const std::size_t mark = rest.find(errorMark); mark != std::string_view::npos)
        rest.remove_prefix(mark + errorMark.size());
    const std::size_t malformed = rest.find(malformedMark);
    if (malformed != std::string_view::npos && rest.substr(0, malformed).find('\n') == std::string_view::npos)
        rest.remove_prefix(malformed + malformedMark.size());
    std::string reason = oneLine(rest);
    if (reason.size() > maxReason)
        reason.resize(maxReason);
    return reason;
}

NinePatchCompiler::NinePatchCompiler()
    : NinePatchCompiler(programDirectory() + "tools/aapt") {}

NinePatchCompiler::NinePatchCompiler(std::string tool, std::chrono::milliseconds limit)
    : _tool(std::move(tool))
    , _limit(limit) {}

NinePatchResult NinePatchCompiler::compile(const std::string& input, const std::string& output,
                                           const std::atomic<bool>* cancel) const {
    // Under another name the tool makes an ordinary picture of it, and says nothing.
    if (!input.ends_with(ninePatchEnding) || !isPlainFile(input))
        return {};
    if (isCompiledNinePatch(input))
        return {NinePatchOutcome::alreadyCompiled, {}};
    if (!makeParent(output))
        return {};
    const std::string part = output + ".part";
    ProcessRequest request;
    request.program = _tool;
    // The tool's way for many pictures hides what failed, and never ends where the folder is missing.
    request.arguments = {"s", "-i", argumentOf(input), "-o", argumentOf(part)};
    request.limit = _limit;
    request.cancel = cancel;
    const ProcessResult run = runProgram(request);
    NinePatchResult result{outcomeOf(run), {}};
    if (result.outcome == NinePatchOutcome::refused)
        result.reason = ninePatchReason(run.errors);
    if (result.outcome == NinePatchOutcome::done && !isPlainFile(part))
        result = {NinePatchOutcome::refused, ninePatchReason(run.errors)};
    if (result.outcome == NinePatchOutcome::done && ::rename(part.c_str(), output.c_str()) != 0)
        result.outcome = NinePatchOutcome::unreadable;
    if (!result.succeeded())
        static_cast<void>(removeFile(part));
    return result;
}

} // namespace zdt
