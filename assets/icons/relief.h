#pragma once

#include "assets/icons/material.h"

#include <QPainter>
#include <QPainterPath>

#include <vector>

namespace zdt::assets {

/// A part of a sign, as cut from a sheet.
struct Piece {
    QPainterPath path;
    QBrush brush;
    double lift = 0; ///< How high it stands above what is below it; 0 casts no shadow.
};

using Pieces = std::vector<Piece>;

/// Paints the pieces one upon the other with the shadows of the material's language. Where they let the ground through,
/// they let only the ground through.
void paintPieces(QPainter& painter, const Pieces& pieces, const Material& material);

/// The shadow that a sign of paper throws down the tile, below the pieces.
void paintPaperShadow(QPainter& painter, const Pieces& pieces, const Material& material);

} // namespace zdt::assets
