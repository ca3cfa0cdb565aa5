#include "kit/lateSignals.h"

#include <QObject>

namespace zdt {

void hearNoChildren(QObject* owner) {
    for (QObject* child : owner->findChildren<QObject*>())
        child->disconnect(owner);
}

} // namespace zdt
