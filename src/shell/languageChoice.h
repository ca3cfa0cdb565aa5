#pragma once

#include "kit/localisation.h"

#include <optional>
#include <string>
#include <string_view>

/// The language of the interface, kept in `config.ini` of the skin folder: section "Special_for_init_select_language",
/// key "kSpecial_for_init_select_language", "1" for Chinese and "2" for English; "0" or empty while none is chosen.
namespace zdt {

/// Whether a system of that locale name, such as "zh_CN.UTF-8", writes simplified Chinese.
[[nodiscard]] bool isSimplifiedChinese(std::string_view locale);

/// The setting in the text of a `config.ini`; empty if there is none.
[[nodiscard]] std::string languageSetting(std::string_view config);

/// What a start makes of the setting: the language to choose and to write down. Nothing for a setting that isn't known,
/// which leaves the language as it is and is not written over.
[[nodiscard]] std::optional<int> languageAtStart(std::string_view setting, bool systemIsChinese);

/// The text of `config.ini` with the language in it; what else it holds stays.
[[nodiscard]] std::string withLanguage(std::string_view config, int language);

/// The text of the skin folder's `config.ini`; empty if it can't be read.
[[nodiscard]] std::string loadConfig();

/// Writes the language into `config.ini`. False if it can't be written: the choice then lasts until the program ends.
bool writeConfig(int language);

} // namespace zdt
