#pragma once

#include "kit/tokens.h"

class QPainter;
class QRect;

namespace zdt {

/// Draws the shadow of a card that lies at `card` with corners of `radius`; the card is drawn over it afterwards.
void paintShadow(QPainter& painter, const QRect& card, int radius, const token::Shadow& shadow);

} // namespace zdt
