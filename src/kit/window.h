#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

class QHBoxLayout;
class QVBoxLayout;

namespace zdt {

class ZBaseDialog;
class WindowButton;

/// A main window that draws its own frame: a title bar 48 high that drags and maximises it, three window buttons, an
/// edge of one pixel, and eight places at the edges that resize it. Children: `titleBar`, `titleActions`,
/// `minimiseButton`, `maximiseButton`, `closeButton`.
class ZWindow : public QWidget {
    Q_OBJECT

public:
    explicit ZWindow(QWidget* parent = nullptr);

    /// Replaces what fills the window below the title bar, and deletes what stood there.
    void setContent(QWidget* content);
    [[nodiscard]] QWidget* content() const { return _content; }

    /// Holds what a window puts into its title bar, left of the window buttons. Off while a dialog is open.
    [[nodiscard]] QWidget* titleActions() const { return _actions; }
    [[nodiscard]] QHBoxLayout* titleLayout() const { return _actionRow; }

    /// Tips and accessible names of the window buttons in the language of the window.
    struct ButtonTexts {
        QString minimise;
        QString maximise;
        QString restore;
        QString close;
    };
    void setButtonTexts(const ButtonTexts& texts);

    /// Called by dialogs that open and close inside this window.
    void dialogOpened(ZBaseDialog* dialog);
    void dialogClosed(ZBaseDialog* dialog);

    [[nodiscard]] bool isMaximisedOrFull() const;
    void toggleMaximised();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// Closes open dialogs first, the last one first; one that can't be left keeps the window open.
    void closeEvent(QCloseEvent* event) override;

private:
    void makeTitleBar();
    void showState();
    [[nodiscard]] bool leaveDialogs();

    QVBoxLayout* _column;
    QWidget* _titleBar;
    QWidget* _actions;
    QHBoxLayout* _actionRow;
    WindowButton* _minimise;
    WindowButton* _maximise;
    WindowButton* _close;
    QPointer<QWidget> _content;
    ButtonTexts _texts;
    std::vector<ZBaseDialog*> _dialogs;
};

} // namespace zdt
