#include "assets/controls/panelBoxes.h"

#include "assets/art/picture.h"
#include "assets/controls/controlStyle.h"
#include "assets/controls/forms.h"
#include "assets/controls/ninePatch.h"

#include <QMarginsF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace zdt::assets {

namespace {

constexpr int tailWidth = 15;
constexpr int tailHeight = 3 * tailWidth;
/// Beyond the picture, where the end of a shape doesn't matter.
constexpr int beyond = 100;
/// The least that can be stretched.
constexpr int run = 2;

/// What shape and finish of a row mean in a language.
struct Make {
    double lift = 0; ///< Over the ground, in the height of a card.
    std::vector<Cast> outside;
    std::vector<Cast> inside;
    QRgb edge;

    [[nodiscard]] int reach() const {
        int most = 0;
        for (const auto* casts : {&outside, &inside}) {
            for (const Cast& cast : *casts)
                most = std::max(most, reachOf(cast));
        }
        return most;
    }
};

Make raised(double lift, QRgb edge, const ControlStyle& style) {
    Make make{lift, {}, {}, edge};
    for (const Cast& cast : style.cardShadow) {
        if (lift > 0)
            make.outside.push_back(scaled(cast, lift));
    }
    return make;
}

constexpr double buttonLift = 0.5;

Make makeOf(const PanelRow& row, const ControlStyle& style) {
    const std::vector<Cast> shade(style.fieldShade.begin(), style.fieldShade.end());
    switch (row.finish) {
    case Finish::flat:
        return {0, {}, {}, row.edge};
    case Finish::hollow:
        return {0, {}, shade, style.fieldEdge};
    case Finish::lit:
        return {0, {}, {style.edgeLight.begin(), style.edgeLight.end()}, row.edge};
    case Finish::card:
        return raised(1, row.edge, style);
    case Finish::button:
        return raised(buttonLift, row.edge, style);
    case Finish::held:
        return {buttonLift, {}, shade, style.fieldEdge};
    case Finish::off:
        return {buttonLift, {}, {}, row.edge};
    }
    return {};
}

QMargins roomOf(const Make& make, const ControlStyle& style) {
    return style.cardRoom * make.lift;
}

/// A box in its picture.
struct Frame {
    QSize size;
    QRect body;
    Corner corner;
    QMargins fixed; ///< What isn't stretched.
};

/// @param margins between the picture's border and the box
/// @param reach how far from a corner's end the edges still differ from their middle
Frame layOut(const PanelRow& row, const Generation& generation, const QMargins& margins, int reach) {
    const double radius = row.radius * generation.controlRadius;
    const int least = 2 * (static_cast<int>(std::ceil(radius)) + reach) + run;
    const QSize body = QSize(row.width, row.height).shrunkBy(margins).expandedTo({least, least});
    // Only long sides have a soft start of the curve; on short ones nothing straight would be left.
    const double soft = radius * styleOf(generation).cornerReach;
    const Corner corner{radius, soft < 0.35 * std::min(body.width(), body.height()) - reach ? soft : radius};
    const int fixed = static_cast<int>(std::ceil(corner.extent)) + reach;
    return {body.grownBy(margins),
            {QPoint(margins.left(), margins.top()), body},
            corner,
            margins + QMargins(fixed, fixed, fixed, fixed)};
}

Guides guidesOf(const Frame& frame, const PanelRow& row) {
    const auto [size, body, corner, fixed] = frame;
    return {{{fixed.left(), size.width() - fixed.left() - fixed.right()}},
            {{fixed.top(), size.height() - fixed.top() - fixed.bottom()}},
            body.marginsRemoved({row.paddingAcross, row.paddingDown, row.paddingAcross, row.paddingDown})};
}

void drawForm(Canvas& canvas, const QPainterPath& form, QRgb fill, const Make& make) {
    const QSize size = canvas.area().size().toSize();
    QPainter& painter = canvas.painter();
    castOutside(painter, size, form, make.outside);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.fillPath(form, palette::colour(fill));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    castInside(painter, size, form, make.inside);
}

/// A line inside a box's border.
void drawEdge(Canvas& canvas, const QRectF& box, const Corner& corner, QRgb edge, double width) {
    QPainterPath ring = roundedBox(box, corner);
    ring.addPath(roundedBox(box.marginsRemoved({width, width, width, width}), corner.inset(width)));
    ring.setFillRule(Qt::OddEvenFill);
    canvas.painter().fillPath(ring, palette::colour(edge));
}

} // namespace

QImage drawBox(const PanelRow& row, const Generation& generation) {
    const ControlStyle& style = styleOf(generation);
    const Make make = makeOf(row, style);
    const Frame frame = layOut(row, generation, roomOf(make, style), make.reach());
    Canvas canvas(frame.size);
    // Under the edge's middle the fill ends, so that it doesn't shine through at the border.
    const double inset = qAlpha(make.edge) == 0xff ? style.lineWidth / 2.0 : 0;
    const QRectF inner = QRectF(frame.body).marginsRemoved({inset, inset, inset, inset});
    drawForm(canvas, roundedBox(inner, frame.corner.inset(inset)), row.fill, make);
    if (qAlpha(make.edge))
        drawEdge(canvas, frame.body, frame.corner, make.edge, style.lineWidth);
    return addGuides(canvas.finish(), guidesOf(frame, row));
}

QImage drawTopBox(const PanelRow& row, const Generation& generation) {
    Frame frame = layOut(row, generation, {}, 0);
    Canvas canvas(frame.size);
    drawForm(canvas, roundedBox(frame.body.marginsAdded({0, 0, 0, beyond}), frame.corner), row.fill, {});
    frame.fixed.setBottom(0);
    return addGuides(canvas.finish(), guidesOf(frame, row));
}

QImage drawHeader(const PanelRow& row, const Generation& generation) {
    const ControlStyle& style = styleOf(generation);
    const Make make = raised(1, palette::clear, style);
    const QMargins room(0, 0, 0, style.cardRoom.bottom());
    const QSize size(row.width, row.height);
    const QRect body = QRect(QPoint(), size).marginsRemoved(room);
    QPainterPath form;
    form.addRect(body.marginsAdded({beyond, beyond, beyond, 0}));
    Canvas canvas(size);
    drawForm(canvas, form, row.fill, make);
    return addGuides(canvas.finish(), {{{0, size.width()}}, {{0, size.height() - room.bottom()}}, body});
}

QImage drawBubble(const PanelRow& row, const Generation& generation, bool sent) {
    const ControlStyle& style = styleOf(generation);
    const Make make = raised(style.bubbleHeight, palette::clear, style);
    const QMargins tail = sent ? QMargins(0, 0, tailWidth, 0) : QMargins(tailWidth, 0, 0, 0);
    Frame frame = layOut(row, generation, roomOf(make, style) + tail, make.reach());
    Canvas canvas(frame.size);
    const QRectF body = frame.body;
    const QPainterPath form = bubbleForm(body, frame.corner, tailWidth, generation.language);
    const QTransform mirror(-1, 0, 0, 1, body.left() + body.right(), 0);
    drawForm(canvas, sent ? mirror.map(form) : form, row.fill, make);
    const int bottom = frame.size.height() - frame.body.bottom() - 1 + tailHeight + make.reach();
    frame.fixed.setBottom(std::max(frame.fixed.bottom(), bottom));
    return addGuides(canvas.finish(), guidesOf(frame, row));
}

} // namespace zdt::assets
