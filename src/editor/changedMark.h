#pragma once

#include <QPixmap>

class QPushButton;

namespace zdt {

/// The dot in the middle of a transparent square; logical pixels.
[[nodiscard]] QPixmap changedDot(int side, double ratio);

/// Puts the dot that marks what is changed before a button's text.
void setChangedMark(QPushButton& button);

} // namespace zdt
