#include "assets/icons/material.h"

#include <QLinearGradient>

#include <array>
#include <cmath>

namespace zdt::assets {

namespace {

using Palette = std::array<Shade, hueCount>;

/// Poster colours: leaf, deep teal, sky, ink blue, navy, plum, old rose, brick, coral, mustard, moss and slate.
constexpr Palette paperPalette{{
    {0xff4f9d5d, 0xff4f9d5d},
    {0xff23888a, 0xff23888a},
    {0xff4da2d0, 0xff4da2d0},
    {0xff3b71b8, 0xff3b71b8},
    {0xff3a4b82, 0xff3a4b82},
    {0xff82528f, 0xff82528f},
    {0xffcf6484, 0xffcf6484},
    {0xffc84a40, 0xffc84a40},
    {0xffe57c4f, 0xffe57c4f},
    {0xffe2a636, 0xffe2a636},
    {0xff87963f, 0xff87963f},
    {0xff5d6c7b, 0xff5d6c7b},
}};

/// Warm tones: sage, sea sage, dusk, dusk blue, late dusk, plum, rose, brick, terracotta, amber, olive and stone.
constexpr Palette dunePalette{{
    {0xff8ca95f, 0xff4f723e},
    {0xff66a89a, 0xff2b6b6c},
    {0xff86aec8, 0xff437299},
    {0xff6a90bf, 0xff365588},
    {0xff7a78b0, 0xff3f3c74},
    {0xffae729f, 0xff68386c},
    {0xffe98c97, 0xffae4263},
    {0xffe87a5c, 0xffa4332f},
    {0xfff3a062, 0xffc6532c},
    {0xfff5b84c, 0xffcf7716},
    {0xffbdb35a, 0xff7d7629},
    {0xffab988c, 0xff5f4d46},
}};

/// Neighbours that shine: mint, cyan, azure, sapphire, indigo, violet, magenta, coral, ember, amber, lime and steel.
constexpr Palette auroraPalette{{
    {0xff4be39a, 0xff0a9c86},
    {0xff37dcd0, 0xff0a7fb0},
    {0xff5ecbff, 0xff2774ee},
    {0xff5a9dff, 0xff3947dc},
    {0xff8483ff, 0xff3f2fbc},
    {0xffbf82ff, 0xff6630d8},
    {0xffff7fc4, 0xffb92bbd},
    {0xffff8278, 0xffd92a63},
    {0xffffad5a, 0xffec4a44},
    {0xffffcb4d, 0xfff27f28},
    {0xffb5dd4c, 0xff2f9d5c},
    {0xff8ea5c6, 0xff41547c},
}};

const Palette& paletteOf(Language language) {
    switch (language) {
    case Language::paper:
        return paperPalette;
    case Language::dune:
        return dunePalette;
    case Language::aurora:
        return auroraPalette;
    }
    return paperPalette;
}

constexpr QRgb offWhite = 0xfffffdf6;
constexpr Shade cream{0xfffff8ec, 0xfff4e2c8};

/// The heights between which the tiles and the signs change their colours.
constexpr double tileTop = 6;
constexpr double signTop = 46;

constexpr Shade plain(QRgb colour) {
    return {colour, colour};
}

/// What a language takes of three.
template <typename Value>
Value pick(Language language, const Value& paper, const Value& dune, const Value& aurora) {
    switch (language) {
    case Language::paper:
        return paper;
    case Language::dune:
        return dune;
    case Language::aurora:
        return aurora;
    }
    return paper;
}

} // namespace

QRgb mix(QRgb first, QRgb second, double part) {
    const auto between = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
    return qRgba(between(qRed(first), qRed(second)), between(qGreen(first), qGreen(second)),
                 between(qBlue(first), qBlue(second)), between(qAlpha(first), qAlpha(second)));
}

Shade mix(const Shade& first, const Shade& second, double part) {
    return {mix(first.top, second.top, part), mix(first.bottom, second.bottom, part)};
}

QBrush shaded(const Shade& shade, double top, double bottom) {
    if (shade.top == shade.bottom)
        return QColor::fromRgba(shade.top);
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setColorAt(0, QColor::fromRgba(shade.top));
    gradient.setColorAt(1, QColor::fromRgba(shade.bottom));
    return gradient;
}

Material::Material(const Generation& generation, Hue hue)
    : _generation(&generation)
    , _own(shade(hue)) {}

Face Material::numberFace() const {
    return {_generation->clockFace.family, pick(language(), 800, 700, 500)};
}

double Material::line() const {
    return pick(language(), 7.0, 6.0, 5.0);
}

Shade Material::shade(Hue hue) const {
    return paletteOf(language())[static_cast<std::size_t>(hue)];
}

QBrush Material::onSign(const Shade& shade) const {
    return shaded(shade, signTop, iconSide - signTop);
}

QBrush Material::ground() const {
    return shaded(language() == Language::dune ? cream : _own, tileTop, iconSide - tileTop);
}

QBrush Material::blank() const {
    return shaded(pick(language(), plain(offWhite), cream, {0xffffffff, mix(0xffffffff, _own.top, 0.42)}), tileTop,
                  iconSide - tileTop);
}

QBrush Material::main() const {
    return onSign(pick(language(), plain(offWhite), _own, {0xffffffff, 0xe0ffffff}));
}

QBrush Material::soft() const {
    return onSign(
        pick(language(), plain(mix(offWhite, _own.top, 0.5)), mix(_own, cream, 0.46), {0x80ffffff, 0x5cffffff}));
}

QBrush Material::hollow() const {
    return language() == Language::dune ? onSign(mix(_own, plain(cream.top), 0.84)) : soft();
}

QBrush Material::deep() const {
    return onSign(pick(language(), plain(mix(_own.top, 0xff14222c, 0.3)), _own,
                       {mix(_own.bottom, 0xff10143c, 0.16), mix(_own.bottom, 0xff10143c, 0.3)}));
}

QBrush Material::cut() const {
    return language() == Language::dune ? onSign(plain(0xfffff6e6)) : ground();
}

QBrush Material::sheet() const {
    return onSign(pick(language(), plain(offWhite), {0xfffffdf9, mix(cream.bottom, _own.top, 0.22)},
                       {0xffffffff, mix(0xffffffff, _own.top, 0.16)}));
}

QBrush Material::tint() const {
    return onSign(pick(language(), plain(mix(offWhite, _own.top, 0.34)), mix(_own, cream, 0.46),
                       mix(_own, plain(0xffffffff), 0.56)));
}

QBrush Material::ink() const {
    return onSign(pick(language(), plain(mix(_own.top, 0xff14222c, 0.42)), mix(_own, plain(0xff3c2015), 0.35),
                       mix(_own, plain(0xff10143c), 0.36)));
}

QBrush Material::dark() const {
    return onSign(pick(language(), plain(0xff27333e), {0xff644a40, 0xff2f1e1a}, {0xff313b66, 0xff0c1130}));
}

QBrush Material::of(Hue hue) const {
    return onSign(shade(hue));
}

QRgb Material::shadow() const {
    return pick(language(), mix(_own.bottom, 0xff0c1a22, 0.6), 0xff7c431f, mix(_own.bottom, 0xff090c30, 0.48));
}

} // namespace zdt::assets
