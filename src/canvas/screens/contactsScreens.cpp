#include "canvas/screens/contactsInks.h"
#include "canvas/screens/screenLists.h"

#include <array>

namespace zdt {

namespace {

using namespace contactsInk;

struct Call {
    Words name;
    Words note;
    Words time;
    char16_t sign;
};

constexpr std::array<Call, 4> calls{{
    {{"Mei Lin", "林小梅"}, {"Mobile · Hangzhou", "手机 · 杭州"}, {"08:02", "08:02"}, sign::callReceived},
    {{"Studio North", "北方工作室"}, {"0571 8800 2210", "0571 8800 2210"}, {"07:41", "07:41"}, sign::callMade},
    {{"Daniel Okoro (2)", "陈子安 (2)"}, {"Work · London", "单位 · 上海"}, {"Yesterday", "昨天"}, sign::callMissed},
    {{"Grandma", "外婆"}, {"Home · Suzhou", "住宅 · 苏州"}, {"Yesterday", "昨天"}, sign::callReceived},
}};

void addCall(ScreenBuilder& screen, int number, int middle, const Call& call) {
    const std::string name = "call" + std::to_string(number);
    const bool missed = call.sign == sign::callMissed;
    constexpr Ink missedInk{{}, screenColour::danger};
    screen.icon(name + "_kind", {93, middle}, 60, call.sign, missed ? missedInk : accent);
    screen.lines(name, {156, middle, 520}, call.name, missed ? missedInk : text, call.note, softText);
    screen.text(name + "_time", {690, middle, 222}, call.time, {38, 400, TextAlign::right}, softText);
    screen.icon(name + "_info", {984, middle}, 66, sign::infoOutline, softText);
}

void addCallLog(ScreenBuilder& screen) {
    constexpr int pitch = 168;
    int middle = titleBarBottom + 72;
    int number = 1;
    for (const Call& call : calls) {
        addCall(screen, number, middle, call);
        if (number++ < static_cast<int>(calls.size()))
            addSeparator(screen, middle + pitch / 2 - 2, 156);
        middle += pitch;
    }
}

struct Key {
    std::string_view picture;
    std::string_view letters;
};

constexpr std::array<Key, 12> keys{{
    {"contacts/dial_num_1_blk.png", {}},
    {"contacts/dial_num_2_blk.png", "ABC"},
    {"contacts/dial_num_3_blk.png", "DEF"},
    {"contacts/dial_num_4_blk.png", "GHI"},
    {"contacts/dial_num_5_blk.png", "JKL"},
    {"contacts/dial_num_6_blk.png", "MNO"},
    {"contacts/dial_num_7_blk.png", "PQRS"},
    {"contacts/dial_num_8_blk.png", "TUV"},
    {"contacts/dial_num_9_blk.png", "WXYZ"},
    {"contacts/xing.png", {}},
    {"contacts/dial_num_0_blk.png", "+"},
    {"contacts/jing.png", {}},
}};

constexpr int padTop = 984;

/// The theme's picture where its generation has one, else a sheet. The bar with the tabs stands below.
void addPadBackground(ScreenBuilder& screen) {
    constexpr int height = bottomBarTop - padTop;
    screen.leaveOut(typeMask::generation9);
    screen.picture("contacts/contact_dialpad.9.png", {0, padTop, phoneWidth, height});
    screen.leaveOut(typeMask::generation5 | typeMask::generation8);
    constexpr int radius = 60;
    constexpr Ink shade{{}, 0xff000000, 9};
    for (const int rise : {15, 9, 3})
        screen.panel("pad_shade" + std::to_string(rise), {0, padTop - rise, phoneWidth, radius}, radius, shade,
                     corner::top);
    screen.panel("pad_top", {0, padTop, phoneWidth, radius}, radius, pad, corner::top);
    screen.fill({0, padTop + radius, phoneWidth, height - radius}, pad);
    screen.leaveOut(0);
}

void addKeys(ScreenBuilder& screen) {
    constexpr int width = 312;
    constexpr int pitch = 168;
    constexpr int left = (phoneWidth - 3 * width) / 2;
    // The pictures are of one size, wider than a column.
    constexpr Place picture{0, 0, 360, 192};
    for (int number = 0; number < static_cast<int>(keys.size()); ++number) {
        const Key& key = keys[static_cast<std::size_t>(number)];
        const int middle = left + number % 3 * width + width / 2;
        const int y = padTop + 102 + number / 3 * pitch;
        screen.picture(key.picture,
                       {middle - picture.width / 2, y - 12 - picture.height / 2, picture.width, picture.height});
        const std::string name = "letters" + std::to_string(number + 1);
        if (number == 0)
            screen.icon(name, {middle, y + 63}, 39, sign::voicemail, softText);
        else if (!key.letters.empty())
            screen.text(name, {middle - 150, y + 63, 300}, {key.letters, key.letters}, {31, 500, TextAlign::centre},
                        softText);
    }
}

Screen dialScreen() {
    ScreenBuilder screen("contacts", "dial");
    screen.fill({0, 0, phoneWidth, phoneHeight}, background);
    screen.statusBar(text);
    screen.titleBar({"Phone", "电话"}, text, {sign::search, sign::moreVert});
    addCallLog(screen);
    addPadBackground(screen);
    addKeys(screen);
    constexpr int buttonMiddle = 1800;
    for (const int x : {228, 852})
        screen.picture("contacts/contact_dial_fun_menu.9.png", {x - 120, buttonMiddle - 63, 240, 126});
    screen.icon("pad_hide", {228, buttonMiddle}, 75, sign::dialpad, softText);
    screen.roundButton("call", {540, buttonMiddle}, 162, sign::call, {{}, screenColour::call}, white);
    screen.icon("pad_delete", {852, buttonMiddle}, 75, sign::backspace, softText);
    screen.bottomBar({{sign::call, {"Phone", "电话"}},
                      {sign::personOutline, {"Contacts", "联系人"}},
                      {sign::starBorder, {"Favourites", "收藏"}}},
                     0, pad, accent, softText);
    screen.homeLine(text.faded(150));
    return screen.take();
}

struct Contact {
    Words name;
    int portrait;
    Words letter = {}; ///< Of a contact without a portrait.
};

constexpr std::array<Contact, 2> firstContacts{{
    {{"Adaline Grant", "安若溪"}, 4},
    {{"Ahmed Farouk", "艾青山"}, 6, {"A", "艾"}},
}};
constexpr std::array<Contact, 2> nextContacts{{
    {{"Clara Ruiz", "陈佳怡"}, 1},
    {{"Chen Wei", "陈伟"}, 0},
}};
constexpr std::array<Contact, 2> lastContacts{{
    {{"Daniel Okoro", "戴明轩"}, 3},
    {{"Diana Frost", "邓小满"}, 7, {"D", "邓"}},
}};

constexpr int contactPitch = 165;
constexpr int sectionHeight = 78;

void addContact(ScreenBuilder& screen, const std::string& name, int middle, const Contact& contact) {
    constexpr int side = 117;
    if (contact.letter.english.empty())
        screen.portrait(name + "_portrait", {120, middle}, side, contact.portrait);
    else
        screen.initial(name + "_portrait", {120, middle}, side, contact.letter, contact.portrait);
    screen.text(name + "_name", {216, middle, 640}, contact.name, textStyle::listLine, text);
}

/// A letter over its contacts, and where the next section begins.
int addSection(ScreenBuilder& screen, int top, const char* letter, const std::array<Contact, 2>& contacts) {
    screen.leaveOut(typeMask::generation9);
    screen.picture("contacts/contact_section_background.9.png", {0, top, phoneWidth, sectionHeight});
    screen.leaveOut(0);
    const std::string name = std::string("section") + letter;
    screen.text(name, {screenMargin, top + sectionHeight / 2, 300}, {letter, letter}, {38, 500}, softText);
    int middle = top + sectionHeight + contactPitch / 2;
    int number = 1;
    for (const Contact& contact : contacts) {
        addContact(screen, name + "_" + std::to_string(number), middle, contact);
        if (number++ == 1)
            addSeparator(screen, middle + contactPitch / 2, 216, 960);
        middle += contactPitch;
    }
    return middle - contactPitch / 2 + 12;
}

void addLetters(ScreenBuilder& screen, int top) {
    constexpr std::array<const char*, 14> letters{"A", "C", "D", "F", "H", "J", "L", "N", "P", "S", "T", "W", "Y", "#"};
    int middle = top;
    for (const char* letter : letters) {
        const bool chosen = *letter == 'A';
        screen.text(std::string("index_") + (*letter == '#' ? "other" : letter), {1008, middle, 60}, {letter, letter},
                    {31, 500, TextAlign::centre}, chosen ? accent : softText);
        if (chosen) {
            screen.leaveOut(typeMask::generation5 | typeMask::generation8);
            screen.picture("contacts/fastscroll_label_phonebook_ovui_icon.png", {846, middle - 78, 156, 156});
            screen.leaveOut(typeMask::generation9);
            screen.picture("contacts/fastscroll_label_phonebook_ovui.png", {846, middle - 78, 156, 156});
            screen.text("index_label", {864, middle, 96}, {letter, letter}, {66, 500, TextAlign::centre}, white);
            screen.leaveOut(0);
        }
        middle += 72;
    }
}

/// The families of the chosen letter, in a box beside it.
void addFamilies(ScreenBuilder& screen, const Place& place) {
    constexpr std::array<Words, 3> families{{{"Ad", "安"}, {"Ah", "艾"}, {"An", "敖"}}};
    screen.picture("contacts/fastscroll_familyname_normal.9.png", place);
    const int pitch = (place.height - 48) / static_cast<int>(families.size());
    int middle = place.y + 24 + pitch / 2;
    for (const Words& family : families) {
        screen.text("family" + std::to_string(middle), {place.x + 12, middle, place.width - 24}, family,
                    {45, 500, TextAlign::centre}, boxText);
        middle += pitch;
    }
}

/// What the address book proposes.
void addTip(ScreenBuilder& screen, int top) {
    const int middle = top + 84;
    addBox(screen, "tip", {48, top, 984, 168}, 48);
    screen.icon("tip_sign", {126, middle}, 72, sign::groupAdd, text);
    screen.lines("tip", {192, middle, 560}, {"3 duplicate contacts", "发现 3 个重复联系人"}, text,
                 {"Merge each into one", "合并后更易查找"}, softText);
    screen.text("tip_action", {768, middle, 216}, {"Merge", "合并"}, {45, 500, TextAlign::right}, accent);
}

Screen contactListScreen() {
    ScreenBuilder screen("contacts", "contact list");
    screen.fill({0, 0, phoneWidth, phoneHeight}, background);
    screen.statusBar(text);
    screen.titleBar({"Contacts", "联系人"}, text, {sign::add, sign::moreVert});
    constexpr Words hint{"Search 128 contacts", "搜索 128 位联系人"};
    addBox(screen, "search_box", {48, 282, 984, 120}, 60);
    screen.searchHint(282, hint, softText);
    addTip(screen, 432);
    int top = addSection(screen, 624, "A", firstContacts);
    top = addSection(screen, top, "C", nextContacts);
    addSection(screen, top, "D", lastContacts);
    addLetters(screen, 738);
    addFamilies(screen, {858, 834, 132, 348});
    screen.bottomBar({{sign::call, {"Phone", "电话"}},
                      {sign::person, {"Contacts", "联系人"}},
                      {sign::starBorder, {"Favourites", "收藏"}}},
                     1, background, accent, softText);
    screen.homeLine(text.faded(150));
    return screen.take();
}

} // namespace

std::vector<Screen> contactsScreens() {
    return {dialScreen(), contactListScreen(), contactDetailsScreen(), newContactScreen()};
}

} // namespace zdt
