#pragma once

#include "assets/art/faces.h"
#include "model/fileResNode.h"
#include "model/typeMask.h"

#include <QRgb>

#include <array>
#include <string_view>

namespace zdt::assets {

/// The visual language of a template: what its pictures have in common. docs/templates.md tells the idea of each.
enum class Language {
    paper,  ///< Cut from coloured paper: flat rounded squares, hard light from the top left, long shadows.
    dune,   ///< Sand in the evening: cream discs with signs of two warm tones, soft low light.
    aurora, ///< A polar night: superellipses that shine from within, light from above.
};

/// What sets the templates of the generations apart.
struct Generation {
    unsigned index;
    std::string_view version; ///< In the description.
    int screenHeight;         ///< Pixels, at a width of 1080.
    Language language;
    Face clockFace;       ///< Of the large digits of a clock.
    QRgb lockInk;         ///< Texts and digits on the lock screen's wallpaper.
    QRgb lockInkSoft;     ///< Second lines there.
    double controlRadius; ///< How round controls are, as a part of what the round ones of all generations have: 0 to 1.

    [[nodiscard]] TypeMask bit() const { return generationBit(index); }
};

inline constexpr std::array<Generation, generationCount> generations{{
    {0, "5.0.1", screenHeight, Language::paper, {interDisplayFace, 800}, 0xff12403f, 0xb312403f, 0.4},
    {1, "8.0.1", screenHeight, Language::dune, {serifFace, 400}, 0xff4a2619, 0xb34a2619, 0.7},
    {2, "9.0.100", tallScreenHeight, Language::aurora, {interDisplayFace, 200}, 0xffffffff, 0xb3ffffff, 1},
}};

} // namespace zdt::assets
