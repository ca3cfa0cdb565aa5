#include "assets/skin/statusOverlays.h"

#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/art/shownMoment.h"
#include "assets/art/statusBar.h"
#include "canvas/screens/screenIcons.h"

namespace zdt::assets {

namespace {

constexpr int width = 1080;
constexpr double centre = width / 2.0;
constexpr double margin = 72;

void drawStatusBar(PhoneInk& ink) {
    constexpr int battery = 84;
    const StatusBar bar = statusBarOutline(shownTime, battery);
    ink.fill(bar.emptyCell, StatusBar::emptyStrength);
    ink.fill(bar.ink);
}

/// By which the newer phones are left: at the screen's lower edge.
void drawHomeBar(PhoneInk& ink, int height) {
    constexpr double length = 390;
    constexpr double weight = 9;
    ink.fill(roundedPath({centre - length / 2, height - 24 - weight / 2, length, weight}, weight / 2), 0.9, 4);
}

void drawShortcut(PhoneInk& ink, char32_t sign, QPointF middle) {
    constexpr double disc = 128;
    ink.glass(squareAt(middle, disc), disc / 2, ink.colour(ink.tone() == Tone::tint ? 0.2 : 0.1));
    ink.sign(sign, middle, 60);
}

void drawSwipeHint(PhoneInk& ink, int height) {
    ink.sign(sign::expandLess, {centre, height - 204.0}, 84, 0.7);
    ink.sign(sign::expandLess, {centre, height - 236.0}, 84, 0.4);
    ink.text({{interFace, 400}, 38, Side::middle, 0.9}, {centre, height - 148.0}, "Swipe up to unlock");
}

/// A knob at the start of the track along which it is pulled.
void drawTrack(PhoneInk& ink, int height) {
    constexpr double length = 840;
    constexpr double weight = 132;
    constexpr double gap = 10;
    const double middle = height - 236.0;
    const QRectF track(centre - length / 2, middle - weight / 2, length, weight);
    const QRectF knob(track.left() + gap, track.top() + gap, weight - 2 * gap, weight - 2 * gap);
    // Dark words need bright glass: a bright picture may have dark slopes there.
    ink.glass(track, weight / 2, ink.tone() == Tone::tint ? ink.colour(0.2) : QColor(255, 255, 255, 115));
    const QPainterPath disc = discOutline(knob.center(), knob.width() / 2);
    const QPainterPath arrow = signOutline(sign::chevronRight, knob.adjusted(20, 20, -20, -20));
    ink.fill(disc.subtracted(arrow), 0.94);
    ink.text({{interFace, 400}, 40, Side::middle, 0.9}, {centre + weight / 4, middle}, "Slide to unlock");
}

void drawSlide(PhoneInk& ink, const StatusOverlay& overlay) {
    const int height = overlay.height;
    const bool isNew = overlay.era == Era::from9;
    ink.text({{interDisplayFace, isNew ? 200 : 300}, 264}, {centre, isNew ? 344.0 : 316.0}, shownTime);
    ink.text({{interFace, 400}, 46}, {centre, isNew ? 520.0 : 492.0}, shownDate);
    if (!isNew) {
        drawTrack(ink, height);
        return;
    }
    drawSwipeHint(ink, height);
    drawShortcut(ink, sign::call, {margin + 72, height - 176.0});
    drawShortcut(ink, sign::photoCamera, {width - margin - 72, height - 176.0});
}

/// The card at the screen's foot that tells of the picture, `area` its words.
void drawStory(PhoneInk& ink, const QRectF& area) {
    constexpr Lettering small{{interFace, 500}, 30, Side::left, 0.75};
    constexpr Lettering title{{interDisplayFace, 600}, 56, Side::left};
    constexpr Lettering line{{interFace, 400}, 36, Side::left, 0.85};
    ink.text(small, {area.left(), area.top() + 16}, "Picture of the day");
    ink.text(title, {area.left(), area.top() + 92}, "Look up for a moment");
    ink.text(line, {area.left(), area.top() + 172}, "Wherever the day leads, there is time to breathe.");
    ink.text(line, {area.left(), area.top() + 226}, "Tomorrow brings another picture.");
    double x = area.right() - 28;
    for (const char32_t each : {sign::moreHoriz, sign::share, sign::favoriteBorder}) {
        ink.sign(each, {x, area.top() + 16}, 56);
        x -= 108;
    }
}

/// Darker or brighter towards the foot, so that words can be read on any picture.
void drawVeil(QPainter& painter, Tone tone, int height) {
    constexpr double depth = 640;
    const QRectF area(0, height - depth, width, depth);
    QLinearGradient veil(area.topLeft(), area.bottomLeft());
    constexpr int steps = 8;
    for (int step = 0; step <= steps; ++step) {
        const double part = static_cast<double>(step) / steps;
        QColor colour(tone == Tone::tint ? Qt::black : Qt::white);
        colour.setAlphaF(static_cast<float>((tone == Tone::tint ? 0.5 : 0.7) * part * part * (3 - 2 * part)));
        veil.setColorAt(part, colour);
    }
    painter.fillRect(area, veil);
}

void drawMagazine(PhoneInk& ink, QPainter& painter, const StatusOverlay& overlay) {
    const int height = overlay.height;
    const bool isNew = overlay.era == Era::from9;
    ink.text({{interDisplayFace, isNew ? 200 : 300}, 176, Side::left}, {margin, 224}, shownTime);
    ink.text({{interFace, 400}, 40, Side::left}, {margin + 4, 344}, shownDate);
    drawVeil(painter, overlay.tone, height);
    drawStory(ink, {margin, height - (isNew ? 350.0 : 314.0), width - 2 * margin, 250});
}

} // namespace

QImage drawStatusOverlay(const StatusOverlay& overlay) {
    Canvas canvas(QSize(width, overlay.height));
    PhoneInk ink(canvas.painter(), overlay.tone);
    drawStatusBar(ink);
    switch (overlay.kind) {
    case OverlayKind::slide:
        drawSlide(ink, overlay);
        break;
    case OverlayKind::magazine:
        drawMagazine(ink, canvas.painter(), overlay);
        break;
    case OverlayKind::change:
        break;
    }
    if (overlay.era == Era::from9)
        drawHomeBar(ink, overlay.height);
    return canvas.finish();
}

} // namespace zdt::assets
