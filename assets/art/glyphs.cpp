#include "assets/art/glyphs.h"

#include "assets/art/glyphTable.h"
#include "assets/art/outline.h"
#include "assets/art/palette.h"

#include <QPainter>

#include <algorithm>

namespace zdt::assets {

void drawGlyph(QPainter& painter, Glyph glyph, const QRectF& box, QRgb colour, double weight) {
    constexpr double grid = 24;
    constexpr double lineWidth = grid / 13;
    const GlyphRow& row = glyphTable[static_cast<std::size_t>(glyph)];
    const double side = std::min(box.width(), box.height());

    painter.save();
    painter.translate(box.center() - QPointF(side / 2, side / 2));
    painter.scale(side / grid, side / grid);
    painter.setBrush(palette::colour(colour));
    painter.setPen(Qt::NoPen);
    painter.drawPath(readOutline(row.areas));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette::colour(colour), lineWidth * weight, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(readOutline(row.lines));
    painter.restore();
}

} // namespace zdt::assets
