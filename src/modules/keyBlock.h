#pragma once

#include "model/configResNode.h"
#include "modules/tables/keyRow.h"

#include <span>
#include <string>

namespace zdt {

/// The kinds of theme, without generations, in which the keys of an application take part: in big ones.
inline constexpr TypeMask applicationKeys = typeMask::everyKind & ~typeMask::smallTheme;
/// The launcher's keys take part in small themes too.
inline constexpr TypeMask launcherKeys = typeMask::everyKind;

/// A table of keys as a block. Neighbouring rows of the same generations make one key list, whose mask is `kinds` and
/// those generations.
[[nodiscard]] ConfigBlock makeKeyBlock(std::span<const tables::KeyRow> rows, TypeMask kinds, std::string directory);

/// Appends the block of an application's keys, named "text", to its module node.
ConfigResNode& addKeyBlock(ResNode& module, std::span<const tables::KeyRow> rows, TypeMask kinds = applicationKeys);

} // namespace zdt
