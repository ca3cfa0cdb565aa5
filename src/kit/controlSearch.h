#pragma once

#include <QWidget>

namespace zdt {

/// Throws a `LayoutError` that names what was wanted and every control that `root` has.
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

/// The same for a control that a page can't do without. To be called while the page is made: a layout that lacks it
/// throws a `LayoutError`.
template <typename T>
[[nodiscard]] T& FindControl(QWidget* root, const QString& name) {
    if (T* found = tryFindControl<T>(root, name))
        return *found;
    controlMissing(*root, name, T::staticMetaObject.className());
}

} // namespace zdt
