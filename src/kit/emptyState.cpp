#include "kit/emptyState.h"

#include "kit/icons.h"
#include "kit/tokens.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int widest = 320;
constexpr int iconSide = 40;

QLabel* centred(QWidget* parent, const char* name, const char* type) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setProperty("type", type);
    label->setAlignment(Qt::AlignHCenter);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(widest);
    return label;
}

} // namespace

ZEmptyState::ZEmptyState(QWidget* parent)
    : QWidget(parent)
    , _icon(new QLabel(this))
    , _title(centred(this, "emptyTitle", "title"))
    , _hint(centred(this, "emptyHint", "hint"))
    , _action(new QPushButton(this)) {
    _action->setObjectName("emptyAction");
    _icon->setFixedHeight(iconSide);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addStretch();
    column->addWidget(_icon, 0, Qt::AlignHCenter);
    column->addWidget(_title, 0, Qt::AlignHCenter);
    column->addWidget(_hint, 0, Qt::AlignHCenter);
    column->addSpacing(8);
    column->addWidget(_action, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(_action, &QPushButton::clicked, this, &ZEmptyState::actionClicked);
}

void ZEmptyState::setIcon(const QString& name, const QString& state) {
    const auto which = iconNamed(name);
    const QColor& colour = state == "ok" ? token::ok : token::iconEmpty;
    _icon->setVisible(which.has_value());
    if (which)
        _icon->setPixmap(iconPixmap(*which, colour, iconSide, devicePixelRatioF()));
}

void ZEmptyState::setTexts(const QString& title, const QString& hint, const QString& action) {
    _title->setText(title);
    _hint->setText(hint);
    _hint->setVisible(!hint.isEmpty());
    _action->setText(action);
    _action->setVisible(!action.isEmpty());
}

} // namespace zdt
