#pragma once

#include <QDialog>
#include <QPointer>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace zdt {

class Scrim;

/// A dialog that lies in the window it belongs to, over everything below the title bar, which it dims. So it has
/// corners and a shadow on every system, and its window can still be moved. Nothing else in the window can be clicked,
/// reached by keys or dropped onto. Without a parent, or with one that isn't shown, it is a window of its own.
///
/// Escape and the close button reject it. Children: `dialogTitle`, `dialogClose`, `dialogBody`, `dialogFoot`.
class ZBaseDialog : public QDialog {
    Q_OBJECT

public:
    explicit ZBaseDialog(QWidget* parent = nullptr);
    ~ZBaseDialog() override;

    void setTitle(const QString& title);
    void setCloseTip(const QString& tip);
    /// The layout that takes what the dialog holds; 24 from its sides.
    [[nodiscard]] QVBoxLayout* body() const { return _body; }
    /// Adds a button at the right of the foot, which shows once it has one; at least 88 wide. `kind` as in the style
    /// sheet.
    /// @param place among the buttons that are there, from 0; behind them for -1
    QPushButton* addButton(const QString& text, const QString& name, const QString& kind = {}, int place = -1);
    /// A note at the left of the foot, behind a small sign.
    void setNote(const QString& note);
    /// False for a dialog that can only be left by its buttons: no close button, and Escape does nothing.
    void setClosable(bool closable);
    /// Whether the window below may close now, which rejects this dialog.
    [[nodiscard]] virtual bool mayClose() const { return _closable; }

    void setVisible(bool visible) override;
    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeHead();
    void makeFoot();
    void enterHost();
    void leaveHost();
    void drag(const QPoint& by);

    QPointer<QWidget> _owner;
    QPointer<Scrim> _scrim;
    QPointer<QWidget> _focusBefore;
    QWidget* _head;
    QLabel* _title;
    QPushButton* _close;
    QVBoxLayout* _body;
    QWidget* _foot;
    QLabel* _noteSign;
    QLabel* _note;
    QHBoxLayout* _buttons;
    QPoint _held;
    bool _closable = true;
};

} // namespace zdt
