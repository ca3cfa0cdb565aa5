#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The rules of the export page: what a package says of itself, told without a widget.
namespace zdt {

/// The keys of the page's messages.
namespace exportMessage {
inline constexpr std::string_view badThemeVersion = "kWarn_theme_version";
inline constexpr std::string_view emptyEnglishName = "kWarn_theme_name_canot_empty_EN";
inline constexpr std::string_view emptyChineseName = "kWarn_theme_name_canot_empty_CH";
inline constexpr std::string_view emptyDeveloper = "kWarn_theme_name_canot_empty_DEV";
inline constexpr std::string_view emptyDesigner = "kWarn_theme_name_canot_empty_DES";
inline constexpr std::string_view dotAtTheEnds = "kWarn_newtheme_special_char";
inline constexpr std::string_view forbiddenSign = "kWarn_newtheme_special_sign";
inline constexpr std::string_view longEnglishName = "kWarn_theme_name_limit";
inline constexpr std::string_view forbiddenChineseSign = "kWarn_newtheme_special_ch_sign";
inline constexpr std::string_view longChineseName = "kWarn_theme_name_cn_limit";
inline constexpr std::string_view incomplete = "kWarn_theme_config_not_complite";
inline constexpr std::string_view longSummary = "kExport_long_summary";
} // namespace exportMessage

/// Where the author types or chooses.
enum class ExportField { englishName, chineseName, developer, designer, target, themeVersion, summary };
inline constexpr std::size_t exportFieldCount = 7;

/// Characters of the longest summary; a description that holds more would be hard to read again.
inline constexpr std::size_t longestSummary = 5000;

/// What an author chooses as the target, by the index of the generation.
struct ExportTarget {
    std::string_view label;         ///< Of its button.
    std::string_view versionPrefix; ///< In front of the theme version.
    std::string_view defaultVersion;
    std::string_view hintKey;
};

/// The target of a generation's index of 0 to 2; anything else is a programming error.
[[nodiscard]] const ExportTarget& exportTarget(unsigned generation);

struct ExportForm {
    std::string englishName; ///< Also the package's file name; at most 32 characters.
    std::string chineseName; ///< At most 16 characters.
    std::string developer;
    std::string designer;
    std::optional<unsigned> generation; ///< The index of the chosen target.
    std::string themeVersion;           ///< Digits; from 100 to 1000 for generation 9.
    std::string summary;
};

/// One thing that is wrong in a form.
struct FormProblem {
    ExportField field;
    std::string_view message; ///< Of `exportMessage`.
};

/// The key of what is wrong with an English name; empty for a good one.
[[nodiscard]] std::string_view checkEnglishName(const std::string& name);

/// All that is wrong, in the order in which it is told; at most two things of one field.
[[nodiscard]] std::vector<FormProblem> exportProblems(const ExportForm& form);

/// The key of the few words that stand under the field itself.
[[nodiscard]] std::string_view shortMessage(const FormProblem& problem);

/// The key of the message for the first thing that is wrong; empty if the form may be exported.
[[nodiscard]] std::string_view checkExportForm(const ExportForm& form);

/// The key of the message for what is wrong with a Chinese name that isn't empty; empty if nothing is.
[[nodiscard]] std::string_view checkChineseName(const std::string& name);

/// The whole version of a package, such as "9.0.100".
[[nodiscard]] std::string fullVersion(const ExportForm& form);

/// The theme version of a whole version, its part behind the second dot; empty if it has none.
[[nodiscard]] std::string themeVersionOf(const std::string& fullVersion);

/// What a theme version becomes when its field is left: for generation 9, one outside 100 to 999 becomes "100".
[[nodiscard]] std::string versionWhenLeft(const std::string& version, unsigned generation);

/// What stands in the field when a target is chosen: the text, if it is valid there, else the target's default.
[[nodiscard]] std::string versionForTarget(const std::string& version, unsigned generation);

/// A group of the preview list.
struct PreviewGroup {
    std::string_view name;       ///< Of its control, such as "preview_unlock".
    std::string_view tag;        ///< In the names of its pictures, such as "_unlock_".
    std::string_view captionKey; ///< Such as "kMenu_unlock".
};

/// The six groups in the page's order.
[[nodiscard]] const std::vector<PreviewGroup>& previewGroups();

/// The pictures of a group among the names of a theme's previews, in their order. Below generation 9 the second and
/// third of the contacts aren't shown.
[[nodiscard]] std::vector<std::string> previewsOf(const PreviewGroup& group, const std::vector<std::string>& names,
                                                  unsigned generation);

/// The pictures of the reduced list: those of none of the six groups.
[[nodiscard]] std::vector<std::string> previewsOfNoGroup(const std::vector<std::string>& names);

} // namespace zdt
