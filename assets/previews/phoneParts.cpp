#include "assets/previews/phoneParts.h"

#include "assets/art/palette.h"
#include "assets/art/shapes.h"
#include "assets/art/softShape.h"
#include "assets/art/statusBar.h"
#include "canvas/screens/screenLayer.h"

#include <QFontMetricsF>

namespace zdt::assets {

namespace {

/// Back, home and the last applications.
QPainterPath keyOutlines(double middle) {
    constexpr double half = 21;
    constexpr double pitch = 288;
    const QPointF home(phoneWidth / 2.0, middle);
    const QPointF back = home - QPointF(pitch, 0);
    const QPointF recent = home + QPointF(pitch, 0);
    QPainterPath path;
    path.moveTo(back + QPointF(half * 0.8, -half));
    path.lineTo(back + QPointF(half * 0.8, half));
    path.lineTo(back + QPointF(-half, 0));
    path.closeSubpath();
    path.addEllipse(home, half, half);
    path.addRoundedRect(QRectF(recent - QPointF(half, half) * 0.9, QSizeF(half, half) * 1.8), 3, 3);
    return path;
}

} // namespace

LockScene phoneScene() {
    LockScene scene;
    scene.battery = 84; // As on the screens that the editor shows.
    return scene;
}

void paintStatus(QPainter& painter, QRgb ink) {
    const LockScene scene = phoneScene();
    drawStatusBar(painter, ink, timeText(scene), scene.battery);
}

void paintSystemBar(QPainter& painter, int height, const Generation& generation, QRgb ink) {
    if (hasKeys(generation)) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(roundPen(palette::colour(ink), 5));
        painter.drawPath(keyOutlines(height - keyBarHeight / 2.0));
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette::colour(ink));
        painter.drawRoundedRect(QRectF(372, height - 39, 336, 12), 6, 6);
    }
    painter.setPen(Qt::NoPen);
}

void paintLifted(QPainter& painter, const QPainterPath& shapes, QRgb ink) {
    constexpr double softness = 3;
    constexpr QPointF drop(0, 3);
    paintSoft(painter, shapes.translated(drop), qRgba(0, 0, 0, 150), softness);
    painter.fillPath(shapes, palette::colour(ink));
}

QPainterPath centredText(const Face& face, int pixels, const QString& text, QPointF middle) {
    const QFontMetricsF metrics(makeFont(face, pixels));
    const QPointF start(middle.x() - metrics.horizontalAdvance(text) / 2, middle.y() + metrics.capHeight() / 2);
    return textOutline(face, pixels, text).translated(start);
}

} // namespace zdt::assets
