#include "kit/controlSearch.h"

#include <QStringList>

#include <cstdio>
#include <cstdlib>

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
    const QString message = QString("no control \"%1\" of class %2; there are: %3\n")
                                .arg(name, QLatin1String(type), namesBelow(root).join(", "));
    std::fputs(message.toUtf8().constData(), stderr);
    std::abort();
}

} // namespace zdt
