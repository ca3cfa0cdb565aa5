#pragma once

#include "kit/icons.h"

#include <QString>

#include <cstddef>
#include <string>

/// The modules of a theme as the pages name and order them. The word "commonSetting" stands for the keys that every
/// application has a copy of, and an empty one for the description.
namespace zdt {

/// The module under which the keys are listed that every application has a copy of.
inline constexpr const char* sharedModule = "commonSetting";

/// The first name of a key; empty for the description and its texts.
[[nodiscard]] std::string moduleOf(const std::string& key);
/// The same, but "commonSetting" for what lies in the shared settings of a module.
[[nodiscard]] std::string groupOf(const std::string& key);

/// The place in the order of the navigation; the same number, higher than all others, for one that it doesn't have.
[[nodiscard]] std::size_t placeOfModule(const std::string& module);
/// The word in the language of the moment; the name itself for one that has none.
[[nodiscard]] QString moduleWord(const std::string& module);
/// That of the navigation.
[[nodiscard]] Icon moduleIcon(const std::string& module);

} // namespace zdt
