#pragma once

/// The moment that every picture of a phone shows.
namespace zdt::assets {

inline constexpr int shownHour = 8; ///< 0 to 23
inline constexpr int shownMinute = 8;
inline constexpr const char* shownTime = "08:08";
inline constexpr const char* shownDate = "Thursday, 12 October";

} // namespace zdt::assets
