#include "assets/controls/symbols.h"

#include "assets/art/picture.h"
#include "assets/controls/controlStyle.h"
#include "assets/controls/forms.h"
#include "assets/controls/symbolTable.h"

#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zdt::assets {

namespace {

/// Of a tile, what a sign's em square takes.
constexpr double usualPart = 0.58;
/// Where the corners of the round ones of the pages' drawings begin, as a part of the picture's side.
constexpr double pageCorner = 0.12;

/// What a picture is drawn with.
struct Work {
    const SymbolRow& row;
    const Generation& generation;
    const ControlStyle& style;
    Canvas& canvas;

    [[nodiscard]] double side() const { return canvas.area().width(); }
    [[nodiscard]] QSize size() const { return canvas.area().size().toSize(); }
};

QRectF inset(const QRectF& box, double by) {
    return box.marginsRemoved({by, by, by, by});
}

QRectF middlePart(const QRectF& box, double part) {
    return inset(box, box.width() * (1 - part) / 2);
}

/// A light around the middle that is strongest at the part `start` of the radius and gone at the border.
/// @param inwards how far it reaches towards the middle, as a part of the radius; all the way as strong for 0
void drawFade(const Work& work, double start, double inwards) {
    constexpr double strength = 0.55;
    constexpr int steps = 32;
    const QRectF area = work.canvas.area();
    QRadialGradient fade(area.center(), area.width() / 2);
    for (int step = 0; step <= steps; ++step) {
        const double at = static_cast<double>(step) / steps;
        double away = 0;
        if (at > start)
            away = (at - start) / (1 - start);
        else if (inwards > 0)
            away = std::min(1.0, (start - at) / inwards);
        // Along half a cosine, so that no kink is seen.
        QColor stop = palette::colour(work.row.ground);
        stop.setAlphaF(static_cast<float>(strength * (1 + std::cos(away * std::numbers::pi)) / 2));
        fade.setColorAt(at, stop);
    }
    work.canvas.painter().setBrush(fade);
    work.canvas.painter().drawEllipse(area);
}

/// The colour with a part of white in it.
QColor mixed(QRgb colour, double white) {
    const auto channel = [white](int value) { return qRound(value + (255 - value) * white); };
    return QColor(channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)), qAlpha(colour));
}

/// Whether light and shadows are seen on it.
bool isBright(QRgb ground) {
    return ground == palette::accent || ground == palette::accentPressed;
}

/// Fills a form, lit as its language does it if it has a bright colour.
void drawGround(const Work& work, const QPainterPath& form) {
    QPainter& painter = work.canvas.painter();
    const QRectF box = form.boundingRect();
    if (!isBright(work.row.ground)) {
        painter.fillPath(form, palette::colour(work.row.ground));
        return;
    }
    QLinearGradient shine(box.topLeft(), box.bottomLeft());
    shine.setColorAt(0, mixed(work.row.ground, work.style.shine));
    shine.setColorAt(1, palette::colour(work.row.ground));
    painter.fillPath(form, shine);
    castInside(painter, work.size(), form, work.style.edgeLight);
}

/// The round languages' sign of all applications.
void drawNineDots(const Work& work, const QRectF& box) {
    const double step = box.width() / 3.4;
    work.canvas.painter().setBrush(palette::colour(work.row.colour));
    for (int index = 0; index < 9; ++index)
        work.canvas.painter().drawEllipse(box.center() + QPointF(index % 3 - 1, index / 3 - 1) * step, 0.3 * step,
                                          0.3 * step);
}

/// The sign or the drawing of the row on a ground, with its shadow if the ground is bright.
void drawOn(const Work& work, const QRectF& ground, double part) {
    QPainter& painter = work.canvas.painter();
    if (work.row.sign == 0) {
        drawLineSign(painter, work.row.drawing, middlePart(ground, 0.66), work.row.colour,
                     ground.width() * (0.06 + work.style.signWeight), work.style);
        return;
    }
    const QRectF box = middlePart(ground, part);
    if (work.row.sign == sign::apps && work.generation.language != Language::paper) {
        drawNineDots(work, box);
        return;
    }
    if (isBright(work.row.ground)) {
        const std::array shadow{scaled(work.style.signShadow[0], ground.width() / 100)};
        castOutside(painter, work.size(), signOutline(work.row.sign, box), shadow);
    }
    drawSign(painter, work.size(), work.row.sign, box, work.row.colour, work.style);
}

/// The sign or drawing on a small ground that fills the picture.
void drawMark(const Work& work, Language form) {
    constexpr double margin = 0.5;
    constexpr double signPart = 0.76;
    const QRectF box = inset(work.canvas.area(), margin);
    drawGround(work, knobForm(box, form));
    drawOn(work, box, signPart);
}

void drawTile(const Work& work) {
    const double iconSide = work.generation.language == Language::paper ? 172 : 180;
    const QRectF box = middlePart(work.canvas.area(), iconSide / 192);
    drawGround(work, tileForm(box, work.generation.language));
    drawOn(work, box, usualPart);
}

void drawButton(const Work& work) {
    const double lift = work.side() / 192;
    const QMarginsF room = QMarginsF(work.style.cardRoom) * lift;
    const double margin = std::ceil(std::max({room.left(), room.top(), room.right(), room.bottom()}));
    const QRectF box = inset(work.canvas.area(), margin);
    const QPainterPath form = tileForm(box, work.generation.language);
    const std::array shadow{scaled(work.style.cardShadow[0], lift), scaled(work.style.cardShadow[1], lift)};
    castOutside(work.canvas.painter(), work.size(), form, shadow);
    work.canvas.painter().setCompositionMode(QPainter::CompositionMode_Plus);
    drawGround(work, form);
    work.canvas.painter().setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawOn(work, box, usualPart);
}

void drawPointer(const Work& work) {
    constexpr double margin = 3;
    const QRectF box = inset(work.canvas.area(), margin);
    drawGround(work, pointerForm(box, work.generation.language));
    drawOn(work, pointerBody(box), usualPart);
}

void drawKnob(const Work& work, bool haloed) {
    const Language language = work.generation.language;
    const QRectF area = work.canvas.area();
    if (haloed) {
        QColor pale = palette::colour(work.row.ground);
        pale.setAlphaF(0.2F);
        work.canvas.painter().fillPath(knobForm(inset(area, 1), language), pale);
    }
    drawGround(work, knobForm(middlePart(area, 0.72), language));
    work.canvas.painter().fillPath(knobForm(middlePart(area, 0.26), language), palette::colour(work.row.colour));
}

void drawShape(const Work& work) {
    const QRectF area = work.canvas.area();
    switch (work.row.shape) {
    case SymbolShape::bare:
        drawSign(work.canvas.painter(), work.size(), work.row.sign, area, work.row.colour, work.style);
        break;
    case SymbolShape::drawing:
        drawLineSign(work.canvas.painter(), work.row.drawing, area, work.row.colour, 2.5 * work.style.lineWidth,
                     work.style, pageCorner * work.side() * work.generation.controlRadius);
        break;
    case SymbolShape::disc:
        drawMark(work, Language::dune);
        break;
    case SymbolShape::mark:
        drawMark(work, work.generation.language);
        break;
    case SymbolShape::tile:
        drawTile(work);
        break;
    case SymbolShape::button:
        drawButton(work);
        break;
    case SymbolShape::pointer:
        drawPointer(work);
        break;
    case SymbolShape::knob:
        drawKnob(work, false);
        break;
    case SymbolShape::halo:
        drawKnob(work, true);
        break;
    case SymbolShape::glow:
        drawFade(work, 0.12, 0);
        break;
    case SymbolShape::ring:
        drawFade(work, 0.75, 0.25);
        break;
    }
}

} // namespace

QImage drawSymbol(std::string_view name, QSize size, bool mirrored, const Generation& generation) {
    const auto* row =
        std::find_if(symbolTable.begin(), symbolTable.end(), [&](const auto& each) { return each.name == name; });
    if (row == symbolTable.end())
        return {};
    Canvas canvas(size.isEmpty() ? QSize(row->side, row->side) : size);
    drawShape({*row, generation, styleOf(generation), canvas});
    const QImage picture = canvas.finish();
    return mirrored ? picture.mirrored(true, false) : picture;
}

} // namespace zdt::assets
