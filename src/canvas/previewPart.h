#pragma once

#include <QRect>
#include <QRgb>

#include <algorithm>
#include <string>
#include <vector>

namespace zdt {

/// One layer of a composed preview. Pixels of the design space, 1080 by 2160.
struct PreviewPart {
    bool isColorFill = false; ///< Takes a colour: in the shape of its picture, or its whole place if it names none.
    bool isVisible = true;
    bool isResource = false;  ///< The picture is the theme's and no part of the skin.
    bool isWallpaper = false; ///< The picture is cut and scaled as a wallpaper is on the phone.
    int x = 0;
    int y = 0;
    int width = 0; ///< 0 is the picture's own.
    int height = 0;
    QRgb colorNormal = 0;    ///< Of the key; 0 is none.
    QRgb colorAlternate = 0; ///< Where the key takes no part in the theme; 0 is none.
    bool preferAlternate = false;
    std::string picture; ///< The path; empty for none.
    std::string key;     ///< The colour or picture that it follows; empty for none.

    [[nodiscard]] QRgb colour() const { return preferAlternate ? colorAlternate : colorNormal; }
    [[nodiscard]] QRect place() const {
        static constexpr int far = 1 << 20; // Beyond any screen, and no corner overflows.
        const auto held = [](int value) { return std::clamp(value, -far, far); };
        return {held(x), held(y), held(width), held(height)};
    }
};

/// A rectangle over a composed preview.
struct OverlayPart {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    QRgb colour = 0;
    std::string picture;
    bool cover = false;       ///< Drawn whatever lies below it.
    bool showOutline = false; ///< Outlined by a dashed line.
    std::string key;
};

/// What a composed preview is made of.
struct PreviewDescription {
    std::vector<PreviewPart> parts; ///< The lowest first.
    std::string background;         ///< The path of a picture below all parts; empty for none.
};

} // namespace zdt
