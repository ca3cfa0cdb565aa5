#pragma once

#include <array>
#include <string_view>

namespace zdt {

/// The applications whose icons are seen on the screens.
enum class App {
    phone,
    messages,
    camera,
    gallery,
    settings,
    music,
    calculator,
    email,
    browser,
    notes,
    contacts,
    health,
    files,
    weather,
    calendar,
    clock,
    recorder,
    videos,
    compass,
    themes,
};

/// The keys of their icons, in the same order.
inline constexpr std::array<std::string_view, 20> iconKeys{{
    "icons/com.android.dialer.png",         "icons/com.android.mms.png",
    "icons/com.android.camera.png",         "icons/com.android.gallery3d.png",
    "icons/com.android.settings.png",       "icons/com.android.music.png",
    "icons/com.android.calculator2.png",    "icons/com.android.email.png",
    "icons/com.android.browser.png",        "icons/com.zendro.android.notepad.png",
    "icons/com.android.contacts.png",       "icons/com.zendro.android.health.png",
    "icons/com.android.filemanager.png",    "icons/com.zendro.android.totemweather.png",
    "icons/com.android.calendar.png",       "icons/com.android.deskclock.png",
    "icons/com.android.soundrecorder.png",  "icons/com.zendro.video.png",
    "icons/com.zendro.android.compass.png", "icons/com.zendro.android.thememanager.png",
}};

} // namespace zdt
