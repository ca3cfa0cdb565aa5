#pragma once

#include "store/themeResource.h"

#include <cstdint>
#include <string>
#include <vector>

/// The themes of the start page, told without opening them: a folder of hundreds is listed in no time.
namespace zdt {

struct ThemeCard {
    std::string name;         ///< The folder's, by which a theme is opened.
    std::string title;        ///< As the description has it; empty where it gives none.
    std::string chineseTitle; ///< The same, in Chinese.
    unsigned generation = 0;  ///< Its index; 3 for none.
    bool isBig = false;
    bool isReadable = true;     ///< False for settings whose type is no number: the theme can't be opened.
    std::string cover;          ///< The path of the cover picture; empty without one.
    std::int64_t changedAt = 0; ///< Seconds since 1970 of the last change of the theme's own folder or cover.
};

enum class ThemeOrder { byName, byChange };

[[nodiscard]] ThemeCard readThemeCard(const std::string& name, const std::string& root);

/// All themes, those changed last first or by their names.
[[nodiscard]] std::vector<ThemeCard> readThemeCards(const std::string& root, ThemeOrder order);

/// Whether a theme's name or one of its titles holds a text, whatever the case of ASCII letters; an empty text is in
/// all.
[[nodiscard]] bool matchesSearch(const ThemeCard& card, const std::string& text);

/// What stands in front of a theme's name in the title, such as "OVUI9.1:"; empty for a theme of no generation.
[[nodiscard]] std::string titlePrefix(unsigned generation);

/// Why a name can't be a new theme's.
enum class NameProblem {
    none,
    empty,
    taken,
    forbiddenSign, ///< A slash, backslash, colon, quote or other sign that a file system or the phone refuses.
    onlyDots,
    tooLong,
};

[[nodiscard]] NameProblem checkThemeName(const std::string& name, const std::vector<std::string>& taken);

} // namespace zdt
