#pragma once

#include "kit/messageBoxDlg.h"

#include <QString>
#include <QStringList>

class QWidget;

/// Boxes in the language of the window, under the title that most of them bear, "kDialog_Title_Waning_Info".
namespace zdt {

/// Says something and waits. `arguments` take the place of `%1`, `%2`, … in the text.
void tellNote(QWidget* parent, const QString& textKey, const QStringList& arguments = {},
              ZMessageBoxDlg::Kind kind = ZMessageBoxDlg::Kind::Warning);

/// Asks for a yes or no. Enter is yes, or no with `refusesByDefault`: for what can't be undone.
[[nodiscard]] bool askYesNo(QWidget* parent, const QString& textKey, const QStringList& arguments = {},
                            bool refusesByDefault = false);

} // namespace zdt
