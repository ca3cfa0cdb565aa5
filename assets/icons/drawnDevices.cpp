#include "assets/art/outline.h"
#include "assets/icons/drawnSigns.h"
#include "assets/icons/signShapes.h"

#include <QRadialGradient>

namespace zdt::assets::drawn {

namespace {

constexpr QPointF middle(iconSide / 2, iconSide / 2);

QPainterPath ring(double radius, double width) {
    return thickLine(discOutline(middle, radius - width / 2), width);
}

/// Blue glass that is lighter where light comes in.
QBrush glass(const Material& material, QPointF centre, double radius) {
    const Shade light = material.shade(Hue::sky);
    const Shade deep = material.shade(Hue::indigo);
    if (material.language() == Language::paper)
        return QColor::fromRgba(deep.top);
    QRadialGradient gradient(centre + QPointF(-0.2, 0.5) * radius, radius * 1.5);
    gradient.setColorAt(0, QColor::fromRgba(light.top));
    gradient.setColorAt(0.5, QColor::fromRgba(mix(light.bottom, deep.bottom, 0.4)));
    gradient.setColorAt(1, QColor::fromRgba(mix(deep.bottom, 0xff0a0c24, 0.5)));
    return gradient;
}

/// A lens from its barrel on: dark rings, glass, and the window that the glass mirrors.
void addLens(Pieces& pieces, const Material& material, QPointF centre, double radius) {
    const QColor gleam(255, 255, 255, 200);
    const QRectF arc(centre - QPointF(0.56, 0.56) * radius, QSizeF(1.12, 1.12) * radius);
    QPainterPath mirrored;
    mirrored.arcMoveTo(arc, 105);
    mirrored.arcTo(arc, 105, 62);
    pieces.push_back({discOutline(centre, radius), material.dark(), radius * 0.05});
    pieces.push_back({discOutline(centre, radius * 0.77), glass(material, centre, radius * 0.77)});
    pieces.push_back({discOutline(centre, radius * 0.34), material.dark()});
    pieces.push_back({thickLine(mirrored, radius * 0.15), gleam});
    pieces.push_back({discOutline(centre + QPointF(0.36, 0.36) * radius, radius * 0.1), QColor(255, 255, 255, 120)});
}

/// Marks around a dial, from the radius `outer` inwards.
QPainterPath marks(int count, double outer, double length, double width) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (int index = 0; index < count; ++index) {
        QPainterPath mark(middle - QPointF(0, outer));
        mark.lineTo(middle - QPointF(0, outer - length));
        path.addPath(turned(thickLine(mark, width), 360.0 * index / count));
    }
    return path;
}

QPainterPath hand(double length, double tail, double width, double degrees) {
    QPainterPath line(middle + QPointF(0, tail));
    line.lineTo(middle - QPointF(0, length));
    return turned(thickLine(line, width), degrees);
}

} // namespace

Pieces lens(const Material& material) {
    Pieces pieces{{discOutline(middle, 56), material.main(), 4}};
    addLens(pieces, material, middle, 47);
    return pieces;
}

Pieces camera(const Material& material) {
    const QPainterPath body = readOutline("R44 64 104 76 17").united(readOutline("R72 51 48 30 11"));
    Pieces pieces{{body, material.main(), 4}};
    pieces.push_back({discOutline({132, 79}, 5), material.of(Hue::amber)});
    addLens(pieces, material, {96, 101}, 29);
    return pieces;
}

Pieces calculator(const Material& material) {
    const bool isDark = material.language() == Language::dune;
    return {{readOutline("R56 46 80 100 14"), material.main(), 4},
            {readOutline("R64 54 64 22 6"), isDark ? material.hollow() : material.ink()},
            {readOutline("R64 83 18 15 5 R87 83 18 15 5 R110 83 18 15 5 R64 103 18 15 5 R87 103 18 15 5 "
                         "R64 123 18 15 5 R87 123 18 15 5"),
             isDark ? material.hollow() : material.tint()},
            {readOutline("R110 103 18 35 5"), material.of(Hue::orange)}};
}

Pieces clockDial(const Material& material) {
    return {{discOutline(middle, 63), material.main(), 4},
            {discOutline(middle, 58), material.sheet()},
            {marks(12, 52, 3, material.line() * 0.45), material.tint()},
            {marks(4, 52, 8, material.line() * 0.75), material.ink()}};
}

Pieces clock(const Material& material) {
    Pieces pieces = clockDial(material);
    const double width = material.line() * 1.15;
    pieces.push_back({hand(27, 0, width, -54), material.ink(), 1.5});
    pieces.push_back({hand(41, 0, width * 0.8, 60), material.ink(), 1.5});
    pieces.push_back({hand(44, 14, 2.6, 156), material.of(Hue::red), 1.5});
    pieces.push_back({discOutline(middle, 5.5), material.of(Hue::red)});
    return pieces;
}

Pieces compass(const Material& material) {
    const QPainterPath north = turned(readOutline("M96 54 L109 96 H83 Z"), 38);
    const QPainterPath south = turned(readOutline("M96 138 L109 96 H83 Z"), 38);
    return {{discOutline(middle, 58), material.main(), 4}, {discOutline(middle, 53), material.sheet()},
            {marks(24, 48, 3, 2.2), material.tint()},      {marks(4, 48, 6, 4), material.ink()},
            {north.united(south), material.ink(), 3},      {north, material.of(Hue::red)},
            {discOutline(middle, 6), material.sheet()}};
}

Pieces gear(const Material& material) {
    QPainterPath wheel = discOutline(middle, 38);
    for (int tooth = 0; tooth < 8; ++tooth)
        wheel =
            wheel.united(turned(readOutline("M85 64 L88 50 Q89 46 93 46 H99 Q103 46 104 50 L107 64 Z"), 45.0 * tooth));
    return {{wheel.subtracted(discOutline(middle, 24)), material.main(), 4},
            {discOutline(middle, 24), material.hollow()},
            {discOutline(middle, 12), material.main(), 2}};
}

Pieces mirror(const Material& material) {
    const QPainterPath oval =
        readOutline("M96 44 C118 44 129 60 129 79 C129 99 115 114 96 114 C77 114 63 99 63 79 C63 60 74 44 96 44 Z");
    const QPainterPath handle = readOutline("M90 110 H102 L104 142 Q104 149 96 149 Q88 149 88 142 Z");
    return {{handle, material.main(), 3},
            {oval, material.hollow()},
            {thickLine(oval, 8), material.main(), 4},
            {thickLine("M78 84 L96 62 M86 97 L110 68", 5), QColor(255, 255, 255, 190)}};
}

Pieces record(const Material& material) {
    Pieces pieces{{discOutline(middle, 56), material.dark(), 4}};
    for (const double radius : {50.0, 42.5, 35.0})
        pieces.push_back({ring(radius, 1.6), QColor(255, 255, 255, 40)});
    const QPainterPath shine = readOutline("M96 96 L69 49 A96 96 54 120 -30 Z M96 96 L123 143 A96 96 54 300 -30 Z");
    pieces.push_back({shine, QColor(255, 255, 255, 46)});
    pieces.push_back({discOutline(middle, 23), material.of(Hue::amber), 1});
    pieces.push_back({discOutline(middle, 5), material.sheet()});
    return pieces;
}

} // namespace zdt::assets::drawn
