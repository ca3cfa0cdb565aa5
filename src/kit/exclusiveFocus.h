#pragma once

#include <QList>

class QAbstractButton;

namespace zdt {

/// Lets Tab come to the checked one of some exclusive buttons alone; arrow keys go from one to the next.
void tabToChosen(const QList<QAbstractButton*>& buttons);

} // namespace zdt
