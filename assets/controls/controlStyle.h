#pragma once

#include "assets/art/generation.h"
#include "assets/controls/light.h"

#include <QMargins>
#include <Qt>

#include <array>

/// How each visual language makes controls. All in pixels, for the phone's three to one.
namespace zdt::assets {

struct ControlStyle {
    int lineWidth;         ///< Of edges and dividers.
    double signWeight;     ///< What a sign's strokes gain at each side, as a part of its em square; negative: lose.
    Qt::PenJoinStyle join; ///< Where strokes meet.
    double cornerReach;    ///< How far a corner runs along its sides, in radii: 1 for an arc, more for a softer start.

    QMargins cardRoom; ///< What a card's shadow takes beside it.
    std::array<Cast, 2> cardShadow;
    double bubbleHeight; ///< A bubble's height over the ground, in those of a card.

    std::array<Cast, 1> fieldShade; ///< What the edge of a field casts into it.
    QRgb fieldEdge;                 ///< A line around it.
    std::array<Cast, 1> edgeLight;  ///< On the edge of what is bright itself.

    double shine;                   ///< How much lighter the top of a tile is than its bottom, 0 to 1.
    std::array<Cast, 1> signShadow; ///< Of a sign on a tile of 100 pixels.
};

/// Light falls from the top left, from the right, from above.
inline constexpr std::array<ControlStyle, 3> controlStyles{{
    {
        .lineWidth = 4,
        .signWeight = 0.012,
        .join = Qt::MiterJoin,
        .cornerReach = 1,
        .cardRoom = {6, 6, 11, 11},
        .cardShadow = {{{0, 0, 1.4, 0x2a000000}, {5, 5, 0.9, 0x2e0c2320}}},
        .bubbleHeight = 0.5,
        .fieldShade = {{{3, 3, 0.8, 0x20000000}}},
        .fieldEdge = 0x14000000,
        .edgeLight = {{{0, 0, 0, 0x00ffffff}}},
        .shine = 0,
        .signShadow = {{{3, 3, 0, 0x33000000}}},
    },
    {
        .lineWidth = 3,
        .signWeight = 0.005,
        .join = Qt::RoundJoin,
        .cornerReach = 1,
        .cardRoom = {13, 9, 11, 17},
        .cardShadow = {{{0, 1, 1.6, 0x185a3010}, {-2, 5, 4.6, 0x386b3d14}}},
        .bubbleHeight = 0.5,
        .fieldShade = {{{-1.5, 2, 2, 0x266b3d14}}},
        .fieldEdge = 0x1e6b3d14,
        .edgeLight = {{{-2, 2, 2, 0x30fff0d8}}},
        .shine = 0.14,
        .signShadow = {{{-1, 2, 1.5, 0x24401c00}}},
    },
    {
        .lineWidth = 2,
        .signWeight = -0.012,
        .join = Qt::RoundJoin,
        .cornerReach = 1.2,
        .cardRoom = {12, 10, 12, 14},
        .cardShadow = {{{0, 0, 1.4, 0x14101848}, {0, 2, 4.8, 0x301c2468}}},
        .bubbleHeight = 0,
        .fieldShade = {{{0, 2, 0, 0x101c2468}}},
        .fieldEdge = 0x1c1c2468,
        .edgeLight = {{{0, 2, 0, 0x59ffffff}}},
        .shine = 0.3,
        .signShadow = {{{0, 2.5, 2, 0x330a2a80}}},
    },
}};

[[nodiscard]] constexpr const ControlStyle& styleOf(const Generation& generation) {
    return controlStyles[static_cast<std::size_t>(generation.language)];
}

} // namespace zdt::assets
