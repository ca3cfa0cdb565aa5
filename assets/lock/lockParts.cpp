#include "assets/lock/lockParts.h"

#include "assets/art/palette.h"

#include <QImage>

#include <algorithm>
#include <cmath>

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
        drawGlow(painter, surface.translated(0, 4), 0x707a3a1c, shadowRoom - 4);
        break;
    case Language::aurora:
        drawGlow(painter, surface, 0x60030a1e, shadowRoom);
        break;
    }
}

} // namespace

QRectF squareAt(QPointF middle, double side) {
    return {middle.x() - side / 2, middle.y() - side / 2, side, side};
}

QPainterPath discOutline(QPointF middle, double radius) {
    QPainterPath path;
    path.addEllipse(middle, radius, radius);
    return path;
}

QPainterPath roundedPath(const QRectF& area, double radius) {
    QPainterPath path;
    path.addRoundedRect(area, radius, radius);
    return path;
}

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

QPen roundPen(const QBrush& brush, double width) {
    return {brush, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawGlow(QPainter& painter, const QPainterPath& shape, QRgb colour, double reach) {
    const QRect bounds = shape.boundingRect().adjusted(-reach, -reach, reach, reach).toAlignedRect();
    // A line for each pixel outwards, each so faint that eight bits would show its edge and lose its hue.
    const int lines = std::max(8, static_cast<int>(reach));
    QColor line = palette::colour(colour);
    line.setAlphaF(1 - std::pow(1 - line.alphaF(), 1.0F / static_cast<float>(lines)));
    QImage glow(bounds.size(), QImage::Format_RGBA64_Premultiplied);
    glow.fill(Qt::transparent);
    QPainter light(&glow);
    light.setRenderHint(QPainter::Antialiasing);
    light.translate(-bounds.topLeft());
    for (int index = 1; index <= lines; ++index) {
        const double part = static_cast<double>(index) / lines;
        light.strokePath(shape, roundPen(line, 2 * reach * part * part));
    }
    light.end();
    painter.drawImage(bounds.topLeft(), glow);
}

void drawLongShadow(QPainter& painter, const QPainterPath& shape, const QPainterPath& tile, QRgb colour) {
    const int length = static_cast<int>(tile.boundingRect().width());
    painter.save();
    painter.setClipPath(tile);
    for (int step = 1; step < length; ++step)
        painter.fillPath(shape.translated(step, step), palette::colour(colour));
    painter.restore();
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
        drawLongShadow(painter, outline, tile, 0xff196863);
    painter.fillPath(outline, palette::colour(look.accentInk));
}

} // namespace zdt::assets
