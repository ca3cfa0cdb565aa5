#pragma once

#include "kit/baseDialog.h"
#include "kit/textLookup.h"

namespace zdt {

/// A sentence with an icon and one or two buttons. Enter presses the default button, Escape the one that refuses; both
/// are there also with a single button.
class ZMessageBoxDlg : public ZBaseDialog {
    Q_OBJECT

public:
    enum class Kind { Info, Success, Question, Warning, Error };

    /// What is said and asked, each by its key in the lookup.
    struct Message {
        Kind kind = Kind::Info;
        QString titleKey;
        QString textKey;
        /// Take the place of `%1`, `%2`, … in the text, names of files and such; shown as they are.
        QStringList arguments;
        QString acceptKey;
        /// Empty for a box with one button.
        QString rejectKey;
        /// Whether Enter refuses; for what can't be undone.
        bool rejectByDefault = false;
    };

    ZMessageBoxDlg(const Message& message, const TextLookup& lookup, QWidget* parent = nullptr);

    /// Shows the box and waits. True if the accepting button was pressed, or the only one.
    [[nodiscard]] static bool ask(const Message& message, const TextLookup& lookup, QWidget* parent);
    /// Shows a box of one button and waits.
    static void tell(const Message& message, const TextLookup& lookup, QWidget* parent);
};

} // namespace zdt
