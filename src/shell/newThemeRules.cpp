#include "shell/newThemeRules.h"

#include "editor/exportForm.h"
#include "support/text.h"

#include <algorithm>

namespace zdt {

std::string freeThemeName(std::string_view name, const std::vector<std::string>& taken) {
    const auto isTaken = [&](const std::string& each) {
        return std::any_of(taken.begin(), taken.end(),
                           [&](const std::string& other) { return toLowerAscii(other) == toLowerAscii(each); });
    };
    std::string free(name);
    for (int number = 2; isTaken(free); ++number)
        free = std::string(name) + " " + std::to_string(number);
    return free;
}

std::string_view newNameProblem(const std::string& name, const std::vector<std::string>& taken) {
    switch (checkThemeName(name, taken)) {
    case NameProblem::none:
        break;
    case NameProblem::empty:
        return "kNew_name_empty";
    case NameProblem::taken:
        return "kNew_name_taken";
    case NameProblem::forbiddenSign:
        return "kNew_name_sign";
    case NameProblem::onlyDots:
        return "kNew_name_dots";
    case NameProblem::tooLong:
        return "kNew_name_long";
    }
    const std::string_view problem = checkEnglishName(name);
    return problem.empty() ? std::string_view() : shortMessage({ExportField::englishName, problem});
}

std::string_view chineseNameKey(std::string_view exportProblem) {
    if (exportProblem.empty())
        return "kNew_chinese_hint";
    return exportProblem == exportMessage::longChineseName ? "kNew_chinese_long" : "kNew_chinese_sign";
}

} // namespace zdt
