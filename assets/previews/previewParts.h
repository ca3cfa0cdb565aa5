#pragma once

#include "assets/art/generation.h"
#include "assets/art/glyphs.h"
#include "assets/art/palette.h"

#include <QPainter>
#include <QRectF>

#include <span>
#include <string_view>

/// The parts of a phone's screen as previews show them. Texts are bars, in pixels of a screen 1080 wide.
namespace zdt::assets {

/// A line of text as a bar.
void paintText(QPainter& painter, const QRectF& area, QRgb colour);

/// The bar at the top of the screen: the time, the signal and the battery.
void paintStatusBar(QPainter& painter, double width, QRgb colour);

/// The title of an application with its signs at the right; ends at y 300.
void paintTitleBar(QPainter& painter, double width, double titleWidth, std::span<const Glyph> signs);

/// A row of a list, 176 high: a disc with a glyph, two lines, a time at the right, and a line below.
void paintListRow(QPainter& painter, const QRectF& area, QRgb discColour, Glyph glyph, double titleWidth,
                  double textWidth);

/// A labelled icon whose side is `side`, with its label below.
void paintLabelledIcon(QPainter& painter, QPointF topLeft, double side, std::string_view name, QRgb labelColour,
                       const Generation& generation);

/// The bar at the bottom of the screen with which the hand leaves an application.
void paintHomeBar(QPainter& painter, const QRectF& screen, QRgb colour);

} // namespace zdt::assets
