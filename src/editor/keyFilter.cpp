#include "editor/keyFilter.h"

#include <algorithm>

namespace zdt {

namespace {

bool hasAll(const KeyRow& row, const KeyWords& words, const QStringList& searched) {
    return std::all_of(searched.begin(), searched.end(), [&](const QString& word) {
        // A path tells nothing that the author knows.
        return words.searched.contains(word) ||
               (!isFile(row.kind) && QString::fromStdString(row.value()).contains(word, Qt::CaseInsensitive));
    });
}

} // namespace

std::vector<int> shownRows(const std::vector<KeyRow>& rows, const std::vector<KeyWords>& words, const KeyFilter& filter,
                           const std::function<bool(int)>& isChanged) {
    const QStringList searched = filter.text.toLower().split(' ', Qt::SkipEmptyParts);
    std::vector<int> shown;
    for (int index = 0; index < static_cast<int>(rows.size()); ++index) {
        const auto at = static_cast<std::size_t>(index);
        if ((filter.module.empty() || rows[at].module == filter.module) && hasAll(rows[at], words[at], searched) &&
            (!filter.changedOnly || isChanged(index)))
            shown.push_back(index);
    }
    std::stable_sort(shown.begin(), shown.end(), [&](int one, int other) {
        const std::string& left = rows[static_cast<std::size_t>(one)].name();
        const std::string& right = rows[static_cast<std::size_t>(other)].name();
        return filter.descending ? right < left : left < right;
    });
    return shown;
}

} // namespace zdt
