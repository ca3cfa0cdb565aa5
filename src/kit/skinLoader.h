#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

namespace zdt {

class FormLoader;

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

    /// Layouts are taken from `folders`, the first of them first. The kit's own controls are known from the start.
    explicit SkinLoader(QStringList folders);

    /// Makes a class known by the name under which layouts use it; a later one replaces an earlier one.
    void registerControl(const QString& className, Factory factory);

    /// `name` is a file name such as `skin.xml`. Of several folders that have it, the first counts whose layout is
    /// good: one that an author changed and broke doesn't keep the program from its own. Buttons and tool buttons get
    /// the icons that their property `iconName` names. A file that is missing, cut or uses an unknown class gives an
    /// error; nothing of it is left then.
    [[nodiscard]] Result load(const QString& name, QWidget* parent = nullptr) const;

    /// The same from a text; `name` only stands in errors.
    [[nodiscard]] Result loadText(const QByteArray& layout, const QString& name, QWidget* parent = nullptr) const;

private:
    [[nodiscard]] Result loadFile(const QString& path, QWidget* parent) const;

    QStringList _folders;
    std::shared_ptr<FormLoader> _loader; ///< Copies share their controls.
};

} // namespace zdt
