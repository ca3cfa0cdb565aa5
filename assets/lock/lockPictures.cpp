#include "assets/lock/lockPictures.h"

#include "assets/art/digits.h"
#include "assets/art/glyphs.h"
#include "assets/art/picture.h"
#include "assets/art/shapes.h"

namespace zdt::assets {

namespace {

/// The widths of the clocks' lines; the slide lock's clock is half as large again.
constexpr double lockLine = 5;
constexpr double slideLine = 6;

QSize sizeOf(const Cell& cell) {
    return {cell.width, cell.height};
}

/// The digit stands in front of ".png".
int digitOf(const std::string& name) {
    return name[name.size() - 5] - '0';
}

QImage digitPicture(int digit, const Cell& cell, double lineWidth) {
    Canvas canvas(sizeOf(cell));
    drawDigit(canvas.painter(), digit, canvas.area(), palette::ink, lineWidth);
    return canvas.finish();
}

QImage colonPicture(const Cell& cell, double lineWidth) {
    Canvas canvas(sizeOf(cell));
    drawColon(canvas.painter(), canvas.area(), palette::ink, lineWidth * 0.9);
    return canvas.finish();
}

QImage drawLockDigit(const std::string& name, const Generation&) {
    return digitPicture(digitOf(name), lockDigit, lockLine);
}

QImage drawSlideDigit(const std::string& name, const Generation&) {
    return digitPicture(digitOf(name), slideDigit, slideLine);
}

QImage drawLockColon(const std::string&, const Generation&) {
    return colonPicture(lockColon, lockLine);
}

QImage drawSlideColon(const std::string&, const Generation&) {
    return colonPicture(slideColon, slideLine);
}

QImage drawLockArrow(const std::string&, const Generation&) {
    Canvas canvas(sizeOf(lockArrow));
    drawGlyph(canvas.painter(), Glyph::chevronUp, canvas.area().translated(0, -16), palette::inkSoft, 0.6);
    drawGlyph(canvas.painter(), Glyph::chevronUp, canvas.area().translated(0, 16), palette::ink, 0.6);
    return canvas.finish();
}

QImage drawSlideTrack(const std::string&, const Generation&) {
    Canvas canvas(sizeOf(slideTrack));
    const QRectF area = canvas.area();
    drawRounded(canvas.painter(), area, area.height() / 2, 0x80ffffff, palette::paper, 3);
    for (int mark = 0; mark < 3; ++mark)
        drawGlyph(canvas.painter(), Glyph::chevronRight,
                  QRectF(area.center().x() + (mark - 1) * 60 - 28, area.center().y() - 28, 56, 56), palette::inkFaint);
    return canvas.finish();
}

QImage drawSlideKnob(const std::string&, const Generation&) {
    Canvas canvas(sizeOf(slideKnob));
    const QPointF middle = canvas.area().center();
    drawDisc(canvas.painter(), middle, 60, palette::accent);
    drawGlyph(canvas.painter(), Glyph::chevronRight, QRectF(middle.x() - 32, middle.y() - 32, 64, 64), palette::paper);
    return canvas.finish();
}

} // namespace

std::vector<LockPicture> lockPictures(const Generation&) {
    const std::string designed = "unlock_amazing/drawable-hdpi/";
    const std::string slide = "unlock_slide/drawable-hdpi/slide_";
    std::vector<LockPicture> pictures{{designed + "colon.png", drawLockColon},
                                      {designed + "unlock_arrow.png", drawLockArrow},
                                      {slide + "colon.png", drawSlideColon},
                                      {slide + "track.png", drawSlideTrack},
                                      {slide + "knob.png", drawSlideKnob}};
    for (int digit = 0; digit < 10; ++digit) {
        const std::string ending = "number_" + std::to_string(digit) + ".png";
        pictures.push_back({designed + ending, drawLockDigit});
        pictures.push_back({slide + ending, drawSlideDigit});
    }
    return pictures;
}

} // namespace zdt::assets
