#include "assets/art/palette.h"
#include "assets/sheets/sheets.h"
#include "canvas/ninePatch.h"

#include <QPen>

#include <algorithm>

namespace zdt::assets {

namespace {

bool isControl(const std::string& path) {
    return path.starts_with("com.") && path.ends_with(".png");
}

bool isDialKey(const std::string& path) {
    return path.find("/dial_num_") != std::string::npos || path.find("/xing") != std::string::npos ||
           path.find("/jing") != std::string::npos;
}

/// The black run in the last row or column, in pixels of the picture without its guide lines. All of it without one.
StretchRun contentRun(const QImage& drawn, bool across) {
    const int length = (across ? drawn.width() : drawn.height()) - 2;
    const auto isBlack = [&](int index) {
        const QPoint at = across ? QPoint(index + 1, drawn.height() - 1) : QPoint(drawn.width() - 1, index + 1);
        return drawn.pixel(at) == 0xff000000;
    };
    int start = 0;
    while (start < length && !isBlack(start))
        ++start;
    int end = length;
    while (end > start && !isBlack(end - 1))
        --end;
    return start < end ? StretchRun{start, end - start} : StretchRun{0, length};
}

/// Where an author's text goes in a picture that is stretched by so much more.
QRectF contentArea(const QImage& drawn, const QSize& size) {
    const StretchRun across = contentRun(drawn, true);
    const StretchRun down = contentRun(drawn, false);
    return QRectF(across.start, down.start, size.width() - (drawn.width() - 2) + across.length,
                  size.height() - (drawn.height() - 2) + down.length);
}

/// Fills a place as far as it is stretched. All of a picture's forms are scaled alike, so that their corners compare.
void paintStretched(QPainter& painter, const QRectF& place, const NinePatch& patch, const QImage& drawn, double scale,
                    bool inBoth) {
    const QSize room = (place.size() / scale).toSize();
    const QSize own = patch.picture.size();
    const QSize size(std::max(own.width(), room.width()),
                     inBoth ? std::max(own.height(), room.height()) : own.height());
    paintFitted(painter, place, stretched(patch, size));
    painter.save();
    painter.translate(place.center());
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2.0, -size.height() / 2.0);
    painter.setPen(QPen(QColor(0xe5, 0x29, 0x8c), 1.5 / scale, Qt::DashLine));
    painter.drawRect(contentArea(drawn, size));
    painter.restore();
}

/// Source with its guide lines, stretched across, and in both directions.
void paintNinePatch(QPainter& painter, const QRectF& cell, const TemplateFolder& folder, const std::string& path) {
    const QRectF ground = cell.adjusted(8, 8, -8, -44);
    const QImage drawn = folder.picture(path);
    const NinePatch patch = readNinePatch(folder.directory + path);
    if (drawn.isNull() || patch.picture.isNull())
        return;
    paintChecker(painter, ground, isFaint(patch.picture));
    const auto column = [&](double start, double width) {
        const double part = ground.width() / 10;
        return QRectF(ground.left() + start * part, ground.top(), width * part, ground.height())
            .adjusted(12, 12, -12, -12);
    };
    const QRectF first = column(0, 2.6);
    const double scale = std::min({1.0, first.width() / drawn.width(), first.height() / drawn.height()});
    paintFitted(painter, first, drawn);
    paintStretched(painter, column(2.6, 4.4), patch, drawn, scale, false);
    paintStretched(painter, column(7, 3), patch, drawn, scale, true);
    const QSize own = patch.picture.size();
    const QString name = QString("%1   %2 x %3").arg(shortName(path)).arg(own.width()).arg(own.height());
    paintName(painter, {cell.left(), cell.bottom() - 44, cell.width(), 34}, name);
}

void paintSymbol(QPainter& painter, const QRectF& cell, const TemplateFolder& folder, const std::string& path) {
    const QImage picture = folder.picture(path);
    const QRectF ground = cell.adjusted(8, 8, -8, -40);
    paintChecker(painter, ground, isFaint(picture));
    paintFitted(painter, ground.adjusted(10, 10, -10, -10), picture);
    paintName(painter, {cell.left(), cell.bottom() - 40, cell.width(), 34}, shortName(path));
}

} // namespace

Sheet ninePatchSheet(const TemplateFolder& folder) {
    const auto paths = folder.files([](const std::string& path) { return isControl(path) && hasNinePatchName(path); });
    Sheet sheet(folder.generation, "Nine-patches");
    sheet.addHeading("As drawn, stretched across, and in both directions", "the dashed line is where the content goes");
    sheet.addGrid(paths.size(), 3, 236, [=](QPainter& painter, const QRectF& cell, std::size_t index) {
        paintNinePatch(painter, cell, folder, paths[index]);
    });
    return sheet;
}

Sheet symbolSheet(const TemplateFolder& folder) {
    const auto paths = folder.files(
        [](const std::string& path) { return isControl(path) && !hasNinePatchName(path) && !isDialKey(path); });
    Sheet sheet(folder.generation, "Symbols");
    sheet.addHeading("Pictures of controls", "those that a light ground would hide on a dark one");
    sheet.addGrid(paths.size(), 7, 250, [=](QPainter& painter, const QRectF& cell, std::size_t index) {
        paintSymbol(painter, cell, folder, paths[index]);
    });
    return sheet;
}

} // namespace zdt::assets
