#include "assets/icons/iconPictures.h"

#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/icons/iconTable.h"
#include "support/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace zdt::assets {

namespace {

/// The parts of an icon's side that stay empty around the tile, and that its corners take.
constexpr double tileMargin = 0.04;
constexpr double tileCorner = 0.23;

/// The FNV-1a hash, the same everywhere.
std::uint32_t hashOf(std::string_view text) {
    std::uint32_t hash = 2166136261U;
    for (const char letter : text)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 16777619U;
    return hash;
}

QColor tileColour(std::string_view name) {
    constexpr std::array<QRgb, 11> hues{{0xff4a90e2, 0xff4fb0e6, 0xff3fb6b0, 0xff58b97c, 0xff9ab85a, 0xffeab04a,
                                         0xffee8f5c, 0xffe57878, 0xffd980a8, 0xff957ed6, 0xff6c82dc}};
    return palette::colour(hues[hashOf(name) % hues.size()]);
}

QRectF tileArea(const QRectF& area) {
    const double margin = area.width() * tileMargin;
    return area.marginsRemoved({margin, margin, margin, margin});
}

void paintBorder(QPainter& painter, const QRectF& area) {
    drawRounded(painter, tileArea(area), area.width() * tileCorner, palette::clear, palette::shadow, 4);
}

void paintMask(QPainter& painter, const QRectF& area) {
    drawRounded(painter, tileArea(area), area.width() * tileCorner, palette::paper);
}

/// A sheet on which the phone writes the day.
void paintCalendarSheet(QPainter& painter, const QRectF& area) {
    paintTile(painter, area, palette::colour(palette::paper), palette::colour(palette::field));
    const QRectF tile = tileArea(area);
    painter.save();
    painter.setClipRect(QRectF(tile.topLeft(), QSizeF(tile.width(), tile.height() * 0.24)));
    drawRounded(painter, tile, area.width() * tileCorner, palette::accent);
    painter.restore();
    for (const double part : {0.34, 0.66})
        drawDisc(painter, QPointF(area.left() + area.width() * part, tile.top() + tile.height() * 0.12),
                 area.width() * 0.03, palette::paper);
}

/// A dial on which the phone draws the hands.
void paintClockDial(QPainter& painter, const QRectF& area) {
    paintTile(painter, area, palette::colour(0xff3d4a5c), palette::colour(palette::ink));
    const double radius = area.width() * 0.38;
    drawDisc(painter, area.center(), radius, palette::paper);
    painter.save();
    painter.translate(area.center());
    for (int hour = 0; hour < 12; ++hour) {
        const bool quarter = hour % 3 == 0;
        painter.setPen(QPen(palette::colour(quarter ? palette::ink : palette::grey), area.width() * 0.016,
                            Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -radius * 0.9), QPointF(0, -radius * (quarter ? 0.74 : 0.82)));
        painter.rotate(30);
    }
    painter.restore();
    painter.setPen(Qt::NoPen);
}

Glyph glyphOf(std::string_view name) {
    const std::string lower = toLowerAscii(name);
    const auto* row = std::find_if(iconTable.begin(), iconTable.end(),
                                   [&](const IconRow& each) { return lower.find(each.word) != std::string::npos; });
    return row == iconTable.end() ? Glyph::neutral : row->glyph;
}

} // namespace

void paintTile(QPainter& painter, const QRectF& area, const QColor& top, const QColor& bottom) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(tileArea(area), area.width() * tileCorner, area.width() * tileCorner);
}

void paintIcon(QPainter& painter, std::string_view name, const QRectF& area) {
    const QColor colour = tileColour(name);
    paintTile(painter, area, colour.lighter(118), colour);
    const double inset = area.width() * 0.2;
    drawGlyph(painter, glyphOf(name), area.marginsRemoved({inset, inset, inset, inset}), palette::paper);
}

QImage drawIcon(std::string_view name, QSize size, const Generation&) {
    Canvas canvas(size);
    const QRectF area = canvas.area();
    if (name == "icon_border.png")
        paintBorder(canvas.painter(), area);
    else if (name == "icon_mask.png")
        paintMask(canvas.painter(), area);
    else if (name == "calendar_background.png")
        paintCalendarSheet(canvas.painter(), area);
    else if (name == "deskclock_bg.png")
        paintClockDial(canvas.painter(), area);
    else
        paintIcon(canvas.painter(), name, area);
    return canvas.finish();
}

} // namespace zdt::assets
