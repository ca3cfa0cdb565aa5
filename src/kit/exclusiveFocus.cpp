#include "kit/exclusiveFocus.h"

#include <QAbstractButton>

namespace zdt {

namespace {

void follow(QAbstractButton* button) {
    button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

void tabToChosen(const QList<QAbstractButton*>& buttons) {
    for (QAbstractButton* button : buttons) {
        QObject::connect(button, &QAbstractButton::toggled, button, [button] { follow(button); });
        follow(button);
    }
}

} // namespace zdt
