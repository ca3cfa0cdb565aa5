#include "canvas/screens/commonSettingParts.h"
#include "canvas/screens/screenLists.h"

namespace zdt {

namespace commonSetting {

void ground(ScreenBuilder& b) {
    b.fill({0, 0, phoneWidth, phoneHeight}, page);
    b.statusBar(first);
}

void shade(ScreenBuilder& b, const std::string& name, const Place& place, int radius) {
    for (const int grown : {36, 24, 12})
        b.ring(name + "_shade" + std::to_string(grown),
               {place.x - grown / 2, place.y + 9 - grown / 2, place.width + grown, place.height + grown},
               radius + grown / 2, 18 + grown / 2, {{}, 0xff000000, 9});
}

void slider(ScreenBuilder& b, const std::string& name, const Place& track, int used) {
    const Point end{track.x + used, track.y + track.height / 2};
    b.panel(name + "_track", track, track.height / 2, line);
    b.panel(name + "_used", {track.x, track.y, used, track.height}, track.height / 2, accent);
    b.leaveOut(before9);
    b.panel(name + "_handle", around(end, 60), 30, accent);
    b.leaveOut(only9);
    b.picture("commonSetting/scrubber_control_normal_ovui.png", around(end, 84));
    b.leaveOut(0);
}

void section(ScreenBuilder& b, const std::string& name, const Place& place, const Words& words) {
    b.picture("commonSetting/list_section_divider_ovui.9.png", place);
    b.text(name, {screenMargin, place.y + place.height / 2 + 3, 700}, words, {36, 500}, second);
}

namespace {

// A call.

void callKey(ScreenBuilder& b, const std::string& name, Point centre, char16_t sign, const Words& words, bool on) {
    b.roundButton(name, centre, 168, sign, on ? accent : box, on ? page : first);
    b.text(name + "_label", {centre.x - 140, centre.y + 126, 280}, words, noteMiddle, on ? accent : second);
}

void callKeys(ScreenBuilder& b) {
    constexpr int left = 240;
    constexpr int pitch = 300;
    constexpr int top = 882;
    callKey(b, "mute", {left, top}, sign::mic, {"Mute", "静音"}, false);
    callKey(b, "keys", {left + pitch, top}, sign::dialpad, {"Keypad", "拨号盘"}, false);
    callKey(b, "loud", {left + 2 * pitch, top}, sign::volumeUp, {"Speaker", "免提"}, true);
    callKey(b, "join", {left, top + 252}, sign::personAdd, {"Add call", "添加通话"}, false);
    callKey(b, "hold", {left + pitch, top + 252}, sign::pause, {"Hold", "保持"}, false);
    callKey(b, "video", {left + 2 * pitch, top + 252}, sign::videocam, {"Video", "视频"}, false);
}

/// A field with the caret before its hint.
void noteField(ScreenBuilder& b) {
    constexpr Place place{84, 1470, 912, 120};
    constexpr int middle = place.y + place.height / 2;
    b.leaveOut(only5);
    b.panel("note_box", place, 36, box);
    b.leaveOut(only8);
    b.picture("commonSetting/textfield_default_bubble_ovui.9.png", place);
    b.leaveOut(only9);
    b.picture("commonSetting/textfield_default_linear_actived_ovui.9.png", place);
    b.leaveOut(0);
    b.fill({place.x + 36, middle - 30, 5, 60}, accent);
    b.text("note_hint", {place.x + 54, middle, 640}, {"Write a note on this call", "记录通话内容"}, {45}, second);
    b.icon("note_done", {place.x + place.width - 60, middle}, 66, sign::check, accent);
}

void toast(ScreenBuilder& b) {
    constexpr Place place{290, 1632, 500, 96};
    b.leaveOut(before9);
    b.picture("commonSetting/toast_frame_ovui.9.png", place);
    b.leaveOut(only9);
    b.panel("toast_box", place, 48, box);
    b.leaveOut(0);
    constexpr Line at{place.x + 30, place.y + place.height / 2, place.width - 60};
    constexpr TextStyle style{40, 400, TextAlign::centre};
    constexpr Words words{"Call is recorded", "正在录音"};
    b.leaveOut(before9);
    b.text("toast_old", at, words, style, page);
    b.leaveOut(only9);
    b.text("toast", at, words, style, first);
    b.leaveOut(0);
}

} // namespace

Screen dialScreen() {
    ScreenBuilder b("commonSetting", "dial");
    ground(b);
    b.portrait("face", {540, 336}, 288, 4);
    b.text("name", {140, 570, 800}, {"Mei Lin", "林小梅"}, {72, 600, TextAlign::centre}, first);
    b.text("number", {140, 651, 800}, {"Mobile, 0571 8800 2210", "手机 0571 8800 2210"}, {42, 400, TextAlign::centre},
           second);
    b.text("length", {140, 726, 800}, {"02:48", "02:48"}, {48, 500, TextAlign::centre}, accent);
    callKeys(b);
    b.icon("volume_low", {108, 1386}, 72, sign::volumeDown, first);
    slider(b, "volume", {180, 1380, 720, 12}, 450);
    b.icon("volume_high", {972, 1386}, 72, sign::volumeUp, first);
    noteField(b);
    toast(b);
    b.roundButton("end", {540, 1881}, 192, sign::callEnd, {{}, screenColour::danger}, paper);
    b.homeLine(first.faded(150));
    return b.take();
}

namespace {

// Settings.

constexpr int settingPitch = 156;

void setting(ScreenBuilder& b, const std::string& name, int middle, const Words& title, const Words& note = {}) {
    b.lines(name, {screenMargin, middle, 700}, title, first, note, second);
}

void answering(ScreenBuilder& b, int top) {
    const int middle = top + settingPitch / 2;
    setting(b, "flip", middle, {"Flip to silence", "翻转静音"});
    b.switchControl("flip", {966, middle}, true, accent, paper);
    b.divider(top + settingPitch, line);
    setting(b, "pocket", middle + settingPitch, {"Louder in a pocket", "口袋模式"},
            {"While the phone is covered", "被遮挡时加大铃声"});
    b.switchControl("pocket", {966, middle + settingPitch}, false, box, paper);
    b.divider(top + 2 * settingPitch, line);
    setting(b, "reply", middle + 2 * settingPitch, {"Reply by message", "短信回复"});
    b.icon("reply_box", {984, middle + 2 * settingPitch}, 78, sign::checkBox, accent);
}

void recording(ScreenBuilder& b, int top) {
    int middle = top + settingPitch / 2;
    setting(b, "record", middle, {"Record calls", "通话录音"});
    b.picture("commonSetting/spinner_menu.9.png", {630, middle - 51, 390, 102});
    b.text("record_choice", {654, middle, 330}, {"Some numbers", "指定号码"}, {42}, first);
    b.divider(top + settingPitch, line);
    middle += settingPitch;
    setting(b, "month", middle, {"Keep for 30 days", "保留 30 天"});
    b.icon("month_mark", {984, middle}, 78, sign::radioButtonChecked, accent);
    b.divider(top + 2 * settingPitch, line);
    middle += settingPitch;
    setting(b, "ever", middle, {"Keep until deleted", "一直保留"});
    b.icon("ever_mark", {984, middle}, 78, sign::radioButtonUnchecked, second);
    b.divider(top + 3 * settingPitch, line);
    middle += settingPitch;
    setting(b, "more", middle, {"More settings", "更多设置"});
    b.leaveOut(before9);
    b.picture("commonSetting/expander_close_ovui.9.png", around({984, middle}, 72));
    b.leaveOut(only9);
    b.icon("more_open", {984, middle}, 78, sign::expandMore, second);
    b.leaveOut(0);
}

struct ButtonPictures {
    std::string_view old;
    std::string_view recent;
};

constexpr ButtonPictures usual{"commonSetting/btn_default_normal_ovui.9.png",
                               "commonSetting/button_big_bg_stroked.9.png"};
constexpr ButtonPictures pressed{"commonSetting/btn_default_pressed_ovui.9.png",
                                 "commonSetting/button_big_bg_stroked_pressed.9.png"};
constexpr ButtonPictures disabled{"commonSetting/btn_default_disabled_ovui.9.png",
                                  "commonSetting/button_big_bg_stroked_disable.9.png"};

void pictureButton(ScreenBuilder& b, const std::string& name, const Place& place, const Words& words,
                   const ButtonPictures& pictures, const Ink& ink) {
    b.leaveOut(before9);
    b.picture(pictures.old, place);
    b.leaveOut(only9);
    b.picture(pictures.recent, place);
    b.leaveOut(0);
    b.text(name, {place.x + 18, place.y + place.height / 2, place.width - 36}, words, {45, 500, TextAlign::centre},
           ink);
}

void storageBox(ScreenBuilder& b, const Place& place) {
    b.leaveOut(only5);
    b.picture("commonSetting/popup_full_bright_ovui.9.png", place);
    b.leaveOut(since8);
    shade(b, "storage", place, 48);
    b.card("storage_box", place, 48, box);
    b.leaveOut(0);
    const int left = place.x + 48;
    b.text("storage_title", {left, place.y + 72, 800}, {"Where recordings go", "录音保存位置"}, {51, 500}, first);
    b.text("storage_note", {left, place.y + 144, 620}, {"Phone, 41 GB free of 128 GB", "手机存储，剩余 41 GB"},
           textStyle::secondLine, second);
    b.text("storage_part", {place.x + place.width - 248, place.y + 144, 200}, {"68%", "68%"},
           {40, 500, TextAlign::right}, accent);
    b.panel("storage_track", {left, place.y + 195, place.width - 96, 15}, 7, line);
    b.panel("storage_used", {left, place.y + 195, 620, 15}, 7, accent);
    const int top = place.y + 264;
    pictureButton(b, "storage_move", {left, top, 288, 120}, {"Move", "移动"}, disabled, second);
    pictureButton(b, "storage_cancel", {left + 312, top, 288, 120}, {"Cancel", "取消"}, usual, first);
    pictureButton(b, "storage_save", {left + 624, top, 288, 120}, {"Save", "保存"}, pressed, accent);
}

} // namespace

Screen dialingSettingsScreen() {
    ScreenBuilder b("commonSetting", "dialing settings");
    ground(b);
    b.subTitleBar({"Call settings", "通话设置"}, first, {sign::search});
    section(b, "answering", {0, 276, phoneWidth, 90}, {"Answering", "接听"});
    answering(b, 372);
    section(b, "recording", {0, 852, phoneWidth, 90}, {"Recording", "录音"});
    recording(b, 948);
    storageBox(b, {36, 1626, 1008, 432});
    b.homeLine(first.faded(150));
    return b.take();
}

} // namespace commonSetting

std::vector<Screen> commonSettingScreens() {
    using namespace commonSetting;
    return {dialScreen(), dialingSettingsScreen(), contactListScreen(), contactDetailsScreen()};
}

} // namespace zdt
