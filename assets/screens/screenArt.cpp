#include "assets/screens/screenArt.h"

#include "assets/art/faces.h"
#include "assets/art/picture.h"
#include "assets/screens/screenFigures.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <string_view>

namespace zdt::assets {

namespace {

QString toText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QFont textFace(const Drawing& drawing) {
    return makeFont({interFace, drawing.weight}, drawing.size);
}

/// The line of a text, cut where it is too long, around the place's middle.
QPainterPath outlineOfText(const ScreenLayer& layer, bool chinese) {
    const Drawing& drawing = layer.drawing;
    const QFont font = textFace(drawing);
    const QFontMetricsF metrics(font);
    const double room = layer.place.width - 2 * textInset;
    const QString text = metrics.elidedText(toText(chinese ? drawing.chinese : drawing.english), Qt::ElideRight, room);
    const double spare = room - metrics.horizontalAdvance(text);
    const double left = drawing.align == TextAlign::left ? 0 : drawing.align == TextAlign::right ? spare : spare / 2;
    // Half the height of a capital letter, and about the middle of a Chinese character.
    const double baseline = layer.place.height / 2.0 + 0.364 * drawing.size;
    QPainterPath path;
    path.addText(QPointF(textInset + left, baseline), font, text);
    return path;
}

QPainterPath outlineOfIcon(const ScreenLayer& layer) {
    const Place& place = layer.place;
    const double size = layer.drawing.size;
    return signOutline(layer.drawing.icon, QRectF((place.width - size) / 2, (place.height - size) / 2, size, size));
}

/// A rectangle with only some of its corners rounded; a radius may be as long as a side.
QPainterPath outlineOfPanel(const QRectF& area, double radius, unsigned corners) {
    const double side = radius * 2;
    QPainterPath path;
    // A corner's arc lies in a square from there inwards; a corner with none is an arc of no size.
    const auto turn = [&](unsigned bit, double x, double y, double start) {
        const double size = corners & bit ? side : 0;
        const double left = x > area.center().x() ? x - size : x;
        const double top = y > area.center().y() ? y - size : y;
        if (size > 0)
            path.arcTo(left, top, size, size, start, -90);
        else
            path.lineTo(x, y);
    };
    path.moveTo(area.left(), area.top() + (corners & corner::topLeft ? radius : 0));
    turn(corner::topLeft, area.left(), area.top(), 180);
    turn(corner::topRight, area.right(), area.top(), 90);
    turn(corner::bottomRight, area.right(), area.bottom(), 0);
    turn(corner::bottomLeft, area.left(), area.bottom(), 270);
    path.closeSubpath();
    return path;
}

QPainterPath outlineOfRing(const QRectF& area, const Drawing& drawing) {
    const double stroke = drawing.stroke;
    const double inner = drawing.radius > drawing.stroke ? drawing.radius - stroke : 0;
    const QRectF hole = area.marginsRemoved({stroke, stroke, stroke, stroke});
    return outlineOfPanel(area, drawing.radius, drawing.corners)
        .subtracted(outlineOfPanel(hole, inner, drawing.corners));
}

/// What a shape is; empty for an art.
QPainterPath outlineOf(const ScreenLayer& layer, bool chinese) {
    const QRectF area(0, 0, layer.place.width, layer.place.height);
    switch (layer.drawing.kind) {
    case DrawingKind::text:
        return outlineOfText(layer, chinese);
    case DrawingKind::icon:
        return outlineOfIcon(layer);
    case DrawingKind::panel:
        return outlineOfPanel(area, layer.drawing.radius, layer.drawing.corners);
    case DrawingKind::ring:
        return outlineOfRing(area, layer.drawing);
    case DrawingKind::none:
    case DrawingKind::portrait:
    case DrawingKind::photo:
        break;
    }
    return {};
}

void paintLetter(QPainter& painter, const QRectF& area, const QString& letter) {
    const QPainterPath path = textOutline({interFace, 500}, static_cast<int>(area.height() * 0.42), letter);
    painter.setBrush(Qt::white);
    painter.drawPath(path.translated(area.center() - path.boundingRect().center()));
}

/// False for what is no art.
bool paintArt(QPainter& painter, const QRectF& area, const Drawing& drawing, bool chinese) {
    switch (drawing.kind) {
    case DrawingKind::portrait:
        if (const QString letter = toText(chinese ? drawing.chinese : drawing.english); letter.isEmpty()) {
            paintPortrait(painter, area, drawing.variant);
        } else {
            paintPortraitDisc(painter, area, drawing.variant);
            paintLetter(painter, area, letter);
        }
        return true;
    case DrawingKind::photo:
        paintPhoto(painter, area, drawing.radius, drawing.variant);
        return true;
    case DrawingKind::none:
    case DrawingKind::text:
    case DrawingKind::icon:
    case DrawingKind::panel:
    case DrawingKind::ring:
        break;
    }
    return false;
}

} // namespace

QImage drawLayer(const ScreenLayer& layer, bool chinese) {
    if (layer.place.width <= 0 || layer.place.height <= 0)
        return {};
    Canvas canvas(QSize(layer.place.width, layer.place.height));
    QPainter& painter = canvas.painter();
    if (layer.kind == LayerKind::shape) {
        const QPainterPath outline = outlineOf(layer, chinese);
        if (outline.isEmpty())
            return {};
        painter.fillPath(outline, QColor(255, 255, 255, layer.drawing.alpha));
    } else if (layer.kind != LayerKind::art || !paintArt(painter, canvas.area(), layer.drawing, chinese)) {
        return {};
    }
    return canvas.finish();
}

QRectF textExtent(const ScreenLayer& layer, bool chinese) {
    return outlineOfText(layer, chinese).boundingRect();
}

} // namespace zdt::assets
