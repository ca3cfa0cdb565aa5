#include "editor/colorItem.h"

#include "editor/colourTyping.h"
#include "editor/helpTip.h"
#include "kit/colourText.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/lateSignals.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/notifications.h"
#include "kit/swatch.h"
#include "kit/tokens.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVariantAnimation>

#include <algorithm>

namespace zdt {

namespace {

constexpr int side = 16;
constexpr int swatchSide = 40;
constexpr int swatchGap = 12;
constexpr int labelTop = 8;
constexpr int labelHeight = 16;
constexpr int fieldTop = 28;
constexpr int fieldHeight = 28;
constexpr int fieldGap = 6;
constexpr int digitsWidth = 92;
constexpr int alphaWidth = 44;
constexpr int percentWidth = 60;
constexpr int smallSide = 20;
constexpr int smallIcon = 16;
constexpr int barWidth = 3;
constexpr int dotGap = 8;
constexpr int dotRadius = 3;
constexpr int signInset = 8;
constexpr int signWidth = 11;
/// Milliseconds.
constexpr int flashTime = 600;
/// A paste may bring a "#", blanks and an alpha; what is kept of it is short.
constexpr int longestPaste = 64;

/// A field with a sign that isn't part of its text.
class SignedField : public QLineEdit {
public:
    SignedField(const QString& sign, Qt::Alignment where, QWidget* parent)
        : QLineEdit(parent)
        , _sign(sign)
        , _where(where) {
        const int width = sign.isEmpty() ? 0 : signWidth;
        setTextMargins(where & Qt::AlignLeft ? width : 0, 0, where & Qt::AlignRight ? width : 0, 0);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QLineEdit::paintEvent(event);
        QPainter painter(this);
        painter.setPen(token::placeholder);
        painter.drawText(rect().adjusted(signInset, 0, -signInset, 0), static_cast<int>(_where | Qt::AlignVCenter),
                         _sign);
    }

private:
    QString _sign;
    Qt::Alignment _where;
};

bool pastedWhole(const QString& text) {
    return keptHexDigits(text, longestPaste).size() == alphaColourDigits;
}

} // namespace

/// The swatch of a row.
class ColourButton : public QAbstractButton {
public:
    explicit ColourButton(QWidget* parent)
        : QAbstractButton(parent) {
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
    }

    void setColour(const QColor& colour) {
        _colour = colour;
        update();
    }
    void setOff(bool off) {
        _off = off;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintSwatch(painter, rect(), _colour, token::radiusField);
        if (_off) {
            painter.setPen(QPen(token::textOff, 1));
            painter.drawLine(rect().bottomLeft(), rect().topRight());
        }
        if (underMouse() || isDown()) {
            painter.setPen(QPen(token::accent, 1));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), token::radiusField,
                                    token::radiusField);
        }
    }

private:
    QColor _colour;
    bool _off = false;
};

CColorItem::CColorItem(const QString& name, CPaintManagerUI& notifications, QWidget* parent)
    : QFrame(parent)
    , _name(name)
    , _notifications(notifications)
    , _swatch(new ColourButton(this))
    , _label(new ZElidedLabel(this))
    , _digits(makeField(rowControl::colourEdit, "#", Qt::AlignLeft, longestPaste))
    , _alpha(makeField(rowControl::alphaEdit, QString(), Qt::AlignLeft, longestPaste))
    , _percent(makeField(rowControl::percentEdit, "%", Qt::AlignRight, longestPaste))
    , _tip(makeButton(rowControl::tip))
    , _reset(makeButton(rowControl::reset)) {
    setObjectName(name + "|" + colourRowName);
    setFixedHeight(rowHeight);
    _swatch->setObjectName(name + "|color|" + rowControl::button);
    _swatch->installEventFilter(this);
    connect(_swatch, &QAbstractButton::clicked, this, [this] { _notifications.SendNotify(_swatch, notify::click); });
    _tip->setIcon(icon(Icon::InfoOutline, token::iconNavigation));
    _reset->setIcon(icon(Icon::SettingsBackupRestore, token::iconPlain));
    relabel();
    showState();
}

CColorItem::~CColorItem() {
    hearNoChildren(this);
}

QLineEdit* CColorItem::makeField(const char* name, const QString& sign, Qt::Alignment where, int most) {
    auto* field = new SignedField(sign, where, this);
    field->setObjectName(_name + "|color|" + name);
    field->setProperty("type", "mono");
    field->setProperty("scale", "small");
    field->setMaxLength(most);
    field->setAcceptDrops(false);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this,
            [this, field] { _notifications.SendNotify(field, notify::textchanged); });
    // What was left half typed is no colour: the field shows again what holds.
    connect(field, &QLineEdit::editingFinished, this, [this] { showColour(_content.colour); });
    return field;
}

QPushButton* CColorItem::makeButton(const char* name) {
    auto* button = new QPushButton(this);
    button->setObjectName(_name + "|color|" + name);
    button->setProperty("kind", "quiet");
    button->setProperty("scale", "tiny");
    button->setIconSize({smallIcon, smallIcon});
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, button] { _notifications.SendNotify(button, notify::click); });
    return button;
}

void CColorItem::relabel() {
    const QString label = _content.label;
    _swatch->setAccessibleName(TextWith("kColours_choose", label));
    _swatch->setToolTip(Text("kColours_choose_tip"));
    _digits->setAccessibleName(TextWith("kColours_digits", label));
    _digits->setToolTip(Text("kColours_digits_tip"));
    _alpha->setAccessibleName(TextWith("kColours_alpha", label));
    _alpha->setToolTip(Text("kColours_alpha_tip"));
    _percent->setAccessibleName(TextWith("kColours_percent", label));
    _percent->setToolTip(Text("kColours_percent_tip"));
    _reset->setAccessibleName(TextWith("kColours_reset", label));
    _reset->setToolTip(Text("kColours_reset_tip"));
    _tip->setAccessibleName(TextWith("kColours_about", label));
    _tip->setToolTip(_content.tip);
    if (_switch) {
        _switch->setText(Text("kColours_on"));
        _switch->setToolTip(Text("kColours_on_tip"));
        _switch->setAccessibleName(label);
    }
}

QString CColorItem::key() const {
    return _name.section('|', 2, 2);
}

void CColorItem::setContent(const ColourContent& content) {
    _content = content;
    if (content.isOn && !_switch) {
        _switch = new QCheckBox(this);
        _switch->setObjectName(_name + "|color|" + rowControl::checkBox);
        _switch->installEventFilter(this);
        connect(_switch, &QCheckBox::clicked, this, [this] { _notifications.SendNotify(_switch, notify::click); });
        setTabOrder(_percent, _switch);
        setTabOrder(_switch, _reset);
        _switch->show();
    }
    if (_switch)
        _switch->setChecked(content.isOn.value_or(true));
    _label->setText(content.label);
    const bool isOff = content.isOn == false;
    _swatch->setOff(isOff);
    for (QLineEdit* field : {_digits, _alpha, _percent})
        setStyleProperty(field, "state", isOff ? "off" : "");
    const auto* typedIn = qobject_cast<const QLineEdit*>(focusWidget());
    showColour(content.colour, typedIn && typedIn->hasFocus() ? typedIn : nullptr);
    relabel();
    showState();
    place();
}

void CColorItem::showColour(const QColor& colour, const QLineEdit* typedIn) {
    _content.colour = colour;
    _swatch->setColour(colour);
    const auto show = [typedIn](QLineEdit* field, const QString& text) {
        if (field != typedIn && field->text() != text)
            field->setText(text);
    };
    show(_digits, QString("%1").arg(colour.rgb() & 0xffffffU, typedColourDigits, 16, QChar('0')).toUpper());
    show(_alpha, alphaDigits(colour.alpha()).toUpper());
    show(_percent, QString::number(percentOfAlpha(colour.alpha())));
}

std::optional<QColor> CColorItem::typed(const QLineEdit& field) {
    QLineEdit* const own = &field == _digits ? _digits : &field == _alpha ? _alpha : _percent;
    if (own == _digits) {
        // Only a paste brings its alpha along.
        if (const std::optional<QColor> whole = colourOf(own->text()); whole && pastedWhole(own->text()))
            return whole;
    }
    const QString text = own == _digits  ? keptHexDigits(own->text(), typedColourDigits)
                         : own == _alpha ? keptHexDigits(own->text(), typedAlphaDigits)
                                         : keptPercent(own->text());
    if (text != own->text()) {
        own->setText(text);
        own->setCursorPosition(static_cast<int>(text.size()));
    }
    QColor colour = _content.colour.isValid() ? _content.colour : QColor(Qt::black);
    if (own == _digits) {
        if (text.size() < typedColourDigits)
            return std::nullopt;
        const int alpha = colour.alpha();
        colour = QColor::fromRgb(text.toUInt(nullptr, 16) | 0xff000000U);
        colour.setAlpha(alpha);
    } else if (own == _alpha) {
        if (text.size() < typedAlphaDigits)
            return std::nullopt;
        colour.setAlpha(text.toInt(nullptr, 16));
    } else {
        if (text.isEmpty())
            return std::nullopt;
        colour.setAlpha(alphaOfPercent(text.toInt()));
    }
    return colour;
}

void CColorItem::place() {
    const int left = side + swatchSide + swatchGap;
    const int right = width() - side + 2;
    _swatch->setGeometry(side, (rowHeight - swatchSide) / 2, swatchSide, swatchSide);
    int labelRoom = right - smallSide - 4 - left;
    if (_switch) {
        const int wide = _switch->sizeHint().width();
        _switch->setGeometry(right - smallSide - 4 - wide, labelTop - 2, wide, smallSide);
        labelRoom -= wide + 8;
    }
    const int wanted = _label->sizeHint().width();
    _label->setGeometry(left, labelTop, std::min(wanted, labelRoom - dotGap - 2 * dotRadius), labelHeight);
    int x = left;
    for (const auto& [field, wide] :
         {std::pair(_digits, digitsWidth), std::pair(_alpha, alphaWidth), std::pair(_percent, percentWidth)}) {
        field->setGeometry(x, fieldTop, wide, fieldHeight);
        x += wide + fieldGap;
    }
    _tip->setGeometry(right - smallSide, labelTop - 2, smallSide, smallSide);
    _reset->setGeometry(right - smallSide, fieldTop + (fieldHeight - smallSide) / 2, smallSide, smallSide);
}

void CColorItem::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    place();
}

bool CColorItem::hasKeyboard() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused && isAncestorOf(focused);
}

void CColorItem::showState() {
    _reset->setVisible(_content.isChanged && (_hovered || hasKeyboard()));
    update();
}

void CColorItem::enterEvent(QEnterEvent* event) {
    QFrame::enterEvent(event);
    _hovered = true;
    showState();
    _notifications.SendNotify(this, notify::listitemmousenter);
}

void CColorItem::leaveEvent(QEvent* event) {
    QFrame::leaveEvent(event);
    _hovered = false;
    showState();
    _notifications.SendNotify(this, notify::listitemmousleave);
}

bool CColorItem::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        showState();
        emit entered();
    } else if (event->type() == QEvent::FocusOut) {
        // The one that gets it has it only after this.
        QMetaObject::invokeMethod(this, &CColorItem::showState, Qt::QueuedConnection);
    }
    return QFrame::eventFilter(watched, event);
}

void CColorItem::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const bool isMarked = _hovered || hasKeyboard();
    painter.fillRect(rect(), isMarked ? token::rowHover : token::card);
    if (_flash > 0) {
        QColor ground = token::rowSelected;
        ground.setAlphaF(static_cast<float>(_flash));
        painter.fillRect(rect(), ground);
    }
    if (isMarked)
        painter.fillRect(0, 0, barWidth, height(), token::accent);
    painter.fillRect(0, height() - 1, width(), 1, token::hairlineRow);
    if (!_content.isChanged)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::accent);
    painter.drawEllipse(QPointF(_label->geometry().right() + 1 + dotGap, labelTop + labelHeight / 2.0 + 0.5), dotRadius,
                        dotRadius);
}

void CColorItem::flash() {
    if (!_fading) {
        _fading = new QVariantAnimation(this);
        _fading->setDuration(flashTime);
        _fading->setStartValue(1.0);
        _fading->setEndValue(0.0);
        connect(_fading, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
            _flash = value.toDouble();
            update();
        });
    }
    _fading->stop();
    _fading->start();
}

void CColorItem::showTip() {
    HelpTip::show(*_tip, _content.tip);
}

void CColorItem::edit() {
    _digits->setFocus(Qt::OtherFocusReason);
    _digits->selectAll();
}

} // namespace zdt
