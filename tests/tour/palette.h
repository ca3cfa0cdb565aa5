#pragma once

#include <array>

namespace zdt::tour {

struct Recolour {
    const char* screen; ///< Module and screen, joined by "|".
    const char* item;   ///< Of the screen's group, or with its own module and group before it, joined by "/".
    const char* digits;
};

/// A dark sea: the colours that make a theme, by the screens on which an author finds them.
inline constexpr std::array recolours{
    Recolour{"commonSetting|dial", "background color", "0E1B2E"},
    Recolour{"commonSetting|dial", "highlight color", "2CD9A0"},
    Recolour{"commonSetting|dial", "commonSetting/dialing settings/first level icon text", "EAF4FF"},
    Recolour{"commonSetting|dial", "commonSetting/dialing settings/button box background", "1E3048"},
    Recolour{"commonSetting|dial", "commonSetting/contact list/dividing line", "2A3B52"},
    Recolour{"commonSetting|dial", "commonSetting/contact details/secondary icon text", "9FB2C8"},
    Recolour{"launcher|launcher", "highlight color", "2CD9A0"},
    Recolour{"contacts|dial", "background color", "16283F"},
    Recolour{"contacts|dial", "separator color", "2A3B52"},
    Recolour{"contacts|dial", "highlight color", "2CD9A0"},
    Recolour{"contacts|dial", "contacts/contact list/first level icon text", "EAF4FF"},
    Recolour{"mms|mms list", "background color", "16283F"},
    Recolour{"mms|mms list", "accessory selected background color", "1E3048"},
    Recolour{"mms|mms list", "highlight color", "2CD9A0"},
    Recolour{"mms|mms list", "warning text", "FF6B6B"},
    Recolour{"mms|mms list", "mms/MMS/first level icon text", "EAF4FF"},
    Recolour{"mms|mms list", "mms/MMS/secondary icon text", "9FB2C8"},
    Recolour{"mms|mms list", "mms/MMS/input box background color", "1E3048"},
    Recolour{"systemui|drop down notification", "background color", "0E1B2E"},
    Recolour{"systemui|drop down notification", "icon text color", "C6D6E8"},
    Recolour{"systemui|drop down notification", "highlight color", "2CD9A0"},
};

} // namespace zdt::tour
