#include "kit/controlSearch.h"

#include "kit/layoutError.h"

#include <QStringList>

namespace zdt {

namespace {

QString described(const QWidget& widget) {
    return widget.objectName() + " (" + widget.metaObject()->className() + ")";
}

QStringList namesBelow(const QWidget& root) {
    QStringList names{described(root)};
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            names += described(*widget);
    }
    names.sort();
    return names;
}

} // namespace

void controlMissing(const QWidget& root, const QString& name, const char* type) {
    throw LayoutError(QString("no control \"%1\" of class %2; there are: %3")
                          .arg(name, QLatin1String(type), namesBelow(root).join(", ")));
}

} // namespace zdt
