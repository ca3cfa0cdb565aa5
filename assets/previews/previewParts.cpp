#include "assets/previews/previewParts.h"

#include "assets/art/digits.h"
#include "assets/art/shapes.h"
#include "assets/icons/iconPictures.h"

namespace zdt::assets {

void paintText(QPainter& painter, const QRectF& area, QRgb colour) {
    drawRounded(painter, area, area.height() / 2, colour);
}

void paintStatusBar(QPainter& painter, double width, QRgb colour) {
    constexpr double clockHeight = 58;
    drawClock(painter, {48, 14}, clockHeight, colour);
    drawGlyph(painter, Glyph::wireless, QRectF(width - 196, 18, 46, 46), colour);
    const QRectF battery(width - 124, 28, 68, 34);
    drawRounded(painter, battery, 9, palette::clear, colour, 4);
    drawRounded(painter, QRectF(battery.left() + 9, battery.top() + 9, 34, battery.height() - 18), 3, colour);
    drawRounded(painter, QRectF(battery.right() + 3, battery.top() + 11, 6, 12), 3, colour);
}

void paintTitleBar(QPainter& painter, double width, double titleWidth, std::span<const Glyph> signs) {
    constexpr double signSide = 66;
    paintText(painter, QRectF(60, 182, titleWidth, 56), palette::ink);
    double x = width - 60;
    for (const Glyph sign : signs) {
        x -= signSide;
        drawGlyph(painter, sign, QRectF(x, 178, signSide, signSide), palette::ink);
        x -= 48;
    }
}

void paintListRow(QPainter& painter, const QRectF& area, QRgb discColour, Glyph glyph, double titleWidth,
                  double textWidth) {
    constexpr double radius = 54;
    const double middle = area.center().y();
    const QPointF disc(area.left() + 60 + radius, middle);
    drawDisc(painter, disc, radius, discColour);
    drawGlyph(painter, glyph, QRectF(disc.x() - 32, disc.y() - 32, 64, 64), palette::paper);
    const double left = disc.x() + radius + 42;
    paintText(painter, QRectF(left, middle - 40, titleWidth, 32), palette::ink);
    paintText(painter, QRectF(left, middle + 14, textWidth, 22), palette::inkFaint);
    paintText(painter, QRectF(area.right() - 160, middle - 34, 100, 20), palette::inkFaint);
    painter.fillRect(QRectF(left, area.bottom() - 2, area.right() - left, 2), palette::colour(palette::field));
}

void paintLabelledIcon(QPainter& painter, QPointF topLeft, double side, std::string_view name, QRgb labelColour,
                       const Generation& generation) {
    paintIcon(painter, name, QRectF(topLeft, QSizeF(side, side)), generation);
    const double labelWidth = side * (0.5 + 0.04 * static_cast<double>(name.size() % 8));
    paintText(painter, QRectF(topLeft.x() + (side - labelWidth) / 2, topLeft.y() + side * 1.12, labelWidth, side * 0.1),
              labelColour);
}

void paintHomeBar(QPainter& painter, const QRectF& screen, QRgb colour) {
    paintText(painter, QRectF(screen.center().x() - 170, screen.bottom() - 34, 340, 14), colour);
}

} // namespace zdt::assets
