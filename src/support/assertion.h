#pragma once

namespace zdt {

/// Prints the condition, the name of the source and the line to standard error and aborts.
[[noreturn]] void assertionFailed(const char* condition, const char* source, int line);

} // namespace zdt

/// Guards against a programming error, in release builds too. Nothing that can be typed, dropped, opened or imported
/// may reach a failing one: that is a result, never an assertion. `source` is the name of the source file without
/// its extension.
#define ZDT_ASSERT(condition, source)                                                                                  \
    ((condition) ? static_cast<void>(0) : ::zdt::assertionFailed(#condition, source, __LINE__))
