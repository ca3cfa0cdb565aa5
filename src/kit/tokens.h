#pragma once

#include <QColor>

/// The colours and measures of what is painted by hand. Standard widgets have the same ones from `style.qss`. All
/// measures are logical pixels.
namespace zdt::token {

inline constexpr QColor accent(0x00, 0x7D, 0xFF);
inline constexpr QColor accentFill(0x00, 0x70, 0xE6);
inline constexpr QColor accentFillHover(0x00, 0x64, 0xCC);
inline constexpr QColor accentFillPressed(0x00, 0x57, 0xB3);
inline constexpr QColor accentText(0x00, 0x64, 0xCC);

inline constexpr QColor rowSelected(0xE5, 0xF2, 0xFF);
inline constexpr QColor rowHover(0xF2, 0xF8, 0xFF);
inline constexpr QColor cardChosen(0xF5, 0xFA, 0xFF);
inline constexpr QColor toggleHover(0xD6, 0xEA, 0xFF);
inline constexpr QColor togglePressed(0xC4, 0xE1, 0xFF);
inline constexpr QColor toggleBorder(0xB8, 0xDB, 0xFF);

inline constexpr QColor text(0x24, 0x24, 0x24);
inline constexpr QColor textLabel(0x4F, 0x4F, 0x4F);
inline constexpr QColor textSecond(0x6B, 0x6B, 0x6B);
inline constexpr QColor textOff(0x9B, 0x9B, 0x9B);
inline constexpr QColor placeholder(0x76, 0x76, 0x76);
inline constexpr QColor iconPlain(0x4A, 0x4A, 0x4A);
inline constexpr QColor iconNavigation(0x5E, 0x5E, 0x5E);
inline constexpr QColor iconEmpty(0xB5, 0xB5, 0xB5);

inline constexpr QColor hairline(0xE2, 0xE2, 0xE2);
inline constexpr QColor hairlineRow(0xF0, 0xF0, 0xF0);
inline constexpr QColor fieldBorder(0xC6, 0xC6, 0xC6);
inline constexpr QColor fieldBorderHover(0x8F, 0x8F, 0x8F);
inline constexpr QColor window(0xF4, 0xF4, 0xF4);
inline constexpr QColor canvas(0xE8, 0xE9, 0xEB);
inline constexpr QColor bar(0xFA, 0xFA, 0xFA);
inline constexpr QColor card(0xFF, 0xFF, 0xFF);
inline constexpr QColor windowEdge(0xCF, 0xCF, 0xCF);
inline constexpr QColor quietHover(0xEF, 0xEF, 0xEF);
inline constexpr QColor quietPressed(0xE2, 0xE2, 0xE2);
inline constexpr QColor closeHover(0xE8, 0x11, 0x23);
inline constexpr QColor closePressed(0xC4, 0x0E, 0x1E);

inline constexpr QColor fillOff(0xFA, 0xFA, 0xFA);
inline constexpr QColor borderOff(0xE2, 0xE2, 0xE2);

inline constexpr QColor danger(0xFA, 0x2A, 0x2D);
inline constexpr QColor dangerText(0xCF, 0x1A, 0x1D);
inline constexpr QColor dangerBack(0xFF, 0xF1, 0xF1);
inline constexpr QColor warn(0xE8, 0x8A, 0x00);
inline constexpr QColor warnText(0x8F, 0x56, 0x00);
inline constexpr QColor ok(0x1F, 0xA3, 0x55);
inline constexpr QColor okText(0x15, 0x7A, 0x3C);
inline constexpr QColor okBack(0xE8, 0xF7, 0xEE);

inline constexpr QColor guide(0xE5, 0x29, 0x8C);
inline constexpr QColor guideLabel(0xC8, 0x1E, 0x78);
inline constexpr QColor outlineLine(0x2C, 0x95, 0xFF);
inline constexpr QColor outlineFill(0, 125, 255, 64);
inline constexpr QColor outsideFill(250, 42, 45, 51);
inline constexpr QColor outsideLine(0xFF, 0x6B, 0x6D);
inline constexpr QColor dim(20, 22, 26, 117);
inline constexpr QColor checkerLight(0xFF, 0xFF, 0xFF);
inline constexpr QColor checkerDark(0xE3, 0xE3, 0xE3);
inline constexpr int checkerSquare = 6;

inline constexpr QColor switchOff(0xBD, 0xBD, 0xBD);
inline constexpr QColor switchOffHover(0x9E, 0x9E, 0x9E);
inline constexpr QColor switchOffPressed(0x75, 0x75, 0x75);
inline constexpr QColor switchDisabled(0xE4, 0xE4, 0xE4);
inline constexpr QColor switchOnDisabled(0xB8, 0xD8, 0xF7);
inline constexpr QColor segmentedBack(0xEA, 0xEA, 0xEA);

/// A shadow: black of `alpha` (0 to 255), `offset` below, blurred over `blur`.
struct Shadow {
    int offset;
    int blur;
    int alpha;
};
inline constexpr Shadow shadowDialog{12, 40, 61};
inline constexpr Shadow shadowPopover{6, 20, 36};
inline constexpr Shadow shadowCard{4, 16, 41};
inline constexpr Shadow shadowPhone{6, 20, 51};

inline constexpr int radiusCard = 8;
inline constexpr int radiusField = 4;
inline constexpr int radiusSegmented = 6;
inline constexpr int radiusChip = 14;

inline constexpr int textSmall = 12;
inline constexpr int textTiny = 11;
inline constexpr int textBody = 13;
inline constexpr int textName = 14;
inline constexpr int textTitle = 16;

inline constexpr int titleBarHeight = 48;
inline constexpr int dialogPadding = 24;
inline constexpr int dialogHead = 56;
inline constexpr int dialogFoot = 64;
inline constexpr int dialogButtonWidth = 88;
inline constexpr int ringWidth = 2;
inline constexpr int ringGap = 2;

/// Milliseconds.
inline constexpr int fadeIn = 120;
inline constexpr int progressInterval = 34;

} // namespace zdt::token
