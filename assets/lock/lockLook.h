#pragma once

#include "assets/art/generation.h"
#include "assets/art/palette.h"

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
inline constexpr Cell noticeCard{700, 108}; ///< With its shadow, as the music panel.
inline constexpr Cell musicPanel{700, 190};
inline constexpr Cell musicSkip{104, 104};
inline constexpr Cell musicPlay{130, 130};
inline constexpr Cell chargeRing{280, 280};
inline constexpr Cell footText{1080, 92};
inline constexpr Cell lockArrow{120, 90};
inline constexpr Cell slideTrack{860, 160};
inline constexpr Cell slideKnob{160, 160};
/// What cards, panels and tracks leave to their shadow on each side.
inline constexpr int shadowRoom = 10;

struct LockLook {
    bool isCentred; ///< Clock, date and notices; otherwise they stand at the left.
    QRgb footInk;   ///< Those texts, and the arrow.
    QRgb cardInk;   ///< Texts on cards.
    QRgb cardTop;   ///< Cards, from above down.
    QRgb cardBottom;
    QRgb cardEdge;  ///< A line around them; clear for none.
    QRgb accentTop; ///< What is on or moves, from above down.
    QRgb accentBottom;
    QRgb accentInk; ///< Signs on that.
    QRgb message;   ///< The sign of new messages.
    QRgb missedCall;
};

inline constexpr LockLook paperLock{.isCentred = true,
                                    .footInk = 0xfffffdf6,
                                    .cardInk = 0xff12403f,
                                    .cardTop = 0xfffffdf6,
                                    .cardBottom = 0xfffffdf6,
                                    .cardEdge = palette::clear,
                                    .accentTop = 0xff1f7f7a,
                                    .accentBottom = 0xff1f7f7a,
                                    .accentInk = 0xfffffdf6,
                                    .message = 0xff1f7f7a,
                                    .missedCall = 0xffd9603f};
inline constexpr LockLook duneLock{.isCentred = false,
                                   .footInk = 0xfffff3e0,
                                   .cardInk = 0xff4a2619,
                                   .cardTop = 0xe6fff8ec,
                                   .cardBottom = 0xe6f8e6cc,
                                   .cardEdge = 0x66d9a679,
                                   .accentTop = 0xffe08a4f,
                                   .accentBottom = 0xffb9502e,
                                   .accentInk = 0xfffff6e8,
                                   .message = 0xffb9502e,
                                   .missedCall = 0xffa23b52};
inline constexpr LockLook auroraLock{.isCentred = true,
                                     .footInk = 0xffffffff,
                                     .cardInk = 0xffffffff,
                                     .cardTop = 0x5c3f6fa0,
                                     .cardBottom = 0x5c1d3d66,
                                     .cardEdge = 0x52ffffff,
                                     .accentTop = 0xff58efc0,
                                     .accentBottom = 0xff3d9bff,
                                     .accentInk = 0xff06202c,
                                     .message = 0xff6ff2c9,
                                     .missedCall = 0xffff9a8a};

/// In the order of the languages.
inline constexpr std::array<LockLook, 3> lockLooks{paperLock, duneLock, auroraLock};

[[nodiscard]] constexpr const LockLook& lookOf(Language language) {
    return lockLooks[static_cast<std::size_t>(language)];
}

} // namespace zdt::assets
