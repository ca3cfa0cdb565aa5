#include "assets/art/palette.h"
#include "assets/art/shapes.h"
#include "assets/art/softShape.h"
#include "assets/lock/lockPainter.h"
#include "assets/previews/phoneParts.h"
#include "assets/sheets/sheets.h"

#include <algorithm>
#include <array>

namespace zdt::assets {

namespace {

constexpr double blockInset = 20;

/// A home wallpaper as wide as all pages, with what stands on the phone's page in the middle.
QImage homeWithClock(const TemplateFolder& folder) {
    QImage picture = folder.picture("wallpaper/home_wallpaper_0.jpg").convertToFormat(QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    const QPointF middle(picture.width() / 2.0, picture.height() * 0.24);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath texts = centredText(folder.generation.clockFace, 250, "08:08", middle);
    texts.addPath(centredText({interFace, 400}, 50, phoneScene().date, middle + QPointF(0, 190)));
    paintLifted(painter, texts, 0xffffffff);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 90), 3, Qt::DashLine));
    painter.drawRect(QRectF((picture.width() - 1080) / 2.0, -10, 1080, picture.height() + 20));
    return picture;
}

struct Shot {
    QString name;
    QImage picture;
};

/// Pictures side by side with their names, over the whole width: of one height, but none larger than it is.
void addShots(Sheet& sheet, const std::vector<Shot>& shots) {
    constexpr double nameHeight = 40;
    constexpr double gap = 48;
    const auto ratio = [](const Shot& shot) { return 1.0 * shot.picture.width() / std::max(1, shot.picture.height()); };
    double ratios = 0;
    for (const Shot& shot : shots)
        ratios += ratio(shot);
    const double gaps = gap * (static_cast<double>(shots.size()) - 1);
    const double height = (Sheet::innerWidth - gaps) / ratios;
    sheet.add(height + nameHeight, [=](QPainter& painter, const QRectF& area) {
        double x = area.left();
        for (const Shot& shot : shots) {
            const double own = std::min(height, 1.0 * shot.picture.height());
            const QRectF place(x, area.top(), own * ratio(shot), own);
            paintCovering(painter, place, 28, shot.picture);
            paintName(painter, {place.left(), place.bottom(), place.width(), nameHeight}, shot.name);
            x = place.right() + gap;
        }
    });
}

// Phones as the program shows them, a little larger.

constexpr double bezel = 9;
constexpr double outerRadius = 34;
constexpr double innerRadius = 25;
constexpr QRgb body = 0xff1b1c1f;

void paintPhone(QPainter& painter, const QRectF& screen, const QImage& picture) {
    constexpr double drop = 10;
    const QRectF outside = screen.adjusted(-bezel, -bezel, bezel, bezel);
    paintGlow(painter, roundedPath(outside.translated(0, drop), outerRadius), qRgba(0, 0, 0, 33), 22);
    drawRounded(painter, outside, outerRadius, body);
    paintCovering(painter, screen, innerRadius, picture);
}

/// Cells with a phone each and what it shows.
void addPhones(Sheet& sheet, const Generation& generation, const std::vector<Shot>& shots, int columns, double wide) {
    const double high = wide * generation.screenHeight / screenWidth;
    sheet.addGrid(shots.size(), columns, high + 110, [=](QPainter& painter, const QRectF& cell, std::size_t index) {
        const QRectF screen(cell.center().x() - wide / 2, cell.top() + blockInset, wide, high);
        paintPhone(painter, screen, shots[index].picture);
        paintName(painter, {cell.left(), screen.bottom() + 28, cell.width(), 40}, shots[index].name);
    });
}

struct LockShot {
    const char* name;
    LockScene scene;
    LockForm form = LockForm::designed;
};

std::vector<LockShot> lockShots() {
    LockScene charging;
    charging.isCharging = true;
    charging.messages = 2;
    charging.calls = 1;
    LockScene music;
    music.showsMusic = true;
    music.amPm = "AM";
    music.hour = 11;
    music.minute = 47;
    music.calls = 3;
    LockScene slide = music;
    slide.ownerInfo = "Slide to unlock";
    slide.messages = 1;
    return {{"plain", {}},
            {"charging, with messages and a call", charging},
            {"music", music},
            {"slide lock", slide, LockForm::slide}};
}

/// The screens in the order in which one meets them, then whatever else there is.
std::vector<std::string> orderedScreens(const TemplateFolder& folder) {
    constexpr std::array<std::string_view, 6> modules{"unlock", "widget", "icons", "contacts", "mms", "systemui"};
    std::vector<std::string> paths =
        folder.files([](const std::string& path) { return path.starts_with("preview/preview_"); });
    const auto rank = [&](const std::string& path) {
        return std::ranges::find_if(modules, [&](std::string_view module) {
            return path.find("_" + std::string(module) + "_") != std::string::npos;
        });
    };
    std::ranges::stable_sort(paths, {}, rank);
    return paths;
}

} // namespace

Sheet lockSheet(const TemplateFolder& folder) {
    const QSize phone(static_cast<int>(screenWidth), folder.generation.screenHeight);
    std::vector<Shot> shots;
    for (const LockShot& shot : lockShots())
        shots.push_back(
            {shot.name, paintLockScreen(folder.directory, phone, folder.generation, shot.scene, shot.form)});
    Sheet sheet(folder.generation, "Lock screens");
    addPhones(sheet, folder.generation, shots, 4, 420);
    return sheet;
}

Sheet wallpaperSheet(const TemplateFolder& folder) {
    const QSize phone(static_cast<int>(screenWidth), folder.generation.screenHeight);
    Sheet sheet(folder.generation, "Wallpapers");
    addShots(sheet, {{"home_wallpaper_0, the middle page within the lines", homeWithClock(folder)},
                     {"unlock_wallpaper_1 under the lock screen",
                      paintLockScreen(folder.directory, phone, folder.generation, phoneScene())}});
    return sheet;
}

Sheet previewSheet(const TemplateFolder& folder) {
    const auto paths = orderedScreens(folder);
    const int columns = paths.size() > 6 ? 4 : 6;
    std::vector<Shot> screens;
    for (const std::string& path : paths)
        screens.push_back({shortName(path), folder.picture(path)});
    Sheet sheet(folder.generation, "Previews");
    addPhones(sheet, folder.generation, screens, columns, columns == 4 ? 390 : 266);
    addShots(sheet, {{"cover", folder.picture("preview/cover.jpg")},
                     {"icon_small", folder.picture("preview/icon_small.jpg")},
                     {"icon_small_1", folder.picture("preview/icon_small_1.jpg")}});
    return sheet;
}

} // namespace zdt::assets
