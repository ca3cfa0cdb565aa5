#pragma once

#include "lockscreen/amazingElements.h"
#include "lockscreen/conditions.h"
#include "lockscreen/layoutDefaults.h"
#include "lockscreen/layoutDocument.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zdt {

/// What the operations on a design give besides 0.
namespace designCode {
inline constexpr int missingElement = -1;    ///< The design has no such element.
inline constexpr int unknownId = -6;         ///< No element can have that index, number or name.
inline constexpr int notAllowed = -9;        ///< The value isn't allowed, or would make the element another kind.
inline constexpr int unknownCondition = -14; ///< No charge picture has that condition.
} // namespace designCode

/// What an element of the document's top level is.
enum class ElementKind {
    wallpaper,
    decoration,
    hour1,
    hour2,
    min1,
    min2,
    clock, ///< The clock's other picture, such as the colon between its digits.
    text,
    unlocker,
    music,
    button, ///< One of the two that show and hide the music control.
    plain,  ///< Anything else, kept as it was read.
};

enum class ClockDigit { hour1, hour2, min1, min2 };
enum class MusicButton { show, hide };

/// Where a kind of unlocker ends: in its start, or elsewhere.
enum class UnlockerKind { inPlace = 1, moving = 2 };

/// A rectangle in pixels of the 1080-wide design space, counted from the upper left corner of the screen.
struct DesignRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const DesignRect&, const DesignRect&) = default;
};

/// The place of an element: its index at the top, then that among its parent's children, and so on.
using ElementPath = std::vector<std::size_t>;

/// The elements of a lock screen layout and what each of them is. What an image is depends on those in front of it: a
/// picture among the digits is the clock's, one in front of them or behind them a decoration. Every operation leaves
/// the elements in an order in which a reader tells the same kinds again.
///
/// Operations give 0 or a code of `designCode`, and then nothing changed. No file is touched here.
class LockDesign {
public:
    LockDesign() = default;
    /// Brings positions into their canonical form and tells the kinds.
    /// @param elements as read; the document's order is the order in which they are painted
    /// @param height of the screen, 1920 or 2160
    LockDesign(LayoutElements elements, std::uint32_t height);
    /// The texts and clock of a new lock screen.
    [[nodiscard]] static LockDesign makeDefault(std::uint32_t height);

    [[nodiscard]] const LayoutElements& elements() const { return _elements; }
    [[nodiscard]] std::uint32_t height() const { return _height; }
    /// 1920 or 2160. Positions that hang on the lower edge keep hanging there.
    void setHeight(std::uint32_t height) { _height = height; }

    // What the design holds. Null where it has no such element; of several, the first is meant.

    [[nodiscard]] const AmazingChild* find(const ElementPath& path) const;
    [[nodiscard]] ElementKind kindOf(const AmazingChild& element) const;
    [[nodiscard]] const LockWallPaper* wallpaper() const { return _wallpaper; }
    /// Lets every wallpaper look which of its pictures are in a directory.
    void lookUpWallpaperFiles(const std::string& directory);
    [[nodiscard]] const TimeAboutImage* clockDigit(ClockDigit digit) const;
    [[nodiscard]] const TimeAboutImage* clockPicture() const { return _clockPicture; }
    [[nodiscard]] const AmazingChild* musicControl() const { return _musicControl; }
    [[nodiscard]] const AmazingChild* musicButton(MusicButton button) const;
    [[nodiscard]] const AmazingChild* text(const std::string& src) const;
    [[nodiscard]] const UnlockerData* unlocker(UnlockerKind kind) const;
    /// Of the several with one condition, the last. An index above 9 is a programming error.
    [[nodiscard]] const Decoration* chargePicture(std::size_t index) const;
    /// The places of all decorations in the list of elements.
    [[nodiscard]] std::vector<std::size_t> decorations() const;
    /// The parts of the unlockers of both kinds, those of the one in place first.
    [[nodiscard]] std::vector<const AmazingChild*> unlockerParts() const;

    /// -1 without an unlocker, 1 or 2 for one of that kind, 3 for both.
    [[nodiscard]] int unlockMode() const;
    /// 1, 2, 4 and 8 for the digits hour1, hour2, min1 and min2, 16 for the clock's other picture.
    [[nodiscard]] unsigned clockBits() const;

    // Any element.

    /// Where an element lies, with 0 for what it doesn't say; nothing if its place can't be told.
    [[nodiscard]] std::optional<DesignRect> rectOf(const ElementPath& path) const;
    /// Moves and resizes an element. What hung on the lower edge and what followed the hand still does. Sides lie
    /// within 100,000 pixels of the corner.
    [[nodiscard]] int setRect(const ElementPath& path, const DesignRect& rect);
    /// Sets attributes; an empty value removes one. Refused if the element would become another kind, and for a `src`
    /// of a picture that names no bare files.
    [[nodiscard]] int setAttributes(const ElementPath& path, const AmazingChild::Attributes& attributes);
    /// Gives an element other children, such as a decoration its animations with their frames, or an unlocker the path
    /// to its end. Refused for more levels than are read again, and as `setAttributes`.
    [[nodiscard]] int setChildren(const ElementPath& path, const std::vector<AmazingChild>& children);
    /// Paints an element in another place of the order. A decoration that lands among the clock's pictures goes below
    /// them where a reader would otherwise take it for one of them.
    [[nodiscard]] int moveElement(std::size_t from, std::size_t to);
    /// Removes any element but those of the clock and of music, which go as a whole.
    [[nodiscard]] int removeElement(std::size_t index);

    // Decorations.

    /// @param file a bare file name among the design's pictures
    /// @param attributes further ones, such as `name` and `visible`
    /// @param index receives its place
    [[nodiscard]] int addDecoration(const std::string& file, const DesignRect& rect,
                                    const AmazingChild::Attributes& attributes, std::size_t& index);
    [[nodiscard]] int setDecorationFile(std::size_t index, const std::string& file);
    [[nodiscard]] int removeDecoration(std::size_t index);

    // Wallpaper.

    /// Makes the wallpaper, at the back, or changes its pictures.
    [[nodiscard]] int setWallpaperSource(const std::string& src);

    // Clock.

    /// Makes the digits and the colon that are missing.
    void addClock();
    [[nodiscard]] int removeClock();
    [[nodiscard]] int removeClockPicture();

    // Charging.

    /// Makes the picture that shows at a level of the battery, or changes its file. The place of one that stands stays.
    /// @param index the place of its condition in `chargeConditions`
    [[nodiscard]] int setChargePicture(std::size_t index, const std::string& file, const DesignRect& rect);
    /// The same, by the condition.
    [[nodiscard]] int setChargePicture(const std::string& condition, const std::string& file, const DesignRect& rect);
    [[nodiscard]] int removeChargePicture(std::size_t index);

    // Music.

    /// Makes the music control and the two buttons that show and hide it, as far as they are missing.
    void addMusic();
    /// Removes all three.
    [[nodiscard]] int removeMusic();

    // Texts.

    /// Makes one of the texts of the phone's own layout. No change if it is there.
    [[nodiscard]] int addText(const std::string& src);
    [[nodiscard]] int removeText(const std::string& src);

    // Unlockers.

    /// Makes an unlocker. One that ends elsewhere moves up from the lower edge until its points are set.
    void addUnlocker(UnlockerKind kind);
    [[nodiscard]] int removeUnlocker(UnlockerKind kind);
    /// Sets where the hand takes hold, or where it lets go. One that ends in its start moves as a whole; one that ends
    /// elsewhere can't be brought to end in its start.
    [[nodiscard]] int setStartPoint(UnlockerKind kind, const DesignRect& rect);
    [[nodiscard]] int setEndPoint(UnlockerKind kind, const DesignRect& rect);
    /// Makes and removes unlockers until the mode is 1, 2 or 3.
    [[nodiscard]] int setUnlockMode(int mode);

    /// Makes the phone's icon for notices, if it is missing.
    void addSmartIcon();

private:
    [[nodiscard]] static AmazingChild* findIn(const LayoutElements& elements, const ElementPath& path);
    [[nodiscard]] std::size_t indexOf(const AmazingChild* element) const;
    [[nodiscard]] bool isDecoration(std::size_t index) const;
    /// Those of the two kinds, the ones in place first.
    [[nodiscard]] std::vector<UnlockerData*> unlockers() const;
    /// Puts an element in front of the one at `index`.
    void insert(std::size_t index, std::unique_ptr<AmazingChild> element);
    void append(AmazingChild element);
    void erase(std::size_t index);
    int erase(const AmazingChild* element);
    [[nodiscard]] std::size_t clockEnd() const;
    [[nodiscard]] std::string freeUnlockerName() const;
    [[nodiscard]] int setPoint(UnlockerKind kind, bool isStart, const DesignRect& rect);
    [[nodiscard]] int tryChange(const ElementPath& path, const AmazingChild::Attributes& attributes);
    /// Whether a top-level element, and every image, is still what it was.
    [[nodiscard]] bool isStill(std::size_t index, ElementKind kind, int unlockerKind) const;
    /// Restores the order in which a reader tells the same kinds, and finds the special elements again.
    void settle();
    /// Moves one element that a reader would take for another kind; false if there is none.
    bool settleOne();
    /// The first digit of the clock behind an element.
    [[nodiscard]] std::optional<std::size_t> nextDigit(std::size_t index) const;
    void findElements();

    LayoutElements _elements;
    std::uint32_t _height = 1920;

    // Elements of the list.
    LockWallPaper* _wallpaper = nullptr;
    std::array<TimeAboutImage*, 4> _digits{};
    TimeAboutImage* _clockPicture = nullptr;
    std::array<Decoration*, chargeConditions.size()> _charge{};
    AmazingChild* _musicControl = nullptr;
    std::array<AmazingChild*, 2> _musicButtons{};
};

} // namespace zdt
