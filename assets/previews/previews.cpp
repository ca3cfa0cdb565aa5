#include "assets/previews/previews.h"

#include "assets/art/digits.h"
#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/icons/iconPictures.h"
#include "assets/icons/weather.h"
#include "assets/previews/previewParts.h"
#include "assets/wallpapers/wallpapers.h"

#include <algorithm>
#include <array>

namespace zdt::assets {

namespace {

/// A screen being painted.
struct Screen {
    QPainter& painter;
    QRectF area;
    const Generation& generation;
};

constexpr std::array<QRgb, 5> discColours{{0xff5aa9e6, 0xff7fc8a9, 0xfff2a65a, 0xffb39ddb, 0xffef8fa3}};
constexpr std::array<std::string_view, 24> gridIcons{{
    "com.android.calendar.png",
    "com.android.deskclock.png",
    "com.zendro.gallery.png",
    "com.zendro.android.totemweather.png",
    "com.zendro.music.png",
    "com.zendro.video.png",
    "com.zendro.reader.png",
    "com.android.calculator2.png",
    "com.zendro.android.notepad.png",
    "com.zendro.android.compass.png",
    "com.android.email.png",
    "com.android.filemanager.png",
    "com.zendro.android.thememanager.png",
    "com.zendro.android.health.png",
    "com.zendro.android.wallet.png",
    "com.android.settings.png",
    "com.zendro.zdmarket.png",
    "com.zendro.android.gamecenter.png",
    "com.zendro.cloud.png",
    "com.android.fmradio.png",
    "com.zendro.shop.png",
    "com.zendro.members.png",
    "com.zendro.android.tips.png",
    "com.zendro.android.ringtones.png",
}};
constexpr std::array<std::string_view, 4> dockIcons{{
    "com.android.contacts.activities.DialtactsActivity.png",
    "com.android.mms.png",
    "com.android.browser.png",
    "com.android.camera.png",
}};

void paintPaper(const Screen& screen) {
    screen.painter.fillRect(screen.area, palette::colour(palette::paper));
    paintStatusBar(screen.painter, screen.area.width(), palette::ink);
}

/// The column and the row of a cell in a grid.
QPointF cellOf(std::size_t index, std::size_t columns) {
    return QPoint(static_cast<int>(index % columns), static_cast<int>(index / columns));
}

/// Rows of four icons, the first at `top`.
void paintIconRows(const Screen& screen, std::span<const std::string_view> names, double top, double pitch) {
    constexpr double side = 168;
    constexpr double columns = 4;
    const double gap = (screen.area.width() - columns * side) / (columns + 1);
    for (std::size_t index = 0; index < names.size(); ++index) {
        const QPointF cell = cellOf(index, 4);
        paintLabelledIcon(screen.painter, {gap + cell.x() * (side + gap), top + cell.y() * pitch}, side, names[index],
                          palette::inkSoft, screen.generation);
    }
}

void paintDock(const Screen& screen) {
    const double top = screen.area.bottom() - 330;
    QPainter& painter = screen.painter;
    const double middle = screen.area.center().x();
    for (int page = -1; page <= 1; ++page)
        drawDisc(painter, {middle + page * 42, top - 60}, page ? 8 : 11, page ? palette::inkFaint : palette::ink);
    paintIconRows(screen, dockIcons, top, 0);
}

void paintClockBlock(const Screen& screen, double top, double height) {
    const double left = (screen.area.width() - clockWidth(height)) / 2;
    drawClock(screen.painter, {left, top}, height, palette::ink);
    paintText(screen.painter, QRectF(screen.area.center().x() - 190, top + height * 0.98, 380, 30), palette::inkSoft);
}

void paintLockScreen(const Screen& screen) {
    paintWallpaper(screen.painter, screen.area, screen.generation);
    paintStatusBar(screen.painter, screen.area.width(), palette::ink);
    drawClock(screen.painter, {10, 208}, 200, palette::ink);
    paintText(screen.painter, QRectF(45, 424, 360, 32), palette::inkSoft);
    const double middle = screen.area.center().x();
    const double bottom = screen.area.bottom();
    drawGlyph(screen.painter, Glyph::chevronUp, QRectF(middle - 50, bottom - 570, 100, 100), palette::ink, 0.7);
    paintText(screen.painter, QRectF(middle - 150, bottom - 136, 300, 26), palette::inkSoft);
    drawGlyph(screen.painter, Glyph::phone, QRectF(70, bottom - 170, 80, 80), palette::ink);
    drawGlyph(screen.painter, Glyph::camera, QRectF(screen.area.width() - 150, bottom - 170, 80, 80), palette::ink);
}

void paintCover(const Screen& screen) {
    paintWallpaper(screen.painter, screen.area, screen.generation);
    paintStatusBar(screen.painter, screen.area.width(), palette::ink);
    paintClockBlock(screen, 230, 270);
    paintIconRows(screen, std::span(gridIcons).first(12), 720, 270);
    paintDock(screen);
}

void paintIconsScreen(const Screen& screen) {
    paintWallpaper(screen.painter, screen.area, screen.generation);
    paintStatusBar(screen.painter, screen.area.width(), palette::ink);
    // A taller screen takes one row more.
    const std::size_t count = screen.area.height() > screenHeight ? 24 : 20;
    paintIconRows(screen, std::span(gridIcons).first(count), 150, 264);
    paintDock(screen);
}

void paintWidgetScreen(const Screen& screen) {
    QPainter& painter = screen.painter;
    paintWallpaper(painter, screen.area, screen.generation);
    paintStatusBar(painter, screen.area.width(), palette::ink);
    const QRectF card(48, 180, screen.area.width() - 96, 500);
    drawRaised(painter, card, 48, 9, palette::paperVeil);
    drawClock(painter, {card.left() + 48, card.top() + 60}, 250, palette::ink);
    paintText(painter, QRectF(card.left() + 72, card.top() + 350, 330, 32), palette::inkSoft);
    paintText(painter, QRectF(card.left() + 72, card.top() + 404, 220, 26), palette::inkFaint);
    paintSunnyCloud(painter, QRectF(card.right() - 360, card.top() + 70, 310, 310), screen.generation);
    paintText(painter, QRectF(card.right() - 285, card.top() + 404, 160, 26), palette::inkFaint);
    drawRaised(painter, QRectF(48, 730, screen.area.width() - 96, 150), 75, 9, palette::paperVeil);
    drawGlyph(painter, Glyph::search, QRectF(108, 770, 70, 70), palette::grey);
    paintText(painter, QRectF(220, 790, 360, 30), palette::inkFaint);
    paintIconRows(screen, std::span(gridIcons).first(8), 960, 270);
    paintDock(screen);
}

void paintDialPad(const Screen& screen, double top) {
    QPainter& painter = screen.painter;
    const double width = screen.area.width();
    painter.fillRect(QRectF(0, top, width, screen.area.bottom() - top), palette::colour(palette::field));
    const double pitch = (screen.area.bottom() - top - 280) / 4;
    for (int key = 0; key < 12; ++key) {
        constexpr double height = 116;
        const QPointF cell = cellOf(static_cast<std::size_t>(key), 3);
        const QPointF middle(width / 3 * (cell.x() + 0.5), top + pitch * (cell.y() + 0.5) + 20);
        const QRectF square(middle.x() - 34, middle.y() - 34, 68, 68);
        if (key == 9)
            drawAsterisk(painter, square, palette::ink, 6);
        else if (key == 11)
            drawHash(painter, square, palette::ink, 6);
        else
            drawDigit(painter, key == 10 ? 0 : key + 1,
                      QRectF(middle.x() - height / 4, middle.y() - height / 2, height / 2, height), palette::ink, 6);
    }
    const QPointF call(width / 2, screen.area.bottom() - 150);
    drawDisc(painter, call, 90, palette::call);
    drawGlyph(painter, Glyph::phone, QRectF(call.x() - 48, call.y() - 48, 96, 96), palette::paper);
    drawGlyph(painter, Glyph::grid, QRectF(width / 6 - 36, call.y() - 36, 72, 72), palette::grey);
    drawGlyph(painter, Glyph::erase, QRectF(width * 5 / 6 - 36, call.y() - 36, 72, 72), palette::grey);
}

/// As many rows as fit between `top` and `bottom`.
void paintRows(const Screen& screen, double top, double bottom, Glyph glyph) {
    constexpr double pitch = 176;
    for (int row = 0; top + (row + 1) * pitch <= bottom; ++row)
        paintListRow(screen.painter, QRectF(0, top + row * pitch, screen.area.width(), pitch),
                     discColours[static_cast<std::size_t>(row) % discColours.size()], glyph, 280 + row * 53 % 160,
                     430 - row * 71 % 180);
}

void paintContactsScreen(const Screen& screen) {
    constexpr std::array<Glyph, 2> signs{Glyph::gear, Glyph::search};
    paintPaper(screen);
    paintTitleBar(screen.painter, screen.area.width(), 240, signs);
    const double padTop = screen.area.bottom() - 1050;
    paintRows(screen, 310, padTop, Glyph::person);
    paintDialPad(screen, padTop);
}

struct Bubble {
    bool sent;
    double width;
    int lines;
};

double paintBubble(const Screen& screen, const Bubble& bubble, double top) {
    constexpr double padding = 42;
    constexpr double linePitch = 54;
    constexpr double margin = 60;
    const double left = bubble.sent ? screen.area.width() - margin - bubble.width : margin;
    const QRectF area(left, top, bubble.width, 2 * padding + bubble.lines * linePitch - 22);
    drawRounded(screen.painter, area, 44, bubble.sent ? palette::ownMessage : palette::field);
    for (int line = 0; line < bubble.lines; ++line) {
        const double full = bubble.width - 2 * padding;
        const double width = line + 1 < bubble.lines ? full : full * 0.62;
        paintText(screen.painter, QRectF(area.left() + padding, area.top() + padding + line * linePitch, width, 30),
                  palette::inkSoft);
    }
    return area.bottom();
}

void paintMessagesScreen(const Screen& screen) {
    constexpr std::array<Glyph, 1> signs{Glyph::phone};
    constexpr std::array<Bubble, 6> bubbles{
        {{false, 560, 2}, {true, 620, 3}, {false, 700, 2}, {false, 420, 1}, {true, 520, 2}, {false, 640, 2}}};
    paintPaper(screen);
    paintTitleBar(screen.painter, screen.area.width(), 320, signs);
    double y = 340;
    const Bubble* before = nullptr;
    for (const Bubble& bubble : bubbles) {
        y += before && before->sent == bubble.sent ? 18 : 54;
        y = paintBubble(screen, bubble, y);
        before = &bubble;
    }
    const double bottom = screen.area.bottom();
    drawGlyph(screen.painter, Glyph::plus, QRectF(44, bottom - 176, 84, 84), palette::grey);
    drawRounded(screen.painter, QRectF(160, bottom - 190, screen.area.width() - 340, 112), 56, palette::field);
    paintText(screen.painter, QRectF(216, bottom - 147, 260, 28), palette::inkFaint);
    drawDisc(screen.painter, {screen.area.width() - 100, bottom - 134}, 58, palette::accent);
    drawGlyph(screen.painter, Glyph::chevronUp, QRectF(screen.area.width() - 134, bottom - 168, 68, 68),
              palette::paper);
}

struct Tile {
    Glyph glyph;
    bool on;
};

void paintTiles(const Screen& screen, double top) {
    constexpr std::array<Tile, 8> tiles{{{Glyph::wireless, true},
                                         {Glyph::bluetooth, true},
                                         {Glyph::torch, false},
                                         {Glyph::bell, true},
                                         {Glyph::plane, false},
                                         {Glyph::moon, false},
                                         {Glyph::place, true},
                                         {Glyph::pagesRotate, false}}};
    constexpr double radius = 78;
    for (std::size_t index = 0; index < tiles.size(); ++index) {
        const QPointF cell = cellOf(index, 4);
        const QPointF middle(screen.area.width() / 4 * (cell.x() + 0.5), top + cell.y() * 270 + radius);
        const Tile& tile = tiles[index];
        drawDisc(screen.painter, middle, radius, tile.on ? palette::accent : palette::field);
        drawGlyph(screen.painter, tile.glyph, QRectF(middle.x() - 40, middle.y() - 40, 80, 80),
                  tile.on ? palette::paper : palette::grey);
        paintText(screen.painter, QRectF(middle.x() - 60, middle.y() + radius + 24, 120, 22), palette::inkFaint);
    }
}

void paintNotification(const Screen& screen, double top, QRgb colour, Glyph glyph) {
    const QRectF card(36, top, screen.area.width() - 72, 220);
    drawRaised(screen.painter, card, 36, 6, palette::paperVeil);
    const QPointF disc(card.left() + 102, card.center().y());
    drawDisc(screen.painter, disc, 50, colour);
    drawGlyph(screen.painter, glyph, QRectF(disc.x() - 30, disc.y() - 30, 60, 60), palette::paper);
    paintText(screen.painter, QRectF(card.left() + 192, card.center().y() - 44, 330, 32), palette::ink);
    paintText(screen.painter, QRectF(card.left() + 192, card.center().y() + 14, 560, 24), palette::inkFaint);
}

void paintStatusScreen(const Screen& screen) {
    QPainter& painter = screen.painter;
    const double width = screen.area.width();
    paintWallpaper(painter, screen.area, screen.generation);
    drawRounded(painter, QRectF(0, -60, width, 1150), 60, 0xf7ffffff);
    paintStatusBar(painter, width, palette::ink);
    drawClock(painter, {48, 130}, 170, palette::grey);
    paintText(painter, QRectF(width - 330, 214, 240, 26), palette::inkFaint);
    paintTiles(screen, 360);
    drawGlyph(painter, Glyph::sun, QRectF(60, 930, 76, 76), palette::grey);
    drawRounded(painter, QRectF(180, 960, width - 260, 16), 8, palette::fieldPressed);
    drawRounded(painter, QRectF(180, 960, (width - 260) * 0.6, 16), 8, palette::accent);
    drawDisc(painter, {180 + (width - 260) * 0.6, 968}, 30, palette::accent);
    paintNotification(screen, 1130, palette::accent, Glyph::message);
    paintNotification(screen, 1366, discColours[1], Glyph::calendar);
    paintNotification(screen, 1602, discColours[2], Glyph::note);
}

void paintSmallIcon(const Screen& screen) {
    QPainter& painter = screen.painter;
    paintWallpaper(painter, screen.area, screen.generation);
    const double height = screen.area.height();
    const double side = height * 0.26;
    const double clockHeight = height * 0.36;
    drawClock(painter, {(screen.area.width() - clockWidth(clockHeight)) / 2, height * 0.14}, clockHeight, palette::ink);
    constexpr std::array<std::string_view, 3> names{"com.zendro.gallery.png", "com.zendro.music.png",
                                                    "com.android.mms.png"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        const double middle = screen.area.center().x() + (static_cast<double>(index) - 1) * side * 1.3;
        paintIcon(painter, names[index], QRectF(middle - side / 2, height * 0.58, side, side), screen.generation);
    }
}

struct PreviewRow {
    std::string_view name;
    void (*paint)(const Screen&);
    QRgb homeBar; ///< Clear where the picture is no screen of the phone.
};

constexpr auto previewTable = std::to_array<PreviewRow>({
    {"cover.jpg", paintCover, palette::inkSoft},
    {"icon_small.jpg", paintSmallIcon, palette::clear},
    {"icon_small_1.jpg", paintSmallIcon, palette::clear},
    {"preview_contacts_0.jpg", paintContactsScreen, palette::inkSoft},
    {"preview_icons_0.jpg", paintIconsScreen, palette::inkSoft},
    {"preview_mms_0.jpg", paintMessagesScreen, palette::inkSoft},
    {"preview_systemui_0.jpg", paintStatusScreen, palette::inkSoft},
    {"preview_unlock_0.jpg", paintLockScreen, palette::clear},
    {"preview_widget_0.jpg", paintWidgetScreen, palette::inkSoft},
});

} // namespace

QImage drawPreview(std::string_view name, QSize size, const Generation& generation) {
    const auto* row =
        std::find_if(previewTable.begin(), previewTable.end(), [&](const auto& each) { return each.name == name; });
    if (row == previewTable.end())
        return {};
    Canvas canvas(size);
    row->paint({canvas.painter(), canvas.area(), generation});
    if (qAlpha(row->homeBar))
        paintHomeBar(canvas.painter(), canvas.area(), row->homeBar);
    return canvas.finish();
}

} // namespace zdt::assets
