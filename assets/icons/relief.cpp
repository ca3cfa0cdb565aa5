#include "assets/icons/relief.h"

#include "assets/art/picture.h"
#include "assets/icons/tile.h"

#include <QImage>

#include <algorithm>

namespace zdt::assets {

namespace {

constexpr int side = static_cast<int>(iconSide);

/// The mean of each byte of a line and of `radius` on either side; beyond the ends there is nothing.
void meanLine(const uchar* from, uchar* to, qsizetype step, int radius) {
    const unsigned width = 2U * static_cast<unsigned>(radius) + 1;
    unsigned sum = 0;
    for (int at = 0; at < radius; ++at)
        sum += from[at * step];
    for (int at = 0; at < side; ++at) {
        if (at + radius < side)
            sum += from[(at + radius) * step];
        to[at * step] = static_cast<uchar>((sum + width / 2) / width);
        if (at >= radius)
            sum -= from[(at - radius) * step];
    }
}

/// A mask of the icon's size, softened: three means are all but a Gaussian.
QImage blurred(QImage mask, int radius) {
    QImage between(mask.size(), mask.format());
    const qsizetype pitch = mask.bytesPerLine();
    for (int pass = 0; pass < 3; ++pass) {
        for (int row = 0; row < side; ++row)
            meanLine(mask.constScanLine(row), between.scanLine(row), 1, radius);
        for (int column = 0; column < side; ++column)
            meanLine(between.constBits() + column, mask.bits() + column, pitch, radius);
    }
    return mask;
}

/// What the shapes cover, a byte a pixel.
/// @param scale pixels to a pixel of the icon
QImage coverage(const Pieces& pieces, int scale) {
    QImage mask(side * scale, side * scale, QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    for (const Piece& piece : pieces)
        painter.fillPath(piece.path, Qt::black);
    return mask;
}

void paintMask(QPainter& painter, const QImage& mask, QRgb colour) {
    QImage filled(mask.size(), QImage::Format_ARGB32_Premultiplied);
    filled.fill(QColor::fromRgba(colour));
    QPainter cutter(&filled);
    cutter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    cutter.drawImage(0, 0, mask);
    cutter.end();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(0, 0, iconSide, iconSide), filled);
}

void paintShadow(QPainter& painter, const Piece& piece, const Material& material) {
    const int radius = std::max(1, static_cast<int>(piece.lift));
    switch (material.language()) {
    case Language::paper:
        painter.fillPath(piece.path.translated(piece.lift * 0.7, piece.lift * 0.7),
                         QColor::fromRgba(withAlpha(material.shadow(), 84)));
        break;
    case Language::dune:
        paintGlow(painter, piece.path.translated(-piece.lift * 0.7, piece.lift * 1.1),
                  withAlpha(material.shadow(), 120), radius);
        break;
    case Language::aurora:
        paintGlow(painter, piece.path.translated(0, piece.lift), withAlpha(material.shadow(), 130), radius);
        break;
    }
}

} // namespace

void paintGlow(QPainter& painter, const QPainterPath& shape, QRgb colour, int radius) {
    paintMask(painter, blurred(coverage({{shape, {}, 0}}, 1), radius), colour);
}

void paintPieces(QPainter& painter, const Pieces& pieces, const Material& material) {
    Canvas layer(QSize(side, side));
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

void paintLongShadow(QPainter& painter, const Pieces& pieces, const Material& material) {
    // Each pixel hands its shadow on to the lower right, a little weaker; twice as fine, for even edges.
    QImage mask = coverage(pieces, 2);
    for (int y = 1; y < mask.height(); ++y) {
        const uchar* above = mask.constScanLine(y - 1);
        uchar* row = mask.scanLine(y);
        for (int x = 1; x < mask.width(); ++x)
            row[x] = std::max<uchar>(row[x], above[x - 1] > 0 ? above[x - 1] - 1 : 0);
    }
    painter.save();
    painter.setClipPath(tileShape(material.language()), Qt::IntersectClip);
    paintMask(painter, mask, withAlpha(material.shadow(), 120));
    painter.restore();
}

} // namespace zdt::assets
