#pragma once

#include "canvas/screens/screenBuilder.h"

/// What the layers of the messaging application's screens follow.
namespace zdt::mms {

inline constexpr Ink page{"mms/mms list/background color", screenColour::field};
inline constexpr Ink accent{"mms/mms list/highlight color", screenColour::accent};
inline constexpr Ink warning{"mms/mms list/warning text", screenColour::danger};
inline constexpr Ink chosenTab{"mms/mms list/accessory selected background color", screenColour::paper};
inline constexpr Ink first{"mms/MMS/first level icon text", screenColour::ink};
inline constexpr Ink second{"mms/MMS/secondary icon text", 0xff7e7e7e, 235};
inline constexpr Ink input{"mms/MMS/input box background color", 0x24808080};
inline constexpr Ink received{"mms/smart message/accept bubble information background color", screenColour::field};
inline constexpr Ink receivedText{"mms/smart message/receive message text", screenColour::ink};
inline constexpr Ink sent{"mms/smart message/send bubble information background color", 0xffdbf3db};
inline constexpr Ink sentText{"mms/smart message/send message text", screenColour::ink};
inline constexpr Ink popUpText{"mms/mms settings/pop-up text", screenColour::ink};
inline constexpr Ink box{"commonSetting/dialing settings/button box background", 0xffe4e4e4};
inline constexpr Ink line{"commonSetting/contact list/dividing line", screenColour::line};

// What `leaveOut` takes for layers of some generations alone.
inline constexpr TypeMask before9 = typeMask::generation9;
inline constexpr TypeMask only9 = typeMask::generation5 | typeMask::generation8;
inline constexpr TypeMask only8 = typeMask::generation5 | typeMask::generation9;

} // namespace zdt::mms
