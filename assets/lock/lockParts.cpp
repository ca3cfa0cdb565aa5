#include "assets/lock/lockParts.h"

#include "assets/art/palette.h"

namespace zdt::assets {

namespace {

/// A hard shadow to the lower right, of paper on paper.
void drawPaperShadow(QPainter& painter, const QPainterPath& shape, double distance) {
    painter.fillPath(shape.translated(distance * 0.6, distance), QColor(10, 50, 50, 46));
}

void drawSurfaceShadow(QPainter& painter, const QPainterPath& surface, Language language) {
    switch (language) {
    case Language::paper:
        drawPaperShadow(painter, surface, 7);
        break;
    case Language::dune:
        paintGlow(painter, surface.translated(0, 4), 0x707a3a1c, shadowRoom - 4);
        break;
    case Language::aurora:
        paintGlow(painter, surface, 0x60030a1e, shadowRoom);
        break;
    }
}

} // namespace

QPainterPath chevronUp(QPointF point, double halfWidth, double height) {
    QPainterPath path(point + QPointF(-halfWidth, height));
    path.lineTo(point);
    path.lineTo(point + QPointF(halfWidth, height));
    return path;
}

QBrush downwards(const QRectF& area, QRgb top, QRgb bottom) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, palette::colour(top));
    gradient.setColorAt(1, palette::colour(bottom));
    return gradient;
}

void drawCard(QPainter& painter, const QRectF& area, double radius, const Generation& generation) {
    const LockLook& look = lookOf(generation.language);
    const QRectF face = area.adjusted(shadowRoom, shadowRoom, -shadowRoom, -shadowRoom);
    const QPainterPath surface = roundedPath(face, radius);
    // A card that lets the wallpaper through has no shadow under it.
    QPainterPath around;
    around.addRect(area);
    painter.save();
    painter.setClipPath(around.subtracted(surface));
    drawSurfaceShadow(painter, surface, generation.language);
    painter.restore();
    painter.fillPath(surface, downwards(face, look.cardTop, look.cardBottom));
    if (qAlpha(look.cardEdge))
        painter.strokePath(roundedPath(face.adjusted(1, 1, -1, -1), radius - 1),
                           QPen(downwards(face, look.cardEdge, look.cardEdge & 0x40ffffff), 2));
}

void drawAccent(QPainter& painter, const QRectF& area, char32_t sign, double signSide, const Generation& generation) {
    const LockLook& look = lookOf(generation.language);
    const bool isPaper = generation.language == Language::paper;
    const QPainterPath tile = roundedPath(area, isPaper ? area.width() * 0.18 : area.width() / 2);
    const QPainterPath outline = signOutline(sign, squareAt(area.center(), signSide));
    drawSurfaceShadow(painter, tile, generation.language);
    painter.fillPath(tile, downwards(area, look.accentTop, look.accentBottom));
    if (isPaper)
        paintLongShadow(painter, std::span(&outline, 1), tile, 0xff196863);
    painter.fillPath(outline, palette::colour(look.accentInk));
}

} // namespace zdt::assets
