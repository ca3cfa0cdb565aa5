#pragma once

#include "lockscreen/amazingChild.h"

#include <array>
#include <string_view>

/// The elements of the phone's own lock screen, from which a new design starts and to which a missing part is made. All
/// numbers are pixels of the 1080-wide design space, and those of the phone's layout.
namespace zdt::layoutDefaults {

struct Text {
    std::string_view src;
    std::string_view x;
    std::string_view y;
    std::string_view w;
    std::string_view h;
    std::string_view align;
    std::string_view size;
    std::string_view colour;
    std::string_view visible = {};
    std::string_view ellipsize = {};
};

inline constexpr std::string_view dateSource = "system.date";
inline constexpr std::string_view amPmSource = "system.time.ampm";

/// In the order in which a new design holds them.
inline constexpr std::array<Text, 6> texts{{
    {dateSource, "45", "400", "1080", "80", "left", "14", "#FF3e3e3e"},
    {amPmSource, "450", "210", "200", "100", "left", "20", "#FF3e3e3e", "system.time.showampm"},
    {"system.message.text", "45", "system.screen_height-1300", "1080", "80", "left", "14", "#3e3e3e",
     "system.message.count gt 0"},
    {"system.call.text", "45", "system.screen_height-1240", "1080", "80", "left", "14", "#3e3e3e",
     "system.call.count gt 0"},
    {"system.charge.text", "45", "system.screen_height-1445", "1080", "70", "left", "14", "#3e3e3e",
     "system.charge.show and system.music_visible eq 0"},
    {"system.ownerinfo.text", "0", "system.screen_height-170", "1080", "70", "center", "14", "#3e3e3e",
     "!system.charge.show and system.ownerinfo.show", "marquee"},
}};

struct Place {
    std::string_view x;
    std::string_view y;
    std::string_view w;
    std::string_view h;
};

struct Picture {
    Place place;
    std::string_view src;
};

/// The digits and the colon between them, in the order in which a reader tells them from decorations.
inline constexpr std::array<Picture, 5> clock{{
    {{"10", "208", "100", "200"}, "'number_'+system.time.hour1+'.png'"},
    {{"110", "208", "100", "200"}, "'number_'+system.time.hour2+'.png'"},
    {{"210", "208", "30", "200"}, "colon.png"},
    {{"240", "208", "100", "200"}, "'number_'+system.time.min1+'.png'"},
    {{"340", "208", "100", "200"}, "'number_'+system.time.min2+'.png'"},
}};
/// The place of the colon in `clock`.
inline constexpr std::size_t colonIndex = 2;

inline constexpr Place wallpaper{"0", "0", "1080", "2160"};

inline constexpr std::string_view musicShowName = "button_music_show";
inline constexpr std::string_view musicHideName = "button_music_hide";
inline constexpr Place musicShowButton{"46", "1720", "100", "100"};
inline constexpr Place musicHideButton{"580", "619", "500", "80"};
inline constexpr std::string_view musicControlName = "music_control";
inline constexpr std::string_view musicVisible = "system.music_visible eq 1";
inline constexpr Picture musicPicture{{"808", "834", "104", "104"}, "music_bg.png"};

/// A button of the music control with its two faces.
struct MusicButton {
    std::string_view name;
    Place place;
    std::string_view normal;
    std::string_view pressed;
};

/// Previous, play or pause, next.
inline constexpr std::array<MusicButton, 3> musicButtons{{
    {"music_pre", {"175", "834", "104", "104"}, "music_pre.png", "music_pre_press.png"},
    {"music_play", {"478", "825", "130", "130"}, "music_play.png", "music_pause.png"},
    {"music_next", {"794", "834", "104", "104"}, "music_next.png", "music_next_press.png"},
}};

inline constexpr std::string_view smartIconTag = "smarticon";
inline constexpr std::string_view smartIconY = "240";
inline constexpr std::string_view smartIconColour = "#ffffff";

[[nodiscard]] AmazingChild makeText(const Text& row);
[[nodiscard]] AmazingChild makeImage(const Picture& picture);
/// Sets the attributes of a place.
void setPlace(AmazingChild& element, const Place& place);
[[nodiscard]] AmazingChild placed(AmazingChild element, const Place& place);
/// The button that shows the music control, or the one that hides it again.
[[nodiscard]] AmazingChild makeMusicButton(bool shows);
[[nodiscard]] AmazingChild makeMusicControl();
/// What the hand moves from a start to an end to unlock the phone, all of it at 0.
[[nodiscard]] AmazingChild makeUnlocker(const std::string& name);
/// Where a move up from the lower edge begins and ends.
inline constexpr Place moveUpStart{"0", "system.screen_height-600", "1080", "600"};
inline constexpr Place moveUpEnd{"0", "system.screen_height-1200", "1080", "600"};

[[nodiscard]] AmazingChild makeSmartIcon();

} // namespace zdt::layoutDefaults
