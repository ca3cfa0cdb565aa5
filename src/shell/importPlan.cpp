#include "shell/importPlan.h"

#include "shell/themeList.h"
#include "support/files.h"
#include "support/text.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr std::string_view specialSign = "kWarn_newtheme_special_sign";
constexpr std::string_view longName = "kNew_name_long";
constexpr std::string_view alreadyThere = "kWarn_File_hadExist";
constexpr std::string_view imported = "kWarn_Import_theme_sucess";
constexpr std::string_view notImported = "kWarn_import_correct_theme_config";

} // namespace

ImportPlan planImport(const std::string& package, const std::vector<std::string>& themes) {
    const std::string name = stem(package);
    switch (checkThemeName(name, themes)) {
    case NameProblem::none:
        return {ImportPlan::Step::import, {}, name};
    case NameProblem::taken:
        return {ImportPlan::Step::ask, alreadyThere, name};
    case NameProblem::empty:
    case NameProblem::forbiddenSign:
    case NameProblem::onlyDots:
        break;
    case NameProblem::tooLong:
        return {ImportPlan::Step::refuse, longName, name};
    }
    return {ImportPlan::Step::refuse, specialSign, name};
}

std::string_view importResultKey(bool succeeded) {
    return succeeded ? imported : notImported;
}

std::vector<std::string> packagesAmong(const std::vector<std::string>& paths) {
    std::vector<std::string> packages;
    for (const std::string& path : paths) {
        const bool isNew = std::find(packages.begin(), packages.end(), path) == packages.end();
        if (isNew && toLowerAscii(extension(path)) == ".zdt" && isPlainFile(path))
            packages.push_back(path);
    }
    return packages;
}

} // namespace zdt
