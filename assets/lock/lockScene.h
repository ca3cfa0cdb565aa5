#pragma once

#include "assets/art/shownMoment.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What the phone tells a lock screen: the values behind the variables of its layout.
namespace zdt::assets {

struct LockScene {
    int hour = shownHour;     ///< 0 to 23
    int minute = shownMinute; ///< 0 to 59
    QString amPm;             ///< Empty on a phone that counts 24 hours.
    QString date = shownDate;
    QString ownerInfo = "Swipe up to unlock"; ///< Empty if the owner gave none.
    int messages = 0;
    int calls = 0;    ///< Missed ones.
    int battery = 64; ///< Percent.
    bool isCharging = false;
    bool showsMusic = false;
    bool hasStatusBar = true;
};

/// The time as a status bar shows it.
[[nodiscard]] QString timeText(const LockScene& scene);

/// The text of a layout's variable, such as `system.date`; empty for one that isn't known.
[[nodiscard]] QString textOf(const LockScene& scene, std::string_view variable);

/// The value of a variable in a condition; 0 for one that isn't known.
[[nodiscard]] std::int64_t valueOf(const LockScene& scene, std::string_view variable);

/// The name of the file that a picture's `src` stands for now. Nothing if it stands for none.
/// @param height of the screen, which a wallpaper's `src` may name
[[nodiscard]] std::optional<std::string> pictureAt(const LockScene& scene, std::string_view src, int height);

} // namespace zdt::assets
