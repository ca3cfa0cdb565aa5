#pragma once

#include "editor/problemRows.h"
#include "kit/icons.h"

#include <QString>

#include <cstddef>
#include <string>
#include <vector>

/// What the problem list says, in the language of this moment.
namespace zdt {

/// The sentences of a reason, one behind the other.
[[nodiscard]] QString reasonText(const std::vector<Sentence>& reason);

/// Where a problem lies, as "Contacts, Pictures".
[[nodiscard]] QString placeText(const ProblemRow& row);

/// The word of a group, and the icon that it has in the navigation.
[[nodiscard]] QString groupText(const std::string& group);
[[nodiscard]] Icon groupIcon(const std::string& group);

[[nodiscard]] QString subjectText(ProblemSubject subject);
[[nodiscard]] QString kindText(ProblemKind kind);

/// "9 problems", or that there are none.
[[nodiscard]] QString countText(std::size_t count);

} // namespace zdt
