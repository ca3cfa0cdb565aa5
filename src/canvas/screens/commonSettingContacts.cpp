#include "canvas/screens/commonSettingParts.h"

#include <algorithm>
#include <iterator>

namespace zdt::commonSetting {

namespace {

// A list in which some rows are chosen.

constexpr int rowHeight = 168;
constexpr int sectionHeight = 78;

struct Row {
    Words name;
    Words note;
    int face;
    bool chosen = false;
};

void chosenGround(ScreenBuilder& b, int top, bool isFirst) {
    b.leaveOut(only9);
    b.picture(isFirst ? "commonSetting/list_selector_background_focused_top_ovui.9.png"
                      : "commonSetting/list_selector_background_focused_middle_ovui.9.png",
              {0, top, phoneWidth, rowHeight});
    b.leaveOut(0);
}

void row(ScreenBuilder& b, const std::string& name, int top, const Row& it) {
    const int middle = top + rowHeight / 2;
    if (it.chosen)
        chosenGround(b, top, name == "a1");
    b.portrait(name + "_face", {120, middle}, 114, it.face);
    b.lines(name, {210, middle, 600}, it.name, first, it.note, second);
    b.icon(name + "_mark", {924, middle}, 75, it.chosen ? sign::checkBox : sign::checkBoxOutlineBlank,
           it.chosen ? accent : second);
}

/// Gives back where the next section begins.
int rows(ScreenBuilder& b, const std::string& name, int top, const Words& letter, std::initializer_list<Row> all) {
    section(b, name, {0, top, phoneWidth, sectionHeight}, letter);
    top += sectionHeight;
    int number = 1;
    for (const Row& each : all) {
        if (number > 1)
            b.divider(top, line, 210, 960);
        row(b, name + std::to_string(number++), top, each);
        top += rowHeight;
    }
    return top;
}

void searchField(ScreenBuilder& b, int top) {
    constexpr int height = 120;
    const Place place{screenMargin - 12, top, phoneWidth - 2 * screenMargin + 24, height};
    b.leaveOut(only5);
    b.panel("search_box", place, height / 2, box);
    b.leaveOut(only8);
    b.picture("commonSetting/textfield_search_default_ovui.9.png", place);
    b.leaveOut(only9);
    b.picture("commonSetting/search_bg_normal.9.png", place);
    b.leaveOut(since8);
    b.ring("search_edge", place, 46, 3, line); // As round as those pictures.
    b.leaveOut(0);
    b.searchHint(top, {"Search 128 contacts", "搜索 128 位联系人"}, second);
}

void alphabet(ScreenBuilder& b) {
    constexpr Words letters[] = {{"A", "A"}, {"B", "B"}, {"C", "C"}, {"E", "D"}, {"G", "F"}, {"I", "H"}, {"K", "J"},
                                 {"M", "L"}, {"O", "N"}, {"Q", "Q"}, {"S", "S"}, {"U", "W"}, {"W", "X"}, {"Y", "Z"}};
    constexpr int shown = 2;
    constexpr int top = 546;
    constexpr int pitch = 90;
    for (int number = 0; number < static_cast<int>(std::size(letters)); ++number) {
        const bool chosen = number == shown;
        b.text("letter" + std::to_string(number + 1), {1000, top + number * pitch, 48}, letters[number],
               {30, chosen ? 600 : 400, TextAlign::centre}, chosen ? accent : second);
    }
    constexpr Point label{768, top + shown * pitch};
    b.leaveOut(before9);
    b.panel("label_back", around(label, 120), 60, accent);
    b.leaveOut(only9);
    b.picture("commonSetting/alphaindexerlistview_bg_label.9.png", around(label, 120));
    b.leaveOut(0);
    b.text("label", {label.x - 60, label.y, 120}, {"C", "C"}, {66, 600, TextAlign::centre}, page);
    b.picture("commonSetting/bg_scrollbar.9.png", {1062, 564, 12, 390});
}

/// What can be done with the chosen rows.
void tools(ScreenBuilder& b) {
    constexpr Place bar{0, bottomBarTop, phoneWidth, phoneHeight - bottomBarTop};
    b.leaveOut(before9);
    b.picture("commonSetting/toolbar_bg.9.png", bar);
    b.leaveOut(only9);
    b.fill(bar, page);
    b.divider(bottomBarTop, line, 0, phoneWidth);
    b.leaveOut(0);
    constexpr ScreenBuilder::Tab all[] = {{sign::share, {"Share", "分享"}},
                                          {sign::groupAdd, {"To group", "加入群组"}},
                                          {sign::starBorder, {"Favourite", "收藏"}},
                                          {sign::deleteOutline, {"Delete", "删除"}}};
    constexpr int width = phoneWidth / 4;
    int left = 0;
    for (const auto& tool : all) {
        b.icon("tool_sign" + std::to_string(left), {left + width / 2, bottomBarTop + 63}, 72, tool.sign, first);
        b.text("tool_label" + std::to_string(left), {left + 12, bottomBarTop + 129, width - 24}, tool.label,
               textStyle::tab, first);
        left += width;
    }
}

} // namespace

Screen contactListScreen() {
    ScreenBuilder b("commonSetting", "contact list");
    ground(b);
    b.subTitleBar({"2 selected", "已选择 2 项"}, first, {sign::moreVert}, sign::close);
    searchField(b, 282);
    int top = 426;
    top =
        rows(b, "a", top, {"A", "A"},
             {{{"Adaeze Bright", "安然"}, {"Mobile", "手机"}, 2, true}, {{"Ana Reyes", "敖宇"}, {"Work", "单位"}, 7}});
    top = rows(b, "c", top, {"C", "C"},
               {{{"Chen Wei", "陈伟"}, {"Mobile", "手机"}, 0, true}, {{"Clara Ruiz", "陈佳怡"}, {"Home", "住宅"}, 1}});
    rows(b, "m", top, {"M", "L"},
         {{{"Mei Lin", "林小梅"}, {"Mobile", "手机"}, 4},
          {{"Milan Novak", "刘晨"}, {"Mobile", "手机"}, 5},
          {{"Moses Hale", "罗一鸣"}, {"Work", "单位"}, 6}});
    alphabet(b);
    tools(b);
    b.homeLine(first.faded(150));
    return b.take();
}

namespace {

// One contact.

void head(ScreenBuilder& b) {
    b.portrait("face", {168, 396}, 216, 4);
    b.text("name", {318, 363, 660}, {"Mei Lin", "林小梅"}, {63, 600}, first);
    b.text("job", {318, 444, 660}, {"Printmaker, Studio North", "版画师，北方工作室"}, {42}, second);
    constexpr Words actions[] = {{"Call", "呼叫"}, {"Message", "信息"}, {"Video", "视频"}};
    int left = screenMargin;
    for (const Words& action : actions) {
        const Place place{left, 558, 304, 108};
        b.leaveOut(before9);
        b.panel("action" + std::to_string(left), place, 54, box);
        b.leaveOut(only9);
        b.picture("commonSetting/button_small_bg_stroked.9.png", place);
        b.leaveOut(0);
        b.text("action_label" + std::to_string(left), {left + 24, 612, 256}, action, {45, 500, TextAlign::centre},
               accent);
        left += 328;
    }
}

void subTabs(ScreenBuilder& b) {
    constexpr Words tabs[] = {{"Details", "详情"}, {"Calls", "通话"}, {"Files", "文件"}};
    constexpr int width = phoneWidth / 3;
    constexpr int middle = 756;
    int left = 0;
    for (const Words& tab : tabs) {
        const bool chosen = left == 0;
        b.text("tab" + std::to_string(left), {left + 24, middle, width - 48}, tab,
               {48, chosen ? 600 : 400, TextAlign::centre}, chosen ? accent : second);
        left += width;
    }
    b.leaveOut(before9);
    b.picture("commonSetting/line_split_bottom_ovui.9.png", {0, middle + 48, phoneWidth, 12});
    b.leaveOut(only9);
    b.divider(middle + 57, line, 0, phoneWidth);
    b.leaveOut(0);
    b.panel("tab_line", {width / 2 - 72, middle + 51, 144, 9}, 4, accent);
}

struct Detail {
    char16_t sign;
    Words value;
    Words kind;
    char16_t more;
};

void details(ScreenBuilder& b, int top) {
    constexpr Detail all[] = {
        {sign::call, {"0571 8800 2210", "0571 8800 2210"}, {"Mobile, Hangzhou", "手机，杭州"}, sign::chatBubbleOutline},
        {sign::mailOutline, {"mei.lin@north.example", "meilin@north.example"}, {"Work", "单位"}, sign::send},
        {sign::place, {"18 Lakeside Road", "湖滨路 18 号"}, {"Studio", "工作室"}, sign::chevronRight},
        {sign::cake, {"12 October", "10月12日"}, {"Birthday", "生日"}, sign::notificationsNone}};
    constexpr int pitch = 159;
    int middle = top + pitch / 2;
    int number = 1;
    for (const Detail& detail : all) {
        const std::string name = "detail" + std::to_string(number++);
        b.icon(name + "_sign", {96, middle}, 69, detail.sign, second);
        b.lines(name, {168, middle, 700}, detail.value, first, detail.kind, second);
        b.icon(name + "_more", {984, middle}, 66, detail.more, second);
        b.divider(middle + pitch / 2, line, 168);
        middle += pitch;
    }
}

void sharedPictures(ScreenBuilder& b, int top) {
    b.text("shared", {screenMargin, top + 24, 600}, {"Shared pictures", "共享图片"}, {40, 500}, second);
    for (int number = 0; number < 4; ++number) {
        const int left = screenMargin + number * 276;
        b.photo("shared" + std::to_string(number + 1), {left, top + 66, std::min(258, phoneWidth - left), 174}, 24,
                number);
    }
    b.picture("commonSetting/bg_scrollbar_horizontal.9.png", {screenMargin, top + 258, 420, 12});
}

void noteField(ScreenBuilder& b, const Place& place) {
    b.leaveOut(only5);
    b.panel("note_box", place, 30, box);
    b.leaveOut(only8);
    b.picture("commonSetting/textfield_default_bubble_ovui.9.png", place);
    b.leaveOut(only9);
    b.picture("commonSetting/bg_edittext_item.9.png", place);
    b.ring("note_edge", place, 16, 3, line);
    b.leaveOut(0);
    const int middle = place.y + place.height / 2;
    b.text("note_hint", {place.x + 36, middle, 700}, {"Add a note", "添加备注"}, {45}, second);
    b.icon("note_sign", {place.x + place.width - 60, middle}, 60, sign::edit, second);
}

} // namespace

Screen contactDetailsScreen() {
    ScreenBuilder b("commonSetting", "contact details");
    ground(b);
    b.subTitleBar({"Contact", "联系人"}, first, {sign::starBorder, sign::edit});
    head(b);
    subTabs(b);
    details(b, 816);
    sharedPictures(b, 1470);
    noteField(b, {screenMargin, 1770, phoneWidth - 2 * screenMargin, 108});
    b.bottomBar({{sign::call, {"Phone", "电话"}},
                 {sign::person, {"Contacts", "联系人"}},
                 {sign::starBorder, {"Favourites", "收藏"}}},
                1, page, accent, second);
    b.divider(bottomBarTop, line, 0, phoneWidth);
    b.homeLine(first.faded(150));
    return b.take();
}

} // namespace zdt::commonSetting
