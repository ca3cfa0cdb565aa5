#include "editor/batchCompile.h"

#include "support/text.h"

#include <algorithm>

namespace zdt {

namespace {

/// After so many timeouts with no success a tool is taken for one that hangs.
constexpr int maxTimeouts = 3;

/// How the tool has done so far, for all workers.
struct ToolRecord {
    std::atomic<int> timeouts = 0;
    std::atomic<bool> works = false;

    [[nodiscard]] bool hangs() const { return !works && timeouts >= maxTimeouts; }
};

void compileOne(BatchFile& file, const std::string& output, const BatchCompiling& with, ToolRecord& record) {
    const NinePatchResult result = with.compiler.compile(file.path, output, with.cancel);
    switch (result.outcome) {
    case NinePatchOutcome::done:
        file.file = output;
        record.works = true;
        break;
    case NinePatchOutcome::alreadyCompiled:
    case NinePatchOutcome::cancelled:
        break;
    case NinePatchOutcome::timedOut:
        ++record.timeouts;
        [[fallthrough]];
    case NinePatchOutcome::missingTool:
        file.state = BatchState::toolFailed;
        break;
    case NinePatchOutcome::refused:
        file.state = BatchState::compileRefused;
        file.reason = result.reason;
        record.works = true;
        break;
    case NinePatchOutcome::unreadable:
        file.state = BatchState::unreadable;
        break;
    }
}

} // namespace

std::vector<std::size_t> ninePatchesOf(const std::vector<BatchFile>& files) {
    std::vector<std::size_t> patches;
    for (std::size_t at = 0; at < files.size(); ++at) {
        if (files[at].isFit() && toLowerAscii(files[at].name).ends_with(".9.png"))
            patches.push_back(at);
    }
    return patches;
}

bool compileBatch(std::vector<BatchFile>& files, const std::vector<std::size_t>& patches, const BatchCompiling& with,
                  const Progress& progress) {
    if (patches.empty())
        return true;
    ToolRecord record;
    const auto isCancelled = [&] { return with.cancel && *with.cancel; };
    const auto work = [&](std::size_t run) {
        const std::size_t end = std::min(patches.size(), (run + 1) * filesPerRun);
        for (std::size_t at = run * filesPerRun; at < end && !isCancelled(); ++at) {
            BatchFile& file = files[patches[at]];
            if (record.hangs())
                file.state = BatchState::toolFailed;
            else
                compileOne(file, with.folder + std::to_string(patches[at]) + ".9.png", with, record);
        }
        if (with.runEnded)
            with.runEnded(run);
        return !isCancelled();
    };
    return parallelFor(workerCount(patches.size()), work, progress);
}

} // namespace zdt
