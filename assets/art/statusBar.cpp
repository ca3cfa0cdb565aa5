#include "assets/art/statusBar.h"

#include "assets/art/faces.h"
#include "assets/art/palette.h"
#include "canvas/screens/screenIcons.h"

#include <QPainter>

namespace zdt::assets {

namespace {

constexpr Face face{interFace, 500};
constexpr double width = 1080;
constexpr double middle = 60;

QRectF signBox(double centre) {
    constexpr double side = 45;
    return {centre - side / 2, middle - side / 2, side, side};
}

/// A line of text that ends at a place, centred by the height of its digits.
QPainterPath textEndingAt(double right, int pixels, const QString& text) {
    const QPainterPath outline = textOutline(face, pixels, text);
    const double digits = textOutline(face, pixels, "0").boundingRect().height();
    return outline.translated(right - outline.boundingRect().right(), middle + digits / 2);
}

} // namespace

StatusBar statusBarOutline(const QString& time, int battery) {
    const QPainterPath clock = textEndingAt(width - 60, 36, time);
    const double cellCentre = clock.boundingRect().left() - 38;
    const QPainterPath cell = signOutline(sign::batteryFull, signBox(cellCentre));
    const QRectF bounds = cell.boundingRect();
    QPainterPath full; // The cell stands upright and fills from below.
    full.addRect(bounds.adjusted(0, bounds.height() * (100 - battery) / 100, 0, 0));
    StatusBar bar;
    bar.ink.setFillRule(Qt::WindingFill);
    for (const QPainterPath& part :
         {signOutline(sign::signalCellularAlt, signBox(84)), signOutline(sign::wifi, signBox(138)), clock,
          cell.intersected(full), textEndingAt(cellCentre - 29, 33, QString("%1%").arg(battery))})
        bar.ink.addPath(part);
    bar.emptyCell = cell.subtracted(full);
    return bar;
}

void drawStatusBar(QPainter& painter, QRgb ink, const QString& time, int battery) {
    const StatusBar bar = statusBarOutline(time, battery);
    QColor empty = palette::colour(ink);
    empty.setAlphaF(static_cast<float>(empty.alphaF() * StatusBar::emptyStrength));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(bar.emptyCell, empty);
    painter.fillPath(bar.ink, palette::colour(ink));
    painter.restore();
}

} // namespace zdt::assets
