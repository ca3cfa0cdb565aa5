#pragma once

#include <QColor>
#include <QFrame>
#include <QString>

#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVariantAnimation;

namespace zdt {

class ColourButton;
class CPaintManagerUI;
class ZElidedLabel;

/// The last word of the names of a row's controls.
namespace rowControl {
inline constexpr const char* button = "button";
inline constexpr const char* colourEdit = "Color_Edit";
inline constexpr const char* alphaEdit = "Alpha_Edit";
inline constexpr const char* percentEdit = "Alpha_Percent_Edit";
inline constexpr const char* checkBox = "check";
inline constexpr const char* reset = "reset";
inline constexpr const char* tip = "tip";
} // namespace rowControl

/// Part of the name of every row of colours, by which it is told when the pointer comes and goes.
inline constexpr const char* colourRowName = "color list name";

/// What a row of colours shows.
struct ColourContent {
    QString label;
    QString tip;
    QColor colour;
    bool isChanged = false;
    std::optional<bool> isOn; ///< Of a colour that can be turned off.
};

/// A row of a colour: its swatch, name and fields, a button that puts the default back, and for a shadow a check box.
/// It stores nothing: what the author does goes out as notifications of its controls, whose names are
/// "<name>|color|<control>".
class CColorItem : public QFrame {
    Q_OBJECT

public:
    static constexpr int rowHeight = 64;

    /// @param name of the module, screen and key, joined by "|"
    CColorItem(const QString& name, CPaintManagerUI& notifications, QWidget* parent);
    ~CColorItem() override;

    void setContent(const ColourContent& content);
    [[nodiscard]] const ColourContent& content() const { return _content; }
    /// The key of the row: the third part of its name.
    [[nodiscard]] QString key() const;

    /// What the author typed into a field, cleaned; the other fields and the swatch follow. Nothing while it is too
    /// short to be a colour.
    [[nodiscard]] std::optional<QColor> typed(const QLineEdit& field);
    /// Shows a colour; a field in which the author types is left as it is.
    void showColour(const QColor& colour, const QLineEdit* typedIn = nullptr);

    /// Marks the row for a moment, so that the eye finds it.
    void flash();
    /// Shows what the colour sets.
    void showTip();
    /// Puts the focus into the field of the digits.
    void edit();
    /// The words of the controls, in the language of the moment.
    void relabel();

signals:
    /// One of the row's controls has the focus now.
    void entered();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* makeField(const char* name, const QString& sign, Qt::Alignment side, int most);
    QPushButton* makeButton(const char* name);
    void place();
    void showState();
    [[nodiscard]] bool hasKeyboard() const;

    QString _name;
    CPaintManagerUI& _notifications;
    ColourContent _content;
    ColourButton* _swatch;
    ZElidedLabel* _label;
    QLineEdit* _digits;
    QLineEdit* _alpha;
    QLineEdit* _percent;
    QPushButton* _tip;
    QPushButton* _reset;
    QCheckBox* _switch = nullptr;
    bool _hovered = false;
    QVariantAnimation* _fading = nullptr; ///< Made when it is first needed.
    double _flash = 0;                    ///< From 1 down to 0 while the mark fades.
};

} // namespace zdt
