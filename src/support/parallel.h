#pragma once

#include <cstddef>
#include <functional>

namespace zdt {

/// How much of a long work is done, from 0 to 1. Called on the thread that started the work; may be empty.
using Progress = std::function<void(double)>;

/// Calls `work` with each index below `count`, on all cores. `work` must not throw, and its calls must not touch what
/// other calls touch; a false from one lets the others that have begun come to their end and begins no more.
/// `progress` hears each index that is done. True if every call gave true.
[[nodiscard]] bool parallelFor(std::size_t count, const std::function<bool(std::size_t)>& work,
                               const Progress& progress = {});

} // namespace zdt
