#pragma once

#include "editor/problemRows.h"

namespace zdt {

/// What can be put back to mend a problem.
[[nodiscard]] ProblemRestore restoringOf(const ThemeResource& theme, const Problem& problem);

/// Puts it back and writes it. 0 or a return code; -1 where there is nothing to put back.
[[nodiscard]] int restoreProblem(ThemeResource& theme, const Problem& problem);

} // namespace zdt
