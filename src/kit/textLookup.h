#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace zdt {

/// Gives the text of a key in the window's language.
using TextLookup = std::function<QString(const QString& key)>;

/// Gives `root` and every control below it the texts that their dynamic properties name by key: `textKey`,
/// `toolTipKey`, `placeholderKey`, `titleKey` (windows and group boxes), `accessibleKey`, and `labelKeys` (a list, for
/// a `ZSegmented`). A control with a tool tip and neither text nor accessible name is also called as its tool tip says.
/// To be called again when the language changes.
void relabel(QWidget* root, const TextLookup& lookup);

} // namespace zdt
