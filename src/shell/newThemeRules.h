#pragma once

#include "shell/themeList.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// What the new theme dialog knows without a widget.
namespace zdt {

/// The name that is offered first. It is English in both languages, as the field asks for.
inline constexpr std::string_view offeredThemeName = "My theme";

/// `name`, or the first of "name 2", "name 3", … that isn't taken, whatever the case of ASCII letters.
[[nodiscard]] std::string freeThemeName(std::string_view name, const std::vector<std::string>& taken);

/// The key of what is wrong with a new theme's name; empty for a good one. It names a folder and is the English name
/// in a package, so that the rules of both hold.
[[nodiscard]] std::string_view newNameProblem(const std::string& name, const std::vector<std::string>& taken);

/// The same of a Chinese name, for a result of `checkChineseName`; shorter than on the export page.
[[nodiscard]] std::string_view chineseNameKey(std::string_view exportProblem);

/// What the card of a generation says.
struct GenerationCard {
    std::string_view control; ///< The card's name in the layout.
    std::string_view ratio;   ///< Of its screen.
    std::string_view keysKey; ///< How its phones are steered.
    bool isNewest = false;
};

/// By the index of the generation.
inline constexpr std::array<GenerationCard, generationCount> generationCards{{
    {"newGeneration5", "9:16", "kNew_three_keys", false},
    {"newGeneration8", "9:16", "kNew_three_keys", false},
    {"newGeneration9", "9:18", "kNew_gesture_bar", true},
}};

} // namespace zdt
