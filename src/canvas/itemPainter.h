#pragma once

#include "canvas/canvasGeometry.h"
#include "canvas/scaledPictures.h"

#include <QImage>
#include <QRectF>
#include <QRgb>
#include <QSize>
#include <QString>

class QPainter;
class QTransform;

namespace zdt {

struct ItemTextStyle;

/// Draws what lies in the design space on a surface of another size, each picture in the pixels of that surface.
class ItemPainter {
public:
    /// @param painter of the surface, in its pixels
    /// @param surface its size
    /// @param pixelRatio how many pixels of the surface are one of the control's
    ItemPainter(QPainter& painter, const QSize& surface, const DesignSpace& space, double pixelRatio,
                ScaledPictures& pictures);

    void fill(const EdgeRect& rect, QRgb color);
    /// A picture in the middle of a rectangle, no larger than it.
    /// @param size in which it is shown where that fits
    void drawFitted(const QImage& picture, const QSize& size, const EdgeRect& rect);
    /// A part of a picture, in a rectangle as it is.
    void drawStretched(const QImage& picture, const QRectF& part, const EdgeRect& rect);
    void drawStretched(const QImage& picture, const QRectF& part, const QRectF& rect);
    /// One line in the middle of a rectangle's height, cut at its edges.
    void drawText(const QString& text, const ItemTextStyle& style, const EdgeRect& rect);
    /// The outlines and handles of a selected item.
    void drawSelection(const EdgeRect& rect, QRgb outline, QRgb handle, bool handles);

    /// As long as it lives, what is drawn is moved, turned, scaled and faded.
    class Animated {
    public:
        Animated(ItemPainter& painter, const QTransform& transform, double opacity);
        ~Animated();
        Animated(const Animated&) = delete;
        Animated& operator=(const Animated&) = delete;

    private:
        ItemPainter& _painter;
    };

    /// How far the marks of a selection reach beyond its rectangle, in pixels of the design space.
    [[nodiscard]] int selectionMargin() const;

private:
    [[nodiscard]] QRectF onSurface(const QRectF& rect) const;
    [[nodiscard]] double handleSize() const;
    /// A length of the design space, but no less than some pixels of the control.
    [[nodiscard]] double atLeast(double length, double controlPixels) const;
    void drawOutline(const QRectF& rect, QRgb color);
    void drawHandles(const QRectF& rect, QRgb outline, QRgb handle);

    QPainter& _painter;
    double _scaleX;
    double _scaleY;
    double _pixelRatio;
    ScaledPictures& _pictures;
};

} // namespace zdt
