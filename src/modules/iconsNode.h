#pragma once

#include "model/resNode.h"

#include <array>
#include <string>
#include <string_view>

namespace zdt {

/// The directory of all icons, and those below it of the ones that move on the phone.
inline constexpr std::string_view iconsDirectory = "icons/";
inline constexpr std::string_view dynamicIconsDirectory = "icons/dynamic_icons/";

/// The applications whose icons move on the phone.
inline constexpr std::string_view calendarPackage = "com.android.calendar";
inline constexpr std::string_view clockPackage = "com.android.deskclock";
inline constexpr std::string_view weatherPackage = "com.zendro.android.totemweather";
inline constexpr std::array<std::string_view, 3> dynamicIconPackages{calendarPackage, clockPackage, weatherPackage};

/// Icons of the phone's own applications: a PNG each.
class StaticSystemNode : public ResNode {
public:
    explicit StaticSystemNode(ResNode* parent);
};

/// The pictures of which the phone composes the icons that move: the calendar, the clock and the weather.
class DynamicSystemNode : public ResNode {
public:
    explicit DynamicSystemNode(ResNode* parent);
};

class SystemIconsNode : public ResNode {
public:
    explicit SystemIconsNode(ResNode* parent);
};

/// Icons of other applications: below "mode" the rules by which the phone draws any of them, below "image" the pictures
/// that the author gives to single ones. What icons/ holds decides which there are.
class ThirdpartyIconsNode : public ResNode {
public:
    explicit ThirdpartyIconsNode(ResNode* parent);
};

/// All application icons of a theme.
class IconsNode : public ResNode {
public:
    explicit IconsNode(ResNode* parent);
};

/// Whether a file name belongs to the phone, so that it can't name a third-party icon: the system applications' icons,
/// the pictures of shortcuts, moving icons and widgets, the rule pictures, and whatever holds "icon_background".
[[nodiscard]] bool isProtectedIcon(const std::string& name);

/// The file name of one of the backgrounds behind third-party icons: "icon_background.png" for 0, else with the index
/// in two digits. Empty above 99.
[[nodiscard]] std::string iconBackgroundName(unsigned index);

} // namespace zdt
