#include "editor/problemRows.h"

#include "editor/problemReasons.h"
#include "editor/problemRestore.h"
#include "model/fileResNode.h"
#include "model/returnCode.h"
#include "model/textResNode.h"
#include "modules/themeNode.h"
#include "store/keyText.h"
#include "support/files.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace zdt {

namespace {

constexpr std::string_view commonSetting = "commonSetting";

/// As in the navigation. What isn't named comes behind.
constexpr std::array<std::string_view, 12> groupOrder{"commonSetting", "launcher",  "contacts", "phone",
                                                      "recorder",      "telecom",   "mms",      "systemui",
                                                      "icons",         "wallpaper", "unlock",   "preview"};

bool isDescriptionField(const std::string& key) {
    return std::any_of(descriptionFields.begin(), descriptionFields.end(),
                       [&](const DescriptionField& field) { return field.key == key; });
}

ProblemSubject subjectOf(const Problem& problem, const ResNode* node) {
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
    row.group = groupOf(problem);
    row.reason = reasonOf(theme, problem);
    row.detail = detailOf(problem);
    if (theme && row.subject == ProblemSubject::pictures)
        row.picture = theme->tree().path() + problem.path;
    if (node && row.subject == ProblemSubject::colours)
        row.colour = node->value();
    if (theme)
        row.restore = restoringOf(*theme, problem);
    return row;
}

} // namespace

std::string moduleOf(const Problem& problem) {
    return isDescriptionField(problem.key) ? std::string() : problem.key.substr(0, problem.key.find('/'));
}

std::string groupOf(const Problem& problem) {
    const KeyPath path = splitKeyPath(problem.key);
    return path.size() > 1 && path[1] == commonSetting ? std::string(commonSetting) : moduleOf(problem);
}

std::vector<ProblemRow> problemRows(const ThemeResource* theme, const std::vector<Problem>& problems) {
    std::vector<ProblemRow> rows;
    std::map<std::string, std::size_t> firstOf;
    for (const Problem& problem : problems) {
        rows.push_back(rowOf(theme, problem));
        firstOf.emplace(rows.back().group, groupOrder.size() + firstOf.size());
    }
    const auto place = [&](const ProblemRow& row) {
        const auto* known = std::find(groupOrder.begin(), groupOrder.end(), row.group);
        return known == groupOrder.end() ? firstOf.at(row.group) : static_cast<std::size_t>(known - groupOrder.begin());
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
