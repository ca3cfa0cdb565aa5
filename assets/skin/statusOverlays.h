#pragma once

#include "assets/skin/phoneInk.h"

#include <QImage>

#include <array>
#include <string_view>

/// What the phone itself lays over a lock screen's wallpaper, as transparent pictures as large as the screen.
namespace zdt::assets {

enum class OverlayKind {
    slide,    ///< Status bar, clock, date and what tells how to unlock.
    magazine, ///< Status bar, a small clock, and the words of the day's picture.
    change,   ///< Status bar alone: the rest is the theme's own.
};

/// The skin's generations 5 and 8 look alike here: their phones have three keys and no bar at the foot.
enum class Era { before9, from9 };

struct StatusOverlay {
    std::string_view file; ///< In the skin's folder.
    OverlayKind kind;
    Tone tone;
    Era era;
    int height; ///< The width is 1080.
};

/// The `change` picture 1920 high is for themes of generations 5 and 8, whatever its name ends in.
/// The pictures in "new" stand on the screen 1920 high that is shown beside the first one.
inline constexpr std::array<StatusOverlay, 20> statusOverlays{{
    {"slide_tint_2160_9.png", OverlayKind::slide, Tone::tint, Era::from9, 2160},
    {"slide_deep_2160_9.png", OverlayKind::slide, Tone::deep, Era::from9, 2160},
    {"slide_tint_5.png", OverlayKind::slide, Tone::tint, Era::before9, 1920},
    {"slide_deep_5.png", OverlayKind::slide, Tone::deep, Era::before9, 1920},
    {"slide_tint_1920_9new.png", OverlayKind::slide, Tone::tint, Era::from9, 1920},
    {"slide_deep_1920_9new.png", OverlayKind::slide, Tone::deep, Era::from9, 1920},
    {"slide_tint_5new.png", OverlayKind::slide, Tone::tint, Era::before9, 1920},
    {"slide_deep_5new.png", OverlayKind::slide, Tone::deep, Era::before9, 1920},
    {"magazine_tint_2160_9.png", OverlayKind::magazine, Tone::tint, Era::from9, 2160},
    {"magazine_deep_2160_9.png", OverlayKind::magazine, Tone::deep, Era::from9, 2160},
    {"magazine_tint_5.png", OverlayKind::magazine, Tone::tint, Era::before9, 1920},
    {"magazine_deep_5.png", OverlayKind::magazine, Tone::deep, Era::before9, 1920},
    {"magazine_tint_1920_9new.png", OverlayKind::magazine, Tone::tint, Era::from9, 1920},
    {"magazine_deep_1920_9new.png", OverlayKind::magazine, Tone::deep, Era::from9, 1920},
    {"magazine_tint_5new.png", OverlayKind::magazine, Tone::tint, Era::before9, 1920},
    {"magazine_deep_5new.png", OverlayKind::magazine, Tone::deep, Era::before9, 1920},
    {"change_tint_2160_9.png", OverlayKind::change, Tone::tint, Era::from9, 2160},
    {"change_tint_1920_9.png", OverlayKind::change, Tone::tint, Era::before9, 1920},
    {"change_tint_1920_9new.png", OverlayKind::change, Tone::tint, Era::from9, 1920},
    {"change_deep_1920_9new.png", OverlayKind::change, Tone::deep, Era::from9, 1920},
}};

/// Needs a QGuiApplication; may be called on any thread.
[[nodiscard]] QImage drawStatusOverlay(const StatusOverlay& overlay);

} // namespace zdt::assets
