#include "assets/skin/easingPictures.h"

#include "assets/art/faces.h"
#include "assets/art/shapes.h"
#include "assets/skin/fewColours.h"
#include "assets/skin/gifWriter.h"
#include "canvas/screens/screenIcons.h"
#include "kit/tokens.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace zdt::assets {

namespace {

constexpr int frameHundredths = 4;
constexpr int restHundredths = 64;

/// The way from the curve's lowest value to 1. Curves that go further stay inside the picture.
constexpr double plotLeft = 36;
constexpr double plotRight = 180;
constexpr double plotTop = 34;
constexpr double plotBottom = 114;
constexpr double beyond = 10;

constexpr double stageMiddle = 240;
constexpr double tileSide = 38;
constexpr double tileRadius = 8;

constexpr QColor grid(0xEC, 0xEC, 0xEC);
constexpr QColor axis(0xD2, 0xD2, 0xD2);

double heightOf(const EasingCurve& curve, double value) {
    return plotBottom + (plotTop - plotBottom) * (value - curve.lowest) / (1 - curve.lowest);
}

/// A line one pixel wide that lies on whole pixels.
void drawHair(QPainter& painter, QPointF from, QPointF to, QColor colour) {
    const auto snapped = [](QPointF point) {
        return QPointF(std::floor(point.x()) + 0.5, std::floor(point.y()) + 0.5);
    };
    painter.setPen(QPen(colour, 1, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(snapped(from), snapped(to));
}

void drawGrid(QPainter& painter, const EasingCurve& curve) {
    constexpr int columns = 3;
    for (int column = 1; column <= columns; ++column) {
        const double x = plotLeft + (plotRight - plotLeft) * column / columns;
        drawHair(painter, {x, plotTop - beyond}, {x, plotBottom + beyond}, grid);
    }
    for (const double y : {plotTop, (plotTop + plotBottom) / 2, plotBottom})
        drawHair(painter, {plotLeft, y}, {plotRight, y}, grid);
    drawHair(painter, {plotLeft, plotTop - beyond}, {plotLeft, plotBottom + beyond}, axis);
    drawHair(painter, {plotLeft, heightOf(curve, 0)}, {plotRight, heightOf(curve, 0)}, axis);
}

void drawNumbers(QPainter& painter, const EasingCurve& curve) {
    constexpr int pixels = 11;
    constexpr double right = plotLeft - 8;
    const auto draw = [&](double value) {
        const QString text = QString::number(value).replace(QChar(u'-'), QChar(u'\u2212'));
        const QPainterPath outline = textOutline({interFace, 400}, pixels, text);
        const QRectF bounds = outline.boundingRect();
        painter.fillPath(outline.translated(right - bounds.right(), heightOf(curve, value) + 0.5 - bounds.center().y()),
                         token::textSecond);
    };
    draw(0);
    draw(1);
    if (curve.lowest < 0)
        draw(curve.lowest);
}

void drawCurve(QPainter& painter, const EasingCurve& curve) {
    constexpr int pieces = 144; // Shorter ones would be darker where they meet at a bend.
    QPainterPath path(curvePoint(curve, 0));
    for (int piece = 1; piece <= pieces; ++piece)
        path.lineTo(curvePoint(curve, static_cast<double>(piece) / pieces));
    painter.strokePath(path, QPen(token::accent, 2, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
}

/// All that stands still.
QImage drawGround(const EasingCurve& curve) {
    QImage picture(easingSize, QImage::Format_RGB32);
    picture.fill(token::card);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawRounded(painter, QRectF(QPointF(), QSizeF(easingSize)), token::radiusField, token::bar.rgba(),
                token::hairline.rgba(), 1);
    drawGrid(painter, curve);
    drawNumbers(painter, curve);
    drawCurve(painter, curve);
    return picture;
}

void drawDot(QPainter& painter, QPointF point) {
    constexpr double radius = 4.5;
    constexpr double ring = 1.5;
    QColor line = token::guide;
    line.setAlphaF(0.5F);
    drawHair(painter, {point.x(), plotTop - beyond}, {point.x(), plotBottom + beyond}, line);
    drawDisc(painter, point, radius + ring, token::bar.rgba());
    drawDisc(painter, point, radius, token::guide.rgba());
}

QRectF tileAt(double y) {
    return {stageMiddle - tileSide / 2, y - tileSide / 2, tileSide, tileSide};
}

/// A picture as an author hangs it on a lock screen.
void drawTile(QPainter& painter, const QRectF& area) {
    drawRounded(painter, area, tileRadius, token::accent.rgba());
    constexpr double sign = 0.62;
    const QRectF box(area.center() - QPointF(sign, sign) * area.width() / 2, area.size() * sign);
    painter.fillPath(signOutline(sign::image, box), token::card);
}

/// Where the tile begins or ends.
void drawGhost(QPainter& painter, const QRectF& area) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(axis, 1));
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), tileRadius, tileRadius);
    painter.setPen(Qt::NoPen);
}

double middle() {
    return (plotTop + plotBottom) / 2;
}

/// The edges and mixtures of all that these pictures hold.
const FewColours& colours() {
    static const FewColours all = [] {
        FewColours table;
        for (const QColor& colour : {token::card, token::bar, token::hairline, grid, axis})
            table.add(colour.rgb());
        table.addBlend(token::bar.rgb(), token::accent.rgb(), 22);
        table.addBlend(token::bar.rgb(), token::guide.rgb(), 12);
        table.addBlend(token::accent.rgb(), token::guide.rgb(), 4);
        table.addBlend(token::bar.rgb(), token::textSecond.rgb(), 7);
        table.settle();
        return table;
    }();
    return all;
}

QImage drawFrame(const QImage& ground, const EasingEffect& effect, const EasingCurve& curve, double time) {
    QImage picture = ground;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawDot(painter, curvePoint(curve, time));
    effect.paint(painter, curve, curve.at(time));
    return picture;
}

} // namespace

void paintFading(QPainter& painter, const EasingCurve&, double done) {
    drawGhost(painter, tileAt(middle()));
    constexpr double least = 0.06;
    painter.setOpacity(std::clamp(least + (1 - least) * done, 0.0, 1.0));
    drawTile(painter, tileAt(middle()));
}

void paintTurning(QPainter& painter, const EasingCurve&, double done) {
    constexpr double degrees = 180;
    painter.translate(stageMiddle, middle());
    painter.rotate(degrees * done);
    painter.translate(-stageMiddle, -middle());
    drawTile(painter, tileAt(middle()));
}

void paintGrowing(QPainter& painter, const EasingCurve& curve, double done) {
    drawGhost(painter, tileAt(middle()));
    // Smaller at the start, where the curve doesn't go back past it.
    const double least = curve.lowest < 0 ? 0.6 : 0.4;
    const double side = tileSide * (least + (1 - least) * done);
    painter.translate(stageMiddle, middle());
    painter.scale(side / tileSide, side / tileSide);
    painter.translate(-stageMiddle, -middle());
    drawTile(painter, tileAt(middle()));
}

void paintMoving(QPainter& painter, const EasingCurve& curve, double done) {
    drawGhost(painter, tileAt(heightOf(curve, 0)));
    drawGhost(painter, tileAt(heightOf(curve, 1)));
    drawTile(painter, tileAt(heightOf(curve, done)));
}

QPointF curvePoint(const EasingCurve& curve, double time) {
    return {plotLeft + (plotRight - plotLeft) * time, heightOf(curve, curve.at(time))};
}

QByteArray easingGif(const EasingEffect& effect, const EasingCurve& curve) {
    const QImage ground = drawGround(curve);
    std::vector<GifFrame> frames;
    for (int frame = 0; frame < easingFrames; ++frame) {
        const double time = static_cast<double>(frame) / (easingFrames - 1);
        const bool isLast = frame == easingFrames - 1;
        frames.push_back(
            {colours().reduce(drawFrame(ground, effect, curve, time)), isLast ? restHundredths : frameHundredths});
    }
    return encodeGif(frames);
}

} // namespace zdt::assets
