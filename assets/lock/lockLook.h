#pragma once

#include "assets/art/generation.h"

#include <array>

/// How the lock screens of the visual languages differ, in colours and in where things stand.
namespace zdt::assets {

/// Sizes of the pictures, which are those of their places: pixels of a screen 1080 wide.
struct Cell {
    int width;
    int height;
};

/// The default clock has cells of the same proportions.
inline constexpr Cell lockDigit{180, 360};
inline constexpr Cell lockColon{54, 360};
inline constexpr Cell noticeCard{620, 108}; ///< With its shadow, as the music panel.
inline constexpr Cell musicPanel{980, 190};
inline constexpr Cell musicSkip{104, 104};
inline constexpr Cell musicPlay{130, 130};
inline constexpr Cell chargeRing{280, 280};
inline constexpr Cell lockArrow{120, 110};
inline constexpr Cell slideTrack{860, 160};
inline constexpr Cell slideKnob{160, 160};
/// What cards, panels and tracks leave to their shadow on each side.
inline constexpr int shadowRoom = 10;

struct LockLook {
    bool isCentred; ///< Clock, date and notices; otherwise they stand at the left.
    QRgb footInk;   ///< Signs and texts at the foot, where the wallpaper differs from the sky.
    QRgb cardInk;   ///< Texts on cards.
    QRgb cardTop;   ///< Cards, from above down.
    QRgb cardBottom;
    QRgb cardEdge;
    QRgb accentTop; ///< What is on or moves, from above down.
    QRgb accentBottom;
    QRgb accentInk; ///< Signs on that.
    QRgb message;   ///< The sign of new messages.
    QRgb missedCall;
};

/// In the order of the languages.
inline constexpr std::array<LockLook, 3> lockLooks{{
    {true, 0xff12403f, 0xff12403f, 0xfffffdf6, 0xfffffdf6, 0x00000000, 0xff1f7f7a, 0xff1f7f7a, 0xfffffdf6, 0xff1f7f7a,
     0xffd9603f},
    {false, 0xfffff3e0, 0xff4a2619, 0xe6fff8ec, 0xe6f8e6cc, 0x66d9a679, 0xffe08a4f, 0xffb9502e, 0xfffff6e8, 0xffb9502e,
     0xffa23b52},
    {true, 0xffffffff, 0xffffffff, 0x5c3f6fa0, 0x5c1d3d66, 0x52ffffff, 0xff58efc0, 0xff3d9bff, 0xff06202c, 0xff6ff2c9,
     0xffff9a8a},
}};

[[nodiscard]] constexpr const LockLook& lookOf(Language language) {
    return lockLooks[static_cast<std::size_t>(language)];
}

} // namespace zdt::assets
