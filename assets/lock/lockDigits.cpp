#include "assets/lock/lockDigits.h"

#include "assets/art/palette.h"
#include "assets/art/picture.h"
#include "assets/lock/lockParts.h"

#include <algorithm>

namespace zdt::assets {

namespace {

/// Outlines are taken at this size and scaled.
constexpr int outlinePixels = 1000;
/// The part of a cell's width that the widest digit takes: the rest is the space between two.
constexpr double widestPart = 0.86;
/// The most that a digit takes of its cell's height.
constexpr double highestPart = 0.64;
/// The part of the colon's cell that its dots may take.
constexpr double widestDotsPart = 0.62;
/// Where the digits' middle stands: a little low, so that a date below seems to belong to them.
constexpr double middlePart = 0.56;

QPainterPath outlineOf(QChar character, const Generation& generation) {
    return textOutline(generation.clockFace, outlinePixels, character);
}

/// The height of digits without the overshoot of round ones.
double flatHeight(const Generation& generation) {
    return outlineOf('1', generation).boundingRect().height();
}

double scaleFor(int cellHeight, const Generation& generation) {
    double widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, outlineOf(QLatin1Char(digit), generation).boundingRect().width());
    return std::min(cellHeight / 2.0 * widestPart / widest, cellHeight * highestPart / flatHeight(generation));
}

QImage drawOutline(const QPainterPath& outline, QSize cell, const Generation& generation) {
    Canvas canvas(cell);
    if (generation.language == Language::aurora)
        paintGlow(canvas.painter(), outline, 0x4a06122c, 20);
    canvas.painter().fillPath(outline, palette::colour(generation.lockInk));
    return canvas.finish();
}

} // namespace

DigitLines digitLines(int cellHeight, const Generation& generation) {
    const double height = flatHeight(generation) * scaleFor(cellHeight, generation);
    return {cellHeight * middlePart - height / 2, cellHeight * middlePart + height / 2};
}

QImage drawClockDigit(int digit, QSize cell, const Generation& generation) {
    const QPainterPath outline = outlineOf(QChar('0' + digit), generation);
    const double scale = scaleFor(cell.height(), generation);
    const QTransform place = QTransform()
                                 .translate(cell.width() / 2.0, digitLines(cell.height(), generation).baseline)
                                 .scale(scale, scale)
                                 .translate(-outline.boundingRect().center().x(), 0);
    return drawOutline(place.map(outline), cell, generation);
}

QImage drawClockColon(QSize cell, const Generation& generation) {
    const QPainterPath outline = outlineOf(':', generation);
    const QPointF middle = outline.boundingRect().center();
    const DigitLines lines = digitLines(cell.height(), generation);
    // Heavy dots would fill their narrow cell.
    const double dotsWidth = outline.boundingRect().width();
    const double scale = std::min(scaleFor(cell.height(), generation), cell.width() * widestDotsPart / dotsWidth);
    const QTransform place = QTransform()
                                 .translate(cell.width() / 2.0, (lines.top + lines.baseline) / 2)
                                 .scale(scale, scale)
                                 .translate(-middle.x(), -middle.y());
    return drawOutline(place.map(outline), cell, generation);
}

} // namespace zdt::assets
