#pragma once

#include "assets/art/faces.h"

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QString>

class QPainter;

/// Texts and signs as the phone lays them over a wallpaper that it doesn't know.
namespace zdt::assets {

enum class Tone {
    tint, ///< White over a soft shadow, for wallpapers that aren't bright.
    deep, ///< Dark, for bright wallpapers.
};

enum class Side { left, middle, right };

/// A line of text.
struct Lettering {
    Face face;
    int pixels; ///< Of the em square.
    Side anchor = Side::middle;
    double strength = 1; ///< 0 to 1.
};

class PhoneInk {
public:
    PhoneInk(QPainter& painter, Tone tone)
        : _painter(painter)
        , _tone(tone) {}

    [[nodiscard]] Tone tone() const { return _tone; }
    [[nodiscard]] QColor colour(double strength = 1) const;

    /// @param reach of the shadow in pixels
    void fill(const QPainterPath& shape, double strength = 1, double reach = 8);
    /// @param anchor a point of the line at the middle of its digits' height
    void text(const Lettering& lettering, QPointF anchor, const QString& words);
    /// @param side of the sign's em square
    void sign(char32_t sign, QPointF middle, double side, double strength = 1);
    /// A translucent rectangle with round corners, on which ink stands.
    void glass(const QRectF& area, double radius, const QColor& colour);

private:
    QPainter& _painter;
    Tone _tone;
};

} // namespace zdt::assets
