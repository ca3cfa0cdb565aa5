#include "assets/lockScreen.h"

#include "assets/lockPictures.h"
#include "lockscreen/layoutDocument.h"

#include <array>
#include <charconv>
#include <string_view>

namespace zdt::assets {

namespace {

using Attributes = AmazingChild::Attributes;

constexpr std::string_view screenHeightVariable = "system.screen_height";

/// A place counted upwards from the screen's lower edge.
std::string fromBottom(int pixels) {
    return std::string(screenHeightVariable) + "-" + std::to_string(pixels);
}

void add(LayoutElements& elements, const char* name, Attributes attributes) {
    elements.push_back(std::make_unique<AmazingChild>(name, std::move(attributes)));
}

void addImage(LayoutElements& elements, const std::string& x, const std::string& y, const Cell& cell,
              const std::string& src) {
    add(elements, "image",
        {{"x", x}, {"y", y}, {"w", std::to_string(cell.width)}, {"h", std::to_string(cell.height)}, {"src", src}});
}

/// The digits and the colon from the left on, in the order in which a reader tells them from decorations.
void addClock(LayoutElements& elements, int x, int y, const Cell& digit, const Cell& colon, const std::string& prefix) {
    const auto addNext = [&](const Cell& cell, const std::string& src) {
        addImage(elements, std::to_string(x), std::to_string(y), cell, src);
        x += cell.width;
    };
    const auto source = [&](const char* variable) {
        return "'" + prefix + "number_'+system.time." + variable + "+'.png'";
    };
    addNext(digit, source("hour1"));
    addNext(digit, source("hour2"));
    addNext(colon, prefix + "colon.png");
    addNext(digit, source("min1"));
    addNext(digit, source("min2"));
}

struct TextRow {
    std::string_view src;
    std::string_view x;
    std::string y;
    std::string_view w;
    std::string_view h;
    std::string_view align;
    std::string_view size;
    std::string_view colour;
    std::string_view visible = {};
    std::string_view ellipsize = {};
};

void addText(LayoutElements& elements, const TextRow& row) {
    // An attribute without a value isn't written.
    add(elements, "text",
        {{"src", std::string(row.src)},
         {"x", std::string(row.x)},
         {"y", row.y},
         {"w", std::string(row.w)},
         {"h", std::string(row.h)},
         {"align", std::string(row.align)},
         {"size", std::string(row.size)},
         {"color", std::string(row.colour)},
         {"visible", std::string(row.visible)},
         {"ellipsize", std::string(row.ellipsize)}});
}

TextRow ownerRow() {
    return {"system.ownerinfo.text",
            "0",
            fromBottom(170),
            "1080",
            "70",
            "center",
            "14",
            "#3e3e3e",
            "!system.charge.show and system.ownerinfo.show",
            "marquee"};
}

void addDefaultTexts(LayoutElements& elements) {
    const std::array<TextRow, 6> rows{{
        {"system.date", "45", "400", "1080", "80", "left", "14", "#FF3e3e3e"},
        {"system.time.ampm", "450", "210", "200", "100", "left", "20", "#FF3e3e3e", "system.time.showampm"},
        {"system.message.text", "45", fromBottom(1300), "1080", "80", "left", "14", "#3e3e3e",
         "system.message.count gt 0"},
        {"system.call.text", "45", fromBottom(1240), "1080", "80", "left", "14", "#3e3e3e", "system.call.count gt 0"},
        {"system.charge.text", "45", fromBottom(1445), "1080", "70", "left", "14", "#3e3e3e",
         "system.charge.show and system.music_visible eq 0"},
        ownerRow(),
    }};
    for (const TextRow& row : rows)
        addText(elements, row);
}

struct Place {
    std::string x;
    std::string y;
    int width;
    int height;
};

std::unique_ptr<AmazingChild> makePoint(const char* name, const Place& place) {
    return std::make_unique<AmazingChild>(name, Attributes{{"x", place.x},
                                                           {"y", place.y},
                                                           {"w", std::to_string(place.width)},
                                                           {"h", std::to_string(place.height)}});
}

/// What the hand moves from one place to another to unlock the phone.
void addUnlocker(LayoutElements& elements, const char* name, const Place& start, const Place& end) {
    auto unlocker = std::make_unique<AmazingChild>("unlocker", Attributes{{"name", name}, {"visible", "true"}});
    unlocker->addChild(makePoint("StartPoint", start));
    AmazingChild& endPoint = unlocker->addChild(makePoint("EndPoint", end));
    endPoint.addChild(std::make_unique<AmazingChild>("Path", Attributes{{"x", "0"}, {"y", "0"}}));
    endPoint.addChild(std::make_unique<AmazingChild>("Intent", Attributes{{"type", "unlock"}}));
    elements.push_back(std::move(unlocker));
}

/// Clock and messages at the left, unlocked by a move upwards. The arrow follows the hand; it stands below the middle
/// band, which belongs to the phone's finger sensor.
LayoutElements designedLock() {
    LayoutElements elements;
    addImage(elements, "490", fromBottom(570) + "+system.unlock_up_moveY", lockArrow, "unlock_arrow.png");
    addClock(elements, 10, 208, lockDigit, lockColon, "");
    addDefaultTexts(elements);
    addUnlocker(elements, "unlock_up", {"0", fromBottom(600), screenWidth, 600},
                {"0", fromBottom(1200), screenWidth, 600});
    return elements;
}

/// A large clock in the middle, and a knob that slides along a track.
LayoutElements slideLock() {
    constexpr int left = (static_cast<int>(screenWidth) - slideTrack.width) / 2;
    constexpr int end = left + slideTrack.width - slideKnob.width;
    constexpr int clockLeft = (static_cast<int>(screenWidth) - 4 * slideDigit.width - slideColon.width) / 2;
    const std::string y = fromBottom(400);
    LayoutElements elements;
    addImage(elements, std::to_string(left), y, slideTrack, "slide_track.png");
    addImage(elements, std::to_string(left) + "+system.slide_right_moveX", y, slideKnob, "slide_knob.png");
    addClock(elements, clockLeft, 240, slideDigit, slideColon, "slide_");
    addText(elements, {"system.date", "0", "540", "1080", "80", "center", "14", "#FF3e3e3e"});
    addText(elements, ownerRow());
    addUnlocker(elements, "slide_right", {std::to_string(left), y, slideKnob.width, slideKnob.height},
                {std::to_string(end), y, slideKnob.width, slideKnob.height});
    return elements;
}

/// A place that hangs on the lower edge as a number, with what follows it, such as a move of the hand, behind it.
std::string fixedPlace(const std::string& place, int height) {
    if (!place.starts_with(screenHeightVariable))
        return place;
    const std::string rest = place.substr(screenHeightVariable.size());
    int offset = 0;
    const char* end = std::from_chars(rest.data(), rest.data() + rest.size(), offset).ptr;
    return std::to_string(height + offset) + rest.substr(static_cast<std::size_t>(end - rest.data()));
}

void fixPlaces(AmazingChild& element, int height) {
    if (const std::string y = element.attribute("y"); !y.empty())
        element.setAttribute("y", fixedPlace(y, height));
    for (const auto& child : element.children())
        fixPlaces(*child, height);
}

bool writeDesign(const std::string& path, const LayoutElements& elements, const Generation& generation) {
    if (generation.bit() != typeMask::generation5)
        return writeLayout(path + ".xml", elements);
    if (!writeLayout(path + "_full.xml", elements))
        return false;
    for (const auto& element : elements)
        fixPlaces(*element, generation.screenHeight);
    return writeLayout(path + ".xml", elements);
}

} // namespace

bool writeLockScreens(const std::string& directory, const Generation& generation) {
    return writeDesign(directory + "unlock_amazing/layout-hdpi/layout1", designedLock(), generation) &&
           writeDesign(directory + "unlock_slide/layout-hdpi/layout_slide", slideLock(), generation);
}

} // namespace zdt::assets
