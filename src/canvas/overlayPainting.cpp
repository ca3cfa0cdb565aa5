#include "canvas/overlayPainting.h"

#include "canvas/previewLayer.h"
#include "packaging/pictureConversion.h"

#include <QPainter>
#include <QPen>

namespace zdt {

namespace {

constexpr QRgb outlineColour = 0xffff0000;
constexpr double outlinePen = 4.0;

/// By how much an outline is moved from an edge, and how much shorter it becomes: more where it spans the frame.
struct Inset {
    int moved;
    int shortened;
};
constexpr Inset leftInset{12, 18};
constexpr Inset topInset{11, 17};

QRect placeOf(const OverlayPart& overlay) {
    return {overlay.x, overlay.y, overlay.width, overlay.height};
}

} // namespace

QRect outlinePlace(const OverlayPart& overlay) {
    QRect place = placeOf(overlay);
    if (overlay.x <= 0) {
        place.setX(place.x() + leftInset.moved);
        place.setWidth(overlay.width - (overlay.width >= previewFrame.width() ? leftInset.shortened : leftInset.moved));
    }
    if (overlay.y <= 0) {
        place.setY(place.y() + topInset.moved);
        place.setHeight(overlay.height -
                        (overlay.height >= previewFrame.height() ? topInset.shortened : topInset.moved));
    }
    return place;
}

QRect overlayReach(const OverlayPart& overlay) {
    constexpr int pen = 3;
    const QRect place = placeOf(overlay);
    return overlay.showOutline ? place | outlinePlace(overlay).adjusted(-pen, -pen, pen, pen) : place;
}

QImage overlayPicture(const OverlayPart& overlay) {
    const QSize bounds(overlay.width, overlay.height);
    return overlay.picture.empty() || bounds.isEmpty() ? QImage() : loadThumbnail(overlay.picture, bounds);
}

void paintOverlay(QImage& frame, const QRegion& region, const OverlayPart& overlay, const QImage& picture) {
    if (!region.intersects(overlayReach(overlay)))
        return;
    QPainter painter(&frame);
    painter.setClipRegion(region);
    const QRect place = placeOf(overlay);
    if (overlay.colour != 0)
        painter.fillRect(place, QColor::fromRgba(overlay.cover ? overlay.colour | 0xff000000 : overlay.colour));
    if (!picture.isNull()) {
        QRect middle(QPoint(), picture.size());
        middle.moveCenter(place.center());
        painter.drawImage(middle.topLeft(), picture);
    }
    const QRect outline = outlinePlace(overlay);
    if (overlay.showOutline && outline.isValid()) {
        painter.setPen(QPen(QColor::fromRgba(outlineColour), outlinePen, Qt::DashLine));
        painter.drawRect(outline);
    }
}

} // namespace zdt
