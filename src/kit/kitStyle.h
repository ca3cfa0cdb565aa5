#pragma once

#include <QStringList>

class QAbstractButton;
class QApplication;
class QVariant;
class QWidget;

namespace zdt {

enum class Icon : char16_t;

/// Dresses the program: faces, colours, `style.qss` of the first of the skin's folders that has it, and the focus ring.
/// In it, pictures are written as `url(skin:name.png)`. False when the style sheet can't be read; the program works
/// without it.
bool applyKitStyle(QApplication& application, const QStringList& skinFolders);

/// Sets a property that the style sheet asks for (`kind`, `state`, `scale`, …) and shows its effect at once.
void setStyleProperty(QWidget* widget, const char* name, const QVariant& value);

/// Puts an icon before a button's text, in the colours of its `kind`, which is set before. 18 logical pixels high.
void setButtonIcon(QAbstractButton* button, Icon which, int size = 18);

/// Finishes what a layout can't say: icons of buttons by their property `iconName` (and `iconSizePixels`), and
/// what the lists of combo boxes need to be drawn by the style sheet.
void polishControls(QWidget* root);

/// Whether the system asks for less motion: then nothing fades or glides.
[[nodiscard]] bool reducedMotion();

/// Gives a window that pops up the corners of a card, on systems that show windows through each other or not.
void roundCorners(QWidget* popup, int radius);

} // namespace zdt
