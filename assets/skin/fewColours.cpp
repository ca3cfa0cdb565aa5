#include "assets/skin/fewColours.h"

#include "support/assertion.h"

namespace zdt::assets {

namespace {

constexpr qsizetype mostColours = 64;

int square(int value) {
    return value * value;
}

int blend(int from, int to, int step, int steps) {
    return (from * (steps - step) + to * step + steps / 2) / steps;
}

} // namespace

FewColours::FewColours()
    : _colours{qRgb(0, 0, 0)} {}

void FewColours::add(QRgb colour) {
    if (_colours.indexOf(colour, 1) < 0)
        _colours.append(colour);
    ZDT_ASSERT(_colours.size() <= mostColours, "fewColours");
}

void FewColours::addBlend(QRgb from, QRgb to, int steps) {
    for (int step = 0; step <= steps; ++step) {
        add(qRgb(blend(qRed(from), qRed(to), step, steps), blend(qGreen(from), qGreen(to), step, steps),
                 blend(qBlue(from), qBlue(to), step, steps)));
    }
}

void FewColours::settle() {
    constexpr unsigned mask = (1U << bits) - 1;
    const auto widened = [](unsigned value) {
        return static_cast<int>((value & mask) << (8 - bits) | (value & mask) >> (2 * bits - 8));
    };
    for (unsigned place = 0; place < _places.size(); ++place)
        _places[place] = nearest(qRgb(widened(place >> (2 * bits)), widened(place >> bits), widened(place)));
}

std::size_t FewColours::placeOf(QRgb colour) {
    const auto narrowed = [](int value) { return static_cast<std::size_t>(value) >> (8 - bits); };
    return narrowed(qRed(colour)) << (2 * bits) | narrowed(qGreen(colour)) << bits | narrowed(qBlue(colour));
}

std::uint8_t FewColours::nearest(QRgb colour) const {
    const auto distance = [&](QRgb other) {
        return square(qRed(colour) - qRed(other)) + square(qGreen(colour) - qGreen(other)) +
               square(qBlue(colour) - qBlue(other));
    };
    qsizetype best = 1;
    for (qsizetype each = 2; each < _colours.size(); ++each) {
        if (distance(_colours[each]) < distance(_colours[best]))
            best = each;
    }
    return static_cast<std::uint8_t>(best);
}

QImage FewColours::reduce(const QImage& picture) const {
    QImage reduced(picture.size(), QImage::Format_Indexed8);
    reduced.setColorTable(_colours);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* to = reduced.scanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            to[x] = _places[placeOf(from[x])];
    }
    return reduced;
}

} // namespace zdt::assets
