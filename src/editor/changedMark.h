#pragma once

class QPushButton;

namespace zdt {

/// Puts the dot that marks what is changed before a button's text.
void setChangedMark(QPushButton& button);

} // namespace zdt
