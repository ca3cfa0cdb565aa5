#pragma once

#include "editor/keyRows.h"
#include "editor/keyWords.h"

#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace zdt {

/// What the full list shows, and in which order.
struct KeyFilter {
    std::string module; ///< Empty for all.
    QString text;       ///< Words with blanks between them, all of which a row must have somewhere.
    bool changedOnly = false;
    bool descending = false; ///< By their names.
};

/// The places in `rows` of those that are shown, sorted. `words` has an entry for each row.
/// @param isChanged tells whether a row differs from its default
[[nodiscard]] std::vector<int> shownRows(const std::vector<KeyRow>& rows, const std::vector<KeyWords>& words,
                                         const KeyFilter& filter, const std::function<bool(int)>& isChanged);

} // namespace zdt
