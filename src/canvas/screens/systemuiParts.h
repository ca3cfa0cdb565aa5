#pragma once

#include "canvas/screens/screenBuilder.h"

/// What the screens of the status bar share: the colours that their layers follow, and their ground.
namespace zdt::systemui {

inline constexpr Ink panelBack{"systemui/drop down notification/background color", screenColour::paper};
inline constexpr Ink plain{"systemui/drop down notification/icon text color", 0xff808080};
inline constexpr Ink accent{"systemui/drop down notification/highlight color", screenColour::accent};
inline constexpr Ink separator{"systemui/switch sort/separator color", 0x24808080};
inline constexpr Ink box{"commonSetting/dialing settings/button box background", 0x30808080, 165};
inline constexpr Ink line{"commonSetting/contact list/dividing line", screenColour::line};
inline constexpr Ink soft = plain.faded(215);
inline constexpr Ink discOff = plain.faded(46);

inline constexpr TypeMask before9 = typeMask::generation9;
inline constexpr TypeMask only9 = typeMask::generation5 | typeMask::generation8;

/// The colour that all applications share: behind all before generation 9, which has none of its own there.
inline constexpr Ink sharedBack{"commonSetting/dial/background color", screenColour::paper};

/// The page's ground and the status bar.
void ground(ScreenBuilder& b);

/// Users and the recent tasks.
[[nodiscard]] Screen usersScreen();

} // namespace zdt::systemui
