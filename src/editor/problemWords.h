#pragma once

#include "editor/problemRows.h"

#include <QString>

#include <cstddef>
#include <vector>

/// What the problem list says, in the language of this moment.
namespace zdt {

/// The sentences of a reason, one behind the other.
[[nodiscard]] QString reasonText(const std::vector<Sentence>& reason);

/// Where a problem lies, as "Contacts, Pictures".
[[nodiscard]] QString placeText(const ProblemRow& row);

[[nodiscard]] QString subjectText(ProblemSubject subject);

/// "9 problems", or that there are none.
[[nodiscard]] QString countText(std::size_t count);

} // namespace zdt
