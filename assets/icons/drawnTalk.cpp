#include "assets/art/outline.h"
#include "assets/icons/drawnSigns.h"
#include "assets/icons/signShapes.h"
#include "canvas/screens/screenIcons.h"

#include <QTransform>

#include <array>

namespace zdt::assets::drawn {

namespace {

QPainterPath fontSign(char16_t sign, QPointF centre, double emSide) {
    return signOutline(sign, QRectF(centre.x() - emSide / 2, centre.y() - emSide / 2, emSide, emSide));
}

} // namespace

Pieces film(const Material& material) {
    QPainterPath holes;
    for (double x = 53; x < 140; x += 16) {
        holes.addRoundedRect(QRectF(x, 63, 8, 7), 2, 2);
        holes.addRoundedRect(QRectF(x, 122, 8, 7), 2, 2);
    }
    return {{readOutline("R44 56 104 80 14"), material.main(), 4},
            {holes, material.cut()},
            {swollen(readOutline("M88 84 L110 96 L88 108 Z"), 7), material.cut()}};
}

Pieces globe(const Material& material) {
    const QPainterPath ball = readOutline("O96 96 50");
    const QPainterPath lines =
        thickLine("M96 46 V146 M46 96 H146 M96 46 C62 70 62 122 96 146 M96 46 C130 70 130 122 96 146 "
                  "M53 69 Q96 84 139 69 M53 123 Q96 108 139 123",
                  material.line() * 0.72);
    return {{ball, material.main(), 4}, {lines.intersected(ball), material.cut()}};
}

Pieces heart(const Material& material) {
    const QPainterPath shape = balanced(signOutline(sign::favorite, QRectF(48, 48, 96, 96)), 102);
    const QPainterPath pulse = thickLine("M40 98 H74 L84 80 L98 116 L108 92 L112 98 H152", material.line());
    return {{shape, material.main(), 4}, {pulse.intersected(shape), material.cut()}};
}

Pieces message(const Material& material) {
    const QPainterPath bubble =
        readOutline("R44 52 104 78 30").united(readOutline("M64 118 L60 146 Q60 150 64 148 L98 126 Z"));
    return {{bubble, material.main(), 4}, {readOutline("O72 91 7.5 O96 91 7.5 O120 91 7.5"), material.cut()}};
}

Pieces microphone(const Material& material) {
    const auto lean = [](std::string_view outline) { return turned(readOutline(outline), 42).translated(-5, -1); };
    const auto sparkle = [](double x, double y, double radius) {
        QPainterPath star(QPointF(x, y - radius));
        for (int point = 1; point <= 4; ++point) {
            const QPointF tip = QTransform().rotate(90.0 * point).map(QPointF(0, -radius));
            star.quadTo(QPointF(x, y), QPointF(x, y) + tip);
        }
        return star;
    };
    return {{lean("M81 92 H111 L105 147 Q104 154 96 154 Q88 154 87 147 Z"), material.main(), 4},
            {lean("O96 62 25"), material.main(), 3},
            {lean("R75 82 42 10 4"), material.soft(), 2},
            {sparkle(70, 66, 13), material.main(), 2},
            {sparkle(124, 128, 17), material.main(), 2}};
}

Pieces notes(const Material& material) {
    const auto head = [](QPointF centre) {
        QPainterPath path;
        path.addEllipse(QPointF(), 17, 13.5);
        return QTransform().translate(centre.x(), centre.y()).rotate(-20).map(path);
    };
    const QPainterPath left = head({69, 127}).united(readOutline("M76 66 H85 V126 H76 Z"));
    const QPainterPath right = head({126, 115}).united(readOutline("M133 54 H142 V114 H133 Z"));
    return {{left.united(right), material.main(), 4},
            {readOutline("M76 64 Q76 60 80 59 L138 46 Q142 45 142 50 V70 L76 85 Z"), material.main(), 3}};
}

Pieces paints(const Material& material) {
    constexpr double em = 122;
    const QPainterPath board = fontSign(sign::palette, {96, 96}, em);
    const auto well = [&](double x, double y) {
        QPainterPath path;
        path.addEllipse(QPointF(96 - em / 2 + x * em / 24, 96 - em / 2 + y * em / 24), em / 15, em / 15);
        return path;
    };
    return {{silhouette(board), material.main(), 4},
            {well(6.5, 11.5), material.of(Hue::red)},
            {well(9.5, 7.5), material.of(Hue::amber)},
            {well(14.5, 7.5), material.of(Hue::green)},
            {well(17.5, 11.5), material.of(Hue::sky)}};
}

Pieces recordedCall(const Material& material) {
    return {{fontSign(sign::call, {89, 103}, 112), material.main(), 4},
            {readOutline("O127 65 19"), material.sheet(), 3},
            {readOutline("O127 65 11"), material.of(Hue::red)}};
}

Pieces soundWave(const Material& material) {
    constexpr std::array<double, 7> heights{22, 46, 78, 100, 62, 40, 20};
    Pieces pieces;
    double x = 96 - 3 * 15;
    for (const double height : heights) {
        QPainterPath line(QPointF(x, 96 - height / 2 + 4));
        line.lineTo(x, 96 + height / 2 - 4);
        pieces.push_back({thickLine(line, 8), x > 97 ? material.soft() : material.main(), 3});
        x += 15;
    }
    return pieces;
}

} // namespace zdt::assets::drawn
