#include "assets/art/outline.h"
#include "assets/icons/signShapes.h"
#include "assets/icons/weatherScene.h"

#include <QRadialGradient>
#include <QTransform>

namespace zdt::assets {

namespace {

/// A cloud as wide as `scale` says, its middle moved from that of the icon.
QPainterPath cloudAt(double scale, double dx, double dy) {
    constexpr QPointF middle(96, 104);
    return QTransform()
        .translate(middle.x() + dx, middle.y() + dy)
        .scale(scale, scale)
        .translate(-middle.x(), -middle.y())
        .map(cloudShape());
}

struct Ridge {
    std::string_view outline;
    QRgb tone;
    double part; ///< Of the tone; the rest is haze of the sky's colour.
};

/// From afar to near, for paper, dune and aurora.
constexpr std::array<std::array<Ridge, 2>, languageCount> lands{{
    {{{"M0 156 C40 136 70 140 104 154 C136 166 160 160 192 146 V192 H0 Z", 0xff14303c, 0.14},
      {"M0 172 C36 158 66 172 96 170 C130 168 154 150 192 164 V192 H0 Z", 0xff14303c, 0.3}}},
    {{{"M0 164 C50 130 86 134 126 152 C152 163 176 160 192 152 V192 H0 Z", 0xffc98a50, 0.42},
      {"M0 160 C36 166 58 160 92 150 C128 142 160 158 192 176 V192 H0 Z", 0xffa8623a, 0.62}}},
    {{{"M0 160 L30 146 L52 158 L88 136 L116 156 L146 142 L192 164 V192 H0 Z", 0xffffffff, 0.26},
      {"M0 176 L40 158 L74 170 L112 154 L150 172 L192 158 V192 H0 Z", 0xffffffff, 0.46}}},
}};

} // namespace

WeatherScene::WeatherScene(Sky sky, Language language)
    : _sky(sky)
    , _language(language)
    , _air(airTone(language)) {}

void WeatherScene::add(const QPainterPath& path, const Shade& shade, double lift) {
    const QRectF box = path.boundingRect();
    _pieces.push_back({path, shaded(shade, box.top(), box.bottom()), lift});
}

/// Light around a place: in rings of paper, or fading.
void WeatherScene::addGlow(QPointF centre, double radius, QRgb colour) {
    if (isPaper()) {
        _pieces.push_back({discOutline(centre, radius), QColor::fromRgba(withAlpha(colour, 56))});
        _pieces.push_back({discOutline(centre, radius * 0.78), QColor::fromRgba(withAlpha(colour, 72))});
        return;
    }
    QRadialGradient glow(centre, radius * 1.25);
    glow.setColorAt(0, QColor::fromRgba(withAlpha(colour, 192)));
    glow.setColorAt(0.4, QColor::fromRgba(withAlpha(colour, 112)));
    glow.setColorAt(1, QColor::fromRgba(withAlpha(colour, 0)));
    _pieces.push_back({discOutline(centre, radius * 1.25), glow});
}

void WeatherScene::addSun(QPointF centre, double radius) {
    addGlow(centre, radius * 1.95, _air.sun.top);
    add(discOutline(centre, radius), _air.sun, 3);
}

void WeatherScene::addRays(QPointF centre, double radius) {
    constexpr int count = 12;
    QPainterPath rays;
    rays.setFillRule(Qt::WindingFill);
    for (int ray = 0; ray < count; ++ray) {
        const QPointF direction = QTransform().rotate(360.0 * ray / count).map(QPointF(0, -1));
        QPainterPath line(centre + direction * (radius + 13));
        line.lineTo(centre + direction * (radius + 19));
        rays.addPath(thickLine(line, 6.5));
    }
    add(rays, _air.sun, 0);
}

void WeatherScene::addMoonAndStars() {
    struct Star {
        double x, y, radius;
    };
    constexpr QPointF moon(114, 66);
    if (!isPaper())
        addGlow(moon, 44, _air.moon.top);
    for (const Star& star :
         {Star{56, 58, 2.4}, {78, 40, 1.8}, {46, 88, 1.7}, {150, 58, 2.2}, {70, 76, 1.5}, {132, 34, 1.6}})
        _pieces.push_back({discOutline({star.x, star.y}, star.radius), QColor(255, 255, 255, 220)});
    add(discOutline(moon, 31).subtracted(discOutline(moon + QPointF(16, -10), 28)), _air.moon, 3);
}

void WeatherScene::addLand() {
    const QRgb haze = skyTone(_sky, _language).bottom;
    for (const Ridge& ridge : lands[static_cast<std::size_t>(_language)]) {
        const QRgb tone = mix(haze, ridge.tone, ridge.part);
        const Shade shade{tone, isPaper() ? tone : mix(tone, haze, 0.35)};
        add(readOutline(ridge.outline), shade, isPaper() ? 2 : 0);
    }
}

void WeatherScene::addCloud(Cloud kind, double raise) {
    const bool isFair = kind == Cloud::fair;
    const bool isStorm = kind == Cloud::storm;
    const QPainterPath body = cloudAt(1.14, -6, 4 - raise);
    add(cloudAt(0.84, 24, -12 - raise), isFair ? _air.fairBehind : isStorm ? _air.stormBehind : _air.nightBehind, 3);
    add(body, isFair ? _air.fair : isStorm ? _air.storm : _air.night, 4);
    if (!isPaper())
        _pieces.push_back({body.intersected(cloudAt(0.74, -22, 21 - raise)), QColor(255, 255, 255, 90)});
}

void WeatherScene::addFarCloud() {
    add(cloudAt(0.8, -22, -34), _air.storm, 3);
}

} // namespace zdt::assets
