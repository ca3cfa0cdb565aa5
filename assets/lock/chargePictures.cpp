#include "assets/lock/chargePictures.h"

#include "assets/art/palette.h"
#include "assets/art/picture.h"
#include "assets/lock/lockParts.h"
#include "canvas/screens/screenIcons.h"

#include <QConicalGradient>
#include <QRadialGradient>

#include <array>
#include <cmath>
#include <numbers>

namespace zdt::assets {

namespace {

constexpr int levels = 10;
/// How full a picture shows the battery: the middle of its range, but the last is full.
constexpr std::array<double, levels> fills{0.05, 0.15, 0.25, 0.35, 0.45, 0.55, 0.65, 0.75, 0.85, 1};

constexpr double quarter = 90;
constexpr double whole = 360;

/// A part of a circle, clockwise from its top.
QPainterPath arc(QPointF middle, double radius, double from, double part) {
    const QRectF square = squareAt(middle, 2 * radius);
    const double start = quarter - from * whole;
    QPainterPath path;
    path.arcMoveTo(square, start);
    path.arcTo(square, start, -part * whole);
    return path;
}

QPointF onCircle(QPointF middle, double radius, double part) {
    const double angle = 2 * std::numbers::pi * part;
    return middle + radius * QPointF(std::sin(angle), -std::cos(angle));
}

/// A ring of light on dark glass.
void drawLight(QPainter& painter, QPointF middle, double fill) {
    constexpr double radius = 112;
    constexpr double line = 11;
    const QPainterPath track = discOutline(middle, radius);
    const QPainterPath light = arc(middle, radius, 0, fill);
    // Its seam lies a little before the top, behind the round start of the light.
    QConicalGradient hues(middle, quarter + 5);
    hues.setColorAt(1, palette::colour(0xff58f2bd));
    hues.setColorAt(0.62, palette::colour(0xff45c4ff));
    hues.setColorAt(0.25, palette::colour(0xff8f86ff));
    hues.setColorAt(0.06, palette::colour(0xff66d8e6));
    hues.setColorAt(0, palette::colour(0xff58f2bd));
    QRadialGradient glass(middle, radius);
    glass.setColorAt(0, palette::colour(0xa6061426));
    glass.setColorAt(1, palette::colour(0x80061426));
    painter.fillPath(track, glass);
    painter.strokePath(track, QPen(palette::colour(0x66ffffff), 3));
    paintGlow(painter, thickLine(light, line), 0x8058e8d0, 21);
    painter.strokePath(light, roundPen(hues, line));
    if (fill < 1) {
        const QPointF head = onCircle(middle, radius, fill);
        paintGlow(painter, discOutline(head, 4), 0xb0c8fff0, 16);
        painter.fillPath(discOutline(head, 6.5), Qt::white);
    }
    QRadialGradient shine(middle, 66);
    shine.setColorAt(0, palette::colour(0x6658e8d0));
    shine.setColorAt(1, palette::colour(0x0058e8d0));
    painter.fillPath(track, shine);
    painter.fillPath(signOutline(sign::bolt, squareAt(middle, 88)), Qt::white);
}

QPainterPath duneRidge(const QRectF& area, double left, double crest, double right) {
    QPainterPath path(QPointF(area.left(), left));
    path.cubicTo({area.left() + area.width() * 0.3, left}, {area.left() + area.width() * 0.36, crest},
                 {area.left() + area.width() * 0.55, crest});
    path.cubicTo({area.left() + area.width() * 0.74, crest}, {area.left() + area.width() * 0.8, right},
                 {area.right(), right});
    path.lineTo(area.bottomRight());
    path.lineTo(area.bottomLeft());
    return path;
}

/// A round window in which the sun rises over dunes, with a line around it that shows the exact level.
void drawSunrise(QPainter& painter, QPointF middle, double fill) {
    constexpr double radius = 98;
    constexpr double lineRadius = 115;
    constexpr double line = 11;
    constexpr double rim = lineRadius + line + 2;
    const QPainterPath window = discOutline(middle, radius);
    const QRectF area = window.boundingRect();
    paintGlow(painter, discOutline(middle + QPointF(0, 4), rim), 0x805a2412, 9);
    painter.fillPath(discOutline(middle, rim), downwards(squareAt(middle, 2 * rim), 0xfffffaf0, 0xfff7e5cb));
    painter.save();
    painter.setClipPath(window);
    painter.fillRect(area, downwards(area, 0xffffe3c2, 0xffffb98c));
    const QPointF sun = middle + QPointF(0, 70 - 92 * fill);
    QRadialGradient halo(sun, 92);
    halo.setColorAt(0, palette::colour(0xd0fff4d6));
    halo.setColorAt(1, palette::colour(0x00fff4d6));
    painter.fillRect(area, halo);
    const QPainterPath sunDisc = discOutline(sun, 46);
    painter.fillPath(sunDisc, downwards(sunDisc.boundingRect(), 0xffffc24a, 0xfff0893a));
    painter.fillPath(signOutline(sign::bolt, squareAt(sun, 58)), palette::colour(0xfffff6e8));
    painter.fillPath(duneRidge(area, middle.y() + 44, middle.y() + 30, middle.y() + 58),
                     downwards(area.adjusted(0, area.height() * 0.6, 0, 0), 0xffe08a54, 0xffc4623a));
    painter.fillPath(duneRidge(area.adjusted(-70, 0, 40, 0), middle.y() + 50, middle.y() + 74, middle.y() + 52),
                     downwards(area.adjusted(0, area.height() * 0.7, 0, 0), 0xffb9552f, 0xff8f3f27));
    painter.restore();
    painter.strokePath(discOutline(middle, lineRadius), QPen(palette::colour(0xffecd3b3), line));
    painter.strokePath(arc(middle, lineRadius, 0, fill), roundPen(palette::colour(0xffc05a32), line));
}

/// A sheet of a ring, cut with narrow gaps to the next.
QPainterPath paperPart(QPointF middle, int index) {
    constexpr double outer = 118;
    constexpr double inner = 78;
    constexpr double gap = 0.006;
    const double from = static_cast<double>(index) / levels + gap;
    const double part = 1.0 / levels - 2 * gap;
    QPainterPath path = arc(middle, outer, from, part);
    path.connectPath(arc(middle, inner, from + part, -part));
    path.closeSubpath();
    return path;
}

/// A ring of ten papers, of which as many are coloured as the battery has tens.
void drawPapers(QPainter& painter, QPointF middle, int index) {
    constexpr std::array<QRgb, levels> colours{0xffd9603f, 0xffe07f3c, 0xffe5a335, 0xffd3ab34, 0xffa9a83c,
                                               0xff7fa04a, 0xff56975a, 0xff358c6c, 0xff248277, 0xff1c7075};
    const QPointF shade(5, 8);
    painter.fillPath(discOutline(middle + shade, 128), QColor(10, 50, 50, 50));
    painter.fillPath(discOutline(middle, 128), palette::colour(0xfffffdf6));
    for (int part = 0; part < levels; ++part) {
        const QPainterPath sheet = paperPart(middle, part);
        const bool isFull = part <= index;
        if (isFull)
            painter.fillPath(sheet.translated(3, 4), QColor(10, 50, 50, 46));
        painter.fillPath(sheet, palette::colour(isFull ? colours[static_cast<std::size_t>(part)] : 0xffe9e6d8));
    }
    const QPainterPath core = discOutline(middle, 60);
    const QPainterPath bolt = signOutline(sign::bolt, squareAt(middle, 84));
    painter.fillPath(core, palette::colour(0xff1f7f7a));
    paintLongShadow(painter, std::span(&bolt, 1), core, 0xff196863);
    painter.fillPath(bolt, palette::colour(0xfffffdf6));
}

} // namespace

QImage drawCharge(int index, const Generation& generation) {
    Canvas canvas(sizeOf(chargeRing));
    const QPointF middle = canvas.area().center();
    const double fill = fills.at(static_cast<std::size_t>(index));
    switch (generation.language) {
    case Language::paper:
        drawPapers(canvas.painter(), middle, index);
        break;
    case Language::dune:
        drawSunrise(canvas.painter(), middle, fill);
        break;
    case Language::aurora:
        drawLight(canvas.painter(), middle, fill);
        break;
    }
    return canvas.finish();
}

} // namespace zdt::assets
