#include "assets/lock/lockControls.h"

#include "assets/art/palette.h"
#include "assets/art/picture.h"
#include "assets/lock/lockParts.h"
#include "canvas/screens/screenIcons.h"

namespace zdt::assets {

namespace {

bool isPaper(const Generation& generation) {
    return generation.language == Language::paper;
}

double cardRadius(const QRectF& face, const Generation& generation) {
    return face.height() / 2 * generation.controlRadius;
}

QRectF faceOf(const QRectF& area) {
    return area.adjusted(shadowRoom, shadowRoom, -shadowRoom, -shadowRoom);
}

void drawSign(QPainter& painter, char32_t sign, QPointF middle, double side, QRgb colour) {
    painter.fillPath(signOutline(sign, squareAt(middle, side)), palette::colour(colour));
}

/// A sign on a tile of its colour, or bare where the language has no tiles.
void drawNoticeSign(QPainter& painter, char32_t sign, QPointF middle, double side, QRgb colour,
                    const Generation& generation) {
    if (!isPaper(generation)) {
        drawSign(painter, sign, middle, side * 0.8, colour);
        return;
    }
    const QPainterPath tile = roundedPath(squareAt(middle, side), side * 0.18);
    const QPainterPath outline = signOutline(sign, squareAt(middle, side * 0.62));
    painter.fillPath(tile, palette::colour(colour));
    paintLongShadow(painter, std::span(&outline, 1), tile, QColor(palette::colour(colour)).darker(118).rgba());
    painter.fillPath(outline, Qt::white);
}

/// What flows through the music panel: a veil of light, dunes or paper hills.
void drawWaves(QPainter& painter, const QRectF& face, const Generation& generation) {
    struct Wave {
        double start;
        double crest;
        double end;
        QRgb colour;
    };
    constexpr std::array<std::array<Wave, 2>, 3> waves{{
        {{{0.7, 0.35, 0.85, 0xffd9efe4}, {0.95, 0.55, 0.6, 0xffbfe3d6}}},
        {{{0.75, 0.35, 0.9, 0x80f3cfa6}, {0.95, 0.6, 0.62, 0x80e8b286}}},
        {{{0.8, 0.2, 0.9, 0x3058efc0}, {1, 0.45, 0.5, 0x30806cff}}},
    }};
    painter.save();
    painter.setClipPath(roundedPath(face, cardRadius(face, generation)));
    for (const Wave& wave : waves[static_cast<std::size_t>(generation.language)]) {
        const auto at = [&](double x, double y) {
            return QPointF(face.left() + face.width() * x, face.top() + face.height() * y);
        };
        QPainterPath path(at(0, wave.start));
        path.cubicTo(at(0.25, wave.start - 0.2), at(0.3, wave.crest), at(0.5, wave.crest + 0.1));
        path.cubicTo(at(0.7, wave.crest + 0.2), at(0.8, wave.end - 0.3), at(1, wave.end));
        path.lineTo(face.bottomRight());
        path.lineTo(face.bottomLeft());
        painter.fillPath(path, palette::colour(wave.colour));
    }
    painter.restore();
}

} // namespace

QImage drawNoticeCard(Notice notice, const Generation& generation) {
    Canvas canvas(sizeOf(noticeCard));
    const LockLook& look = lookOf(generation.language);
    const QRectF face = faceOf(canvas.area());
    const bool isMessage = notice == Notice::message;
    drawCard(canvas.painter(), canvas.area(), cardRadius(face, generation), generation);
    drawNoticeSign(canvas.painter(), isMessage ? sign::sms : sign::callMissed,
                   face.topLeft() + QPointF(56, face.height() / 2), 60, isMessage ? look.message : look.missedCall,
                   generation);
    return canvas.finish();
}

QImage drawMusicPanel(const Generation& generation) {
    Canvas canvas(sizeOf(musicPanel));
    const QRectF face = faceOf(canvas.area());
    drawCard(canvas.painter(), canvas.area(), cardRadius(face, generation), generation);
    drawWaves(canvas.painter(), face, generation);
    return canvas.finish();
}

QImage drawMusicSkip(char32_t sign, bool isPressed, const Generation& generation) {
    Canvas canvas(sizeOf(musicSkip));
    const LockLook& look = lookOf(generation.language);
    const QPointF middle = canvas.area().center();
    if (isPressed)
        canvas.painter().fillPath(discOutline(middle, 50), palette::colour((look.cardInk & 0xffffff) | 0x26000000));
    drawSign(canvas.painter(), sign, middle, 80, look.cardInk);
    return canvas.finish();
}

QImage drawMusicPlay(char32_t sign, const Generation& generation) {
    Canvas canvas(sizeOf(musicPlay));
    drawAccent(canvas.painter(), squareAt(canvas.area().center(), 112), sign, 72, generation);
    return canvas.finish();
}

QImage drawLockArrow(const Generation& generation) {
    struct Hint {
        double lineWidth;
        double halfWidth;
        double height;
        QRgb shadow;
        std::vector<double> tops; ///< From the faintest angle to the strongest.
    };
    const std::array<Hint, 3> hints{{
        {9, 29, 23, 0x7012403f, {18, 46}},
        {6, 28, 18, 0x905a2412, {20, 45}},
        {5, 27, 16, 0x60061426, {12, 34, 56}},
    }};
    Canvas canvas(sizeOf(lockArrow));
    const Hint& hint = hints[static_cast<std::size_t>(generation.language)];
    float alpha = 0;
    for (const double top : hint.tops) {
        alpha += 1 / static_cast<float>(hint.tops.size());
        const QPainterPath angle = chevronUp({canvas.area().center().x(), top}, hint.halfWidth, hint.height);
        QColor colour = palette::colour(lookOf(generation.language).footInk);
        colour.setAlphaF(alpha);
        if (isPaper(generation))
            canvas.painter().strokePath(angle.translated(3, 5), roundPen(palette::colour(hint.shadow), hint.lineWidth));
        else
            paintGlow(canvas.painter(), thickLine(angle, hint.lineWidth), hint.shadow, 10);
        canvas.painter().strokePath(angle, roundPen(colour, hint.lineWidth));
    }
    return canvas.finish();
}

QImage drawSlideTrack(const Generation& generation) {
    Canvas canvas(sizeOf(slideTrack));
    const QRectF face = faceOf(canvas.area());
    drawCard(canvas.painter(), canvas.area(), cardRadius(face, generation), generation);
    for (int mark = 0; mark < 3; ++mark) {
        QColor colour = palette::colour(lookOf(generation.language).cardInk);
        colour.setAlphaF(0.3F + 0.2F * static_cast<float>(mark));
        canvas.painter().fillPath(
            signOutline(sign::chevronRight, squareAt(face.center() + QPointF((mark - 1) * 56 + 40, 0), 72)), colour);
    }
    return canvas.finish();
}

QImage drawSlideKnob(const Generation& generation) {
    Canvas canvas(sizeOf(slideKnob));
    const QRectF face = faceOf(canvas.area()).adjusted(10, 10, -10, -10);
    drawAccent(canvas.painter(), face, sign::chevronRight, 88, generation);
    return canvas.finish();
}

} // namespace zdt::assets
