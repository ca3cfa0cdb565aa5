#include "assets/controls/dialKeys.h"

#include "assets/art/palette.h"
#include "assets/art/picture.h"
#include "assets/controls/forms.h"

#include <QPainterPath>

#include <array>

namespace zdt::assets {

namespace {

/// A third of the screen's width.
constexpr QSize keySize(360, 192);

/// How a language writes on keys. The star and the hash stand in faces and sizes of their own, so that they are as
/// heavy as the digits.
struct KeyStyle {
    Face digits;
    int digitPixels;
    Face star;
    int starPixels;
    Face hash;
    int hashPixels;
    QSizeF ground; ///< Behind a key that is pressed.
};

constexpr std::array<KeyStyle, 3> keyStyles{{
    {{interDisplayFace, 600}, 98, {interDisplayFace, 500}, 132, {interDisplayFace, 600}, 88, {172, 172}},
    {{serifFace, 400}, 100, {serifFace, 400}, 120, {serifFace, 400}, 90, {172, 172}},
    {{interDisplayFace, 300}, 104, {interDisplayFace, 200}, 140, {interDisplayFace, 300}, 92, {236, 172}},
}};

/// The character of a key; 0 for a name that is none.
char characterOf(std::string_view name) {
    constexpr std::string_view digitPrefix = "dial_num_";
    if (name.starts_with(digitPrefix) && name.size() > digitPrefix.size())
        return name[digitPrefix.size()];
    if (name.starts_with("xing"))
        return '*';
    return name.starts_with("jing") ? '#' : '\0';
}

QPainterPath outlineOf(char character, const KeyStyle& style) {
    const QString text(QLatin1Char{character});
    if (character == '*')
        return textOutline(style.star, style.starPixels, text);
    if (character == '#')
        return textOutline(style.hash, style.hashPixels, text);
    return textOutline(style.digits, style.digitPixels, text);
}

/// The middle of a character's ink. Digits stand on one line, whatever rounds reach beyond it.
QPointF middleOf(char character, const QPainterPath& path, const KeyStyle& style) {
    const QPointF own = path.boundingRect().center();
    const bool isDigit = character != '*' && character != '#';
    return {own.x(), isDigit ? outlineOf('1', style).boundingRect().center().y() : own.y()};
}

} // namespace

QImage drawDialKey(std::string_view name, const Generation& generation) {
    const char character = characterOf(name);
    if (character == '\0')
        return {};
    const KeyStyle& style = keyStyles[static_cast<std::size_t>(generation.language)];
    const bool pressed = name.find("press") != std::string_view::npos;
    Canvas canvas(keySize);
    const QPointF middle = canvas.area().center();
    if (pressed) {
        // Around the digit and the letters that the phone writes below it.
        constexpr double drop = 9;
        const QRectF ground(middle - QPointF(style.ground.width() / 2, style.ground.height() / 2 - drop), style.ground);
        canvas.painter().fillPath(tileForm(ground, generation.language), palette::colour(palette::inkPressed));
    }
    const QPainterPath path = outlineOf(character, style);
    canvas.painter().translate(middle - middleOf(character, path, style));
    canvas.painter().fillPath(path, palette::colour(pressed ? palette::accent : palette::ink));
    return canvas.finish();
}

} // namespace zdt::assets
