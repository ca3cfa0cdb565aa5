#pragma once

#include <QRectF>
#include <QRgb>

class QPainter;

namespace zdt::assets {

/// The small signs on icons and controls, in the order of their table.
enum class Glyph {
    none,
    // On application icons.
    neutral,
    phone,
    person,
    people,
    message,
    envelope,
    globe,
    camera,
    photo,
    film,
    note,
    calendar,
    clock,
    calculator,
    gear,
    compass,
    notepad,
    weather,
    search,
    download,
    folder,
    microphone,
    radio,
    keyboard,
    torch,
    simCard,
    broadcast,
    cloud,
    cloudUp,
    copies,
    place,
    gamepad,
    heart,
    mirror,
    shield,
    headset,
    battery,
    remote,
    bell,
    recording,
    paints,
    bulb,
    languages,
    wallet,
    forum,
    house,
    star,
    book,
    bag,
    updates,
    // On controls.
    check,
    cross,
    plus,
    chevronRight,
    chevronLeft,
    chevronUp,
    chevronDown,
    arrowsAcross,
    arrowsDown,
    share,
    trash,
    grid,
    locked,
    unlocked,
    split,
    bolt,
    highDefinition,
    erase,
    wireless,
    bluetooth,
    plane,
    sun,
    moon,
    speaker,
    // The ways in which the home screen's pages change.
    pagesBox,
    pagesPlain,
    pagesFlip,
    pagesCurl,
    pagesPerspective,
    pagesRotate,
    pagesSqueeze,
    pagesWindmill,
    count,
};

/// Draws a glyph in the middle of `box`, as large as its shorter side. `weight` scales the lines' width, which is 1/13
/// of that side.
void drawGlyph(QPainter& painter, Glyph glyph, const QRectF& box, QRgb colour, double weight = 1);

} // namespace zdt::assets
