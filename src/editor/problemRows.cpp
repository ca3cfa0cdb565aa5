#include "editor/problemRows.h"

#include "editor/batchPlan.h"
#include "editor/moduleWords.h"
#include "editor/problemReasons.h"
#include "editor/problemRestore.h"
#include "model/fileResNode.h"
#include "model/returnCode.h"
#include "model/textResNode.h"
#include "modules/themeNode.h"
#include "store/keyText.h"
#include "support/files.h"

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

ProblemSubject subjectOf(const Problem& problem, const ResNode* node) {
    if (batchReasonNumber(problem.code) != 0)
        return ProblemSubject::pictures;
    if ((fileKindOf(problem.path) & (fileKind::png | fileKind::jpeg)) != 0)
        return ProblemSubject::pictures;
    if (problem.path.starts_with("unlock/layout"))
        return ProblemSubject::layout;
    if (!problem.path.empty())
        return ProblemSubject::files;
    return dynamic_cast<const ColorTextResNode*>(node) ? ProblemSubject::colours : ProblemSubject::texts;
}

/// The file's name, with its folder where the name says nothing; of a value, its key's last name.
std::string detailOf(const Problem& problem) {
    const std::string& text = problem.path.empty() ? problem.key : problem.path;
    if (text.ends_with(".xml") || fileName(text).empty())
        return text;
    return fileName(text);
}

ProblemRow rowOf(const ThemeResource* theme, const Problem& problem) {
    const ResNode* node = theme ? nodeOf(*theme, problem) : nullptr;
    ProblemRow row;
    row.problem = problem;
    row.subject = subjectOf(problem, node);
    row.group = groupOf(problem.key);
    row.reason = reasonOf(theme, problem);
    row.detail = detailOf(problem);
    if (theme && row.subject == ProblemSubject::pictures && !problem.path.empty())
        row.picture = theme->tree().path() + problem.path;
    if (node && row.subject == ProblemSubject::colours)
        row.colour = node->value();
    if (theme)
        row.restore = restoringOf(*theme, problem);
    return row;
}

} // namespace

std::vector<ProblemRow> problemRows(const ThemeResource* theme, const std::vector<Problem>& problems) {
    std::vector<ProblemRow> rows;
    std::map<std::string, std::size_t> firstOf;
    for (const Problem& problem : problems) {
        rows.push_back(rowOf(theme, problem));
        firstOf.emplace(rows.back().group, firstOf.size());
    }
    // Groups that the navigation doesn't have stand behind, as they came.
    const auto place = [&](const ProblemRow& row) {
        return std::pair(placeOfModule(row.group), firstOf.at(row.group));
    };
    std::stable_sort(rows.begin(), rows.end(),
                     [&](const ProblemRow& one, const ProblemRow& other) { return place(one) < place(other); });
    return rows;
}

std::map<std::string, int> countByGroup(const std::vector<ProblemRow>& rows) {
    std::map<std::string, int> counts;
    for (const ProblemRow& row : rows)
        ++counts[row.group];
    return counts;
}

ResNode* nodeOf(const ThemeResource& theme, const Problem& problem) {
    return problem.key.empty() ? nullptr : findKey(theme, problem.key).node;
}

} // namespace zdt
