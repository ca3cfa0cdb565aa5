#include "assets/controls/forms.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace zdt::assets {

namespace {

QPainterPath superellipse(const QRectF& box, double exponent) {
    constexpr int points = 360;
    QPolygonF polygon;
    for (int point = 0; point < points; ++point) {
        const double angle = 2 * std::numbers::pi * point / points;
        const auto along = [&](double part, double half) {
            return std::copysign(std::pow(std::abs(part), 2 / exponent), part) * half;
        };
        polygon << box.center() +
                       QPointF(along(std::cos(angle), box.width() / 2), along(std::sin(angle), box.height() / 2));
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

/// A polygon whose corners are cut off by curves that begin `radius` before them.
QPainterPath roundedPolygon(const std::vector<QPointF>& points, double radius) {
    QPainterPath path;
    for (std::size_t index = 0; index < points.size(); ++index) {
        const QPointF corner = points[index];
        const auto towards = [&](const QPointF& other) {
            return corner + (other - corner) * (radius / std::hypot(other.x() - corner.x(), other.y() - corner.y()));
        };
        const QPointF start = towards(points[(index + points.size() - 1) % points.size()]);
        if (index == 0)
            path.moveTo(start);
        else
            path.lineTo(start);
        path.quadTo(corner, towards(points[(index + 1) % points.size()]));
    }
    path.closeSubpath();
    return path;
}

QPointF direction(double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {std::cos(angle), std::sin(angle)};
}

/// A disc whose right side runs out into a tip.
/// @param leave where the sides leave the disc: degrees from the axis
/// @param arrive the angle between a side and the axis at the tip; as large as `leave` for straight sides
QPainterPath dropForm(const QRectF& body, double tip, double leave, double arrive) {
    constexpr double tipRound = 11;
    const double radius = body.width() / 2;
    const QPointF middle = body.center();
    const QPointF apex(tip, middle.y());
    const QPointF start = middle + direction(leave) * radius;
    const QPointF bend = start + direction(leave - 90) * (radius * 0.3);
    const QPointF back = apex + direction(180 - arrive) * tipRound;
    const QPointF bendBack = apex + direction(180 - arrive) * (radius * 0.45);
    const auto above = [&](const QPointF& point) { return QPointF(point.x(), 2 * middle.y() - point.y()); };
    QPainterPath path(start);
    path.cubicTo(bend, bendBack, back);
    path.quadTo(apex, above(back));
    path.cubicTo(above(bendBack), above(bend), above(start));
    path.arcTo(body, leave, 360 - 2 * leave);
    path.closeSubpath();
    return path;
}

QPainterPath tailForm(const QRectF& body, const Corner& corner, double width, Language language) {
    // From the body's inside to the tip and back.
    const double bottom = body.bottom();
    const double left = body.left();
    QPainterPath tail(QPointF(left + corner.extent, bottom - 2.2 * width));
    switch (language) {
    case Language::paper:
        tail.lineTo(left, bottom - 1.9 * width);
        tail.lineTo(left - width, bottom);
        break;
    case Language::dune:
        tail.lineTo(left, bottom - 2.2 * width);
        tail.cubicTo(left, bottom - 0.9 * width, left - 0.4 * width, bottom - 0.4 * width, left - width, bottom - 1.5);
        tail.quadTo(left - width, bottom, left - width + 3, bottom);
        break;
    case Language::aurora:
        tail.lineTo(left, bottom - 3 * width);
        tail.cubicTo(left, bottom - 0.8 * width, left - 0.25 * width, bottom - 0.25 * width, left - 0.8 * width,
                     bottom - 2);
        tail.quadTo(left - 0.9 * width, bottom, left - 0.5 * width, bottom);
        break;
    }
    tail.lineTo(left + corner.extent, bottom);
    tail.closeSubpath();
    return tail;
}

} // namespace

Corner Corner::inset(double by) const {
    const double part = std::max(0.0, 1 - by / radius);
    return {radius * part, extent * part};
}

QPainterPath roundedBox(const QRectF& box, const Corner& corner) {
    const double extent = corner.extent;
    // The middle of the curve lies as deep in the corner as an arc's.
    const double handle = (8 * (1 - std::numbers::sqrt2 / 2) * corner.radius - extent) / 3;
    QPainterPath path(box.topLeft() + QPointF(extent, 0));
    const auto round = [&](QPointF at, QPointF from, QPointF to) {
        path.lineTo(at + from * extent);
        path.cubicTo(at + from * handle, at + to * handle, at + to * extent);
    };
    round(box.topRight(), {-1, 0}, {0, 1});
    round(box.bottomRight(), {0, -1}, {-1, 0});
    round(box.bottomLeft(), {1, 0}, {0, -1});
    round(box.topLeft(), {0, 1}, {1, 0});
    path.closeSubpath();
    return path;
}

QPainterPath tileForm(const QRectF& box, Language language) {
    const double radius = 0.18 * std::min(box.width(), box.height());
    QPainterPath path;
    switch (language) {
    case Language::paper:
        return roundedBox(box, {radius, radius});
    case Language::dune:
        path.addEllipse(box);
        return path;
    case Language::aurora:
        return superellipse(box, 5);
    }
    return path;
}

QPainterPath knobForm(const QRectF& box, Language language) {
    return tileForm(box, language == Language::paper ? Language::paper : Language::dune);
}

QPainterPath bubbleForm(const QRectF& body, const Corner& corner, double tailWidth, Language language) {
    return roundedBox(body, corner).united(tailForm(body, corner, tailWidth, language));
}

QRectF pointerBody(const QRectF& box) {
    const double side = box.height() * 0.82;
    return {box.left(), box.center().y() - side / 2, side, side};
}

QPainterPath pointerForm(const QRectF& box, Language language) {
    const QRectF body = pointerBody(box);
    switch (language) {
    case Language::paper: {
        const double neck = body.right() - 0.12 * body.width();
        return roundedPolygon({body.topLeft(),
                               {neck, body.top()},
                               {box.right() + 2, box.center().y()},
                               {neck, body.bottom()},
                               body.bottomLeft()},
                              0.12 * body.width());
    }
    case Language::dune:
        return dropForm(body, body.center().x() + std::numbers::sqrt2 * body.width() / 2, 45, 45);
    case Language::aurora:
        return dropForm(body, box.right(), 38, 32);
    }
    return {};
}

} // namespace zdt::assets
