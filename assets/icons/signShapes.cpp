#include "assets/icons/signShapes.h"

#include "assets/art/outline.h"
#include "assets/icons/material.h"

#include <QImage>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zdt::assets {

namespace {

constexpr QPointF middle(iconSide / 2, iconSide / 2);

/// Twice the area within a closed line, below zero if it runs the other way round.
double areaOf(const QPolygonF& line) {
    double area = 0;
    for (qsizetype index = 0; index < line.size(); ++index) {
        const QPointF from = line[index];
        const QPointF to = line[(index + 1) % line.size()];
        area += from.x() * to.y() - to.x() * from.y();
    }
    return area;
}

struct Ink {
    QRectF bounds;
    double fill = 0; ///< The covered part of the bounds.
    QPointF centre;  ///< Each covered point of the same weight.
};

QRectF boundsOf(std::span<const QPainterPath> shapes) {
    QRectF bounds;
    for (const QPainterPath& shape : shapes)
        bounds |= shape.boundingRect();
    return bounds;
}

/// Measured on a small picture, since the outlines of fonts don't all run the same way.
Ink inkOf(std::span<const QPainterPath> shapes) {
    constexpr int side = 64;
    const QRectF bounds = boundsOf(shapes);
    if (bounds.isEmpty())
        return {bounds, 0, bounds.center()};
    QImage drawn(side, side, QImage::Format_Alpha8);
    drawn.fill(0);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / bounds.width(), side / bounds.height());
    painter.translate(-bounds.topLeft());
    for (const QPainterPath& shape : shapes)
        painter.fillPath(shape, Qt::black);
    painter.end();
    double covered = 0;
    QPointF sum;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double part = drawn.constScanLine(y)[x] / 255.0;
            covered += part;
            sum += QPointF(x + 0.5, y + 0.5) * part;
        }
    }
    const QPointF place = sum / covered / side;
    return {bounds, covered / side / side,
            bounds.topLeft() + QPointF(place.x() * bounds.width(), place.y() * bounds.height())};
}

/// Between the middle of what a sign covers and that of its bounds.
QPointF centreOf(const Ink& ink) {
    constexpr double weightOfInk = 0.5;
    return ink.bounds.center() * (1 - weightOfInk) + ink.centre * weightOfInk;
}

} // namespace

QPainterPath thickLine(std::string_view outline, double width) {
    return thickLine(readOutline(outline), width);
}

QPainterPath swollen(const QPainterPath& path, double width) {
    return path.united(thickLine(path, width));
}

QPainterPath turned(const QPainterPath& path, double degrees) {
    return QTransform().translate(middle.x(), middle.y()).rotate(degrees).translate(-middle.x(), -middle.y()).map(path);
}

QPointF opticalCentre(std::span<const QPainterPath> shapes) {
    return centreOf(inkOf(shapes));
}

QPainterPath balanced(const QPainterPath& path, double side) {
    const Ink ink = inkOf(std::span(&path, 1));
    if (ink.bounds.isEmpty())
        return path;
    // A full square looks larger than an open shape with the same bounds.
    const double squareSide = side * (1.02 - (std::clamp(ink.fill, 0.3, 0.7) - 0.3) * 0.32);
    const double scale = std::min(side / std::max(ink.bounds.width(), ink.bounds.height()),
                                  squareSide / std::sqrt(ink.bounds.width() * ink.bounds.height()));
    const QPointF centre = centreOf(ink);
    return QTransform()
        .translate(middle.x(), middle.y())
        .scale(scale, scale)
        .translate(-centre.x(), -centre.y())
        .map(path);
}

QPainterPath cloudShape() {
    return readOutline(
        "M70 138 C50 138 42 124 44 112 C46 101 56 95 65 96 C67 79 80 68 96 69 C111 70 121 79 124 92 C139 91 149 "
        "102 148 115 C147 129 137 138 123 138 Z");
}

QPainterPath silhouette(const QPainterPath& path) {
    const QList<QPolygonF> lines = path.toSubpathPolygons();
    double largest = 0;
    for (const QPolygonF& line : lines) {
        if (const double area = areaOf(line); std::abs(area) > std::abs(largest))
            largest = area;
    }
    QPainterPath outer;
    outer.setFillRule(Qt::WindingFill);
    for (const QPolygonF& line : lines) {
        if (areaOf(line) * largest > 0)
            outer.addPolygon(line);
    }
    return outer;
}

} // namespace zdt::assets
