#include "editor/exportForm.h"

#include "support/assertion.h"
#include "support/text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zdt {

namespace {

constexpr std::size_t longestEnglishName = 32;
constexpr std::size_t longestChineseName = 16;
constexpr unsigned generation9 = 2;

constexpr std::array<ExportTarget, 3> targets{{{"OVUI5.0", "5.0.", "1", "kEmport_theme_hint"},
                                               {"OVUI8.0", "8.0.", "1", "kEmport_theme_hint"},
                                               {"OVUI9.1", "9.0.", "100", "kEmport_theme_hint_nine"}}};

/// Neither name may hold one of these. An English one can hold a full stop inside, a Chinese one a colon.
constexpr std::u32string_view forbiddenInBoth = U"~!@#$%^&*()|<>?/￥》《。、，……+=\"“”'{}[]\\！￥…（）？，。、；‘“：·";
constexpr char32_t forbiddenInEnglish = U':';
constexpr char32_t forbiddenInChinese = U'.';
/// From this value on, no character is one of an English name.
constexpr char32_t firstForeign = 129;

bool holdsForbidden(std::u32string_view name, char32_t ownForbidden) {
    return name.find_first_of(forbiddenInBoth) != std::u32string_view::npos ||
           name.find(ownForbidden) != std::u32string_view::npos;
}

/// The number that a text of digits alone says; nothing for any other.
std::optional<int> numberOf(const std::string& text) {
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == text.data() + text.size() && !text.starts_with('-');
    return isWhole ? std::optional<int>(number) : std::nullopt;
}

bool liesWithin(const std::string& version, int first, int last) {
    const std::optional<int> number = numberOf(version);
    return number && *number >= first && *number <= last;
}

bool isValidForNine(const std::string& version) {
    constexpr int first = 100;
    constexpr int last = 1000; // One more than leaving the field allows.
    return liesWithin(version, first, last);
}

bool holds(const std::string& name, std::string_view tag) {
    return name.find(tag) != std::string::npos;
}

} // namespace

const ExportTarget& exportTarget(unsigned generation) {
    ZDT_ASSERT(generation < targets.size(), "exportForm");
    return targets[generation];
}

std::string_view checkEnglishName(const std::string& text) {
    const std::u32string name = toCodePoints(text);
    if (name.empty())
        return exportMessage::emptyEnglishName;
    if (name.front() == U'.' || name.back() == U'.')
        return exportMessage::dotAtTheEnds;
    const bool isForeign = std::any_of(name.begin(), name.end(), [](char32_t c) { return c >= firstForeign; });
    if (isForeign || holdsForbidden(name, forbiddenInEnglish))
        return exportMessage::forbiddenSign;
    return name.size() > longestEnglishName ? exportMessage::longEnglishName : std::string_view();
}

std::string_view checkChineseName(const std::string& text) {
    const std::u32string name = toCodePoints(text);
    if (holdsForbidden(name, forbiddenInChinese))
        return exportMessage::forbiddenChineseSign;
    return name.size() > longestChineseName ? exportMessage::longChineseName : std::string_view();
}

std::vector<FormProblem> exportProblems(const ExportForm& form) {
    std::vector<FormProblem> problems;
    const auto add = [&](ExportField field, std::string_view message) {
        if (!message.empty())
            problems.push_back({field, message});
    };
    const auto addIf = [&](bool isWrong, ExportField field, std::string_view message) {
        add(field, isWrong ? message : std::string_view());
    };
    const bool isNinth = form.generation == generation9;
    addIf(isNinth && !isValidForNine(form.themeVersion), ExportField::themeVersion, exportMessage::badThemeVersion);
    add(ExportField::englishName, checkEnglishName(form.englishName));
    addIf(form.chineseName.empty(), ExportField::chineseName, exportMessage::emptyChineseName);
    addIf(form.developer.empty(), ExportField::developer, exportMessage::emptyDeveloper);
    addIf(form.designer.empty(), ExportField::designer, exportMessage::emptyDesigner);
    add(ExportField::chineseName, checkChineseName(form.chineseName));
    addIf(!form.generation, ExportField::target, exportMessage::incomplete);
    addIf(!isNinth && form.themeVersion.empty(), ExportField::themeVersion, exportMessage::incomplete);
    addIf(toCodePoints(form.summary).size() > longestSummary, ExportField::summary, exportMessage::longSummary);
    return problems;
}

std::string_view shortMessage(const FormProblem& problem) {
    struct Short {
        std::string_view message;
        std::string_view key;
    };
    constexpr std::array<Short, 8> shorts{{
        {exportMessage::badThemeVersion, "kExport_short_version_nine"},
        {exportMessage::dotAtTheEnds, "kExport_short_dot"},
        {exportMessage::forbiddenSign, "kExport_short_sign"},
        {exportMessage::longEnglishName, "kExport_short_long_EN"},
        {exportMessage::forbiddenChineseSign, "kExport_short_sign_CH"},
        {exportMessage::longChineseName, "kExport_short_long_CH"},
        {exportMessage::longSummary, "kExport_short_summary"},
        {exportMessage::incomplete, "kExport_short_version"},
    }};
    if (problem.field == ExportField::target)
        return "kExport_short_target";
    const auto* found =
        std::find_if(shorts.begin(), shorts.end(), [&](const Short& each) { return each.message == problem.message; });
    return found == shorts.end() ? "kExport_short_empty" : found->key;
}

std::string_view checkExportForm(const ExportForm& form) {
    const std::vector<FormProblem> problems = exportProblems(form);
    return problems.empty() ? std::string_view() : problems.front().message;
}

std::string fullVersion(const ExportForm& form) {
    return form.generation ? std::string(exportTarget(*form.generation).versionPrefix) + form.themeVersion
                           : form.themeVersion;
}

std::string themeVersionOf(const std::string& fullVersion) {
    const std::size_t first = fullVersion.find('.');
    const std::size_t second = first == std::string::npos ? first : fullVersion.find('.', first + 1);
    return second == std::string::npos ? std::string() : fullVersion.substr(second + 1);
}

std::string versionWhenLeft(const std::string& version, unsigned generation) {
    constexpr int first = 100;
    constexpr int last = 999;
    const bool stays = generation != generation9 || liesWithin(version, first, last);
    return stays ? version : std::string(exportTarget(generation9).defaultVersion);
}

std::string versionForTarget(const std::string& version, unsigned generation) {
    const bool isValid = generation == generation9 ? isValidForNine(version) : numberOf(version).has_value();
    return isValid ? version : std::string(exportTarget(generation).defaultVersion);
}

const std::vector<PreviewGroup>& previewGroups() {
    static const std::vector<PreviewGroup> groups{
        {"preview_unlock", "_unlock_", "kMenu_unlock"}, {"preview_widget", "_widget_", "kMenu_widget"},
        {"preview_icons", "_icons_", "kMenu_icons"},    {"preview_contacts", "_contacts_", "kMenu_contacts"},
        {"preview_mms", "_mms_", "kMenu_mms"},          {"preview_systemui", "_systemui_", "kMenu_systemui"}};
    return groups;
}

std::vector<std::string> previewsOf(const PreviewGroup& group, const std::vector<std::string>& names,
                                    unsigned generation) {
    std::vector<std::string> shown = names;
    std::erase_if(shown, [&](const std::string& name) {
        const bool isLater = holds(name, "_contacts_1.") || holds(name, "_contacts_2.");
        return !holds(name, group.tag) || (isLater && generation < generation9);
    });
    return shown;
}

std::vector<std::string> previewsOfNoGroup(const std::vector<std::string>& names) {
    std::vector<std::string> shown = names;
    std::erase_if(shown, [](const std::string& name) {
        return std::any_of(previewGroups().begin(), previewGroups().end(),
                           [&](const PreviewGroup& group) { return holds(name, group.tag); });
    });
    return shown;
}

} // namespace zdt
