#pragma once

#include <QColor>
#include <QRgb>

/// The colours of everything drawn, as 0xaarrggbb: those at which the theme's keys start, and a few beside them.
namespace zdt::assets::palette {

inline constexpr QRgb clear = 0x00000000;
inline constexpr QRgb paper = 0xffffffff;
inline constexpr QRgb paperVeil = 0xe6ffffff; ///< A card that lets the wallpaper through.
inline constexpr QRgb glass = 0x3dffffff;     ///< A folder over the wallpaper, on which white letters stand.
inline constexpr QRgb glassEdge = 0x52ffffff;
inline constexpr QRgb field = 0xfff0f0f0; ///< Bars, fields and backgrounds.
inline constexpr QRgb fieldPressed = 0xffe4e4e4;
inline constexpr QRgb line = 0xffcacaca;
inline constexpr QRgb grey = 0xff808080;
inline constexpr QRgb greyPressed = 0x80808080;
inline constexpr QRgb ink = 0xff242424;
inline constexpr QRgb inkVeil = 0xe6242424;    ///< A toast.
inline constexpr QRgb inkSoft = 0x80242424;    ///< Second lines.
inline constexpr QRgb inkFaint = 0x4d242424;   ///< Disabled.
inline constexpr QRgb inkPressed = 0x1a242424; ///< Over what a finger touches.
inline constexpr QRgb shadow = 0x14000000;
inline constexpr QRgb accent = 0xff007dfe;
inline constexpr QRgb accentPressed = 0xff0064cc;
inline constexpr QRgb accentSoft = 0x4d007dfe;
inline constexpr QRgb accentFaint = 0x1a007dfe;
inline constexpr QRgb danger = 0xfffa2a2d;
inline constexpr QRgb call = 0xff26b56a;       ///< The green of a call.
inline constexpr QRgb ownMessage = 0xffdbf3db; ///< Behind the messages that the owner sent.

inline QColor colour(QRgb value) {
    return QColor::fromRgba(value);
}

} // namespace zdt::assets::palette
