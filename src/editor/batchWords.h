#pragma once

#include "editor/batchPlan.h"

#include <QString>

namespace zdt {

/// Why a file of a batch was refused, in a few words for its row.
[[nodiscard]] QString refusalWords(const BatchRefusal& refusal);

/// The same as a sentence that also says what to do.
[[nodiscard]] QString refusalReason(const BatchRefusal& refusal);

/// How many pictures were stored, and after failures how many were refused.
[[nodiscard]] QString situationText(const BatchResult& result);

/// The codes of all refusals, a line each.
[[nodiscard]] QString refusalList(const BatchResult& result);

} // namespace zdt
