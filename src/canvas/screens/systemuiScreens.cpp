#include "canvas/screens/screenBuilder.h"
#include "canvas/screens/screenLists.h"
#include "canvas/screens/systemuiParts.h"

namespace zdt {

using namespace systemui;

namespace {

constexpr TextStyle noteRight = textStyle::aligned(textStyle::caption, TextAlign::right);
constexpr TextStyle noteMiddle = textStyle::aligned(textStyle::caption, TextAlign::centre);

struct Tile {
    char16_t sign;
    Words label;
    bool on = false;
};

/// A round switch with its name below.
void tile(ScreenBuilder& b, const std::string& name, Point centre, const Tile& it) {
    b.roundButton(name, centre, 150, it.sign, it.on ? accent : discOff, it.on ? panelBack : plain);
    b.text(name + "_label", {centre.x - 114, centre.y + 117, 228}, it.label, noteMiddle, plain);
}

constexpr int tileColumns = 4;
constexpr int tileLeft = 171;
constexpr int tilePitch = 246;

void tiles(ScreenBuilder& b, const std::string& name, int top, int rowPitch, std::initializer_list<Tile> all) {
    int number = 0;
    for (const Tile& each : all) {
        const Point centre{tileLeft + number % tileColumns * tilePitch, top + number / tileColumns * rowPitch};
        tile(b, name + std::to_string(++number), centre, each);
    }
}

/// A bar for the finger: its track, its part in use and the handle between.
void slider(ScreenBuilder& b, const std::string& name, const Place& track, int used, const Ink& ink) {
    const int middle = track.y + track.height / 2;
    b.panel(name + "_track", track, track.height / 2, plain.faded(60));
    b.panel(name + "_used", {track.x, track.y, used, track.height}, track.height / 2, ink);
    b.panel(name + "_handle", around({track.x + used, middle}, 48), 24, ink);
}

// The panel that is pulled down.

void panelHead(ScreenBuilder& b) {
    b.text("clock", {screenMargin, 216, 480}, {"08:08", "08:08"}, {120, 400}, plain);
    b.text("date", {screenMargin, 318, 560}, {"Thursday, 12 October", "10月12日 星期四"}, {42}, soft);
    b.icon("head_edit", {852, 222}, 72, sign::edit, plain);
    b.icon("head_settings", {984, 222}, 72, sign::settings, plain);
}

void brightness(ScreenBuilder& b, int middle) {
    b.icon("bright_low", {96, middle}, 66, sign::brightnessLow, plain);
    slider(b, "bright", {168, middle - 9, 744, 18}, 470, plain);
    b.icon("bright_high", {984, middle}, 72, sign::brightnessHigh, accent);
}

struct Notice {
    Words source;
    Words time;
    Words title;
    Words text;
};

constexpr int noticeHeight = 222;

void noticeTexts(ScreenBuilder& b, const std::string& name, int top, const Notice& it) {
    b.panel(name + "_card", {36, top, 1008, noticeHeight}, 42, box);
    b.text(name + "_source", {204, top + 48, 500}, it.source, textStyle::caption, soft);
    b.text(name + "_time", {720, top + 48, 276}, it.time, noteRight, soft);
    b.text(name + "_title", {204, top + 108, 780}, it.title, {45, 500}, plain);
    b.text(name + "_text", {204, top + 168, 780}, it.text, textStyle::secondLine, soft);
}

void notices(ScreenBuilder& b) {
    b.text("notices", {screenMargin, 1056, 480}, {"Notifications", "通知"}, {45, 500}, plain);
    b.text("notices_clear", {660, 1056, 360}, {"Clear all", "全部清除"}, {42, 500, TextAlign::right}, accent);
    constexpr int top = 1110;
    constexpr int pitch = noticeHeight + 24;
    constexpr Point face{120, top + noticeHeight / 2};
    noticeTexts(b, "message", top,
                {{"Messages", "信息"},
                 {"now", "刚刚"},
                 {"Mei Lin", "林小梅"},
                 {"See you at six by the big clock", "六点在大钟下面见，我带伞"}});
    b.leaveOut(before9);
    b.roundButton("message_face", face, 108, sign::chatBubble, accent, panelBack);
    b.leaveOut(only9);
    b.picture("mms/ic_message_noti_zendro.png", around(face, 108));
    b.leaveOut(0);
    noticeTexts(b, "event", top + pitch,
                {{"Calendar", "日历"},
                 {"08:00", "08:00"},
                 {"Print fair, hall 4", "版画展，4 号厅"},
                 {"10:00 to 12:30, bring the badge", "10:00–12:30，记得带证件"}});
    b.roundButton("event_face", {face.x, face.y + pitch}, 108, sign::event, accent, panelBack);
    b.text("notices_manage", {240, 1644, 600}, {"Manage notifications", "管理通知"}, {42, 500, TextAlign::centre},
           accent);
}

void volumePopup(ScreenBuilder& b) {
    constexpr Place place{24, 1740, 1032, 300};
    b.picture("systemui/volume_popup.9.png", place);
    b.icon("ring_sign", {120, 1830}, 72, sign::notifications, plain);
    slider(b, "ring", {198, 1821, 648, 18}, 300, accent);
    b.icon("volume_settings", {960, 1830}, 66, sign::settings, plain);
    b.icon("media_sign", {120, 1950}, 72, sign::volumeUp, accent);
    slider(b, "media", {198, 1941, 648, 18}, 470, accent);
    b.leaveOut(before9);
    b.picture("systemui/volume_arrow_up.png", around({960, 1950}, 72));
    b.leaveOut(only9);
    b.icon("volume_fold", {960, 1950}, 72, sign::expandLess, plain);
    b.leaveOut(0);
}

Screen notificationScreen() {
    ScreenBuilder b("systemui", "drop down notification");
    ground(b);
    panelHead(b);
    tiles(b, "tile", 474, 252,
          {{sign::wifi, {"Home", "家里"}, true},
           {sign::swapVert, {"Mobile data", "移动数据"}, true},
           {sign::bluetooth, {"Bluetooth", "蓝牙"}},
           {sign::flashlightOn, {"Torch", "手电筒"}},
           {sign::notifications, {"Sound", "响铃"}, true},
           {sign::screenRotation, {"Rotation", "自动旋转"}},
           {sign::airplanemodeActive, {"Flight mode", "飞行模式"}},
           {sign::locationOn, {"Location", "定位"}, true}});
    brightness(b, 942);
    notices(b);
    volumePopup(b);
    b.homeLine(plain.faded(150));
    return b.take();
}

// The order of the switches.

void badge(ScreenBuilder& b, const std::string& name, Point centre, char16_t sign, const Ink& ink) {
    b.panel(name + "_disc", around(centre, 48), 24, ink);
    b.icon(name + "_sign", centre, 42, sign, sharedBack);
}

void badges(ScreenBuilder& b, const std::string& name, int top, int rowPitch, int count, char16_t sign,
            const Ink& ink) {
    for (int number = 0; number < count; ++number)
        badge(b, name + std::to_string(number + 1),
              {tileLeft + number % tileColumns * tilePitch + 57, top + number / tileColumns * rowPitch - 57}, sign,
              ink);
}

/// The switch that a finger carries.
void liftedTile(ScreenBuilder& b, Point centre) {
    for (const int grown : {54, 36, 18})
        b.panel("lifted_shade" + std::to_string(grown), around({centre.x, centre.y + 9}, 168 + grown),
                (168 + grown) / 2, {{}, 0xff000000, 12});
    b.roundButton("lifted", centre, 174, sign::flashlightOn, accent, panelBack);
    b.text("lifted_label", {centre.x - 114, centre.y + 129, 228}, {"Torch", "手电筒"}, {34, 600, TextAlign::centre},
           accent);
}

Screen switchSortScreen() {
    constexpr int pitch = 240;
    constexpr int top = 444;
    constexpr int restTop = 1374;
    ScreenBuilder b("systemui", "switch sort");
    ground(b);
    b.subTitleBar({"Edit switches", "编辑开关"}, plain, {sign::undo});
    b.text("hint", {screenMargin, 312, 960}, {"Hold a switch and drag it to its place", "按住并拖动开关以调整顺序"},
           {40}, soft);
    tiles(b, "used", top, pitch,
          {{sign::wifi, {"Wi-Fi", "无线网络"}},
           {sign::swapVert, {"Mobile data", "移动数据"}},
           {sign::bluetooth, {"Bluetooth", "蓝牙"}},
           {sign::notifications, {"Sound", "响铃"}},
           {sign::screenRotation, {"Rotation", "自动旋转"}},
           {sign::airplanemodeActive, {"Flight mode", "飞行模式"}},
           {sign::locationOn, {"Location", "定位"}},
           {sign::darkMode, {"Dark mode", "深色模式"}},
           {sign::screenshot, {"Screenshot", "截屏"}},
           {sign::batterySaver, {"Save power", "省电模式"}}});
    badges(b, "used_badge", top, pitch, 10, sign::remove, plain);
    b.ring("gap", around({tileLeft + 2 * tilePitch, top + 2 * pitch}, 150), 75, 4, accent.faded(150));
    b.fill({0, 1128, phoneWidth, 18}, separator);
    b.text("band", {screenMargin, 1203, 960},
           {"Not shown: drag here what you don't need", "未显示：将不需要的开关拖到这里"}, {40}, plain);
    tiles(b, "rest", restTop, pitch,
          {{sign::wifiTethering, {"Hotspot", "个人热点"}},
           {sign::nfc, {"Touch to pay", "近场支付"}},
           {sign::cast, {"Cast", "投屏"}},
           {sign::doNotDisturbOn, {"Silence", "免打扰"}},
           {sign::removeRedEye, {"Eye care", "护眼模式"}},
           {sign::videocam, {"Record", "录屏"}},
           {sign::qrCode2, {"Scan", "扫一扫"}},
           {sign::alarm, {"Alarm", "闹钟"}},
           {sign::cloud, {"Backup", "云备份"}},
           {sign::translate, {"Translate", "翻译"}}});
    badges(b, "rest_badge", restTop, pitch, 10, sign::add, accent);
    liftedTile(b, {tileLeft + 2 * tilePitch + 78, top + 2 * pitch + 27});
    b.homeLine(plain.faded(150));
    return b.take();
}

} // namespace

std::vector<Screen> systemuiScreens() {
    return {notificationScreen(), switchSortScreen(), usersScreen()};
}

} // namespace zdt
