#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>

namespace zdt {

/// Makes windows of layouts that are written as Qt Designer forms and lie in the skin's folder.
class SkinLoader {
public:
    using Factory = std::function<QWidget*(QWidget* parent)>;

    /// What came of a layout. `widget` is null exactly if `error` isn't empty.
    struct Result {
        std::unique_ptr<QWidget> widget;
        /// For developers and logs, in English: the file, and what is wrong with it.
        QString error;
    };

    /// A layout is taken from the first of `folders` that has it. The kit's own controls are known from the start.
    explicit SkinLoader(QStringList folders);

    /// Makes a class known by the name under which layouts use it; a later one replaces an earlier one.
    void registerControl(const QString& className, Factory factory);

    /// `name` is a file name such as `skin.xml`. Buttons and tool buttons get the icons that their property `iconName`
    /// names. A file that is missing, cut or uses an unknown class gives an error; nothing of it is left then.
    [[nodiscard]] Result load(const QString& name, QWidget* parent = nullptr) const;

    /// The same from a text; `name` only stands in errors.
    [[nodiscard]] Result loadText(const QByteArray& layout, const QString& name, QWidget* parent = nullptr) const;

private:
    QStringList _folders;
    std::map<QString, Factory> _controls;
};

} // namespace zdt
