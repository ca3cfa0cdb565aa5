#include "assets/art/digits.h"

#include "assets/art/outline.h"
#include "assets/art/palette.h"

#include <QPainter>

#include <array>
#include <string_view>

namespace zdt::assets {

namespace {

/// In a cell of 10 by 20.
constexpr std::array<std::string_view, 10> digitLines{{
    "M5 3.5 C7.6 3.5 8.4 6 8.4 10 C8.4 14 7.6 16.5 5 16.5 C2.4 16.5 1.6 14 1.6 10 C1.6 6 2.4 3.5 5 3.5 Z",
    "M2.6 5.8 L5.6 3.5 V16.5",
    "M1.9 6.4 C2.2 4.5 3.4 3.5 5 3.5 C7 3.5 8.2 4.9 8.2 6.8 C8.2 9.8 3.8 12.6 1.8 16.5 H8.4",
    "M2 5.6 C2.6 4.2 3.6 3.5 5 3.5 C7 3.5 8.1 4.8 8.1 6.5 C8.1 8.4 6.8 9.6 4.4 9.6 C7 9.6 8.4 11 8.4 13 C8.4 15.2 7 "
    "16.5 4.9 16.5 C3.2 16.5 2.1 15.6 1.6 14.2",
    "M6.6 16.5 V3.5 L1.5 12.6 H8.6",
    "M7.8 3.5 H2.8 L2.2 9.4 C3 8.6 3.9 8.2 5 8.2 C7.2 8.2 8.4 9.9 8.4 12.2 C8.4 14.8 7 16.5 4.9 16.5 C3.2 16.5 2.1 "
    "15.7 1.6 14.3",
    "M7.6 4.9 C7 4 6.2 3.5 5.2 3.5 C2.8 3.5 1.6 6.2 1.6 10.6 C1.6 14.6 2.8 16.5 5 16.5 C7.1 16.5 8.4 14.8 8.4 12.4 "
    "C8.4 10 7.1 8.4 5.1 8.4 C3.3 8.4 1.9 9.8 1.6 11.6",
    "M1.7 3.5 H8.4 C6 7.4 4.5 11.6 4 16.5",
    "M5 9.6 C3.1 9.6 2 8.4 2 6.6 C2 4.7 3.2 3.5 5 3.5 C6.8 3.5 8 4.7 8 6.6 C8 8.4 6.9 9.6 5 9.6 C2.9 9.6 1.6 10.9 1.6 "
    "13 C1.6 15.2 2.9 16.5 5 16.5 C7.1 16.5 8.4 15.2 8.4 13 C8.4 10.9 7.1 9.6 5 9.6 Z",
    "M2.4 15.1 C3 16 3.8 16.5 4.8 16.5 C7.2 16.5 8.4 13.8 8.4 9.4 C8.4 5.4 7.2 3.5 5 3.5 C2.9 3.5 1.6 5.2 1.6 7.6 C1.6 "
    "10 2.9 11.6 4.9 11.6 C6.7 11.6 8.1 10.2 8.4 8.4",
}};

/// The widths of a digit's cell and of the colon's, for a height of 1.
constexpr double digitWidth = 0.5;
constexpr double colonWidth = 0.15;

void drawLines(QPainter& painter, std::string_view lines, const QRectF& cell, double gridHeight, const QPen& pen) {
    // The path is scaled rather than the painter, so that the pen keeps its width.
    const double scale = cell.height() / gridHeight;
    const QPainterPath path = QTransform::fromScale(scale, scale).map(readOutline(lines));
    painter.save();
    painter.translate(cell.topLeft());
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.restore();
}

QPen roundPen(QRgb colour, double width) {
    return {palette::colour(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

void drawDigit(QPainter& painter, int digit, const QRectF& cell, QRgb colour, double lineWidth) {
    constexpr double grid = 20;
    drawLines(painter, digitLines[static_cast<std::size_t>(digit)], cell, grid, roundPen(colour, lineWidth));
}

void drawColon(QPainter& painter, const QRectF& cell, QRgb colour, double radius) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::colour(colour));
    for (const double part : {0.39, 0.61})
        painter.drawEllipse(QPointF(cell.center().x(), cell.top() + cell.height() * part), radius, radius);
}

void drawAsterisk(QPainter& painter, const QRectF& square, QRgb colour, double lineWidth) {
    constexpr std::string_view lines = "M12 4 V20 M5.1 8 L18.9 16 M5.1 16 L18.9 8";
    drawLines(painter, lines, square, 24, roundPen(colour, lineWidth));
}

void drawHash(QPainter& painter, const QRectF& square, QRgb colour, double lineWidth) {
    constexpr std::string_view lines = "M9.6 4 L7.6 20 M16.4 4 L14.4 20 M4.6 9 H19.8 M4.2 15 H19.4";
    drawLines(painter, lines, square, 24, roundPen(colour, lineWidth));
}

double clockWidth(double height) {
    return height * (4 * digitWidth + colonWidth);
}

double drawClock(QPainter& painter, QPointF topLeft, double height, QRgb colour) {
    const double lineWidth = height / 28;
    double x = topLeft.x();
    const auto nextCell = [&](double width) {
        const QRectF cell(x, topLeft.y(), width * height, height);
        x += cell.width();
        return cell;
    };
    drawDigit(painter, 1, nextCell(digitWidth), colour, lineWidth);
    drawDigit(painter, 0, nextCell(digitWidth), colour, lineWidth);
    drawColon(painter, nextCell(colonWidth), colour, lineWidth * 0.8);
    drawDigit(painter, 0, nextCell(digitWidth), colour, lineWidth);
    drawDigit(painter, 8, nextCell(digitWidth), colour, lineWidth);
    return x - topLeft.x();
}

} // namespace zdt::assets
