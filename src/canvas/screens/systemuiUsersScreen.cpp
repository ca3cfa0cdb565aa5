#include "canvas/screens/systemuiParts.h"

namespace zdt::systemui {

namespace {

void user(ScreenBuilder& b, const std::string& name, int x, const Words& words, bool chosen) {
    constexpr int middle = 390;
    if (chosen)
        b.ring(name + "_ring", around({x, middle}, 186), 93, 8, accent);
    b.text(name + "_name", {x - 114, middle + 132, 228}, words, {40, chosen ? 500 : 400, TextAlign::centre},
           chosen ? accent : plain);
}

void users(ScreenBuilder& b) {
    constexpr int middle = 390;
    b.titleBar({"Users", "用户"}, plain, {sign::settings});
    b.portrait("owner_face", {171, middle}, 156, 4);
    user(b, "owner", 171, {"Mei Lin", "林小梅"}, true);
    b.portrait("child_face", {417, middle}, 156, 1);
    user(b, "child", 417, {"Ines", "小雨"}, false);
    b.roundButton("guest_face", {663, middle}, 156, sign::person, discOff, plain);
    user(b, "guest", 663, {"Guest", "访客"}, false);
    b.roundButton("more_face", {909, middle}, 156, sign::personAdd, discOff, plain);
    user(b, "more", 909, {"Add user", "添加用户"}, false);
    b.divider(606, line);
}

/// A task's head: its icon and name, whether it is kept, and the sign that ends it.
void taskHead(ScreenBuilder& b, const std::string& name, const Place& card, const Words& words, App icon, bool kept) {
    const int middle = card.y - 54;
    b.appIcon({card.x + 42, middle}, 78, icon);
    b.text(name + "_name", {card.x + 99, middle, 210}, words, {42, 500}, plain);
    b.leaveOut(before9);
    b.picture(kept ? "systemui/zd_recents_lock.png" : "systemui/zd_recents_unlock.png",
              around({card.x + card.width - 108, middle}, 72));
    b.picture("systemui/zd_recents_dismiss.png", around({card.x + card.width - 33, middle}, 72));
    b.leaveOut(only9);
    if (kept)
        b.icon(name + "_kept", {card.x + card.width - 105, middle}, 54, sign::lock, plain);
    b.icon(name + "_end", {card.x + card.width - 30, middle}, 60, sign::close, plain);
    b.leaveOut(0);
}

/// Lines of writing, too small to be read.
void writing(ScreenBuilder& b, const std::string& name, Point at, std::initializer_list<int> widths) {
    for (const int width : widths) {
        b.panel(name + "_line" + std::to_string(at.y), {at.x, at.y, width, 18}, 9, plain.faded(80));
        at.y += 48;
    }
}

void galleryTask(ScreenBuilder& b, const std::string& name, const Place& card) {
    constexpr int side = 195;
    for (int number = 0; number < 4; ++number)
        b.photo(name + "_photo" + std::to_string(number + 1),
                {card.x + 30 + number % 2 * (side + 12), card.y + 42 + number / 2 * (side + 12), side, side}, 18,
                number);
}

void musicTask(ScreenBuilder& b, const std::string& name, const Place& card) {
    const Point middle{card.x + card.width / 2, card.y + 408};
    b.photo(name + "_cover", {card.x + 111, card.y + 36, 240, 240}, 24, 4);
    b.panel(name + "_track", {card.x + 48, card.y + 324, card.width - 96, 9}, 4, plain.faded(80));
    b.panel(name + "_played", {card.x + 48, card.y + 324, 150, 9}, 4, accent);
    b.icon(name + "_back", {middle.x - 108, middle.y}, 66, sign::skipPrevious, plain);
    b.icon(name + "_pause", middle, 84, sign::pause, plain);
    b.icon(name + "_next", {middle.x + 108, middle.y}, 66, sign::skipNext, plain);
}

void notesTask(ScreenBuilder& b, const std::string& name, const Place& card) {
    b.panel(name + "_title", {card.x + 36, card.y + 48, 228, 27}, 13, plain.faded(170));
    writing(b, name, {card.x + 36, card.y + 120}, {384, 348, 390, 216, 372, 390, 150});
}

void browserTask(ScreenBuilder& b, const std::string& name, const Place& card) {
    b.panel(name + "_address", {card.x + 30, card.y + 36, card.width - 60, 54}, 27, plain.faded(50));
    b.photo(name + "_photo", {card.x + 30, card.y + 114, card.width - 60, 180}, 18, 3);
    writing(b, name, {card.x + 30, card.y + 324}, {384, 348, 240});
}

struct Task {
    Words name;
    App icon;
    bool kept;
    void (*draw)(ScreenBuilder&, const std::string&, const Place&);
};

constexpr Task tasks[] = {{{"Gallery", "图库"}, App::gallery, true, galleryTask},
                          {{"Music", "音乐"}, App::music, false, musicTask},
                          {{"Notes", "便签"}, App::notes, false, notesTask},
                          {{"Browser", "浏览器"}, App::browser, false, browserTask}};

void closeAll(ScreenBuilder& b) {
    constexpr int middle = 1968;
    b.picture("systemui/ic_onekey_widget_preview.png", around({120, middle}, 96));
    b.text("free_first", {186, middle - 24, 240}, {"2.1 GB free", "可用 2.1 GB"}, {38, 500}, plain);
    b.text("free_second", {186, middle + 27, 240}, {"of 6 GB", "共 6 GB"}, textStyle::caption, soft);
    b.picture("systemui/zd_recents_close_all.png", around({540, middle}, 160));
    b.text("clean", {660, middle, 228}, {"Clean up", "一键清理"}, {40, 500, TextAlign::right}, accent);
    b.picture("systemui/ic_onekey_widget_shortcut.png", around({960, middle}, 120));
}

} // namespace

void ground(ScreenBuilder& b) {
    constexpr Place whole{0, 0, phoneWidth, phoneHeight};
    b.leaveOut(before9);
    b.fill(whole, sharedBack);
    b.leaveOut(only9);
    b.fill(whole, panelBack);
    b.leaveOut(0);
    b.statusBar(plain);
}

Screen usersScreen() {
    constexpr int width = 462;
    constexpr int height = 486;
    ScreenBuilder b("systemui", "users");
    ground(b);
    users(b);
    int number = 0;
    for (const Task& task : tasks) {
        const Place card{60 + number % 2 * (width + 36), 738 + number / 2 * (height + 126), width, height};
        const std::string name = "task" + std::to_string(++number);
        taskHead(b, name, card, task.name, task.icon, task.kept);
        b.card(name + "_card", card, 36, box.faded(255));
        task.draw(b, name, card);
    }
    closeAll(b);
    b.homeLine(plain.faded(150));
    return b.take();
}

} // namespace zdt::systemui
