#include "assets/icons/tile.h"

#include "assets/art/shapes.h"
#include "assets/art/softShape.h"
#include "assets/icons/relief.h"

#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace zdt::assets {

namespace {

constexpr QPointF middle(iconSide / 2, iconSide / 2);
constexpr double paperSide = 172;
constexpr double paperCorner = 31; ///< 18 % of the side.
constexpr double roundRadius = 90;
constexpr double duneFrame = 8; ///< Of sand, around pictures that would cover the disc.

QPainterPath superellipse(double radius) {
    constexpr int steps = 240;
    constexpr double exponent = 5;
    const auto along = [&](double part) {
        return std::copysign(std::pow(std::abs(part), 2 / exponent), part) * radius;
    };
    QPolygonF line;
    for (int step = 0; step < steps; ++step) {
        const double angle = 2 * std::numbers::pi * step / steps;
        line << middle + QPointF(along(std::cos(angle)), along(std::sin(angle)));
    }
    QPainterPath path;
    path.addPolygon(line);
    path.closeSubpath();
    return path;
}

QPainterPath shapeInset(Language language, double inset) {
    switch (language) {
    case Language::paper:
        return roundedPath(squareAt(middle, paperSide - 2 * inset), paperCorner - inset);
    case Language::dune:
        return discOutline(middle, roundRadius - inset);
    case Language::aurora:
        return superellipse(roundRadius - inset);
    }
    return {};
}

/// What lies within the edge, at most `width` away from it.
QPainterPath band(Language language, double width) {
    QPainterPath path = tileShape(language);
    path.addPath(shapeInset(language, width));
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

/// A shadow outside of the tile alone, since the border lies over pictures.
void paintOuterShadow(QPainter& painter, Language language, QPointF shift, QRgb colour, double sigma) {
    QPainterPath outside;
    outside.addRect(QRectF(0, 0, iconSide, iconSide));
    outside.addPath(tileShape(language));
    outside.setFillRule(Qt::OddEvenFill);
    painter.save();
    painter.setClipPath(outside);
    paintSoft(painter, tileShape(language).translated(shift), colour, sigma);
    painter.restore();
}

QBrush across(QPointF from, QPointF to, std::initializer_list<std::pair<double, QRgb>> stops) {
    QLinearGradient gradient(from, to);
    for (const auto& [place, colour] : stops)
        gradient.setColorAt(place, QColor::fromRgba(colour));
    return gradient;
}

void paintPaperRim(QPainter& painter) {
    paintOuterShadow(painter, Language::paper, {2.5, 3}, 0x50101c24, 2.5);
    painter.fillPath(
        band(Language::paper, 1.6),
        across({40, 10}, {152, 182}, {{0, 0x73ffffff}, {0.45, 0x2effffff}, {0.55, 0x14000000}, {1, 0x38000000}}));
}

void paintDuneRim(QPainter& painter) {
    paintOuterShadow(painter, Language::dune, {-1.5, 3}, 0x603c1a08, 2.5);
    painter.fillPath(band(Language::dune, 3.2),
                     across({192, 30}, {0, 170}, {{0, 0xe6fff7e6}, {0.5, 0xd0ecc890}, {1, 0xd8c98f58}}));
    painter.fillPath(band(Language::dune, 1.2), QColor::fromRgba(0x30a0622c));
}

/// A ring of sand, through which the picture is seen as through a window.
void paintDuneFrame(QPainter& painter, const Material& material) {
    const QPainterPath frame = band(Language::dune, duneFrame);
    painter.save();
    painter.setClipPath(shapeInset(Language::dune, duneFrame));
    paintSoft(painter, frame.translated(-2, 2), 0x80603010, 2.5);
    painter.restore();
    painter.fillPath(frame, material.ground());
}

void paintAuroraRim(QPainter& painter) {
    painter.save();
    painter.setClipPath(tileShape(Language::aurora));
    paintSoft(painter, band(Language::aurora, 4), 0x60ffffff, 5.5);
    painter.restore();
    paintOuterShadow(painter, Language::aurora, {0, 2}, 0x48081030, 3.5);
    painter.fillPath(
        band(Language::aurora, 2.2),
        across({0, 6}, {0, 186}, {{0, 0xb8ffffff}, {0.16, 0x50ffffff}, {0.5, 0x14ffffff}, {1, 0x30ffffff}}));
}

/// Light from the low sun at the right, on a disc that bulges a little.
void paintDuneLight(QPainter& painter) {
    QRadialGradient light(QPointF(128, 62), 120);
    light.setColorAt(0, QColor::fromRgba(0x8cffffff));
    light.setColorAt(0.6, QColor::fromRgba(0x00ffffff));
    painter.fillPath(tileShape(Language::dune), light);
}

/// A glow from the depth of the tile.
void paintAuroraLight(QPainter& painter, const Material& material) {
    QRadialGradient depth(QPointF(96, 196), 150);
    const QRgb glow = mix(material.ownShade().top, 0xffffffff, 0.2);
    depth.setColorAt(0, QColor::fromRgba(withAlpha(glow, 0x48)));
    depth.setColorAt(1, QColor::fromRgba(withAlpha(glow, 0)));
    painter.fillPath(tileShape(Language::aurora), depth);
}

void paintLight(QPainter& painter, const Material& material) {
    switch (material.language()) {
    case Language::paper:
        break;
    case Language::dune:
        paintDuneLight(painter);
        break;
    case Language::aurora:
        paintAuroraLight(painter, material);
        break;
    }
}

} // namespace

QPainterPath tileShape(Language language) {
    return shapeInset(language, 0);
}

void paintGround(QPainter& painter, const Material& material) {
    painter.fillPath(tileShape(material.language()), material.ground());
    paintLight(painter, material);
}

void paintBlank(QPainter& painter, const Material& material) {
    painter.fillPath(tileShape(material.language()), material.blank());
    paintLight(painter, material);
    paintRim(painter, material.language());
}

void paintRim(QPainter& painter, Language language) {
    switch (language) {
    case Language::paper:
        paintPaperRim(painter);
        break;
    case Language::dune:
        paintDuneRim(painter);
        break;
    case Language::aurora:
        paintAuroraRim(painter);
        break;
    }
}

void paintBorder(QPainter& painter, const Material& material) {
    if (material.language() == Language::dune)
        paintDuneFrame(painter, material);
    paintRim(painter, material.language());
}

} // namespace zdt::assets
