#pragma once

#include <QWidget>

namespace zdt {

/// Ends the program with a message to standard error that names what was wanted and every control that `root` has.
[[noreturn]] void controlMissing(const QWidget& root, const QString& name, const char* type);

/// The control of that object name, `root` itself or below it; null if there is none or it is of another class.
template <typename T>
[[nodiscard]] T* tryFindControl(QWidget* root, const QString& name) {
    if (root->objectName() == name) {
        if (T* self = qobject_cast<T*>(root))
            return self;
    }
    return root->findChild<T*>(name);
}

/// The same for a control that the program can't do without. A layout that lacks it is a programming error.
template <typename T>
[[nodiscard]] T& FindControl(QWidget* root, const QString& name) {
    if (T* found = tryFindControl<T>(root, name))
        return *found;
    controlMissing(*root, name, T::staticMetaObject.className());
}

} // namespace zdt
