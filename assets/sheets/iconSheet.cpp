#include "assets/art/faces.h"
#include "assets/art/palette.h"
#include "assets/sheets/sheets.h"
#include "modules/tables/icons.h"

#include <QPainterPath>

#include <array>

namespace zdt::assets {

namespace {

constexpr QRgb white = 0xffffffff;

bool isPictureOf(const std::string& path, std::string_view directory) {
    return path.starts_with(directory) && path.find('/', directory.size()) == std::string::npos;
}

bool isRule(const std::string& path) {
    return path.starts_with("icons/icon_");
}

void paintIcon(QPainter& painter, const QRectF& cell, double side, const QImage& icon, const std::string& path,
               QRgb ink) {
    constexpr double nameHeight = 30;
    const int pixels = static_cast<int>(side);
    const QRectF place(cell.left(), cell.top(), cell.width(), cell.height() - nameHeight);
    paintFitted(painter, place, icon.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    paintName(painter, {cell.left(), cell.bottom() - nameHeight, cell.width(), nameHeight}, shortName(path), ink);
}

Sheet::PaintCell icons(const TemplateFolder& folder, const std::vector<std::string>& paths, double side, QRgb ink) {
    return [=](QPainter& painter, const QRectF& cell, std::size_t index) {
        paintIcon(painter, cell, side, folder.picture(paths[index]), paths[index], ink);
    };
}

Sheet::Paint wallpaper(const TemplateFolder& folder) {
    return [folder](QPainter& painter, const QRectF& area) {
        paintCovering(painter, area, 28, folder.picture("wallpaper/home_wallpaper_0.jpg"));
    };
}

void paintSmallIcons(QPainter& painter, const QRectF& cell, const QImage& icon) {
    constexpr int side = 48;
    paintFitted(painter, cell, icon.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// An icon that knows nothing of the theme: it fills its square.
QImage foreignIcon() {
    constexpr int side = 192;
    QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, side, side);
    ground.setColorAt(0, QColor(0x2b, 0xb3, 0x8a));
    ground.setColorAt(1, QColor(0x1c, 0x6f, 0xd1));
    painter.fillRect(icon.rect(), ground);
    const QPainterPath letter = textOutline({interDisplayFace, 800}, 130, "a");
    painter.fillPath(letter.translated(QPointF(side, side) / 2 - letter.boundingRect().center()), Qt::white);
    painter.end();
    return icon;
}

/// A foreign icon on the ground, cut to the mask, with the border above it.
QImage framed(const TemplateFolder& folder, const QImage& foreign) {
    constexpr double part = 0.7;
    QImage icon = folder.picture("icons/icon_background.png").convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&icon);
    const QSize side = (QSizeF(icon.size()) * part).toSize();
    const QImage small = foreign.scaled(side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage((icon.width() - side.width()) / 2, (icon.height() - side.height()) / 2, small);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, folder.picture("icons/icon_mask.png"));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(0, 0, folder.picture("icons/icon_border.png"));
    painter.end();
    return icon;
}

void addForeign(Sheet& sheet, const TemplateFolder& folder) {
    struct Step {
        QString name;
        QImage picture;
    };
    const QImage foreign = foreignIcon();
    const std::vector<Step> steps{{"foreign icon", foreign},
                                  {"icon_background", folder.picture("icons/icon_background.png")},
                                  {"icon_mask", folder.picture("icons/icon_mask.png")},
                                  {"icon_border", folder.picture("icons/icon_border.png")},
                                  {"all together", framed(folder, foreign)}};
    sheet.addHeading("Icons of other applications");
    sheet.addGrid(
        steps.size(), 8, 240,
        [steps](QPainter& painter, const QRectF& cell, std::size_t index) {
            const Step& step = steps[index];
            paintFitted(painter, cell.adjusted(0, 0, 0, -36), step.picture);
            paintName(painter, {cell.left(), cell.bottom() - 36, cell.width(), 36}, step.name, white);
        },
        [](QPainter& painter, const QRectF& area) { paintChecker(painter, area, true); });
}

} // namespace

Sheet iconSheet(const TemplateFolder& folder) {
    const auto still =
        folder.files([](const std::string& path) { return isPictureOf(path, "icons/") && !isRule(path); });
    const auto moving = folder.files([](const std::string& path) { return path.starts_with("icons/dynamic_icons/"); });
    Sheet sheet(folder.generation, "Icons");
    sheet.addHeading("On the home screen", QString("%1 different ones").arg(still.size()));
    sheet.addGrid(still.size(), 12, 184, icons(folder, still, 132, white), wallpaper(folder));
    sheet.addHeading("At 48 pixels");
    const auto small = [=](QPainter& painter, const QRectF& cell, std::size_t index) {
        paintSmallIcons(painter, cell, folder.picture(still[index]));
    };
    for (const QRgb ground : {0xffffffff, 0xff1d2127}) {
        sheet.addGrid(still.size(), 26, 66, small, [ground](QPainter& painter, const QRectF& area) {
            painter.setBrush(palette::colour(ground));
            painter.drawRoundedRect(area, 28, 28);
        });
    }
    sheet.addHeading("Icons that move", "their grounds and the weather's states");
    sheet.addGrid(moving.size(), 9, 206, icons(folder, moving, 150, white), wallpaper(folder));
    addForeign(sheet, folder);
    return sheet;
}

} // namespace zdt::assets
