#pragma once

#include <cstddef>
#include <ctime>
#include <span>

namespace zdt {

/// From now on a crash writes the signal and the stack to a file in the working directory, named by the local time,
/// such as "2019.10.15_09.05.01.dmp", before it ends the process as it would have. The handler calls nothing but what a
/// signal may interrupt.
void installCrashHandler();

inline constexpr std::size_t dumpNameBytes = 32;

/// The dump's name for a moment. A signal handler can't ask for the local time, so that it is computed from the
/// distance to UTC.
/// @param offset seconds that the local time is ahead of UTC
void writeDumpName(std::span<char, dumpNameBytes> name, std::time_t moment, long offset);

} // namespace zdt
