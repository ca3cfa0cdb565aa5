#include "assets/icons/iconPictures.h"

#include "assets/art/picture.h"
#include "assets/icons/iconTable.h"
#include "assets/icons/signShapes.h"
#include "assets/icons/tile.h"
#include "modules/iconsNode.h"

#include <algorithm>

namespace zdt::assets {

namespace {

/// Within which the signs are drawn.
constexpr double signSide = 96;

double sideOf(Language language) {
    switch (language) {
    case Language::paper:
        return 96;
    case Language::dune:
        return 92;
    case Language::aurora:
        return 100;
    }
    return signSide;
}

/// A character of the sign face; what it encloses is filled softly.
Pieces faceSign(char16_t sign, const Material& material) {
    constexpr double lift = 4;
    const QPainterPath path = balanced(signOutline(sign, QRectF(0, 0, iconSide, iconSide)), signSide + 2);
    return {{silhouette(path), material.hollow(), 0}, {path, material.main(), lift}};
}

const IconRow* rowOf(std::string_view name) {
    const auto* row = std::ranges::find(iconTable, name, &IconRow::name);
    return row == iconTable.end() ? nullptr : row;
}

void paintTile(QPainter& painter, const Pieces& pieces, const Material& material) {
    paintGround(painter, material);
    if (material.language() == Language::paper)
        paintPaperShadow(painter, pieces, material);
    paintPieces(painter, pieces, material);
    paintRim(painter, material.language());
}

bool paintNamed(QPainter& painter, std::string_view name, const Generation& generation) {
    const auto paintDrawn = [&](Hue hue, drawn::Draw draw) {
        const Material material(generation, hue);
        paintTile(painter, onGrid(draw(material), generation.language), material);
    };
    if (name == "icon_mask.png")
        painter.fillPath(tileShape(generation.language), Qt::white);
    else if (name == "icon_border.png")
        paintBorder(painter, Material(generation, Hue::steel));
    else if (name == iconBackgroundName(0))
        paintBlank(painter, Material(generation, Hue::steel));
    else if (name == tables::calendarBackground)
        paintDrawn(rowOf("com.android.calendar.png")->hue, drawn::calendarPage);
    else if (name == tables::clockBackground)
        paintDrawn(rowOf("com.android.deskclock.png")->hue, drawn::clockDial);
    else if (const IconRow* row = rowOf(name))
        paintTile(painter, signOf(name, generation), Material(generation, row->hue));
    else
        return false;
    return true;
}

} // namespace

Pieces onGrid(const Pieces& pieces, Language language) {
    std::vector<QPainterPath> shapes;
    for (const Piece& piece : pieces)
        shapes.push_back(piece.path);
    const QPointF centre = opticalCentre(shapes);
    const double scale = sideOf(language) / signSide;
    const QTransform transform =
        QTransform().translate(iconSide / 2, iconSide / 2).scale(scale, scale).translate(-centre.x(), -centre.y());
    Pieces placed;
    for (const Piece& piece : pieces) {
        placed.push_back({transform.map(piece.path), piece.brush, piece.lift});
        placed.back().brush.setTransform(transform);
    }
    return placed;
}

Pieces signOf(std::string_view name, const Generation& generation) {
    const IconRow* row = rowOf(name);
    if (!row)
        return {};
    const Material material(generation, row->hue);
    return onGrid(row->draw ? row->draw(material) : faceSign(row->sign, material), generation.language);
}

QImage drawIcon(std::string_view name, QSize size, const Generation& generation) {
    Canvas canvas(size);
    canvas.painter().scale(size.width() / iconSide, size.height() / iconSide);
    return paintNamed(canvas.painter(), name, generation) ? canvas.finish() : QImage();
}

} // namespace zdt::assets
