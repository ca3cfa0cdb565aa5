#pragma once

#include "model/configResNode.h"
#include "modules/tables/keyRow.h"

#include <span>

namespace zdt {

/// The kinds of theme, without generations, in which the keys of an application take part: in big ones.
inline constexpr TypeMask applicationKeys = typeMask::everyKind & ~typeMask::smallTheme;
/// The launcher's keys take part in small themes too.
inline constexpr TypeMask launcherKeys = typeMask::everyKind;

/// A table of keys as those of a block. Neighbouring rows of the same generations make one key list, whose mask is
/// `kinds` and those generations.
[[nodiscard]] ConfigKeys makeKeys(std::span<const tables::KeyRow> rows, TypeMask kinds);

/// Appends the block of a table's keys, named "text", to a module node.
template <const auto& Rows, TypeMask Kinds = applicationKeys>
ConfigResNode& addKeyBlock(ResNode& module) {
    static const ConfigKeys keys = makeKeys(Rows, Kinds);
    return module.emplaceChild<ConfigResNode>(module.typeMask(), "text", keys, module.path());
}

} // namespace zdt
