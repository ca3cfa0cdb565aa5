#include "assets/lock/statusBar.h"

#include "assets/art/faces.h"
#include "assets/art/palette.h"
#include "canvas/screens/screenIcons.h"

#include <QPainter>

namespace zdt::assets {

namespace {

constexpr Face face{interFace, 500};

/// A line of text that ends at a place, centred by the height of its digits; gives where it starts.
double drawEndingAt(QPainter& painter, double right, double middle, int pixels, const QString& text) {
    const QPainterPath outline = textOutline(face, pixels, text);
    const QRectF bounds = outline.boundingRect();
    const double capHeight = textOutline(face, pixels, "0").boundingRect().height();
    painter.drawPath(outline.translated(right - bounds.right(), middle + capHeight / 2));
    return right - bounds.width();
}

/// An upright cell, filled from below.
void drawBattery(QPainter& painter, const QRectF& box, QRgb ink, int percent) {
    const QPainterPath cell = signOutline(sign::batteryFull, box);
    const QRectF bounds = cell.boundingRect();
    QColor empty = palette::colour(ink);
    empty.setAlphaF(empty.alphaF() * 0.35F);
    painter.fillPath(cell, empty);
    painter.save();
    painter.setClipRect(bounds.adjusted(0, bounds.height() * (100 - percent) / 100, 0, 0));
    painter.fillPath(cell, palette::colour(ink));
    painter.restore();
}

} // namespace

void drawStatusBar(QPainter& painter, const QRectF& area, QRgb ink, const QString& time, int battery) {
    const double unit = area.height() / statusBarHeight;
    const double middle = area.top() + 60 * unit;
    const auto pixels = [&](int size) { return static_cast<int>(size * unit); };
    const auto box = [&](double centre) {
        const double side = 45 * unit;
        return QRectF(centre - side / 2, middle - side / 2, side, side);
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::colour(ink));
    painter.drawPath(signOutline(sign::signalCellularAlt, box(area.left() + 84 * unit)));
    painter.drawPath(signOutline(sign::wifi, box(area.left() + 138 * unit)));
    const double cell = drawEndingAt(painter, area.right() - 60 * unit, middle, pixels(36), time) - 38 * unit;
    drawBattery(painter, box(cell), ink, battery);
    drawEndingAt(painter, cell - 29 * unit, middle, pixels(33), QString("%1%").arg(battery));
    painter.restore();
}

} // namespace zdt::assets
