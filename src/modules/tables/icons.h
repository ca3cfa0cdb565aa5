#pragma once

#include <array>
#include <string_view>

/// The file names of the icons that the theme knows by name.
namespace zdt::tables {

/// The icons of the phone's own applications, a picture each in icons/.
inline constexpr std::array<std::string_view, 71> staticIcons{{
    "com.android.browser.png",
    "com.android.calculator2.png",
    "com.android.calendar.png",
    "com.android.camera.png",
    "com.android.cellbroadcastreceiver.png",
    "com.android.contacts.png",
    "com.android.contacts.activities.DialtactsActivity.png",
    "com.android.contacts.activities.PeopleActivity.png",
    "com.android.deskclock.png",
    "com.android.dialer.png",
    "com.android.documentsui.png",
    "com.android.email.png",
    "com.android.filemanager.png",
    "com.android.fmradio.png",
    "com.android.gallery3d.png",
    "com.android.inputmethod.latin.png",
    "com.android.mms.png",
    "com.android.music.png",
    "com.android.phone.png",
    "com.android.phone.recorder.png",
    "com.android.providers.downloads.ui.png",
    "com.android.quicksearchbox.png",
    "com.android.settings.png",
    "com.android.soundrecorder.png",
    "com.android.stk.png",
    "com.android.stk.StkLauncherActivity.png",
    "com.android.stk.StkLauncherActivity2.png",
    "com.android.systemui.flashlight.FlashlightActivity.png",
    "com.android.videoeditor.png",
    "com.android.voicedialer.png",
    "com.android.wallpaper.livepicker.png",
    "com.zendro.android.backup.png",
    "com.zendro.android.clone.png",
    "com.zendro.android.compass.png",
    "com.zendro.android.findmyphone.png",
    "com.zendro.android.gamecenter.png",
    "com.zendro.android.health.png",
    "com.zendro.android.karaoke.png",
    "com.zendro.android.magnifier.png",
    "com.zendro.android.mirror.png",
    "com.zendro.android.notepad.png",
    "com.zendro.android.phonemanager.png",
    "com.zendro.android.phoneservice.png",
    "com.zendro.android.powermanager.png",
    "com.zendro.android.remotecontroller.png",
    "com.zendro.android.ringtones.png",
    "com.zendro.android.screenrecorder.png",
    "com.zendro.android.thememanager.png",
    "com.zendro.android.tips.png",
    "com.zendro.android.totemweather.png",
    "com.zendro.android.translator.png",
    "com.zendro.android.trustspace.png",
    "com.zendro.android.vassistant.png",
    "com.zendro.android.wallet.png",
    "com.zendro.browser.png",
    "com.zendro.camera.png",
    "com.zendro.cloud.png",
    "com.zendro.forum.png",
    "com.zendro.gallery.png",
    "com.zendro.lifeservice.png",
    "com.zendro.members.png",
    "com.zendro.music.png",
    "com.zendro.reader.png",
    "com.zendro.shop.png",
    "com.zendro.smarthome.png",
    "com.zendro.updater.png",
    "com.zendro.video.png",
    "com.zendro.video.overseas.png",
    "com.zendro.zdmarket.png",
    "com.zendro.zdmarket.game.png",
    "com.zendro.zdmarket.vr.png",
}};

/// Further applications of the phone whose icons no theme replaces.
inline constexpr std::array<std::string_view, 19> fixedIcons{{
    "com.android.bluetooth.png",           "com.android.carrierconfig.png",
    "com.android.certinstaller.png",       "com.android.egg.png",
    "com.android.emergency.png",           "com.android.htmlviewer.png",
    "com.android.managedprovisioning.png", "com.android.packageinstaller.png",
    "com.android.printspooler.png",        "com.android.vpndialogs.png",
    "com.zendro.android.airsharing.png",   "com.zendro.android.childmode.png",
    "com.zendro.android.drivingmode.png",  "com.zendro.android.easymode.png",
    "com.zendro.android.floatwindow.png",  "com.zendro.android.launcher.png",
    "com.zendro.android.multiscreen.png",  "com.zendro.android.search.png",
    "com.zendro.android.wifidirect.png",
}};

/// The pictures with which the phone marks shortcuts and its folder of applications.
inline constexpr std::array<std::string_view, 4> shortcutPictures{{
    "icon_shortcut.png",
    "icon_shortcut_arrow.png",
    "icon_shortcut_mask.png",
    "portal_ring_inner_holo.png",
}};

/// The background of the calendar's moving icon, and that of the clock's.
inline constexpr std::string_view calendarBackground = "calendar_background.png";
inline constexpr std::string_view clockBackground = "deskclock_bg.png";

/// The weather's moving icon, a picture for each kind of weather.
inline constexpr std::array<std::string_view, 15> weatherPictures{{
    "cloudy.png",
    "cold.png",
    "duststorm.png",
    "fog.png",
    "haze.png",
    "hot.png",
    "most-cloudy-night.png",
    "mostlycloudy.png",
    "rain.png",
    "showers.png",
    "snow.png",
    "sunny.png",
    "thundershowers.png",
    "unknown.png",
    "windy.png",
}};

/// The pictures of the launcher's own widget.
inline constexpr std::array<std::string_view, 6> widgetPictures{{
    "ic_widget_bg.png",
    "ic_widget_circle.png",
    "ic_widget_glowline_danger.png",
    "ic_widget_glowline_risk.png",
    "ic_widget_glowline_safe.png",
    "ic_widget_preview.png",
}};

/// How the phone draws the icons of applications that the theme doesn't know: a frame and a mask for each of them.
inline constexpr std::array<std::string_view, 2> iconRules{{
    "icon_border.png",
    "icon_mask.png",
}};

/// The one icon of the phone's own applications that a theme may do without.
inline constexpr std::string_view optionalIcon = "com.zendro.zdmarket.vr.png";
/// The two icons that themes of generation 5 have outside China alone.
inline constexpr std::string_view overseasVideoIcon = "com.zendro.video.overseas.png";
inline constexpr std::string_view smartHomeIcon = "com.zendro.smarthome.png";

} // namespace zdt::tables
