#pragma once

#include <QFont>
#include <QPainterPath>
#include <QString>

/// Letters and signs as outlines. They aren't hinted, so that they look alike wherever the program is built and in any
/// size. All of it needs a QGuiApplication and may be called on any thread.
namespace zdt::assets {

inline constexpr const char* interFace = "Inter";
inline constexpr const char* interDisplayFace = "Inter Display"; ///< Inter for large sizes.
inline constexpr const char* chineseFace = "Noto Sans CJK SC";
inline constexpr const char* serifFace = "Noto Serif CJK SC";
inline constexpr const char* signFace = "Material Icons";

struct Face {
    const char* family; ///< The letters that it lacks are taken from the Chinese face.
    int weight;         ///< 100 to 900, where the family has it.
};

/// The faces that are missing here, a line each; empty if there are all.
[[nodiscard]] QString missingFonts();

/// @param pixels of the em square
[[nodiscard]] QFont makeFont(const Face& face, int pixels);

/// A line of text whose baseline starts at 0, 0.
[[nodiscard]] QPainterPath textOutline(const Face& face, int pixels, const QString& text);

/// A character of the sign face in the middle of `box`, its em square as large as the box's shorter side.
[[nodiscard]] QPainterPath signOutline(char32_t sign, const QRectF& box);

} // namespace zdt::assets
