#include "canvas/screens/screenBuilder.h"
#include "canvas/screens/screenLists.h"

#include <array>

namespace zdt {

namespace {

constexpr Ink white{{}, screenColour::paper};
constexpr Ink highlight{"launcher/launcher/highlight color", screenColour::accent};
constexpr Ink appText{"launcher/folder/app text", screenColour::paper};
constexpr Ink textShadow{"launcher/folder/text shadow", 0x66000000};
constexpr Ink tileText{"commonSetting/dialing settings/first level icon text", screenColour::ink};
constexpr Ink onAnyGround{{}, 0xff808080}; ///< No text of the theme goes with the ground of the simple mode.
constexpr Ink tile{"commonSetting/dialing settings/button box background", screenColour::box};

constexpr std::string_view homeWallpaper = "home_wallpaper_0.jpg";
constexpr TextStyle appName{36, 400, TextAlign::centre};

struct NamedApp {
    Words name;
    App icon;
};

void addPageDots(ScreenBuilder& screen, int y, int count, int current, const Ink& ink) {
    constexpr int pitch = 42;
    int x = phoneWidth / 2 - (count - 1) * pitch / 2;
    for (int number = 1; number <= count; ++number) {
        const bool here = number == current;
        screen.panel("dot" + std::to_string(number), around({x, y}, here ? 24 : 18), here ? 12 : 9,
                     ink.faded(here ? 255 : 120));
        x += pitch;
    }
}

constexpr std::array<NamedApp, 12> homeApps{{
    {{"Camera", "相机"}, App::camera},
    {{"Gallery", "图库"}, App::gallery},
    {{"Weather", "天气"}, App::weather},
    {{"Calendar", "日历"}, App::calendar},
    {{"Music", "音乐"}, App::music},
    {{"Videos", "视频"}, App::videos},
    {{"Notes", "备忘录"}, App::notes},
    {{"Health", "健康"}, App::health},
    {{"Files", "文件管理"}, App::files},
    {{"Email", "电子邮件"}, App::email},
    {{"Themes", "主题"}, App::themes},
    {{"Settings", "设置"}, App::settings},
}};

/// The mark at an icon's corner: a picture of the theme where its generation has one.
void addMark(ScreenBuilder& screen, const std::string& name, Point centre, bool chosen) {
    constexpr int side = 57;
    if (!chosen) {
        screen.panel(name + "_box", around(centre, side), side / 2, {{}, 0xff000000, 40});
        screen.ring(name + "_rim", around(centre, side), side / 2, 5, white);
        return;
    }
    screen.leaveOut(typeMask::generation9);
    screen.picture("launcher/btn_check_on.png", around(centre, side));
    screen.leaveOut(typeMask::generation5 | typeMask::generation8);
    screen.panel(name + "_mark", around(centre, side), side / 2, highlight);
    screen.icon(name + "_check", centre, 42, sign::check, white);
    screen.leaveOut(0);
}

void addHomeApps(ScreenBuilder& screen, int top) {
    constexpr int pitch = 246;
    constexpr int rowPitch = 306;
    int number = 0;
    for (const NamedApp& app : homeApps) {
        const Point centre{171 + number % 4 * pitch, top + number / 4 * rowPitch};
        const std::string name = "app" + std::to_string(++number);
        const bool chosen = number == 2 || number == 7;
        if (chosen)
            screen.panel(name + "_halo", {centre.x - 120, centre.y - 117, 240, 282}, 42, highlight.faded(72));
        screen.appIcon(centre, 168, app.icon);
        screen.text(name + "_name", {centre.x - 117, centre.y + 120, 234}, app.name, appName, white);
        addMark(screen, name, {centre.x + 72, centre.y - 69}, chosen);
    }
}

void addDock(ScreenBuilder& screen) {
    constexpr int middle = 1893;
    constexpr std::array icons{App::phone, App::contacts, App::messages, App::browser};
    screen.card("dock", {36, middle - 135, 1008, 270}, 84, {{}, 0x38ffffff});
    int x = 156;
    int number = 1;
    for (const App icon : icons) {
        if (number == 3) {
            screen.picture("launcher/ic_allapps.png", around({x, middle}, 168));
            x += 192;
        }
        screen.appIcon({x, middle}, 168, icon);
        ++number;
        x += 192;
    }
}

/// What can be done with the chosen applications. The nine-patches hold signs.
void addEditBar(ScreenBuilder& screen) {
    constexpr int middle = 192;
    constexpr Ink ink{{}, screenColour::ink};
    constexpr TypeMask older = typeMask::generation5 | typeMask::generation8;
    screen.panel("edit_bar", {36, middle - 69, 1008, 138}, 69, {{}, screenColour::paper, 235});
    screen.icon("edit_close", {117, middle}, 66, sign::close, ink);
    screen.text("edit_title", {186, middle, 480}, {"2 selected", "已选择 2 项"}, {48, 600}, ink);
    screen.leaveOut(typeMask::generation5);
    screen.picture("launcher/ic_edit_share.9.png", around({831, middle}, 96));
    screen.leaveOut(older);
    screen.picture("launcher/ic_edit_delete.9.png", around({963, middle}, 96));
    screen.leaveOut(typeMask::generation8 | typeMask::generation9);
    screen.icon("edit_share", {831, middle}, 66, sign::share, ink);
    screen.leaveOut(typeMask::generation9);
    screen.icon("edit_delete", {963, middle}, 66, sign::deleteOutline, ink);
    screen.leaveOut(0);
}

Screen homeScreen() {
    ScreenBuilder screen("launcher", "launcher");
    screen.wallpaper(homeWallpaper);
    screen.fill({0, 0, phoneWidth, phoneHeight}, {{}, 0x4d101828});
    screen.statusBar(white);
    addEditBar(screen);
    screen.text("clock", {48, 438, 984}, {"08:08", "08:08"}, {204, 300, TextAlign::centre}, white);
    screen.text("date", {48, 573, 984}, {"Thursday, 12 October", "10 月 12 日 星期四"}, {45, 400, TextAlign::centre},
                white);
    addHomeApps(screen, 810);
    addPageDots(screen, 1701, 4, 2, white);
    addDock(screen);
    screen.homeLine(white);
    return screen.take();
}

constexpr std::array<NamedApp, 8> folderApps{{
    {{"Calculator", "计算器"}, App::calculator},
    {{"Clock", "时钟"}, App::clock},
    {{"Recorder", "录音机"}, App::recorder},
    {{"Compass", "指南针"}, App::compass},
    {{"Files", "文件管理"}, App::files},
    {{"Notes", "备忘录"}, App::notes},
    {{"Browser", "浏览器"}, App::browser},
    {{"Weather", "天气"}, App::weather},
}};

/// A name over its shadow, which the theme may leave out.
void addFolderName(ScreenBuilder& screen, const std::string& name, const Line& line, const Words& words) {
    screen
        .text(name + "_shadow", {line.x + 3, line.middle + 4, line.width}, words, {39, 400, TextAlign::centre},
              textShadow)
        .switchKey = "launcher/folder/shadow switch";
    screen.text(name + "_name", line, words, {39, 400, TextAlign::centre}, appText);
}

Screen folderScreen() {
    constexpr Place panel{48, 690, 984, 1050};
    constexpr int pitch = 294;
    constexpr int rowPitch = 318;
    ScreenBuilder screen("launcher", "folder");
    screen.wallpaper(homeWallpaper);
    screen.fill({0, 0, phoneWidth, phoneHeight}, {{}, 0x80182032});
    screen.statusBar(white);
    screen.text("title", {108, 585, 864}, {"Tools", "实用工具"}, {72, 600, TextAlign::centre}, white);
    screen.picture("launcher/folder_open_shadow.9.png", panel);
    for (int number = 0; number <= static_cast<int>(folderApps.size()); ++number) {
        const Point centre{phoneWidth / 2 + (number % 3 - 1) * pitch, panel.y + 174 + number / 3 * rowPitch};
        const std::string name = "app" + std::to_string(number + 1);
        const Line line{centre.x - 141, centre.y + 132, 282};
        if (number == static_cast<int>(folderApps.size())) {
            screen.picture("launcher/folder_add_icon.png", around(centre, 168));
            addFolderName(screen, name, line, {"Add", "添加"});
            break;
        }
        const NamedApp& app = folderApps[static_cast<std::size_t>(number)];
        screen.appIcon(centre, 186, app.icon);
        addFolderName(screen, name, line, app.name);
    }
    addPageDots(screen, panel.y + panel.height + 72, 2, 1, white);
    screen.homeLine(white);
    return screen.take();
}

constexpr std::array<NamedApp, 6> simpleApps{{
    {{"Phone", "电话"}, App::phone},
    {{"Messages", "信息"}, App::messages},
    {{"Contacts", "联系人"}, App::contacts},
    {{"Camera", "相机"}, App::camera},
    {{"Gallery", "图库"}, App::gallery},
    {{"Settings", "设置"}, App::settings},
}};

Screen simpleScreen() {
    ScreenBuilder screen("launcher", "simple mode", typeMask::generation5);
    screen.fill({0, 0, phoneWidth, phoneHeight}, {"launcher/simple mode/background color", screenColour::paper});
    screen.statusBar(onAnyGround);
    screen.card("time_tile", {60, 138, 960, 330}, 60, tile);
    screen.text("clock", {108, 261, 560}, {"08:08", "08:08"}, {186, 500}, tileText);
    screen.text("date", {108, 402, 520}, {"Thursday, 12 October", "10 月 12 日 星期四"}, {51, 400},
                tileText.faded(170));
    screen.icon("weather", {903, 261}, 144, sign::wbSunny, {{}, 0xfff5a623});
    screen.text("degrees", {624, 402, 348}, {"Fine, 24 °C", "晴 24 °C"}, {51, 400, TextAlign::right},
                tileText.faded(170));
    constexpr int width = 456;
    constexpr int height = 432;
    constexpr int gap = 48;
    int number = 0;
    for (const NamedApp& app : simpleApps) {
        const int left = 60 + number % 2 * (width + gap);
        const int top = 510 + number / 2 * (height + gap);
        const std::string name = "app" + std::to_string(++number);
        screen.card(name + "_tile", {left, top, width, height}, 60, tile);
        screen.appIcon({left + width / 2, top + 177}, 228, app.icon);
        screen.text(name + "_name", {left + 24, top + 360, width - 48}, app.name, {60, 500, TextAlign::centre},
                    tileText);
    }
    addPageDots(screen, 1998, 3, 1, onAnyGround);
    screen.homeLine(onAnyGround);
    return screen.take();
}

} // namespace

std::vector<Screen> launcherScreens() {
    return {homeScreen(), folderScreen(), simpleScreen()};
}

} // namespace zdt
