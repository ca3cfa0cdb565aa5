#pragma once

#include <QFrame>

namespace zdt {

/// A small window of 220 by 150 beside a button that tells what a field is for. Escape and a click elsewhere close it.
class HelpTip : public QFrame {
    Q_OBJECT

public:
    /// Shows a tip; it frees itself when it is closed. Child: `exportHelpText`.
    static void show(QWidget& button, const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    HelpTip(QWidget& button, const QString& text);
};

} // namespace zdt
