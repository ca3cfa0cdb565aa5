#include "canvas/screens/mmsThreadScreens.h"

#include "canvas/screens/mmsInks.h"
#include "canvas/screens/screenBuilder.h"

namespace zdt::mms {

namespace {

constexpr TextStyle note = textStyle::caption;
constexpr TextStyle noteRight = textStyle::aligned(textStyle::caption, TextAlign::right);
constexpr TextStyle noteMiddle = textStyle::aligned(textStyle::caption, TextAlign::centre);
constexpr TextStyle messageText{46};

void threadPage(ScreenBuilder& b) {
    constexpr Place whole{0, 0, phoneWidth, phoneHeight};
    b.leaveOut(before9);
    b.picture("mms/mms_messagelist_background.9.png", whole);
    b.leaveOut(only9);
    b.fill(whole, page);
    b.leaveOut(0);
}

constexpr int bubbleRadius = 48;
/// What the pictures of bubbles need beside and below for tail and shadow.
constexpr int tailWidth = 12;
constexpr int tailHeight = 6;

/// A bubble whose corner beside its writer is sharp.
void receivedBubble(ScreenBuilder& b, const std::string& name, const Place& place) {
    constexpr unsigned corners = corner::all & ~corner::topLeft;
    b.panel(name + "_bubble", place, bubbleRadius, received, corners);
    b.ring(name + "_edge", place, bubbleRadius, 3, line).drawing.corners = corners;
}

/// As the received ones of a conversation are: a picture before generation 9.
void talkBubble(ScreenBuilder& b, const std::string& name, const Place& place) {
    b.leaveOut(before9);
    b.picture("mms/v_bg_1.9.png", {place.x - tailWidth, place.y, place.width + tailWidth, place.height + tailHeight});
    b.leaveOut(only9);
    receivedBubble(b, name, place);
    b.leaveOut(0);
}

void ownBubble(ScreenBuilder& b, const std::string& name, const Place& place) {
    b.leaveOut(before9);
    b.picture("mms/v_bg_2.9.png", {place.x, place.y, place.width + tailWidth, place.height + tailHeight});
    b.leaveOut(only9);
    b.panel(name + "_bubble", place, bubbleRadius, sent, corner::all & ~corner::topRight);
    b.leaveOut(0);
}

/// A received message's line, whose text follows another item before generation 9.
void receivedLine(ScreenBuilder& b, const std::string& name, const Line& at, const Words& words,
                  const TextStyle& style) {
    b.leaveOut(before9);
    b.text(name + "_old", at, words, style, first);
    b.leaveOut(only9);
    b.text(name, at, words, style, receivedText);
    b.leaveOut(0);
}

/// A recording that can be played: its sign, its sound and its length.
void recording(ScreenBuilder& b, const std::string& name, const Place& place, const Words& length, const Ink& ink) {
    const int middle = place.y + place.height / 2;
    b.icon(name + "_play", {place.x + 84, middle}, 66, sign::playArrow, ink);
    int x = place.x + 144;
    for (const int height : {18, 36, 54, 30, 60, 42, 24, 48, 30, 18}) {
        b.panel(name + "_bar" + std::to_string(x), {x, middle - height / 2, 6, height}, 3, ink);
        x += 18;
    }
    b.text(name + "_length", {place.x + 330, middle, 96}, length, note, ink);
}

void voiceMessages(ScreenBuilder& b) {
    constexpr Place heard{156, 1014, 468, 120};
    constexpr Place spoken{564, 1158, 468, 120};
    b.leaveOut(before9);
    b.picture("mms/v_bg_1.9.png", heard);
    recording(b, "old_voice", heard, {"0:12", "0:12"}, first);
    b.leaveOut(only9);
    b.picture("mms/v_bg_3.9.png", heard);
    recording(b, "voice", heard, {"0:12", "0:12"}, receivedText);
    b.leaveOut(0);
    b.picture("mms/v_bg_4.9.png", spoken);
    recording(b, "own_voice", spoken, {"0:05", "0:05"}, sentText);
}

void writtenMessages(ScreenBuilder& b) {
    b.text("date", {240, 318, 600}, {"Today 17:20", "今天 17:20"}, noteMiddle, second);
    b.portrait("face1", {99, 432}, 96, 4);
    talkBubble(b, "asked", {168, 372, 678, 120});
    receivedLine(b, "asked_text", {216, 432, 588}, {"Are you on the train yet?", "你上火车了吗？"}, messageText);
    ownBubble(b, "told", {366, 522, 654, 186});
    b.text("told_text1", {414, 582, 564}, {"Just left. All the fields are", "刚刚出发，"}, messageText, sentText);
    b.text("told_text2", {414, 648, 564}, {"yellow now, look at this", "路边的田野全黄了，你看"}, messageText,
           sentText);
    b.photo("view", {540, 732, 480, 216}, 36, 1);
    b.text("view_state", {720, 981, 300}, {"Delivered 17:24", "17:24 已送达"}, noteRight, second);
    b.portrait("face2", {99, 1074}, 96, 4);
    voiceMessages(b);
}

/// What glows behind the sign of recording, as far as the generation has pictures for it.
void microphone(ScreenBuilder& b, Point centre) {
    b.leaveOut(typeMask::generation5);
    b.picture("mms/mic_st_widget_recording_bar_glow.png", around(centre, 132));
    b.leaveOut(only8);
    b.picture("mms/mic_st_widget_normal.png", around(centre, 108));
    b.leaveOut(only9);
    b.picture("mms/mic_st_widget_speeching_glow.png", around(centre, 108));
    b.leaveOut(typeMask::generation8);
    b.icon("input_voice", centre, 72, sign::mic, first);
    b.leaveOut(0);
}

void inputBar(ScreenBuilder& b) {
    constexpr Place bar{0, 1302, phoneWidth, 150};
    constexpr int middle = bar.y + bar.height / 2;
    b.leaveOut(before9);
    b.picture("mms/toolbar_bg.9.png", bar);
    b.leaveOut(only9);
    b.fill(bar, page);
    b.leaveOut(0);
    b.icon("input_add", {84, middle}, 78, sign::addCircleOutline, first);
    b.panel("input_box", {150, middle - 54, 618, 108}, 54, input);
    b.ring("input_edge", {150, middle - 54, 618, 108}, 54, 3, line);
    b.text("input_text", {198, middle, 420}, {"By the big clock", "我在大钟下面等你"}, {42}, first);
    b.text("input_count", {600, middle, 132}, {"16/160", "8/70"}, noteRight, second);
    microphone(b, {846, middle});
    b.roundButton("input_send", {972, middle}, 108, sign::send, accent, page);
}

void attachmentTabs(ScreenBuilder& b, int top) {
    constexpr ScreenBuilder::Tab tabs[] = {{sign::insertPhoto, {"Photos", "图片"}},
                                           {sign::photoCamera, {"Camera", "拍照"}},
                                           {sign::insertEmoticon, {"Faces", "表情"}},
                                           {sign::locationOn, {"Place", "位置"}},
                                           {sign::personOutline, {"Contact", "名片"}}};
    constexpr int width = 192;
    b.panel("tab_chosen", {60, top, width, 168}, 36, chosenTab, corner::top);
    int left = 60;
    for (const auto& tab : tabs) {
        const std::string name = "tab" + std::to_string(left);
        const Ink& ink = left == 60 ? accent : first;
        b.icon(name + "_sign", {left + width / 2, top + 66}, 72, tab.sign, ink);
        b.text(name + "_label", {left + 6, top + 129, width - 12}, tab.label, textStyle::tab, ink);
        left += width;
    }
}

void gallery(ScreenBuilder& b, int top) {
    constexpr int width = 304;
    constexpr int height = 204;
    constexpr int pitch = 328;
    b.fill({0, top, phoneWidth, phoneHeight - top}, chosenTab);
    for (int number = 0; number < 6; ++number) {
        const Place place{60 + number % 3 * pitch, top + 24 + number / 3 * (height + 24), width, height};
        b.photo("photo" + std::to_string(number + 1), place, 24, number);
    }
    const Place chosen{60 + pitch, top + 24, width, height};
    b.ring("photo_ring", chosen, 24, 9, accent);
    const Point mark{chosen.x + width - 48, chosen.y + 48};
    b.leaveOut(only8);
    b.picture("mms/btn_gallery_check.png", around(mark, 54));
    b.leaveOut(typeMask::generation8);
    b.roundButton("photo_mark", mark, 60, sign::check, accent, chosenTab);
    b.leaveOut(0);
}

/// The card's ground: the theme's picture, or since generation 9 a colour.
void cardGround(ScreenBuilder& b, const std::string& name, const Place& place, std::string_view picture) {
    b.leaveOut(before9);
    b.picture(picture, {place.x - 12, place.y - 12, place.width + 24, place.height + 24});
    b.leaveOut(only9);
    b.card(name, place, 48, received);
    b.ring(name + "_edge", place, 48, 3, line);
    b.leaveOut(0);
}

/// City and hour of one end of a journey.
void journeyEnd(ScreenBuilder& b, const std::string& name, const Line& at, TextAlign align, const Words& city,
                const Words& hour, const Ink& ink) {
    b.text(name + "_hour", at, hour, {84, 500, align}, ink);
    b.text(name + "_city", {at.x, at.middle + 84, at.width}, city, {45, 400, align}, ink);
}

void trainTexts(ScreenBuilder& b, const std::string& name, const Ink& ink) {
    const Ink soft = ink.faded(170);
    b.icon(name + "_sign", {126, 426}, 60, sign::train, ink);
    b.text(name + "_title", {174, 426, 420}, {"Train ticket", "火车票"}, {42, 500}, ink);
    b.text(name + "_date", {600, 426, 384}, {"Thursday, 12 October", "10月12日 周四"}, noteRight, soft);
    journeyEnd(b, name + "_leave", {96, 522, 330}, TextAlign::left, {"Hangzhou", "杭州"}, {"07:42", "07:42"}, ink);
    journeyEnd(b, name + "_reach", {654, 522, 330}, TextAlign::right, {"Suzhou", "苏州"}, {"09:18", "09:18"}, ink);
    b.text(name + "_number", {430, 492, 220}, {"Train 482", "482 次"}, noteMiddle, soft);
    b.panel(name + "_way", {426, 534, 228, 6}, 3, ink.faded(90));
    b.panel(name + "_from", around({426, 537}, 18), 9, ink);
    b.panel(name + "_to", around({654, 537}, 18), 9, ink);
    b.text(name + "_length", {430, 582, 220}, {"1 h 36 min", "1 小时 36 分"}, noteMiddle, soft);
    b.text(name + "_seat", {96, 696, 520}, {"Coach 6, seat 12F", "06 车 12F 号"}, {42}, ink);
    b.text(name + "_gate", {624, 696, 360}, {"Gate 3", "检票口 3"}, {42, 400, TextAlign::right}, ink);
}

void parcelTexts(ScreenBuilder& b, const std::string& name, const Ink& ink) {
    const Ink soft = ink.faded(170);
    b.icon(name + "_sign", {126, 996}, 60, sign::localShipping, ink);
    b.text(name + "_title", {174, 996, 460}, {"Parcel to collect", "包裹待领取"}, {42, 500}, ink);
    b.text(name + "_until", {640, 996, 344}, {"until 20:00", "20:00 前"}, noteRight, soft);
    b.text(name + "_code", {96, 1080, 420}, {"4-1827", "4-1827"}, {66, 600}, ink);
    b.text(name + "_place", {96, 1152, 840}, {"Locker 4, by the south door", "南门 4 号柜"}, {40}, soft);
}

void cards(ScreenBuilder& b) {
    cardGround(b, "train", {48, 354, 984, 540}, "mms/duoqu_has_botton_bg.9.png");
    cardGround(b, "parcel", {48, 930, 984, 276}, "mms/duoqu_no_button_bg.9.png");
    b.leaveOut(before9);
    trainTexts(b, "old_train", first);
    parcelTexts(b, "old_parcel", first);
    b.leaveOut(only9);
    trainTexts(b, "train", receivedText);
    parcelTexts(b, "parcel", receivedText);
    b.leaveOut(0);
    b.divider(756, line, 84, 996);
    b.text("train_follow", {72, 828, 444}, {"Follow train", "列车动态"}, {45, 500, TextAlign::centre}, accent);
    b.fill({538, 798, 3, 60}, line);
    b.text("train_change", {564, 828, 444}, {"Change ticket", "改签"}, {45, 500, TextAlign::centre}, accent);
}

/// Which of the service's cards is shown.
void cardPoints(ScreenBuilder& b, int middle) {
    for (int number = 0; number < 3; ++number) {
        const Point at{504 + number * 36, middle};
        const bool shown = number == 0;
        b.leaveOut(before9);
        b.picture(shown ? "mms/duoqu_point_on.png" : "mms/duoqu_point_off.png", around(at, 24));
        b.leaveOut(only9);
        b.panel("point" + std::to_string(number + 1), around(at, 18), 9, shown ? accent : second.faded(110));
        b.leaveOut(0);
    }
}

void answers(ScreenBuilder& b) {
    receivedBubble(b, "link", {48, 1284, 696, 186});
    receivedLine(b, "link_text", {96, 1344, 600}, {"Your seat on the map:", "您的座位图在这里："}, messageText);
    b.text("link_address", {96, 1410, 530}, {"rail.example/seat/12F", "rail.example/seat/12F"}, messageText, accent);
    b.icon("link_open", {678, 1410}, 48, sign::openInNew, accent);
    ownBubble(b, "thanks", {576, 1500, 444, 120});
    b.text("thanks_text", {624, 1560, 366}, {"Got it, thanks", "收到，谢谢"}, messageText, sentText);
    b.text("thanks_state", {672, 1662, 348}, {"Delivered 09:43", "09:43 已送达"}, noteRight, second);
}

/// The menus of the service, one of them open.
void serviceBar(ScreenBuilder& b) {
    constexpr int middle = bottomBarTop + 84;
    b.leaveOut(before9);
    b.picture("mms/duoqu_toolbar_bg.9.png", {0, bottomBarTop, phoneWidth, phoneHeight - bottomBarTop});
    b.leaveOut(only9);
    b.fill({0, bottomBarTop, phoneWidth, phoneHeight - bottomBarTop}, page);
    b.divider(bottomBarTop, line, 0, phoneWidth);
    b.leaveOut(0);
    b.icon("bar_keyboard", {90, middle}, 72, sign::keyboard, first);
    constexpr Words menus[] = {{"Trips", "行程"}, {"Tickets", "车票"}, {"Help", "帮助"}};
    int left = 180;
    for (const Words& menu : menus) {
        b.fill({left, middle - 36, 3, 72}, line);
        b.icon("bar_menu" + std::to_string(left), {left + 66, middle}, 48, sign::menu, second);
        b.text("bar_label" + std::to_string(left), {left + 102, middle, 192}, menu, {45}, first);
        left += 300;
    }
}

void openMenu(ScreenBuilder& b) {
    constexpr Place place{162, 1596, 390, 306};
    b.picture("mms/duoqu_menu_bg.9.png", place);
    b.text("menu_item1", {place.x + 48, place.y + 84, 336}, {"Next journey", "下一行程"}, {45}, popUpText);
    b.divider(place.y + 150, line, place.x + 36, place.x + place.width - 36);
    b.text("menu_item2", {place.x + 48, place.y + 216, 336}, {"Past journeys", "历史行程"}, {45}, popUpText);
}

} // namespace

Screen conversationScreen() {
    ScreenBuilder b("mms", "MMS");
    threadPage(b);
    b.statusBar(first);
    b.subTitleBar({"Mei Lin", "林小梅"}, first, {sign::call, sign::moreVert});
    writtenMessages(b);
    inputBar(b);
    b.fill({0, 1452, phoneWidth, phoneHeight - 1452}, page);
    b.divider(1452, line, 0, phoneWidth);
    attachmentTabs(b, 1464);
    gallery(b, 1632);
    b.homeLine(first.faded(150));
    return b.take();
}

Screen smartMessageScreen() {
    ScreenBuilder b("mms", "smart message");
    threadPage(b);
    b.statusBar(first);
    b.subTitleBar({"Rail service", "铁路服务"}, first, {sign::notificationsNone, sign::moreVert});
    b.text("date", {240, 306, 600}, {"Today 09:40", "今天 09:40"}, noteMiddle, second);
    cards(b);
    cardPoints(b, 1245);
    answers(b);
    serviceBar(b);
    openMenu(b);
    b.homeLine(first.faded(150));
    return b.take();
}

} // namespace zdt::mms
