#include "assets/lock/lockScreen.h"

#include "assets/lock/lockDigits.h"
#include "assets/lock/lockLook.h"
#include "lockscreen/amazingElements.h"
#include "lockscreen/conditions.h"
#include "lockscreen/geometry.h"
#include "lockscreen/layoutDefaults.h"
#include "lockscreen/layoutDocument.h"

#include <QString>

#include <algorithm>
#include <memory>
#include <string_view>

namespace zdt::assets {

namespace {

constexpr int width = static_cast<int>(screenWidth);
/// What stands at the left begins here.
constexpr int margin = 60;
/// A digit's ink begins a little behind its cell's edge.
constexpr int digitInset = 13;

// From the top of the screen. All that stands in the upper half ends above the phone's finger sensor on a screen 1920
// high.
constexpr int clockTop = 100;
constexpr int dateTop = clockTop + lockDigit.height;
constexpr int noticesTop = dateTop + 94;
constexpr int musicTop = noticesTop + 2 * noticeCard.height + 6;

// From its lower edge.
constexpr int ringTop = 580;
constexpr int chargeTextTop = ringTop - chargeRing.height - 2;
constexpr int arrowTop = chargeTextTop - footText.height;
constexpr int ownerTop = arrowTop - lockArrow.height - 2;
constexpr int trackTop = 460;
constexpr int slideChargeTop = trackTop + footText.height + 10;

constexpr int textHeight = 70;
constexpr int textSize = 14;
constexpr int dateSize = 16;
/// Half the height of capitals in a text of that size.
constexpr int halfCapital = 17;

struct Place {
    std::string x;
    std::string y;
    Cell size;
};

int centred(int part) {
    return (width - part) / 2;
}

/// A place counted upwards from the screen's lower edge.
std::string fromBottom(int pixels) {
    return std::string(screenHeightVariable) + "-" + std::to_string(pixels);
}

Place at(int x, int y, const Cell& size) {
    return {std::to_string(x), std::to_string(y), size};
}

Place atFoot(int x, int pixels, const Cell& size) {
    return {std::to_string(x), fromBottom(pixels), size};
}

AmazingChild placed(AmazingChild element, const Place& place) {
    return layoutDefaults::placed(
        std::move(element), {place.x, place.y, std::to_string(place.size.width), std::to_string(place.size.height)});
}

/// Puts the elements of one lock screen together.
class LockLayout {
public:
    LockLayout(const Generation& generation, std::string prefix, bool isCentred)
        : _generation(generation)
        , _look(lookOf(generation.language))
        , _prefix(std::move(prefix))
        , _isCentred(isCentred) {}

    [[nodiscard]] LayoutElements take() { return std::move(_elements); }

    /// @param name of the file, without the prefix
    void addImage(const std::string& name, const Place& place, std::string_view visible = {}) {
        AmazingChild image("image", {{"src", _prefix + name}});
        if (!visible.empty())
            image.setAttribute("visible", std::string(visible));
        add(placed(std::move(image), place));
    }

    /// Digits and colon from the left on, in the order in which a reader tells them from decorations, and am or pm.
    void addClock() {
        constexpr int clockWidth = 4 * lockDigit.width + lockColon.width;
        int x = _isCentred ? centred(clockWidth) : margin - digitInset;
        for (const layoutDefaults::Picture& row : layoutDefaults::clock) {
            const Cell& cell = row.src == "colon.png" ? lockColon : lockDigit;
            std::string src(row.src);
            src.insert(src.starts_with('\'') ? 1 : 0, _prefix);
            add(placed(AmazingChild("image", {{"src", src}}), at(x, clockTop, cell)));
            x += cell.width;
        }
        const double baseline = clockTop + digitLines(lockDigit.height, _generation).baseline;
        const int amPmTop = static_cast<int>(baseline) - textHeight / 2 - halfCapital;
        addText(layoutDefaults::amPmSource, at(x + 4, amPmTop, {140, textHeight}), "left", dateSize,
                _generation.lockInk);
    }

    void addDate() {
        addText(layoutDefaults::dateSource,
                at(_isCentred ? 0 : margin, dateTop, {_isCentred ? width : width - margin, textHeight}), textAlign(),
                dateSize, _generation.lockInk);
    }

    /// The cards of messages and of missed calls with their texts.
    void addNotices() {
        constexpr int textLeft = shadowRoom + 100;
        const int x = cardLeft(noticeCard);
        int y = noticesTop;
        for (const char* what : {"message", "call"}) {
            const std::string src = std::string("system.") + what + ".text";
            addImage(std::string("card_") + what + ".png", at(x, y, noticeCard), textRow(src).visible);
            addText(src, at(x + textLeft, y, {noticeCard.width - textLeft - shadowRoom, noticeCard.height}), "left",
                    textSize, _look.cardInk);
            y += noticeCard.height;
        }
    }

    void addChargePictures() {
        for (std::size_t index = 0; index < chargeConditions.size(); ++index)
            addImage("charge_" + std::to_string(index) + ".png", atFoot(centred(chargeRing.width), ringTop, chargeRing),
                     chargeConditions[index]);
    }

    void addFootText(std::string_view src, int top) {
        addText(src, atFoot(0, top, footText), "center", textSize, _look.footInk);
    }

    /// A double tap on the clock shows the music, one on its panel hides it.
    void addMusic() {
        constexpr int step = 200;
        const int x = cardLeft(musicPanel);
        const Place panel = at(x, musicTop, musicPanel);
        add(placed(layoutDefaults::makeMusicButton(true),
                   at(margin, clockTop, {width - 2 * margin, lockDigit.height})));
        add(placed(layoutDefaults::makeMusicButton(false), panel));
        AmazingChild control = layoutDefaults::makeMusicControl();
        place(*control.children().front(), panel);
        for (int index = 0; index < 3; ++index) {
            const Cell& cell = index == 1 ? musicPlay : musicSkip;
            place(*control.children()[static_cast<std::size_t>(index) + 1],
                  at(x + (musicPanel.width - cell.width) / 2 + (index - 1) * step,
                     musicTop + (musicPanel.height - cell.height) / 2, cell));
        }
        add(std::move(control));
    }

    /// What the hand moves from one place to another to unlock the phone.
    void addUnlocker(const std::string& name, const Place& start, const Place& end) {
        auto unlocker = std::make_unique<UnlockerData>(layoutDefaults::makeUnlocker(name));
        place(*unlocker->startPoints().front(), start);
        place(*unlocker->endPoints().front(), end);
        _elements.push_back(std::move(unlocker));
    }

private:
    void add(AmazingChild element) { _elements.push_back(std::make_unique<AmazingChild>(std::move(element))); }

    static void place(AmazingChild& element, const Place& place) {
        layoutDefaults::setPlace(
            element, {place.x, place.y, std::to_string(place.size.width), std::to_string(place.size.height)});
    }

    /// A text of the phone's own layout, which tells when it shows.
    static const layoutDefaults::Text& textRow(std::string_view src) {
        return *std::ranges::find(layoutDefaults::texts, src, &layoutDefaults::Text::src);
    }

    /// The same in another place and colour.
    void addText(std::string_view src, const Place& place, const char* align, int size, QRgb colour) {
        AmazingChild text = placed(layoutDefaults::makeText(textRow(src)), place);
        text.setAttribute("align", align);
        text.setAttribute("size", std::to_string(size));
        text.setAttribute("color", QString::asprintf("#%08x", colour).toStdString());
        add(std::move(text));
    }

    /// The surface of a card at the left begins where texts do.
    [[nodiscard]] int cardLeft(const Cell& card) const {
        return _isCentred ? centred(card.width) : margin - shadowRoom;
    }
    [[nodiscard]] const char* textAlign() const { return _isCentred ? "center" : "left"; }

    const Generation& _generation;
    const LockLook& _look;
    std::string _prefix;
    bool _isCentred;
    LayoutElements _elements;
};

/// The arrow follows the hand; it stands below the band that belongs to the phone's finger sensor.
LayoutElements designedLock(const Generation& generation) {
    constexpr int reach = 600;
    LockLayout layout(generation, "", lookOf(generation.language).isCentred);
    Place arrow = atFoot(centred(lockArrow.width), arrowTop, lockArrow);
    arrow.y += "+system.unlock_up_moveY";
    layout.addImage("unlock_arrow.png", arrow);
    layout.addChargePictures();
    layout.addClock();
    layout.addDate();
    layout.addNotices();
    layout.addFootText("system.charge.text", chargeTextTop);
    layout.addFootText("system.ownerinfo.text", ownerTop);
    layout.addMusic();
    layout.addUnlocker("unlock_up", atFoot(0, reach, {width, reach}), atFoot(0, 2 * reach, {width, reach}));
    return layout.take();
}

/// A clock in the middle, and a knob that slides along a track.
LayoutElements slideLock(const Generation& generation) {
    constexpr int left = (width - slideTrack.width) / 2;
    constexpr int end = left + slideTrack.width - slideKnob.width;
    LockLayout layout(generation, "slide_", true);
    layout.addImage("track.png", atFoot(left, trackTop, slideTrack));
    Place knob = atFoot(left, trackTop, slideKnob);
    layout.addUnlocker("slide_right", knob, atFoot(end, trackTop, slideKnob));
    knob.x += "+system.slide_right_moveX";
    layout.addImage("knob.png", knob);
    layout.addClock();
    layout.addDate();
    layout.addNotices();
    layout.addFootText("system.charge.text", slideChargeTop);
    layout.addFootText("system.ownerinfo.text", ownerTop);
    return layout.take();
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
    return writeDesign(directory + "unlock_amazing/layout-hdpi/layout1", designedLock(generation), generation) &&
           writeDesign(directory + "unlock_slide/layout-hdpi/layout_slide", slideLock(generation), generation);
}

} // namespace zdt::assets
