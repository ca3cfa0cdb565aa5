#include "assets/controls/dialKeys.h"

#include "assets/art/digits.h"
#include "assets/art/palette.h"
#include "assets/art/picture.h"

namespace zdt::assets {

namespace {

/// A third of the screen's width.
constexpr QSize keySize(360, 192);
constexpr double lineWidth = 6;

void drawSign(QPainter& painter, std::string_view name, QPointF middle, QRgb colour) {
    constexpr std::string_view digitPrefix = "dial_num_";
    constexpr double digitHeight = 106;
    constexpr double signSide = 62;
    const QRectF square(middle.x() - signSide / 2, middle.y() - signSide / 2, signSide, signSide);
    if (name.starts_with("xing")) {
        drawAsterisk(painter, square, colour, lineWidth);
    } else if (name.starts_with("jing")) {
        drawHash(painter, square, colour, lineWidth);
    } else {
        const QRectF cell(middle.x() - digitHeight / 4, middle.y() - digitHeight / 2, digitHeight / 2, digitHeight);
        drawDigit(painter, name[digitPrefix.size()] - '0', cell, colour, lineWidth);
    }
}

} // namespace

QImage drawDialKey(std::string_view name, const Generation&) {
    if (!name.starts_with("dial_num_") && !name.starts_with("xing") && !name.starts_with("jing"))
        return {};
    const bool pressed = name.find("press") != std::string_view::npos;
    Canvas canvas(keySize);
    const QPointF middle = canvas.area().center();
    if (pressed) {
        const double radius = keySize.height() / 2.0 - 8;
        canvas.painter().setBrush(palette::colour(palette::inkPressed));
        canvas.painter().drawEllipse(middle, radius, radius);
    }
    drawSign(canvas.painter(), name, middle, pressed ? palette::accent : palette::ink);
    return canvas.finish();
}

} // namespace zdt::assets
