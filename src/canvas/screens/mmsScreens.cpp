#include "canvas/screens/mmsInks.h"
#include "canvas/screens/mmsThreadScreens.h"
#include "canvas/screens/screenBuilder.h"
#include "canvas/screens/screenLists.h"

namespace zdt {

using namespace mms;

namespace {

constexpr TextStyle noteRight = textStyle::aligned(textStyle::caption, TextAlign::right);

// The list of conversations.

struct Conversation {
    Words name;
    Words text;
    Words time;
    int face;     ///< The variant of the portrait.
    Words letter; ///< In its place, unless empty.
    Words unread; ///< How many; none if empty.
};

constexpr Conversation conversations[] = {
    {{"Mei Lin", "林小梅"},
     {"See you at six by the big clock", "六点在大钟下面见，我带伞"},
     {"17:32", "17:32"},
     4,
     {},
     {"2", "2"}},
    {{"Studio North", "北方工作室"},
     {"The prints are dry, come by", "照片已经洗好，随时来取"},
     {"16:05", "16:05"},
     1,
     {"S", "北"},
     {}},
    {{"Daniel Okoro", "陈子安"}, {"Not sent. Tap to try again", "发送失败，点按重试"}, {"14:48", "14:48"}, 0, {}, {}},
    {{"Rail service", "铁路服务"},
     {"Train 482 leaves at 07:42", "482 次列车 07:42 发车"},
     {"11:20", "11:20"},
     2,
     {},
     {"1", "1"}},
    {{"Grandad", "外公"},
     {"The soup is ready, bring your coat", "汤炖好了，记得穿外套"},
     {"Yesterday", "昨天"},
     5,
     {},
     {}},
    {{"Parcel desk", "快递驿站"},
     {"Ready to collect, code 4-1827", "包裹已到，取件码 4-1827"},
     {"Monday", "周一"},
     0,
     {},
     {}},
};
constexpr int failedConversation = 2;
constexpr int railConversation = 3;
constexpr int parcelConversation = 5;

void conversationFace(ScreenBuilder& b, const std::string& name, Point centre, int number) {
    constexpr int side = 120;
    if (number == parcelConversation)
        b.roundButton(name + "_face", centre, side, sign::localShipping, accent, page);
    else if (!conversations[number].letter.english.empty())
        b.initial(name + "_face", centre, side, conversations[number].letter, conversations[number].face);
    else if (number != railConversation)
        b.portrait(name + "_face", centre, side, conversations[number].face);
    else {
        b.leaveOut(only9);
        b.picture("mms/ic_message_noti_zendro.png", around(centre, side));
        b.leaveOut(before9);
        b.roundButton(name + "_face", centre, side, sign::train, accent, page);
        b.leaveOut(0);
    }
}

void conversation(ScreenBuilder& b, int number, int middle) {
    const Conversation& it = conversations[number];
    const std::string name = "talk" + std::to_string(number + 1);
    const bool failed = number == failedConversation;
    conversationFace(b, name, {120, middle}, number);
    b.text(name + "_name", {216, middle - 32, 560}, it.name, {50, it.unread.english.empty() ? 400 : 600}, first);
    b.text(name + "_text", {216, middle + 36, 690}, it.text, textStyle::secondLine, failed ? warning : second);
    b.text(name + "_time", {800, middle - 32, 220}, it.time, noteRight, second);
    if (failed)
        b.icon(name + "_mark", {993, middle + 36}, 57, sign::error, warning);
    if (it.unread.english.empty())
        return;
    b.panel(name + "_unread", around({993, middle + 36}, 54), 27, accent);
    b.text(name + "_count", {966, middle + 36, 54}, it.unread, {34, 600, TextAlign::centre}, page);
}

/// What of the list is shown: the chosen one stands on a ground of its own.
void filters(ScreenBuilder& b, int top) {
    constexpr Words words[] = {{"All", "全部"}, {"Unread", "未读"}, {"Services", "服务号"}, {"Strangers", "陌生人"}};
    constexpr int width = 246;
    constexpr int height = 84;
    int left = screenMargin - 12;
    b.panel("filter_chosen", {left, top, width, height}, height / 2, chosenTab);
    for (const Words& each : words) {
        const bool chosen = &each == words;
        b.text("filter" + std::to_string(left), {left + 12, top + height / 2, width - 24}, each,
               {40, chosen ? 500 : 400, TextAlign::centre}, chosen ? accent : second);
        left += width;
    }
}

/// The button floats in the page's colour: a shade and an edge set it off.
void newButton(ScreenBuilder& b, Point centre) {
    constexpr int side = 168;
    for (const int grown : {36, 24, 12})
        b.panel("new_shade" + std::to_string(grown), around({centre.x, centre.y + 9}, side + grown), (side + grown) / 2,
                {{}, 0xff000000, 9});
    b.roundButton("new", centre, side, sign::edit, page, first);
    b.ring("new_edge", around(centre, side), side / 2, 3, line);
}

Screen messageListScreen() {
    ScreenBuilder b("mms", "mms list");
    b.fill({0, 0, phoneWidth, phoneHeight}, page);
    b.statusBar(first);
    b.titleBar({"Messages", "信息"}, first, {sign::moreVert});
    b.searchBox(282, {"Search messages", "搜索信息"}, input, second);
    filters(b, 432);
    constexpr int top = 540;
    constexpr int pitch = 195;
    for (int number = 0; number < static_cast<int>(std::size(conversations)); ++number) {
        conversation(b, number, top + number * pitch + pitch / 2);
        if (number != parcelConversation)
            b.divider(top + (number + 1) * pitch, line, 216);
    }
    newButton(b, {936, 1794});
    b.bottomBar({{sign::chatBubble, {"Chats", "会话"}},
                 {sign::notificationsNone, {"Notices", "通知"}},
                 {sign::starBorder, {"Favourites", "收藏"}}},
                0, page, accent, second);
    b.divider(bottomBarTop, line, 0, phoneWidth);
    b.homeLine(first.faded(150));
    return b.take();
}

// Settings.

struct Setting {
    Words name;
    Words note;
    enum class End { none, on, off } end;
};

void section(ScreenBuilder& b, const std::string& name, int top, const Words& words) {
    constexpr int height = 90;
    b.leaveOut(before9);
    b.picture("mms/list_section_divider_ovui.9.png", {0, top, phoneWidth, height});
    b.leaveOut(0);
    b.text(name, {screenMargin, top + height / 2 + 3, 700}, words, {36, 500}, second);
}

void settingRow(ScreenBuilder& b, const std::string& name, int middle, const Setting& setting) {
    b.lines(name, {screenMargin, middle, 700}, setting.name, first, setting.note, second);
    if (setting.end == Setting::End::none)
        return;
    const bool on = setting.end == Setting::End::on;
    b.switchControl(name, {966, middle}, on, on ? accent : second.faded(90), {{}, screenColour::paper});
}

constexpr int settingPitch = 162;

void settingDivider(ScreenBuilder& b, int y) {
    b.leaveOut(before9);
    b.picture("mms/line_split_bottom_ovui.9.png", {screenMargin, y - 9, phoneWidth - 2 * screenMargin, 12});
    b.leaveOut(only9);
    b.divider(y, line);
    b.leaveOut(0);
}

void settingRows(ScreenBuilder& b, const std::string& name, int top, std::initializer_list<Setting> settings) {
    int middle = top + settingPitch / 2;
    int number = 1;
    for (const Setting& setting : settings) {
        if (number > 1)
            settingDivider(b, middle - settingPitch / 2);
        settingRow(b, name + std::to_string(number++), middle, setting);
        middle += settingPitch;
    }
}

struct BubbleStyle {
    Words name;
    int height; ///< Of its picture.
    int radius;
    unsigned corners;
};

constexpr BubbleStyle bubbleStyles[] = {
    {{"Rounded", "圆角"}, 60, 30, corner::all},
    {{"Square", "方角"}, 60, 6, corner::all},
    {{"Classic", "经典"}, 60, 24, corner::all & ~corner::bottomLeft},
    {{"Slim", "紧凑"}, 36, 12, corner::all},
};

/// A small message in a style.
void bubbleSample(ScreenBuilder& b, const std::string& name, const Place& place, const BubbleStyle& style) {
    b.panel(name + "_bubble", place, style.radius, received, style.corners);
    b.ring(name + "_edge", place, style.radius, 4, popUpText).drawing.corners = style.corners;
    b.text(name + "_sample", {place.x + 6, place.y + place.height / 2, place.width - 12}, {"Abc", "文字"},
           {style.height / 2, 500, TextAlign::centre}, popUpText);
}

/// What stands on the theme's own picture of a menu follows the menus' item; since generation 9 it stands on a colour.
void menuLabel(ScreenBuilder& b, const std::string& name, const Line& at, const Words& words, bool chosen) {
    const TextStyle style{48, chosen ? 500 : 400};
    b.leaveOut(before9);
    b.text(name + "_old", at, words, style, popUpText);
    b.leaveOut(only9);
    b.text(name, at, words, style, first);
    b.leaveOut(0);
}

/// The menu of the bubbles' styles, with the chosen one ticked.
void bubbleMenu(ScreenBuilder& b, const Place& place) {
    b.leaveOut(before9);
    b.picture("commonSetting/popup_full_bright_opaque_ovui.9.png",
              {place.x - 18, place.y - 18, place.width + 36, place.height + 36});
    b.leaveOut(only9);
    for (const int grown : {36, 24, 12})
        b.ring("menu_shade" + std::to_string(grown),
               {place.x - grown / 2, place.y + 9 - grown / 2, place.width + grown, place.height + grown},
               36 + grown / 2, 18 + grown / 2, {{}, 0xff000000, 9});
    b.card("menu", place, 36, box);
    b.leaveOut(0);
    constexpr int pitch = 132;
    int middle = place.y + 18 + pitch / 2;
    for (const BubbleStyle& sample : bubbleStyles) {
        const std::string name = "menu_item" + std::to_string(middle);
        const bool chosen = &sample == bubbleStyles;
        bubbleSample(b, name, {place.x + 48, middle - sample.height / 2, 84, sample.height}, sample);
        menuLabel(b, name, {place.x + 168, middle, 250}, sample.name, chosen);
        if (chosen)
            b.icon("menu_tick", {place.x + place.width - 72, middle}, 60, sign::check, accent);
        middle += pitch;
    }
}

Screen settingsScreen() {
    using enum Setting::End;
    ScreenBuilder b("mms", "mms settings");
    b.fill({0, 0, phoneWidth, phoneHeight}, page);
    b.statusBar(first);
    b.subTitleBar({"Message settings", "信息设置"}, first);
    section(b, "notices", 282, {"Notices", "通知"});
    settingRows(b, "notice", 372,
                {{{"Message tone", "信息铃声"}, {"Ripple", "涟漪"}, none},
                 {{"Vibrate", "振动"}, {}, on},
                 {{"Show on lock screen", "锁屏显示"}, {"Sender only", "仅显示发件人"}, on}});
    section(b, "looks", 876, {"Appearance", "外观"});
    settingRows(b, "look", 966,
                {{{"Bubble style", "气泡样式"}, {"Rounded", "圆角"}, none},
                 {{"Text size", "字体大小"}, {"Medium", "中"}, none},
                 {{"Link cards", "链接卡片"}, {}, none},
                 {{"Swipe back", "滑动返回"}, {}, none}});
    section(b, "delivery", 1632, {"Sending", "发送"});
    settingRows(b, "delivery", 1722,
                {{{"Delivery reports", "送达报告"}, {"Ask for each message", "逐条询问结果"}, off},
                 {{"Read receipts", "已读回执"}, {}, on}});
    b.icon("look1_open", {978, 1047}, 60, sign::arrowDropDown, second);
    bubbleMenu(b, {516, 1110, 516, 564});
    b.homeLine(first.faded(150));
    return b.take();
}

} // namespace

std::vector<Screen> mmsScreens() {
    return {messageListScreen(), conversationScreen(), smartMessageScreen(), settingsScreen()};
}

} // namespace zdt
