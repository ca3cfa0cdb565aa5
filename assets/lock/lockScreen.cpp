#include "assets/lock/lockScreen.h"

#include "assets/lock/lockPictures.h"
#include "lockscreen/amazingElements.h"
#include "lockscreen/geometry.h"
#include "lockscreen/layoutDefaults.h"
#include "lockscreen/layoutDocument.h"

#include <array>
#include <string_view>

namespace zdt::assets {

namespace {

using Attributes = AmazingChild::Attributes;

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

void addText(LayoutElements& elements, const layoutDefaults::Text& row) {
    elements.push_back(std::make_unique<AmazingChild>(layoutDefaults::makeText(row)));
}

struct Place {
    std::string x;
    std::string y;
    int width;
    int height;
};

void setPlace(AmazingChild& element, const Place& place) {
    const std::string width = std::to_string(place.width);
    const std::string height = std::to_string(place.height);
    layoutDefaults::setPlace(element, {place.x, place.y, width, height});
}

/// What the hand moves from one place to another to unlock the phone.
void addUnlocker(LayoutElements& elements, const char* name, const Place& start, const Place& end) {
    auto unlocker = std::make_unique<UnlockerData>(layoutDefaults::makeUnlocker(name));
    setPlace(*unlocker->startPoints().front(), start);
    setPlace(*unlocker->endPoints().front(), end);
    elements.push_back(std::move(unlocker));
}

/// Clock and messages at the left, unlocked by a move upwards. The arrow follows the hand; it stands below the middle
/// band, which belongs to the phone's finger sensor.
LayoutElements designedLock() {
    LayoutElements elements;
    addImage(elements, "490", fromBottom(570) + "+system.unlock_up_moveY", lockArrow, "unlock_arrow.png");
    addClock(elements, 10, 208, lockDigit, lockColon, "");
    for (const layoutDefaults::Text& row : layoutDefaults::texts)
        addText(elements, row);
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
    addText(elements, layoutDefaults::texts.back());
    addUnlocker(elements, "slide_right", {std::to_string(left), y, slideKnob.width, slideKnob.height},
                {std::to_string(end), y, slideKnob.width, slideKnob.height});
    return elements;
}

bool writeDesign(const std::string& path, const LayoutElements& elements, const Generation& generation) {
    if (generation.bit() != typeMask::generation5)
        return writeLayout(path + ".xml", elements);
    if (!writeLayout(path + "_full.xml", elements))
        return false;
    const FixedHeightForm fixed(elements, screenHeight);
    return writeLayout(path + ".xml", elements);
}

} // namespace

bool writeLockScreens(const std::string& directory, const Generation& generation) {
    return writeDesign(directory + "unlock_amazing/layout-hdpi/layout1", designedLock(), generation) &&
           writeDesign(directory + "unlock_slide/layout-hdpi/layout_slide", slideLock(), generation);
}

} // namespace zdt::assets
