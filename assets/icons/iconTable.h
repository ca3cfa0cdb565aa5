#pragma once

#include "assets/icons/drawnSigns.h"
#include "canvas/screens/screenIcons.h"
#include "modules/tables/icons.h"

#include <array>
#include <string_view>

/// What each of the phone's applications shows.
namespace zdt::assets {

struct IconRow {
    std::string_view name;
    Hue hue;
    char16_t sign;              ///< Of the sign face; 0 if the icon has a drawing.
    drawn::Draw draw = nullptr; ///< In place of a sign.
};

/// In the order of the names. Where two icons have the same hue, their signs differ.
inline constexpr auto iconTable = std::to_array<IconRow>({
    {"com.android.browser.png", Hue::blue, 0, drawn::globe},
    {"com.android.calculator2.png", Hue::steel, 0, drawn::calculator},
    {"com.android.calendar.png", Hue::red, 0, drawn::calendar},
    {"com.android.camera.png", Hue::steel, 0, drawn::lens},
    {"com.android.cellbroadcastreceiver.png", Hue::red, sign::campaign},
    {"com.android.contacts.png", Hue::orange, 0, drawn::contacts},
    {"com.android.contacts.activities.DialtactsActivity.png", Hue::green, sign::dialpad},
    {"com.android.contacts.activities.PeopleActivity.png", Hue::amber, sign::group},
    {"com.android.deskclock.png", Hue::indigo, 0, drawn::clock},
    {"com.android.dialer.png", Hue::green, sign::call},
    {"com.android.documentsui.png", Hue::sky, sign::description},
    {"com.android.email.png", Hue::teal, 0, drawn::envelope},
    {"com.android.filemanager.png", Hue::blue, 0, drawn::folder},
    {"com.android.fmradio.png", Hue::orange, sign::radio},
    {"com.android.gallery3d.png", Hue::orange, 0, drawn::landscape},
    {"com.android.inputmethod.latin.png", Hue::steel, sign::keyboard},
    {"com.android.mms.png", Hue::sky, 0, drawn::message},
    {"com.android.music.png", Hue::rose, 0, drawn::notes},
    {"com.android.phone.png", Hue::teal, sign::phoneInTalk},
    {"com.android.phone.recorder.png", Hue::lime, 0, drawn::recordedCall},
    {"com.android.providers.downloads.ui.png", Hue::green, sign::download},
    {"com.android.quicksearchbox.png", Hue::blue, sign::search},
    {"com.android.settings.png", Hue::steel, 0, drawn::gear},
    {"com.android.soundrecorder.png", Hue::red, 0, drawn::soundWave},
    {"com.android.stk.png", Hue::teal, sign::simCard},
    {"com.android.stk.StkLauncherActivity.png", Hue::blue, 0, drawn::simCardOne},
    {"com.android.stk.StkLauncherActivity2.png", Hue::orange, 0, drawn::simCardTwo},
    {"com.android.systemui.flashlight.FlashlightActivity.png", Hue::amber, sign::flashlightOn},
    {"com.android.videoeditor.png", Hue::violet, sign::movieFilter},
    {"com.android.voicedialer.png", Hue::lime, sign::recordVoiceOver},
    {"com.android.wallpaper.livepicker.png", Hue::rose, sign::wallpaper},
    {"com.zendro.android.backup.png", Hue::teal, sign::settingsBackupRestore},
    {"com.zendro.android.clone.png", Hue::violet, sign::sendToMobile},
    {"com.zendro.android.compass.png", Hue::indigo, 0, drawn::compass},
    {"com.zendro.android.findmyphone.png", Hue::green, sign::myLocation},
    {"com.zendro.android.gamecenter.png", Hue::violet, sign::sportsEsports},
    {"com.zendro.android.health.png", Hue::red, 0, drawn::heart},
    {"com.zendro.android.karaoke.png", Hue::rose, 0, drawn::microphone},
    {"com.zendro.android.magnifier.png", Hue::lime, sign::zoomIn},
    {"com.zendro.android.mirror.png", Hue::sky, 0, drawn::mirror},
    {"com.zendro.android.notepad.png", Hue::amber, 0, drawn::notepad},
    {"com.zendro.android.phonemanager.png", Hue::teal, sign::gppGood},
    {"com.zendro.android.phoneservice.png", Hue::sky, sign::supportAgent},
    {"com.zendro.android.powermanager.png", Hue::green, sign::batteryChargingFull},
    {"com.zendro.android.remotecontroller.png", Hue::steel, sign::settingsRemote},
    {"com.zendro.android.ringtones.png", Hue::amber, sign::notificationsActive},
    {"com.zendro.android.screenrecorder.png", Hue::red, sign::videocam},
    {"com.zendro.android.thememanager.png", Hue::violet, 0, drawn::paints},
    {"com.zendro.android.tips.png", Hue::amber, sign::tipsAndUpdates},
    {"com.zendro.android.totemweather.png", Hue::sky, 0, drawn::sunAndCloud},
    {"com.zendro.android.translator.png", Hue::sky, sign::translate},
    {"com.zendro.android.trustspace.png", Hue::steel, sign::lock},
    {"com.zendro.android.vassistant.png", Hue::violet, sign::mic},
    {"com.zendro.android.wallet.png", Hue::orange, sign::accountBalanceWallet},
    {"com.zendro.browser.png", Hue::indigo, sign::publicGlobe},
    {"com.zendro.camera.png", Hue::indigo, 0, drawn::camera},
    {"com.zendro.cloud.png", Hue::blue, 0, drawn::cloud},
    {"com.zendro.forum.png", Hue::rose, sign::forum},
    {"com.zendro.gallery.png", Hue::rose, 0, drawn::blossom},
    {"com.zendro.lifeservice.png", Hue::orange, sign::localCafe},
    {"com.zendro.members.png", Hue::amber, sign::workspacePremium},
    {"com.zendro.music.png", Hue::red, 0, drawn::record},
    {"com.zendro.reader.png", Hue::lime, sign::autoStories},
    {"com.zendro.shop.png", Hue::red, sign::shoppingBag},
    {"com.zendro.smarthome.png", Hue::lime, sign::home},
    {"com.zendro.updater.png", Hue::green, sign::systemUpdate},
    {"com.zendro.video.png", Hue::indigo, 0, drawn::film},
    {"com.zendro.video.overseas.png", Hue::orange, sign::liveTv},
    {"com.zendro.zdmarket.png", Hue::blue, sign::storefront},
    {"com.zendro.zdmarket.game.png", Hue::rose, sign::videogameAsset},
    {"com.zendro.zdmarket.vr.png", Hue::teal, sign::viewInAr},
});

static_assert(iconTable.size() == tables::staticIcons.size());

} // namespace zdt::assets
