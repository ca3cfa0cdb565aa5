#include "assets/art/outline.h"
#include "assets/icons/drawnSigns.h"
#include "assets/icons/signShapes.h"

namespace zdt::assets::drawn {

namespace {

/// Petals around the middle, each one of its own.
void addPetals(Pieces& pieces, double turn, double length, double width, const QBrush& brush, double lift) {
    constexpr int count = 6;
    constexpr double gap = 6; // Between the middle and a petal.
    QPainterPath petal;
    petal.addEllipse(QPointF(96, 96 - gap - length / 2), width / 2, length / 2);
    for (int index = 0; index < count; ++index)
        pieces.push_back({turned(petal, turn + 360.0 * index / count), brush, lift});
}

} // namespace

Pieces blossom(const Material& material) {
    Pieces pieces;
    addPetals(pieces, 30, 47, 36, material.soft(), 2);
    addPetals(pieces, 0, 46, 34, material.main(), 3);
    pieces.push_back({readOutline("O96 96 14"), material.of(Hue::amber), 2});
    return pieces;
}

Pieces cloud(const Material& material) {
    return {{cloudShape().translated(10, -14), material.soft(), 3},
            {cloudShape().translated(-6, 4), material.main(), 4}};
}

Pieces landscape(const Material& material) {
    const QPainterPath picture = readOutline("R54 58 84 76 9");
    const QPainterPath far = readOutline("M54 116 L78 88 L98 112 L116 98 L138 118 V134 H54 Z");
    const QPainterPath near = readOutline("M54 128 C74 112 92 114 108 122 C120 128 130 124 138 120 V134 H54 Z");
    const QPainterPath frame = readOutline("R45 49 102 94 16").subtracted(picture);
    return {{readOutline("R50 54 92 84 12"), material.of(Hue::sky)},
            {readOutline("O118 78 11"), material.of(Hue::amber), 2},
            {far, material.of(Hue::teal), 2},
            {near, material.of(Hue::green), 2},
            {frame, material.sheet(), 4}};
}

Pieces sunAndCloud(const Material& material) {
    return {{thickLine("M118 40 V46 M142 50 L138 54 M152 74 H146 M94 50 L98 54", 6), material.of(Hue::amber)},
            {readOutline("O118 76 23"), material.of(Hue::amber), 3},
            {cloudShape().translated(-4, 6), material.main(), 4}};
}

} // namespace zdt::assets::drawn
