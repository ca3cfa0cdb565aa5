#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zdt {

class ZElidedLabel;
class ZHexField;
class ZPercentField;

/// The fields that lie over the value of the current row: digits and opacity of a colour, or a text, and a button that
/// puts the default back. Enter and leaving ask for the value to be stored, Escape shows the old one again.
///
/// Children: `editHex`, `editPercent`, `editText`, `editReset`, `editReason`.
class KeyEditor : public QWidget {
    Q_OBJECT

public:
    explicit KeyEditor(QWidget* parent);

    /// Shows a stored value; what was being typed is gone, and so is a reason.
    void showColour(const QColor& colour);
    void showText(const QString& text);
    /// Whether a reset is offered.
    void setResettable(bool resettable) {
        _resettable = resettable;
        placeFields();
    }
    /// Why the value wasn't stored. The fields stay as they are, in their error state.
    void showReason(const QString& reason);
    [[nodiscard]] QString reason() const;
    [[nodiscard]] bool hasReason() const { return !reason().isEmpty(); }
    /// The reason, if the row is too narrow for it.
    [[nodiscard]] QString cutReason() const;

    /// Puts the focus into the first field, with all of it selected.
    void edit();
    /// Whether a field has the focus.
    [[nodiscard]] bool isEditing() const;
    /// Asks for what was typed to be stored, if it is something else than what was shown. False if it was refused.
    bool store();
    /// The widths that the value's column and the rest of the row behind it have.
    void setWidths(int value, int all);
    /// The words of the controls, in the language of the moment.
    void relabel();

signals:
    /// The author types.
    void edited();
    /// Another reason, or none any more.
    void reasonChanged();
    /// A new value, in the theme's form, or one that no field could hold: then `value` is empty and `isWhole` false.
    /// Whoever hears it either shows the new value or a reason.
    void valueEntered(const QString& value, bool isWhole);
    void resetClicked();
    /// Editing has ended, by Enter or Escape.
    void finished();
    /// Up or Down in a field: -1 or 1.
    void moveAsked(int by);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QString typed(bool& isWhole) const;
    [[nodiscard]] bool pressed(int key);
    void restore();
    void placeFields();

    ZHexField* _hex;
    ZPercentField* _percent;
    QLineEdit* _text;
    QPushButton* _reset;
    QLabel* _reasonIcon;
    ZElidedLabel* _reason;
    QColor _colour;
    QString _shown;
    bool _isColour = true;
    bool _resettable = false;
    bool _storing = false;
    int _valueWidth = 0;
};

} // namespace zdt
