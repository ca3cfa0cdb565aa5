#include "assets/art/outline.h"
#include "assets/icons/signShapes.h"
#include "assets/icons/weatherScene.h"

#include <QTransform>

#include <array>

namespace zdt::assets {

namespace {

QPainterPath flake(QPointF centre, double radius, double width) {
    QPainterPath star;
    star.setFillRule(Qt::WindingFill);
    for (int arm = 0; arm < 3; ++arm) {
        QPainterPath line(QPointF(0, -radius));
        line.lineTo(0, radius);
        star.addPath(QTransform().translate(centre.x(), centre.y()).rotate(60.0 * arm).map(thickLine(line, width)));
    }
    return star;
}

} // namespace

void WeatherScene::addDrops(std::initializer_list<QPointF> tops, double length) {
    for (const QPointF& top : tops) {
        QPainterPath line(top);
        line.lineTo(top + QPointF(-length * 0.36, length));
        add(thickLine(line, isPaper() ? 6.5 : 5.5), _air.rain, isPaper() ? 2 : 0);
    }
}

void WeatherScene::addFlakes() {
    const double width = _language == Language::aurora ? 3.2 : 4;
    for (const QPointF& centre : {QPointF(68, 140), QPointF(97, 150), QPointF(126, 139)})
        add(flake(centre, 10.5, width), _air.fair, 2);
    for (const QPointF& centre : {QPointF(83, 129), QPointF(111, 130), QPointF(76, 162), QPointF(119, 161)})
        add(discOutline(centre, 3), _air.fair, 1);
}

void WeatherScene::addBolt() {
    const QPainterPath bolt =
        readOutline("M104 100 L82 134 Q81 137 84 137 H94 L86 164 L116 126 Q117 123 113 123 H103 L114 100 Z");
    if (!isPaper())
        addGlow({98, 134}, 30, _air.bolt.top);
    add(swollen(bolt, 3), _air.bolt, 3);
}

/// Bars, the lower the fainter.
void WeatherScene::addMist(double top) {
    struct Bar {
        double x, y, width;
        int alpha;
    };
    for (const Bar& bar :
         {Bar{42, 0, 70, 240}, {122, 0, 30, 240}, {54, 16, 96, 210}, {48, 32, 26, 165}, {84, 32, 58, 165}}) {
        QPainterPath path;
        path.addRoundedRect(QRectF(bar.x, top + bar.y, bar.width, 9.5), 4.75, 4.75);
        _pieces.push_back({path, QColor::fromRgba(withAlpha(_air.fair.top, bar.alpha)), isPaper() ? 2.0 : 0});
    }
}

void WeatherScene::addLines(std::span<const char* const> outlines, double width, const Shade& shade) {
    for (const char* outline : outlines)
        add(thickLine(outline, _language == Language::aurora ? width - 1.5 : width), shade, 3);
}

void WeatherScene::addGusts() {
    constexpr std::array lines{"M44 80 H112 C134 80 136 52 117 50 C107 49 101 56 104 64",
                               "M56 98 H136 C156 98 156 124 139 124 C131 124 127 119 128 113",
                               "M42 116 H98 C116 116 116 140 101 140 C94 140 90 135 91 130"};
    addLines(lines, 8.5, _air.fair);
}

void WeatherScene::addDust() {
    struct Grain {
        double x, y, radius;
    };
    constexpr std::array lines{"M48 70 H128 C146 70 146 46 130 46 C122 46 119 52 121 58", "M38 90 H150",
                               "M60 110 H132 C150 110 150 136 134 136 C126 136 122 130 124 124", "M46 130 H96"};
    addLines(lines, 8, _air.dust);
    for (const Grain& grain :
         {Grain{60, 52, 4.5}, {84, 48, 3.5}, {44, 110, 4.5}, {70, 149, 4.5}, {112, 152, 3.5}, {149, 72, 4}})
        add(discOutline({grain.x, grain.y}, grain.radius), _air.dust, 1);
}

void WeatherScene::addThermometer() {
    add(readOutline("R120 62 24 74 12").united(discOutline({132, 134}, 19)), _air.fair, 4);
    _pieces.push_back(
        {readOutline("R128 84 8 46 4").united(discOutline({132, 134}, 12)), QColor::fromRgba(0xffe0433a)});
}

void WeatherScene::addCrystal() {
    QPainterPath star;
    star.setFillRule(Qt::WindingFill);
    const QPainterPath arm =
        thickLine("M96 96 V44 M83 52 L96 63 L109 52 M87 71 L96 79 L105 71", _language == Language::aurora ? 5.5 : 6.5);
    for (int index = 0; index < 6; ++index)
        star.addPath(turned(arm, 60.0 * index));
    add(star.translated(0, -6), _air.fair, 4);
}

void WeatherScene::addQuestion() {
    const QPainterPath mark = textOutline({interDisplayFace, 700}, 46, QStringLiteral("?"));
    _pieces.push_back({mark.translated(QPointF(90, 112) - mark.boundingRect().center()),
                       QColor::fromRgba(skyTone(_sky, _language).top)});
}

} // namespace zdt::assets
