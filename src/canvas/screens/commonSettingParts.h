#pragma once

#include "canvas/screens/screenBuilder.h"

/// What the screens of the shared widgets have in common: the colours that their layers follow, and the widgets that
/// more than one of them shows.
namespace zdt::commonSetting {

inline constexpr Ink page{"commonSetting/dial/background color", screenColour::field};
inline constexpr Ink accent{"commonSetting/dial/highlight color", screenColour::accent};
inline constexpr Ink first{"commonSetting/dialing settings/first level icon text", screenColour::ink};
inline constexpr Ink second{"commonSetting/contact details/secondary icon text", 0xff7e7e7e};
inline constexpr Ink box{"commonSetting/dialing settings/button box background", 0x2e808080};
inline constexpr Ink line{"commonSetting/contact list/dividing line", screenColour::line};
inline constexpr Ink paper{{}, screenColour::paper};

// What `leaveOut` takes for layers of some generations alone.
inline constexpr TypeMask before9 = typeMask::generation9;
inline constexpr TypeMask only5 = typeMask::generation8 | typeMask::generation9;
inline constexpr TypeMask only8 = typeMask::generation5 | typeMask::generation9;
inline constexpr TypeMask only9 = typeMask::generation5 | typeMask::generation8;
inline constexpr TypeMask since8 = typeMask::generation5;

inline constexpr TextStyle noteRight = textStyle::aligned(textStyle::caption, TextAlign::right);
inline constexpr TextStyle noteMiddle = textStyle::aligned(textStyle::caption, TextAlign::centre);

void ground(ScreenBuilder& b);
/// A soft shade below what floats.
void shade(ScreenBuilder& b, const std::string& name, const Place& place, int radius);
/// A bar for the finger, with the handle that the generation has.
void slider(ScreenBuilder& b, const std::string& name, const Place& track, int used);
/// The head of a list's section.
void section(ScreenBuilder& b, const std::string& name, const Place& place, const Words& words);

[[nodiscard]] Screen dialScreen();
[[nodiscard]] Screen dialingSettingsScreen();
[[nodiscard]] Screen contactListScreen();
[[nodiscard]] Screen contactDetailsScreen();

} // namespace zdt::commonSetting
