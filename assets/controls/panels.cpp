#include "assets/controls/panels.h"

#include "assets/art/picture.h"
#include "assets/controls/controlStyle.h"
#include "assets/controls/ninePatch.h"
#include "assets/controls/panelBoxes.h"
#include "assets/controls/panelTable.h"
#include "assets/controls/signs.h"

#include <algorithm>

namespace zdt::assets {

namespace {

constexpr int signMargin = 12;

/// What is active has a heavier line.
int lineWidthOf(const PanelRow& row, const ControlStyle& style) {
    return row.edge == palette::accent ? style.lineWidth + 2 : style.lineWidth;
}

QRect contentOf(const PanelRow& row) {
    return QRect(0, 0, row.width, row.height)
        .marginsRemoved({row.paddingAcross, row.paddingDown, row.paddingAcross, row.paddingDown});
}

QImage drawPlain(const PanelRow& row) {
    Canvas canvas(QSize(row.width, row.height));
    canvas.painter().fillRect(canvas.area(), palette::colour(row.fill));
    return addGuides(canvas.finish(), {{{0, row.width}}, {{0, row.height}}, contentOf(row)});
}

QImage drawLined(const PanelRow& row, const ControlStyle& style) {
    const int line = lineWidthOf(row, style);
    const int top = row.shape == PanelShape::overlined ? 0 : row.height - line;
    const QRect rest(0, top == 0 ? line : 0, row.width, row.height - line);
    Canvas canvas(QSize(row.width, row.height));
    canvas.painter().fillRect(rest, palette::colour(row.fill));
    canvas.painter().fillRect(QRect(0, top, row.width, line), palette::colour(row.edge));
    return addGuides(canvas.finish(), {{{0, row.width}}, {{rest.y(), rest.height()}}, contentOf(row) & rest});
}

/// The arrow stays in the middle of what is above the line.
QImage drawDropDown(const PanelRow& row, const ControlStyle& style) {
    constexpr int side = 54;
    constexpr int margin = 6;
    const QSize size(row.width, row.height);
    const int rest = row.height - style.lineWidth;
    const int above = (rest - side) / 2;
    const int left = row.width - side - margin;
    Canvas canvas(size);
    canvas.painter().fillRect(QRect(0, rest, row.width, style.lineWidth), palette::colour(row.edge));
    drawSign(canvas.painter(), size, row.sign, QRectF(left, above, side, side), row.edge, style);
    QRect content = contentOf(row) & QRect(0, 0, left, rest);
    return addGuides(canvas.finish(), {{{0, left}}, {{0, above}, {above + side, rest - above - side}}, content});
}

QImage drawBar(const PanelRow& row, const Generation& generation) {
    // As far from the middle as a line of this language is heavy.
    const double width = 2 * styleOf(generation).lineWidth + 2;
    const double inset = (std::min(row.width, row.height) - width) / 2;
    const double radius = width / 2 * generation.controlRadius;
    Canvas canvas(QSize(row.width, row.height));
    canvas.painter().setBrush(palette::colour(row.fill));
    canvas.painter().drawRoundedRect(canvas.area().marginsRemoved({inset, inset, inset, inset}), radius, radius);
    const int corner = static_cast<int>(inset + radius) + 1;
    Guides guides = evenGuides(QSize(row.width, row.height), corner, 0);
    // Across it, what is stretched is one pixel in its middle.
    const Run middle{std::min(row.width, row.height) / 2, 1};
    (row.width < row.height ? guides.stretchAcross : guides.stretchDown) = {middle};
    return addGuides(canvas.finish(), guides);
}

QImage drawLoneSign(const PanelRow& row, const ControlStyle& style) {
    const QSize size(row.width, row.height);
    Canvas canvas(size);
    drawSign(canvas.painter(), size, row.sign,
             canvas.area().marginsRemoved({signMargin, signMargin, signMargin, signMargin}), row.edge, style);
    const auto ends = [](int length) {
        constexpr int free = signMargin / 2;
        return std::vector<Run>{{0, free}, {length - free, free}};
    };
    return addGuides(canvas.finish(), {ends(row.width), ends(row.height), QRect(QPoint(), size)});
}

QImage draw(const PanelRow& row, const Generation& generation) {
    const ControlStyle& style = styleOf(generation);
    switch (row.shape) {
    case PanelShape::plain:
        return drawPlain(row);
    case PanelShape::box:
        return drawBox(row, generation);
    case PanelShape::topBox:
        return drawTopBox(row, generation);
    case PanelShape::header:
        return drawHeader(row, generation);
    case PanelShape::underlined:
    case PanelShape::overlined:
        return drawLined(row, style);
    case PanelShape::dropDown:
        return drawDropDown(row, style);
    case PanelShape::receivedBubble:
        return drawBubble(row, generation, false);
    case PanelShape::sentBubble:
        return drawBubble(row, generation, true);
    case PanelShape::bar:
        return drawBar(row, generation);
    case PanelShape::loneSign:
        return drawLoneSign(row, style);
    }
    return {};
}

} // namespace

QImage drawPanel(std::string_view name, const Generation& generation) {
    const auto* row =
        std::find_if(panelTable.begin(), panelTable.end(), [&](const auto& each) { return each.name == name; });
    return row == panelTable.end() ? QImage() : draw(*row, generation);
}

} // namespace zdt::assets
