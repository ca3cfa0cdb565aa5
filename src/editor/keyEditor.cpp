#include "editor/keyEditor.h"

#include "kit/colourEdits.h"
#include "kit/colourText.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace zdt {

namespace {

constexpr int overhang = 9; ///< The fields begin before the column, so that the digits stand where they stood.
constexpr int hexWidth = 92;
constexpr int percentWidth = 56;
constexpr int fieldHeight = 26;
constexpr int fieldGap = 4;
constexpr int resetSide = 24;
constexpr int reasonIconSide = 14;

template <typename Control>
Control* fieldNamed(Control* field, const char* name) {
    field->setObjectName(name);
    field->setProperty("scale", "row");
    return field;
}

} // namespace

KeyEditor::KeyEditor(QWidget* parent)
    : QWidget(parent)
    , _hex(fieldNamed(new ZHexField(this), "editHex"))
    , _percent(fieldNamed(new ZPercentField(this), "editPercent"))
    , _text(fieldNamed(new QLineEdit(this), "editText"))
    , _reset(fieldNamed(new QPushButton(this), "editReset"))
    , _reasonIcon(new QLabel(this))
    , _reason(new ZElidedLabel(this)) {
    _text->setProperty("type", "mono");
    _reset->setProperty("kind", "quiet");
    setButtonIcon(_reset, Icon::SettingsBackupRestore, 16);
    _reason->setObjectName("editReason");
    _reason->setProperty("type", "hint");
    _reason->setProperty("state", "error");
    _reasonIcon->setPixmap(iconPixmap(Icon::Error, token::danger, reasonIconSide, devicePixelRatioF()));
    for (QWidget* field : {static_cast<QWidget*>(_hex), static_cast<QWidget*>(_percent), static_cast<QWidget*>(_text)})
        field->installEventFilter(this);
    for (const QLineEdit* field : {static_cast<QLineEdit*>(_hex), static_cast<QLineEdit*>(_percent), _text})
        connect(field, &QLineEdit::textEdited, this, &KeyEditor::edited);
    connect(_reset, &QPushButton::clicked, this, &KeyEditor::resetClicked);
    showReason({});
    relabel();
}

void KeyEditor::relabel() {
    const struct {
        QWidget* control;
        QString words;
    } controls[] = {{_hex, Text("kColour_hex")},
                    {_percent, Text("kColour_percent")},
                    {_text, Text("kList_value")},
                    {_reset, Text("kColour_reset")}};
    for (const auto& [control, words] : controls) {
        control->setAccessibleName(words);
        control->setToolTip(words);
    }
}

void KeyEditor::showColour(const QColor& colour) {
    _isColour = true;
    _colour = colour;
    _shown = colourText(colour);
    restore();
    placeFields();
}

void KeyEditor::showText(const QString& text) {
    _isColour = false;
    _shown = text;
    restore();
    placeFields();
}

void KeyEditor::restore() {
    if (_isColour) {
        _hex->setText(shownDigits(_colour));
        _percent->setPercent(percentOf(_colour));
    } else {
        _text->setText(_shown);
        _text->setCursorPosition(0);
    }
    showReason({});
}

void KeyEditor::showReason(const QString& reason) {
    _reason->setText(reason);
    _reason->setAccessibleName(reason);
    _reason->setVisible(!reason.isEmpty());
    _reasonIcon->setVisible(!reason.isEmpty());
    const QString state = reason.isEmpty() ? "" : "error";
    for (QWidget* field : {static_cast<QWidget*>(_hex), static_cast<QWidget*>(_text)})
        setStyleProperty(field, "state", state);
    update();
    emit reasonChanged();
}

QString KeyEditor::reason() const {
    return _reason->text();
}

QString KeyEditor::cutReason() const {
    return _reason->sizeHint().width() > _reason->width() ? _reason->text() : QString();
}

void KeyEditor::edit() {
    QLineEdit* field = _isColour ? static_cast<QLineEdit*>(_hex) : _text;
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
}

bool KeyEditor::isEditing() const {
    return _hex->hasFocus() || _percent->hasFocus() || _text->hasFocus();
}

QString KeyEditor::typed(bool& isWhole) const {
    isWhole = true;
    if (!_isColour)
        return _text->text();
    const std::optional<QColor> colour = typedColour(_hex->text(), _colour);
    isWhole = colour.has_value();
    if (!colour)
        return {};
    // Eight digits bring their alpha; the percentage beside them is the old one's then.
    const bool bringsAlpha = _hex->text().size() == alphaColourDigits;
    const int percent = bringsAlpha ? percentOf(*colour) : _percent->percent().value_or(percentOf(_colour));
    return colourText(withPercent(*colour, percent));
}

bool KeyEditor::store() {
    // What refuses a value shows a box, and the field loses the focus to it.
    if (_storing)
        return !hasReason();
    bool isWhole = true;
    const QString value = typed(isWhole);
    if (isWhole && value.compare(_shown, _isColour ? Qt::CaseInsensitive : Qt::CaseSensitive) == 0) {
        restore();
        return true;
    }
    _storing = true;
    emit valueEntered(value, isWhole);
    _storing = false;
    return !hasReason();
}

bool KeyEditor::pressed(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (store())
            emit finished();
        return true;
    case Qt::Key_Escape:
        restore();
        emit finished();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (store())
            emit moveAsked(key == Qt::Key_Up ? -1 : 1);
        return true;
    default:
        return false;
    }
}

bool KeyEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && pressed(static_cast<QKeyEvent*>(event)->key()))
        return true;
    // A menu of the field and another window take the focus for a while; the author comes back to what was typed. The
    // next widget has the focus already, and so the click that took it comes after this.
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason && !isEditing())
            store();
    }
    return QWidget::eventFilter(watched, event);
}

void KeyEditor::setWidths(int value, int all) {
    _valueWidth = value;
    resize(all, height());
    placeFields();
}

void KeyEditor::placeFields() {
    _hex->setVisible(_isColour);
    _percent->setVisible(_isColour);
    _text->setVisible(!_isColour);
    _reset->setVisible(_resettable);
    const int top = (height() - fieldHeight) / 2;
    _hex->setGeometry(0, top, hexWidth, fieldHeight);
    _percent->setGeometry(hexWidth + fieldGap, top, percentWidth, fieldHeight);
    const int fieldsEnd = _valueWidth + overhang - resetSide - fieldGap;
    _text->setGeometry(0, top, fieldsEnd, fieldHeight);
    const int resetLeft = (_isColour ? _percent->geometry().right() : _text->geometry().right()) + 1 + fieldGap;
    _reset->setGeometry(resetLeft, (height() - resetSide) / 2, resetSide, resetSide);
    const int reasonLeft = resetLeft + resetSide + 2 * fieldGap;
    _reasonIcon->setGeometry(reasonLeft, (height() - reasonIconSide) / 2, reasonIconSide, reasonIconSide);
    const int reasonText = reasonLeft + reasonIconSide + fieldGap;
    _reason->setGeometry(reasonText, 0, std::max(0, width() - reasonText - fieldGap), height());
}

void KeyEditor::resizeEvent(QResizeEvent*) {
    placeFields();
}

void KeyEditor::paintEvent(QPaintEvent*) {
    // Over the value that the row shows, and over what a reason takes.
    QPainter painter(this);
    painter.fillRect(0, 0, hasReason() ? width() : _valueWidth + overhang, height(), token::rowSelected);
}

} // namespace zdt
