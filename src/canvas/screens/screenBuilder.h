#pragma once

#include "canvas/screens/screenApps.h"
#include "canvas/screens/screenIcons.h"
#include "canvas/screens/screenLayer.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

/// What the screens are written with: each call adds layers above those before. Screens are laid out as on a real phone
/// at three pixels to one: margins of 48 to 72, titles of 66 to 72, list lines of 48 to 54, second lines of 40 to 42,
/// captions of 33 to 36.
namespace zdt {

/// The colours of a phone as it is delivered, 0xaarrggbb, for layers without a key or whose key takes no part.
namespace screenColour {
inline constexpr std::uint32_t paper = 0xffffffff;
inline constexpr std::uint32_t field = 0xfff0f0f0;
inline constexpr std::uint32_t box = 0xffe4e4e4;
inline constexpr std::uint32_t line = 0x33242424;
inline constexpr std::uint32_t ink = 0xff242424;
inline constexpr std::uint32_t inkSoft = 0x99242424;
inline constexpr std::uint32_t accent = 0xff007dfe;
inline constexpr std::uint32_t danger = 0xfffa2a2d;
inline constexpr std::uint32_t call = 0xff1fae5b; ///< The green of a call.
} // namespace screenColour

inline constexpr int screenMargin = 60;
inline constexpr int statusBarHeight = 108;
inline constexpr int titleBarHeight = 168; ///< Below the status bar.
inline constexpr int titleBarBottom = statusBarHeight + titleBarHeight;
inline constexpr int bottomBarHeight = 168;
inline constexpr int homeAreaHeight = 72; ///< Below the bottom bar, with the line of the home gesture.
inline constexpr int bottomBarTop = phoneHeight - homeAreaHeight - bottomBarHeight;

/// The colour of a layer: what it follows, what it has without that, and how much of it is seen at most.
struct Ink {
    std::string_view key;
    std::uint32_t fallback = screenColour::ink;
    int alpha = 255; ///< Of shapes; a fill has none but its colour's.

    [[nodiscard]] constexpr Ink faded(int part) const { return {key, fallback, part}; }
};

struct Words {
    std::string_view english;
    std::string_view chinese;
};

struct Point {
    int x = 0;
    int y = 0;
};

/// Where a line of text stands: from `x` on, `width` wide, around the height `middle`.
struct Line {
    int x = 0;
    int middle = 0;
    int width = 0;
};

struct TextStyle {
    int size = 48;
    int weight = 400;
    TextAlign align = TextAlign::left;
};

namespace textStyle {
inline constexpr TextStyle title{66, 600};
inline constexpr TextStyle barTitle{57, 600};
inline constexpr TextStyle listLine{48, 400};
inline constexpr TextStyle secondLine{40, 400};
inline constexpr TextStyle caption{34, 400};
inline constexpr TextStyle button{48, 500, TextAlign::centre};
inline constexpr TextStyle tab{30, 500, TextAlign::centre};

[[nodiscard]] constexpr TextStyle aligned(TextStyle style, TextAlign align) {
    style.align = align;
    return style;
}
} // namespace textStyle

/// The square of a side around a point.
[[nodiscard]] constexpr Place around(Point centre, int side) {
    return {centre.x - side / 2, centre.y - side / 2, side, side};
}

/// The place of a text's picture, which leaves letters that lean out of their line some pixels to spare.
[[nodiscard]] Place textPlace(const Line& line, int size);

/// Names are those of pictures, so each is there once a screen. Where a call adds several layers, the name begins
/// theirs: "call1" gives "call1_title" and so on.
class ScreenBuilder {
public:
    /// @param absentFrom generations that lack the screen
    ScreenBuilder(std::string_view module, std::string_view name, TypeMask absentFrom = 0);

    [[nodiscard]] Screen take() { return std::move(_screen); }

    /// The layers that follow aren't on the screens of these generations; 0 ends it.
    void leaveOut(TypeMask generations) { _absentFrom = generations; }

    // Single layers. What is given back may be changed further until the next call.

    ScreenLayer& fill(const Place& place, const Ink& ink);
    /// A rounded rectangle; a disc if the radius is half its side. Keep it below about 1080 by 600.
    ScreenLayer& panel(std::string name, const Place& place, int radius, const Ink& ink,
                       unsigned corners = corner::all);
    ScreenLayer& ring(std::string name, const Place& place, int radius, int stroke, const Ink& ink);
    ScreenLayer& text(std::string name, const Line& line, const Words& words, const TextStyle& style, const Ink& ink);
    /// @param side of the sign's box, in which it leaves an eighth on each side
    ScreenLayer& icon(std::string name, Point centre, int side, char16_t sign, const Ink& ink);
    ScreenLayer& portrait(std::string name, Point centre, int side, int variant);
    /// A disc with the first letter of a name.
    ScreenLayer& initial(std::string name, Point centre, int side, const Words& letter, int variant);
    ScreenLayer& photo(std::string name, const Place& place, int radius, int variant);
    /// The theme's icon of an application.
    ScreenLayer& appIcon(Point centre, int side, App app);
    ScreenLayer& picture(std::string_view key, const Place& place);
    ScreenLayer& wallpaper(std::string_view file);

    // Several layers.

    /// Signal, wireless network, battery and time.
    void statusBar(const Ink& ink);
    /// A large title with signs at the right, the last at the margin; ends at `titleBarBottom`.
    void titleBar(const Words& words, const Ink& ink, std::initializer_list<char16_t> signs = {});
    /// A sign to leave at the left, then the title, and signs at the right.
    void subTitleBar(const Words& words, const Ink& ink, std::initializer_list<char16_t> signs = {},
                     char16_t leave = sign::arrowBack);
    /// A line, three pixels high, from `left` to the margin or to `right`.
    void divider(int y, const Ink& ink, int left = screenMargin, int right = phoneWidth - screenMargin);
    /// Two lines of a list row around the height `middle`; one in the middle if the second is empty.
    void lines(const std::string& name, const Line& line, const Words& first, const Ink& firstInk, const Words& second,
               const Ink& secondInk);
    /// A rounded field with a looking glass and a hint.
    void searchBox(int top, const Words& hint, const Ink& box, const Ink& ink);
    /// The same over the theme's own picture of a field.
    void searchHint(int top, const Words& hint, const Ink& ink);
    struct Tab {
        char16_t sign;
        Words label;
    };
    /// Tabs above the area of the home gesture; the chosen one has a colour of its own.
    void tabs(std::initializer_list<Tab> tabs, std::size_t chosen, const Ink& chosenInk, const Ink& ink);
    /// The same on a bar.
    void bottomBar(std::initializer_list<Tab> tabs, std::size_t chosen, const Ink& background, const Ink& chosenInk,
                   const Ink& ink);
    /// The line of the home gesture.
    void homeLine(const Ink& ink);
    void switchControl(const std::string& name, Point centre, bool on, const Ink& track, const Ink& knob);
    void button(const std::string& name, const Place& place, const Words& words, const Ink& background,
                const Ink& textInk);
    /// A disc with a sign in its middle.
    void roundButton(const std::string& name, Point centre, int side, char16_t sign, const Ink& background,
                     const Ink& signInk);
    /// A rounded panel of any height: two caps that are shapes and a fill between them, so that the ink can't be faded.
    void card(const std::string& name, const Place& place, int radius, const Ink& ink);

private:
    ScreenLayer& add(std::string name, LayerKind kind, const Place& place);
    ScreenLayer& addShape(std::string name, DrawingKind kind, const Place& place, const Ink& ink);
    ScreenLayer& addArt(std::string name, DrawingKind kind, const Place& place, int variant);
    void barSigns(std::initializer_list<char16_t> signs, const Ink& ink);

    Screen _screen;
    TypeMask _absentFrom = 0;
};

} // namespace zdt
