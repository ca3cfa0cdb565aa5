#pragma once

#include "device/ninePatchCompiler.h"
#include "editor/batchPlan.h"
#include "support/parallel.h"

#include <atomic>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zdt {

/// What a compiling works with.
struct BatchCompiling {
    const NinePatchCompiler& compiler;
    std::string folder; ///< Where compiled files go; ends in "/".
    const std::atomic<bool>* cancel = nullptr;
    std::function<void(std::size_t run)> runEnded; ///< On the worker's thread, once for each run that was begun.
};

/// The files of a batch that have to be compiled, by their places in it.
[[nodiscard]] std::vector<std::size_t> ninePatchesOf(const std::vector<BatchFile>& files);

/// Compiles nine-patches in runs of five, on all cores. A worker touches the files of its own run alone. Where the tool
/// hangs again and again and nothing comes of it, the rest isn't tried.
/// @param patches as `ninePatchesOf` gives them
/// @return false if it was cancelled
[[nodiscard]] bool compileBatch(std::vector<BatchFile>& files, const std::vector<std::size_t>& patches,
                                const BatchCompiling& with, const Progress& progress = {});

} // namespace zdt
