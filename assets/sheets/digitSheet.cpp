#include "assets/sheets/sheets.h"

#include <array>

namespace zdt::assets {

namespace {

struct Group {
    const char* title;
    bool (*holds)(const std::string& name);
    int columns;
    double rowHeight;
    bool isOnWallpaper;
};

bool isDialKey(const std::string& name) {
    return name.starts_with("dial_num_") || name.starts_with("xing") || name.starts_with("jing");
}

bool isPressed(const std::string& name) {
    return name.find("press") != std::string::npos;
}

bool isDigit(const std::string& name) {
    return name.starts_with("number_") || name.starts_with("colon") || name.starts_with("slide_number_") ||
           name.starts_with("slide_colon");
}

bool isWide(const std::string& name) {
    return name.find("card_") != std::string::npos || name.starts_with("music_bg") || name.starts_with("slide_track");
}

constexpr std::array<Group, 5> groups{{
    {"Dial keys", [](const std::string& name) { return isDialKey(name) && !isPressed(name); }, 6, 190, false},
    {"Dial keys, pressed", [](const std::string& name) { return isDialKey(name) && isPressed(name); }, 6, 190, false},
    {"Clocks of the lock screens", isDigit, 11, 300, true},
    {"Cards, panels and tracks of the lock screens", isWide, 2, 240, true},
    {"Other pictures of the lock screens",
     [](const std::string& name) { return !isDialKey(name) && !isDigit(name) && !isWide(name); }, 8, 250, true},
}};

bool isLockPicture(const std::string& path) {
    return path.starts_with("unlock_") && path.ends_with(".png");
}

std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

void paintOnPage(QPainter& painter, const QRectF& line, const QString& text) {
    paintName(painter, line, text);
}

void addGroup(Sheet& sheet, const TemplateFolder& folder, const Group& group) {
    const auto paths = folder.files([&](const std::string& path) {
        const bool isKey = path.starts_with("com.") && isDialKey(nameOf(path));
        return (isKey || isLockPicture(path)) && group.holds(nameOf(path));
    });
    if (paths.empty())
        return;
    sheet.addHeading(group.title);
    const auto paintLabel = group.isOnWallpaper ? paintPlate : paintOnPage;
    sheet.addGrid(
        paths.size(), group.columns, group.rowHeight,
        [=](QPainter& painter, const QRectF& cell, std::size_t index) {
            paintFitted(painter, cell.adjusted(6, 0, -6, -34), folder.picture(paths[index]));
            paintLabel(painter, {cell.left(), cell.bottom() - 34, cell.width(), 34}, shortName(paths[index]));
        },
        [folder, isOnWallpaper = group.isOnWallpaper](QPainter& painter, const QRectF& area) {
            if (isOnWallpaper)
                return paintCovering(painter, area, 28, folder.picture("wallpaper/unlock_wallpaper_1.jpg"));
            painter.setBrush(Qt::white);
            painter.drawRoundedRect(area, 28, 28);
        });
}

} // namespace

Sheet digitSheet(const TemplateFolder& folder) {
    Sheet sheet(folder.generation, "Digits and the lock screen");
    for (const Group& group : groups)
        addGroup(sheet, folder, group);
    return sheet;
}

} // namespace zdt::assets
