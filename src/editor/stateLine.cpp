#include "editor/stateLine.h"

#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/tokens.h"

#include <QHBoxLayout>
#include <QLabel>

namespace zdt {

namespace {

constexpr int iconSide = 14;
constexpr int lineHeight = 18;

QPixmap signOf(const QString& state, double ratio) {
    if (state == "ok")
        return iconPixmap(Icon::CheckCircle, token::ok, iconSide, ratio);
    return state == "warn" ? iconPixmap(Icon::Warning, token::warn, iconSide, ratio)
                           : iconPixmap(Icon::Error, token::dangerText, iconSide, ratio);
}

} // namespace

StateLine::StateLine(QWidget* parent)
    : QWidget(parent)
    , _icon(new QLabel(this))
    , _text(new QLabel(this)) {
    setMinimumHeight(lineHeight);
    _icon->setFixedSize(iconSide, lineHeight);
    _text->setObjectName("stateText");
    _text->setProperty("type", "small");
    _text->setTextFormat(Qt::PlainText);
    _text->setWordWrap(true);
    _text->setContentsMargins(0, 1, 0, 0);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(_icon, 0, Qt::AlignTop);
    row->addWidget(_text, 1, Qt::AlignTop);
}

void StateLine::tell(const QString& state, const QString& text) {
    _text->setText(text);
    setStyleProperty(_text, "state", state);
    if (text.isEmpty())
        _icon->clear();
    else
        _icon->setPixmap(signOf(state, devicePixelRatioF()));
}

QString StateLine::text() const {
    return _text->text();
}

} // namespace zdt
