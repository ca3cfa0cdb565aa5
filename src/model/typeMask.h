#pragma once

#include <cstdint>

/// The type mask. The root's mask tells what a theme is; any other node's mask lists the kinds of theme in which it
/// takes part. A node takes part if its mask holds every bit of the root's: `(themeMask & nodeMask) == themeMask`.
namespace zdt {

using TypeMask = std::uint32_t;

namespace typeMask {

inline constexpr TypeMask generation5 = 0x00000001;   ///< OVUI 5.0, generation index 0.
inline constexpr TypeMask generation8 = 0x00000002;   ///< OVUI 8.0, generation index 1.
inline constexpr TypeMask generation9 = 0x00000004;   ///< OVUI 9.1, generation index 2.
inline constexpr TypeMask chinese = 0x10000000;       ///< Opened, or made under a Chinese interface.
inline constexpr TypeMask otherLanguage = 0x20000000; ///< Made under an interface in another language.
inline constexpr TypeMask bigTheme = 0x40000000;      ///< All modules are present.
inline constexpr TypeMask smallTheme = 0x80000000;    ///< No per-application modules.

inline constexpr TypeMask allGenerations = generation5 | generation8 | generation9;
inline constexpr TypeMask everyKind = chinese | otherLanguage | bigTheme | smallTheme;
inline constexpr TypeMask everywhere = everyKind | allGenerations; ///< 0xf0000007, the mask of a plain node.
inline constexpr TypeMask bigOnly = everywhere & ~smallTheme;      ///< 0x70000007, out of small themes.

} // namespace typeMask

/// How many generations there are; an index below it names one.
inline constexpr unsigned generationCount = 3;
/// The index of the generation with tall screens, which asks for other sizes than the ones before it.
inline constexpr unsigned generation9Index = 2;
/// The index of a theme whose mask holds no generation.
inline constexpr unsigned unknownGeneration = 3;

/// 0, 1 or 2 from the first generation bit found, the lowest first; 3 if there is none.
[[nodiscard]] unsigned generationIndex(TypeMask mask);

/// The generation bit of an index; 0 for any index above 2.
[[nodiscard]] TypeMask generationBit(unsigned index);

} // namespace zdt
