#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>

#include <vector>

namespace zdt {

class ZBaseDialog;

/// A main window that draws its own frame: an edge of one pixel, and eight places at the edges that resize it. What
/// fills it comes from a layout, with these controls in it, any of which may be missing:
///
/// - `TOP_TAB_BAR`: the title bar, whose empty parts drag the window and whose double click maximises it.
/// - `titleActions`: what the title bar holds besides the window buttons; off while a dialog is open.
/// - `minbtn`, `maxbtn`, `restorebtn`, `closebtn`. Of the second and third, that one is seen that does something.
class ZWindow : public QWidget {
    Q_OBJECT

public:
    explicit ZWindow(QWidget* parent = nullptr);

    /// Fills the window, for which it is called once.
    void setFrame(QWidget* frame);

    /// How much of the window's top its title bar takes; a dialog dims what lies below.
    [[nodiscard]] int titleHeight() const;

    /// Called by dialogs that open and close inside this window.
    void dialogOpened(ZBaseDialog* dialog);
    void dialogClosed(ZBaseDialog* dialog);
    [[nodiscard]] bool hasDialog() const { return !_dialogs.empty(); }

    [[nodiscard]] bool isMaximisedOrFull() const;
    void toggleMaximised();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// Closes open dialogs first, the last one first; one that can't be left keeps the window open. Then `mayClose` is
    /// asked.
    void closeEvent(QCloseEvent* event) override;

    /// Whether the window may close, which may be asked of the author.
    [[nodiscard]] virtual bool mayClose() { return true; }

private:
    void showState();
    [[nodiscard]] bool leaveDialogs();

    QVBoxLayout* _column;
    QPointer<QWidget> _titleBar;
    QPointer<QWidget> _actions;
    QPointer<QAbstractButton> _maximise;
    QPointer<QAbstractButton> _restore;
    std::vector<ZBaseDialog*> _dialogs;
};

} // namespace zdt
