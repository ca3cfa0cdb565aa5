#include "assets/icons/relief.h"

#include "assets/art/picture.h"
#include "assets/art/softShape.h"
#include "assets/icons/tile.h"

#include <algorithm>

namespace zdt::assets {

namespace {

void paintShadow(QPainter& painter, const Piece& piece, const Material& material) {
    const double sigma = std::max(1.5, piece.lift);
    switch (material.language()) {
    case Language::paper:
        painter.fillPath(piece.path.translated(piece.lift * 0.7, piece.lift * 0.7),
                         QColor::fromRgba(withAlpha(material.shadow(), 84)));
        break;
    case Language::dune:
        paintSoft(painter, piece.path.translated(-piece.lift * 0.7, piece.lift * 1.1),
                  withAlpha(material.shadow(), 120), sigma);
        break;
    case Language::aurora:
        paintSoft(painter, piece.path.translated(0, piece.lift), withAlpha(material.shadow(), 130), sigma);
        break;
    }
}

} // namespace

void paintPieces(QPainter& painter, const Pieces& pieces, const Material& material) {
    Canvas layer(QSizeF(iconSide, iconSide).toSize());
    for (const Piece& piece : pieces) {
        if (piece.lift > 0)
            paintShadow(layer.painter(), piece, material);
        // A raised piece takes the place of what lies below, so that not even its own shadow is seen through it.
        layer.painter().setCompositionMode(piece.lift > 0 ? QPainter::CompositionMode_Source
                                                          : QPainter::CompositionMode_SourceOver);
        layer.painter().fillPath(piece.path, piece.brush);
        layer.painter().setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    painter.drawImage(QRectF(0, 0, iconSide, iconSide), layer.finish());
}

void paintPaperShadow(QPainter& painter, const Pieces& pieces, const Material& material) {
    std::vector<QPainterPath> shapes;
    for (const Piece& piece : pieces)
        shapes.push_back(piece.path);
    paintLongShadow(painter, shapes, tileShape(material.language()), withAlpha(material.shadow(), 120));
}

} // namespace zdt::assets
