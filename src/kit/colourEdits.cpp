#include "kit/colourEdits.h"

#include "kit/colourText.h"
#include "kit/tokens.h"

#include <QKeyEvent>
#include <QPainter>
#include <QValidator>

#include <algorithm>

namespace zdt {

namespace {

constexpr int signWidth = 11;
constexpr int signInset = 8;
constexpr int percentDigits = 3;
constexpr int most = 100;

/// Leaves out what is no digit, so that a colour can be pasted with its "#".
class HexFilter : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        const QString before = hexDigitsOf(input.left(position));
        input = hexDigitsOf(input);
        position = static_cast<int>(std::min(before.size(), input.size()));
        return input.size() == colourDigits || input.size() == alphaColourDigits ? Acceptable : Intermediate;
    }
};

class PercentFilter : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        input.removeIf([](QChar sign) { return sign < '0' || sign > '9'; });
        position = static_cast<int>(std::min<qsizetype>(position, input.size()));
        if (input.isEmpty())
            return Intermediate;
        return input.size() <= percentDigits && input.toInt() <= most ? Acceptable : Invalid;
    }
};

void paintSign(QWidget& field, const QString& sign, Qt::Alignment side) {
    QPainter painter(&field);
    painter.setPen(field.isEnabled() ? token::placeholder : token::textOff);
    painter.drawText(field.rect().adjusted(signInset, 0, -signInset, 0), static_cast<int>(side | Qt::AlignVCenter),
                     sign);
}

} // namespace

ZHexField::ZHexField(QWidget* parent)
    : QLineEdit(parent) {
    setProperty("type", "mono");
    setTextMargins(signWidth, 0, 0, 0);
    setValidator(new HexFilter(this));
}

void ZHexField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    paintSign(*this, "#", Qt::AlignLeft);
}

ZPercentField::ZPercentField(QWidget* parent)
    : QLineEdit(parent) {
    setProperty("type", "mono");
    setTextMargins(0, 0, signWidth, 0);
    setValidator(new PercentFilter(this));
}

std::optional<int> ZPercentField::percent() const {
    return text().isEmpty() ? std::nullopt : std::optional(text().toInt());
}

void ZPercentField::setPercent(int percent) {
    if (const QString wanted = QString::number(percent); wanted != text())
        setText(wanted);
}

void ZPercentField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    paintSign(*this, "%", Qt::AlignRight);
}

void ZPercentField::keyPressEvent(QKeyEvent* event) {
    const int by = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    if (by == 0) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const int step = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 * by : by;
    setPercent(std::clamp(percent().value_or(most) + step, 0, most));
    emit textEdited(text());
}

} // namespace zdt
