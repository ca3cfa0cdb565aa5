#include "canvas/screens/contactsInks.h"

#include <array>

namespace zdt {

namespace {

using namespace contactsInk;

struct Detail {
    char16_t sign;
    Words value;
    Words note;
    char16_t action; ///< 0 for none.
};

constexpr std::array<Detail, 5> details{{
    {sign::call, {"138 0000 8820", "138 0000 8820"}, {"Mobile · Hangzhou", "手机 · 浙江杭州"}, sign::chatBubbleOutline},
    {sign::mailOutline, {"mei.lin@north.example", "linxiaomei@north.example"}, {"Work", "单位"}, 0},
    {sign::locationOn, {"16 Lakeside Road", "西湖区湖滨路 16 号"}, {"Home", "住宅"}, 0},
    {sign::cake, {"12 October", "10 月 12 日"}, {"Birthday", "生日"}, 0},
    {sign::musicNote, {"Morning light", "晨光"}, {"Ringtone", "来电铃声"}, sign::chevronRight},
}};

constexpr int coverHeight = 600;
constexpr int listTop = 906;

void addDetails(ScreenBuilder& screen) {
    constexpr int pitch = 183;
    int middle = listTop + 96;
    int number = 1;
    for (const Detail& detail : details) {
        const std::string name = "detail" + std::to_string(number);
        screen.icon(name + "_sign", {96, middle}, 66, detail.sign, softText);
        screen.lines(name, {180, middle, 690}, detail.value, text, detail.note, softText);
        if (detail.action)
            screen.icon(name + "_action", {984, middle}, 66, detail.action,
                        detail.action == sign::chevronRight ? softText : accent);
        if (number++ < static_cast<int>(details.size()))
            addSeparator(screen, middle + pitch / 2, 180);
        middle += pitch;
    }
}

void addAction(ScreenBuilder& screen, const std::string& name, int x, char16_t sign, const Words& words) {
    constexpr int middle = 726;
    screen.panel(name + "_back", around({x, middle}, 120), 60, accent.faded(30));
    screen.icon(name + "_sign", {x, middle}, 60, sign, accent);
    screen.text(name + "_label", {x - 120, middle + 102, 240}, words, {36, 500, TextAlign::centre}, text);
}

void addHead(ScreenBuilder& screen) {
    screen.photo("cover", {0, 0, phoneWidth, coverHeight}, 0, 2);
    screen.statusBar(white);
    constexpr int barMiddle = statusBarHeight + 72;
    screen.icon("bar_leave", {96, barMiddle}, 72, sign::arrowBack, white);
    screen.icon("bar_star", {852, barMiddle}, 72, sign::star, white);
    screen.icon("bar_more", {984, barMiddle}, 72, sign::moreVert, white);
    screen.picture("contacts/profile_simple_card_background.9.png", {24, 348, 1032, 558});
    screen.panel("portrait_rim", around({540, 384}, 228), 114, white);
    screen.portrait("portrait", {540, 384}, 210, 4);
    screen.text("name", {120, 546, 840}, {"Mei Lin", "林小梅"}, {66, 600, TextAlign::centre}, text);
    screen.text("company", {120, 618, 840}, {"Studio North · Hangzhou", "北方工作室 · 杭州"},
                {39, 400, TextAlign::centre}, softText);
    addAction(screen, "call", 252, sign::call, {"Call", "呼叫"});
    addAction(screen, "message", 540, sign::chatBubble, {"Message", "信息"});
    addAction(screen, "video", 828, sign::videocam, {"Video", "视频"});
}

/// Below the cover: the list's, and before generation 9 another behind the card.
void addGround(ScreenBuilder& screen) {
    constexpr std::string_view list = "contacts/contact_detail_list_background.9.png";
    screen.leaveOut(typeMask::generation9);
    screen.picture("contacts/people_background.9.png", {0, coverHeight, phoneWidth, listTop - coverHeight});
    screen.picture(list, {0, listTop, phoneWidth, bottomBarTop - listTop});
    screen.leaveOut(typeMask::generation5 | typeMask::generation8);
    screen.picture(list, {0, coverHeight, phoneWidth, bottomBarTop - coverHeight});
    screen.leaveOut(0);
}

void addToolbar(ScreenBuilder& screen) {
    addSeparator(screen, bottomBarTop - 3, 0, phoneWidth);
    screen.fill({0, bottomBarTop, phoneWidth, phoneHeight - bottomBarTop}, background);
    screen.tabs({{sign::share, {"Share", "分享"}},
                 {sign::edit, {"Edit", "编辑"}},
                 {sign::qrCode2, {"QR code", "二维码"}},
                 {sign::deleteOutline, {"Delete", "删除"}}},
                4, text, text);
}

constexpr std::string_view plainLine = "contacts/contact_textfield_default_holo_light.9.png";
constexpr std::string_view activeLine = "contacts/textfield_activated_holo_light.9.png";
constexpr std::string_view longLine = "contacts/contact_edit_text_background.9.png";

struct Field {
    char16_t sign;
    Words label;
    Words value;
    std::string_view line; ///< The picture before generation 9.

    [[nodiscard]] constexpr bool isActive() const { return line == activeLine; }
};

constexpr std::array<Field, 5> fields{{
    {sign::personOutline, {"Name", "姓名"}, {"Mei Lin", "林小梅"}, plainLine},
    {sign::business, {"Company", "公司"}, {"Studio North", "北方工作室"}, plainLine},
    {sign::call, {"Mobile", "手机"}, {"138 0000 8820", "138 0000 8820"}, activeLine},
    {sign::mailOutline, {"Email", "电子邮件"}, {}, plainLine},
    {sign::locationOn, {"Address", "地址"}, {}, longLine},
}};

constexpr int fieldLeft = 180;
constexpr int fieldWidth = 840;

/// The line below a field, which is a picture of the theme: of the contacts or, in generation 9, of all applications.
void addFieldLine(ScreenBuilder& screen, int bottom, const Field& field) {
    const Place place{fieldLeft, bottom - 96, fieldWidth, 96};
    screen.leaveOut(typeMask::generation9);
    screen.picture(field.line, place);
    screen.leaveOut(typeMask::generation5 | typeMask::generation8);
    screen.picture(field.isActive() ? "commonSetting/textfield_default_linear_actived_ovui.9.png"
                                    : "commonSetting/textfield_default_linear_ovui.9.png",
                   place);
    screen.leaveOut(0);
}

void addField(ScreenBuilder& screen, int number, int top, const Field& field) {
    const std::string name = "field" + std::to_string(number);
    const int middle = top + 108;
    screen.icon(name + "_sign", {96, middle}, 66, field.sign, field.isActive() ? accent : softText);
    addFieldLine(screen, top + 162, field);
    if (field.value.english.empty()) {
        screen.text(name + "_label", {fieldLeft, middle, 600}, field.label, textStyle::listLine, softText);
        return;
    }
    screen.text(name + "_label", {fieldLeft, top + 42, 600}, field.label, textStyle::caption,
                field.isActive() ? accent : softText);
    screen.text(name + "_value", {fieldLeft, middle, 600}, field.value, textStyle::listLine, text);
}

void addExpander(ScreenBuilder& screen, Point centre) {
    constexpr int side = 72;
    screen.leaveOut(typeMask::generation9);
    screen.picture("contacts/contact_expander_close_ovui.9.png", around(centre, side));
    screen.leaveOut(typeMask::generation5 | typeMask::generation8);
    screen.icon("number_kind_more", centre, side, sign::expandMore, softText);
    screen.leaveOut(0);
}

void addFields(ScreenBuilder& screen) {
    constexpr int pitch = 186;
    int top = 720;
    int number = 1;
    for (const Field& field : fields) {
        addField(screen, number++, top, field);
        if (field.isActive()) {
            const int middle = top + 108;
            screen.fill({fieldLeft + 357, middle - 33, 6, 66}, accent);
            screen.text("number_kind", {fieldLeft + fieldWidth - 240, middle, 174}, {"Mobile", "手机"},
                        textStyle::aligned(textStyle::secondLine, TextAlign::right), softText);
            addExpander(screen, {fieldLeft + fieldWidth - 36, middle});
        }
        top += pitch;
    }
}

} // namespace

void addSeparator(ScreenBuilder& screen, int y, int left, int right) {
    screen.leaveOut(typeMask::generation9);
    screen.divider(y, {"commonSetting/contact list/dividing line", screenColour::line}, left, right);
    screen.leaveOut(typeMask::generation5 | typeMask::generation8);
    screen.divider(y, {"contacts/dial/separator color", screenColour::line}, left, right);
    screen.leaveOut(0);
}

void addBox(ScreenBuilder& screen, const std::string& name, const Place& place, int radius) {
    screen.leaveOut(typeMask::generation5);
    screen.card(name, place, radius, {"commonSetting/dialing settings/button box background", screenColour::box});
    screen.leaveOut(typeMask::generation8 | typeMask::generation9);
    screen.panel(name + "_faint", place, radius, text.faded(22));
    screen.leaveOut(0);
}

Screen contactDetailsScreen() {
    ScreenBuilder screen("contacts", "contact details");
    screen.fill({0, 0, phoneWidth, phoneHeight}, background);
    addGround(screen);
    addHead(screen);
    addDetails(screen);
    addToolbar(screen);
    screen.homeLine(text.faded(150));
    return screen.take();
}

Screen newContactScreen() {
    ScreenBuilder screen("contacts", "new contact");
    screen.fill({0, 0, phoneWidth, phoneHeight}, background);
    screen.leaveOut(typeMask::generation9);
    screen.picture("contacts/header_background4.9.png", {0, 0, phoneWidth, titleBarBottom});
    screen.leaveOut(0);
    screen.statusBar(text);
    screen.subTitleBar({"New contact", "新建联系人"}, text, {sign::check}, sign::close);
    addBox(screen, "photo_back", around({540, 429}, 234), 117);
    screen.icon("photo_sign", {540, 429}, 96, sign::addAPhoto, softText);
    addBox(screen, "account", {300, 585, 480, 84}, 42);
    screen.icon("account_sign", {360, 627}, 51, sign::phoneAndroid, text);
    screen.text("account_name", {399, 627, 282}, {"Save to phone", "保存到手机"}, {36, 500, TextAlign::centre}, text);
    screen.icon("account_more", {726, 627}, 51, sign::expandMore, text);
    addFields(screen);
    screen.icon("more_sign", {96, 1734}, 66, sign::addCircleOutline, accent);
    screen.text("more_label", {fieldLeft, 1734, 600}, {"Add another field", "添加更多项"}, textStyle::listLine, accent);
    addSeparator(screen, 1824);
    screen.lines("ring", {screenMargin, 1920, 700}, {"Ring when the phone is silent", "静音时仍响铃"}, text,
                 {"For calls from this contact", "仅对此联系人的来电生效"}, softText);
    screen.switchControl("ring", {966, 1920}, true, accent, white);
    screen.homeLine(text.faded(150));
    return screen.take();
}

} // namespace zdt
