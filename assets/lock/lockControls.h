#pragma once

#include "assets/art/generation.h"

#include <QImage>

/// What the lock screens hold besides clock and battery: cards of notices, the music control, hints for the hand.
namespace zdt::assets {

enum class Notice { message, missedCall };
/// The ground of a notice's text, with its sign at the left.
[[nodiscard]] QImage drawNoticeCard(Notice notice, const Generation& generation);

/// The ground of a text at the foot.

/// The ground of the music control. It bears no signs, so that it also serves as the small square of the phone's own
/// layout.
[[nodiscard]] QImage drawMusicPanel(const Generation& generation);
[[nodiscard]] QImage drawMusicSkip(char32_t sign, bool isPressed, const Generation& generation);
[[nodiscard]] QImage drawMusicPlay(char32_t sign, const Generation& generation);

/// The mark at the foot that says: push upwards.
[[nodiscard]] QImage drawLockArrow(const Generation& generation);

[[nodiscard]] QImage drawSlideTrack(const Generation& generation);
[[nodiscard]] QImage drawSlideKnob(const Generation& generation);

} // namespace zdt::assets
