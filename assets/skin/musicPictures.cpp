#include "assets/skin/musicPictures.h"

#include "assets/art/palette.h"
#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/skin/phoneInk.h"

namespace zdt::assets {

namespace {

constexpr double glass = 0.2;

void drawSolid(QPainter& painter, PhoneInk& ink, QPointF middle, char32_t sign) {
    constexpr double discSide = 106; ///< Leaves room for the shadow.
    constexpr double signSide = 76;
    ink.fill(discOutline(middle, discSide / 2), 0.94);
    painter.fillPath(signOutline(sign, squareAt(middle, signSide)), palette::colour(palette::ink));
}

} // namespace

QImage drawMusicPicture(const MusicPicture& picture) {
    constexpr double signSide = 76;
    constexpr double pressedSide = 100;
    constexpr double groundRadius = 24;
    Canvas canvas(QSize(picture.side, picture.side));
    PhoneInk ink(canvas.painter(), Tone::tint);
    const QPointF middle = canvas.area().center();
    switch (picture.face) {
    case MusicFace::ground:
        ink.glass(canvas.area(), groundRadius, ink.colour(glass));
        break;
    case MusicFace::bare:
        ink.sign(picture.sign, middle, signSide);
        break;
    case MusicFace::pressed:
        ink.glass(squareAt(middle, pressedSide), pressedSide / 2, ink.colour(glass));
        ink.sign(picture.sign, middle, signSide);
        break;
    case MusicFace::solid:
        drawSolid(canvas.painter(), ink, middle, picture.sign);
        break;
    }
    return canvas.finish();
}

} // namespace zdt::assets
