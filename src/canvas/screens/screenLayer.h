#pragma once

#include "model/typeMask.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The screens of the phone's applications as stacks of layers. One description serves both sides: the generator draws
/// the pictures that the layers name, and the editor's pages put them together in the colours of the open theme. Plain
/// data; all measures are pixels of a screen of 1080 by 2160, from its top left.
namespace zdt {

inline constexpr int phoneWidth = 1080;
inline constexpr int phoneHeight = 2160;

/// Pixels that a text's picture has beyond its line at the left and right, for letters that lean out of it.
inline constexpr int textInset = 6;

struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// What a layer shows.
enum class LayerKind {
    fill,      ///< Its place in the colour of its key; there is no picture.
    shape,     ///< A picture of the skin that takes the colour of its key.
    art,       ///< A picture of the skin in its own colours, such as a photo. It has no key.
    picture,   ///< The theme's picture that its key names; a nine-patch is stretched to the place.
    wallpaper, ///< The theme's wallpaper that its key names.
};

/// What the generator draws for a `shape` (its alpha alone counts) or an `art`.
enum class DrawingKind {
    none,
    text,     ///< A line of text around the middle of the place, cut with an ellipsis where it is too long.
    icon,     ///< A character of the icon font, as high as `size`, in the middle of the place.
    panel,    ///< The whole place, its corners rounded by `radius`.
    ring,     ///< The outline of a panel, `stroke` wide, inside the place.
    portrait, ///< Art: a person's picture in a disc, or the letter that `english` and `chinese` give; `variant` tells
              ///< which.
    photo,    ///< Art: a landscape, its corners rounded by `radius`; `variant` tells which.
};

enum class TextAlign { left, centre, right };

/// Bits of `Drawing::corners`.
namespace corner {
inline constexpr unsigned topLeft = 1;
inline constexpr unsigned topRight = 2;
inline constexpr unsigned bottomLeft = 4;
inline constexpr unsigned bottomRight = 8;
inline constexpr unsigned top = topLeft | topRight;
inline constexpr unsigned bottom = bottomLeft | bottomRight;
inline constexpr unsigned all = top | bottom;
} // namespace corner

struct Drawing {
    DrawingKind kind = DrawingKind::none;
    std::string_view english; ///< Of a text.
    std::string_view chinese;
    char16_t icon = 0; ///< A code point of "Material Icons".
    int size = 0;      ///< Of a text or icon: pixels of its em square.
    int weight = 400;  ///< Of a text: 400, 500 or 600.
    TextAlign align = TextAlign::left;
    int radius = 0;
    unsigned corners = corner::all; ///< Those that are rounded.
    int stroke = 0;
    int alpha = 255; ///< 0 to 255: a shape that is always more transparent than its key's colour.
    int variant = 0;
};

struct ScreenLayer {
    std::string name; ///< Of a `shape` or `art`, once a screen: its picture is "<name>.png" in the screen's folder.
    LayerKind kind = LayerKind::fill;
    Place place;
    /// What the layer follows. A colour: module, group and item of simple mode, as "contacts/dial/highlight color". A
    /// picture: module and file, as "contacts/dial_num_1_blk.png" or "icons/com.android.mms.png", where "commonSetting"
    /// means the pictures that all applications share, those of the contacts. A wallpaper: its file. Empty for art.
    std::string_view key;
    /// 0xaarrggbb of a fill or shape without a key, or whose key takes no part in the theme.
    std::uint32_t fallback = 0xff242424;
    /// Generations on whose screens it isn't.
    TypeMask absentFrom = 0;
    /// The item of simple mode that must be "true" for the layer to be seen; empty for none.
    std::string_view switchKey;
    Drawing drawing;
};

struct Screen {
    std::string_view module;         ///< Of the page: "commonSetting", "launcher", "contacts", "mms" or "systemui".
    std::string_view name;           ///< As the group of simple mode is called, or an extra one.
    TypeMask absentFrom = 0;         ///< Generations that lack it.
    std::vector<ScreenLayer> layers; ///< The lowest first.
};

} // namespace zdt
