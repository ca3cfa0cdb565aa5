#include "assets/controls/panels.h"

#include "assets/art/outline.h"
#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/controls/ninePatch.h"
#include "assets/controls/panelTable.h"

#include <QPainterPath>

#include <algorithm>

namespace zdt::assets {

namespace {

constexpr int lineWidth = 3;
/// The pixels that a card's shadow and a bubble's tail take.
constexpr int shadowDepth = 9;
constexpr int tailWidth = 15;
constexpr int triangleSide = 24;

void drawBubble(QPainter& painter, const QRectF& area, const PanelRow& row) {
    const bool sent = row.shape == PanelShape::sentBubble;
    if (sent) {
        // Drawn as its mirror image.
        painter.translate(area.width(), 0);
        painter.scale(-1, 1);
    }
    QPainterPath path;
    path.addRoundedRect(area.marginsRemoved({tailWidth, 0, 0, 0}), row.radius, row.radius);
    QPainterPath tail;
    tail.moveTo(0, area.height());
    tail.quadTo(tailWidth, area.height() - 6, tailWidth, area.height() - row.radius - 6);
    tail.lineTo(tailWidth + row.radius, area.height() - row.radius);
    tail.lineTo(tailWidth + row.radius, area.height());
    tail.closeSubpath();
    painter.setBrush(palette::colour(row.fill));
    painter.drawPath(path.united(tail));
}

void drawTriangle(QPainter& painter, const QRectF& area, QRgb colour) {
    const QPointF corner(area.right(), area.bottom() - 2 * lineWidth);
    painter.setBrush(palette::colour(colour));
    painter.drawPolygon(QPolygonF({corner, corner - QPointF(triangleSide, 0), corner - QPointF(0, triangleSide)}));
}

void drawShape(QPainter& painter, const QRectF& area, const PanelRow& row) {
    const QColor edge = palette::colour(row.edge);
    switch (row.shape) {
    case PanelShape::filled:
        painter.fillRect(area, palette::colour(row.fill));
        break;
    case PanelShape::rounded:
        drawRounded(painter, area, row.radius, row.fill, row.edge, lineWidth);
        break;
    case PanelShape::raised:
        drawRaised(painter, area, row.radius, shadowDepth, row.fill);
        break;
    case PanelShape::underlined:
    case PanelShape::overlined:
    case PanelShape::dropDown:
        painter.fillRect(area, palette::colour(row.fill));
        painter.fillRect(
            QRectF(0, row.shape == PanelShape::overlined ? 0 : area.bottom() - lineWidth, area.width(), lineWidth),
            edge);
        if (row.shape == PanelShape::dropDown)
            drawTriangle(painter, area, row.edge);
        break;
    case PanelShape::receivedBubble:
    case PanelShape::sentBubble:
        drawBubble(painter, area, row);
        break;
    case PanelShape::sign:
        drawGlyph(painter, row.glyph, area.marginsRemoved({12, 12, 12, 12}), row.edge);
        break;
    }
}

Guides guidesOf(const PanelRow& row) {
    const QSize size(row.width, row.height);
    Guides guides = evenGuides(size, row.radius, row.padding);
    switch (row.shape) {
    case PanelShape::filled:
    case PanelShape::rounded:
        break;
    case PanelShape::raised:
        guides = evenGuides(size, row.radius + shadowDepth, row.padding);
        break;
    case PanelShape::overlined:
        guides.stretchDown = {{lineWidth, row.height - lineWidth}};
        break;
    case PanelShape::dropDown:
        guides.stretchAcross = {{0, row.width - triangleSide}};
        guides.stretchDown = {{0, row.height - triangleSide - 2 * lineWidth}};
        break;
    case PanelShape::underlined:
        guides.stretchDown = {{0, row.height - lineWidth}};
        break;
    case PanelShape::receivedBubble:
    case PanelShape::sentBubble: {
        const int left = row.shape == PanelShape::receivedBubble ? tailWidth : 0;
        guides.stretchAcross = {{left + row.radius, row.width - tailWidth - 2 * row.radius}};
        guides.stretchDown = {{row.radius, row.height - 2 * row.radius - 12}};
        guides.content.adjust(left, 0, left - tailWidth, 0);
        break;
    }
    case PanelShape::sign: {
        constexpr int margin = 6;
        guides.stretchAcross = {{0, margin}, {row.width - margin, margin}};
        guides.stretchDown = {{0, margin}, {row.height - margin, margin}};
        break;
    }
    }
    return guides;
}

} // namespace

QImage drawPanel(std::string_view name, const Generation&) {
    const auto* row =
        std::find_if(panelTable.begin(), panelTable.end(), [&](const auto& each) { return each.name == name; });
    if (row == panelTable.end())
        return {};
    Canvas canvas(QSize(row->width, row->height));
    drawShape(canvas.painter(), canvas.area(), *row);
    return addGuides(canvas.finish(), guidesOf(*row));
}

} // namespace zdt::assets
