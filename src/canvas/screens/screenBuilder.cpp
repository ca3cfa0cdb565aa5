#include "canvas/screens/screenBuilder.h"

#include <utility>

namespace zdt {

namespace {

constexpr int statusMiddle = 60;
constexpr int barSignSide = 72;
constexpr int barSignPitch = 132;

std::string numbered(const char* name, int number) {
    return name + std::to_string(number);
}

} // namespace

Place textPlace(const Line& line, int size) {
    const int half = (size * 2 + 2) / 3;
    return {line.x - textInset, line.middle - half, line.width + 2 * textInset, 2 * half};
}

ScreenBuilder::ScreenBuilder(std::string_view module, std::string_view name, TypeMask absentFrom) {
    _screen.module = module;
    _screen.name = name;
    _screen.absentFrom = absentFrom;
}

ScreenLayer& ScreenBuilder::add(std::string name, LayerKind kind, const Place& place) {
    ScreenLayer& layer = _screen.layers.emplace_back();
    layer.name = std::move(name);
    layer.kind = kind;
    layer.place = place;
    layer.absentFrom = _absentFrom;
    return layer;
}

ScreenLayer& ScreenBuilder::addShape(std::string name, DrawingKind kind, const Place& place, const Ink& ink) {
    ScreenLayer& layer = add(std::move(name), LayerKind::shape, place);
    layer.key = ink.key;
    layer.fallback = ink.fallback;
    layer.drawing.kind = kind;
    layer.drawing.alpha = ink.alpha;
    return layer;
}

ScreenLayer& ScreenBuilder::addArt(std::string name, DrawingKind kind, const Place& place, int variant) {
    ScreenLayer& layer = add(std::move(name), LayerKind::art, place);
    layer.drawing.kind = kind;
    layer.drawing.variant = variant;
    return layer;
}

ScreenLayer& ScreenBuilder::fill(const Place& place, const Ink& ink) {
    ScreenLayer& layer = add({}, LayerKind::fill, place);
    layer.key = ink.key;
    layer.fallback = ink.fallback;
    return layer;
}

ScreenLayer& ScreenBuilder::panel(std::string name, const Place& place, int radius, const Ink& ink, unsigned corners) {
    ScreenLayer& layer = addShape(std::move(name), DrawingKind::panel, place, ink);
    layer.drawing.radius = radius;
    layer.drawing.corners = corners;
    return layer;
}

ScreenLayer& ScreenBuilder::ring(std::string name, const Place& place, int radius, int stroke, const Ink& ink) {
    ScreenLayer& layer = addShape(std::move(name), DrawingKind::ring, place, ink);
    layer.drawing.radius = radius;
    layer.drawing.stroke = stroke;
    return layer;
}

ScreenLayer& ScreenBuilder::text(std::string name, const Line& line, const Words& words, const TextStyle& style,
                                 const Ink& ink) {
    ScreenLayer& layer = addShape(std::move(name), DrawingKind::text, textPlace(line, style.size), ink);
    layer.drawing.english = words.english;
    layer.drawing.chinese = words.chinese;
    layer.drawing.size = style.size;
    layer.drawing.weight = style.weight;
    layer.drawing.align = style.align;
    return layer;
}

ScreenLayer& ScreenBuilder::icon(std::string name, Point centre, int side, char16_t sign, const Ink& ink) {
    ScreenLayer& layer = addShape(std::move(name), DrawingKind::icon, around(centre, side), ink);
    layer.drawing.icon = sign;
    layer.drawing.size = side;
    return layer;
}

ScreenLayer& ScreenBuilder::portrait(std::string name, Point centre, int side, int variant) {
    return addArt(std::move(name), DrawingKind::portrait, around(centre, side), variant);
}

ScreenLayer& ScreenBuilder::initial(std::string name, Point centre, int side, const Words& letter, int variant) {
    ScreenLayer& layer = portrait(std::move(name), centre, side, variant);
    layer.drawing.english = letter.english;
    layer.drawing.chinese = letter.chinese;
    return layer;
}

ScreenLayer& ScreenBuilder::photo(std::string name, const Place& place, int radius, int variant) {
    ScreenLayer& layer = addArt(std::move(name), DrawingKind::photo, place, variant);
    layer.drawing.radius = radius;
    return layer;
}

ScreenLayer& ScreenBuilder::appIcon(Point centre, int side, App app) {
    return picture(iconKeys[static_cast<std::size_t>(app)], around(centre, side));
}

ScreenLayer& ScreenBuilder::picture(std::string_view key, const Place& place) {
    ScreenLayer& layer = add({}, LayerKind::picture, place);
    layer.key = key;
    return layer;
}

ScreenLayer& ScreenBuilder::wallpaper(std::string_view file) {
    ScreenLayer& layer = add({}, LayerKind::wallpaper, {0, 0, phoneWidth, phoneHeight});
    layer.key = file;
    return layer;
}

void ScreenBuilder::statusBar(const Ink& ink) {
    icon("status_signal", {84, statusMiddle}, 45, sign::signalCellularAlt, ink);
    icon("status_wireless", {138, statusMiddle}, 45, sign::wifi, ink);
    text("status_charge", {760, statusMiddle, 96}, {"84%", "84%"}, {33, 500, TextAlign::right}, ink);
    icon("status_battery", {885, statusMiddle}, 45, sign::batteryFull, ink);
    text("status_time", {912, statusMiddle, 108}, {"08:08", "08:08"}, {36, 500, TextAlign::right}, ink);
}

void ScreenBuilder::barSigns(std::initializer_list<char16_t> signs, const Ink& ink) {
    int x = phoneWidth - screenMargin - barSignSide / 2 - (static_cast<int>(signs.size()) - 1) * barSignPitch;
    int number = 1;
    for (const char16_t each : signs) {
        icon(numbered("bar_sign", number++), {x, statusBarHeight + titleBarHeight / 2}, barSignSide, each, ink);
        x += barSignPitch;
    }
}

void ScreenBuilder::titleBar(const Words& words, const Ink& ink, std::initializer_list<char16_t> signs) {
    text("title", {screenMargin, statusBarHeight + titleBarHeight / 2, 660}, words, textStyle::title, ink);
    barSigns(signs, ink);
}

void ScreenBuilder::subTitleBar(const Words& words, const Ink& ink, std::initializer_list<char16_t> signs,
                                char16_t leave) {
    constexpr int middle = statusBarHeight + titleBarHeight / 2;
    icon("bar_leave", {screenMargin + barSignSide / 2, middle}, barSignSide, leave, ink);
    text("title", {screenMargin + 120, middle, 560}, words, textStyle::barTitle, ink);
    barSigns(signs, ink);
}

void ScreenBuilder::divider(int y, const Ink& ink, int left, int right) {
    fill({left, y, right - left, 3}, ink);
}

void ScreenBuilder::lines(const std::string& name, const Line& line, const Words& first, const Ink& firstInk,
                          const Words& second, const Ink& secondInk) {
    constexpr int up = 30;
    constexpr int down = 36;
    const bool both = !second.english.empty();
    text(name + "_title", {line.x, both ? line.middle - up : line.middle, line.width}, first, textStyle::listLine,
         firstInk);
    if (both)
        text(name + "_note", {line.x, line.middle + down, line.width}, second, textStyle::secondLine, secondInk);
}

void ScreenBuilder::searchBox(int top, const Words& hint, const Ink& box, const Ink& ink) {
    constexpr int height = 120;
    panel("search_box", {screenMargin - 12, top, phoneWidth - 2 * screenMargin + 24, height}, height / 2, box);
    searchHint(top, hint, ink);
}

void ScreenBuilder::searchHint(int top, const Words& hint, const Ink& ink) {
    constexpr int half = 60;
    icon("search_sign", {screenMargin + 60, top + half}, 57, sign::search, ink);
    text("search_hint", {screenMargin + 114, top + half, 760}, hint, {45}, ink);
}

void ScreenBuilder::bottomBar(std::initializer_list<Tab> tabs, std::size_t chosen, const Ink& background,
                              const Ink& chosenInk, const Ink& ink) {
    fill({0, bottomBarTop, phoneWidth, phoneHeight - bottomBarTop}, background);
    this->tabs(tabs, chosen, chosenInk, ink);
}

void ScreenBuilder::tabs(std::initializer_list<Tab> tabs, std::size_t chosen, const Ink& chosenInk, const Ink& ink) {
    const int width = phoneWidth / static_cast<int>(tabs.size());
    int number = 0;
    for (const Tab& tab : tabs) {
        const int left = number * width;
        const Ink& own = static_cast<std::size_t>(number++) == chosen ? chosenInk : ink;
        icon(numbered("tab_sign", number), {left + width / 2, bottomBarTop + 63}, 72, tab.sign, own);
        text(numbered("tab_label", number), {left + 12, bottomBarTop + 129, width - 24}, tab.label, textStyle::tab,
             own);
    }
}

void ScreenBuilder::homeLine(const Ink& ink) {
    panel("home_line", {372, phoneHeight - 39, 336, 12}, 6, ink);
}

void ScreenBuilder::switchControl(const std::string& name, Point centre, bool on, const Ink& track, const Ink& knob) {
    constexpr Place size{0, 0, 108, 60};
    constexpr int side = 48;
    const int left = centre.x - size.width / 2;
    panel(name + "_track", {left, centre.y - size.height / 2, size.width, size.height}, size.height / 2, track);
    const int knobLeft = on ? left + size.width - side - 6 : left + 6;
    panel(name + "_knob", {knobLeft, centre.y - side / 2, side, side}, side / 2, knob);
}

void ScreenBuilder::button(const std::string& name, const Place& place, const Words& words, const Ink& background,
                           const Ink& textInk) {
    panel(name + "_back", place, place.height / 2, background);
    text(name + "_label", {place.x + 24, place.y + place.height / 2, place.width - 48}, words, textStyle::button,
         textInk);
}

void ScreenBuilder::roundButton(const std::string& name, Point centre, int side, char16_t sign, const Ink& background,
                                const Ink& signInk) {
    panel(name + "_back", around(centre, side), side / 2, background);
    icon(name + "_sign", centre, side / 2, sign, signInk);
}

void ScreenBuilder::card(const std::string& name, const Place& place, int radius, const Ink& ink) {
    panel(name + "_top", {place.x, place.y, place.width, radius}, radius, ink, corner::top);
    if (place.height > 2 * radius)
        fill({place.x, place.y + radius, place.width, place.height - 2 * radius}, ink);
    panel(name + "_end", {place.x, place.y + place.height - radius, place.width, radius}, radius, ink, corner::bottom);
}

} // namespace zdt
