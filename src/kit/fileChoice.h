#pragma once

#include <QStandardPaths>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace zdt {

/// What is asked for.
struct FileRequest {
    enum class Kind { folder, file, files, save };

    Kind kind = Kind::file;
    QString title;  ///< In the language of the window.
    QString filter; ///< Such as "Pictures (*.jpg *.png)"; empty for all files.
    QString folder; ///< Where to begin.
    QString name;   ///< What a file that is saved is to be called, unless the author says otherwise.
};

/// Shows the program's own chooser, which speaks its language, and gives the paths; none if the author cancelled.
[[nodiscard]] QStringList askForFiles(QWidget* parent, const FileRequest& request);

/// Asks for files and folders, beginning where the last ones were chosen.
class FileChoice {
public:
    using Ask = std::function<QStringList(QWidget* parent, const FileRequest& request)>;

    explicit FileChoice(QStandardPaths::StandardLocation first);

    /// Empty if the author cancelled.
    [[nodiscard]] QString folder(QWidget* parent, const QString& title);
    [[nodiscard]] QString file(QWidget* parent, const QString& title, const QString& filter);
    [[nodiscard]] QStringList files(QWidget* parent, const QString& title, const QString& filter);

    /// Where to save a file; the author has agreed to replace one that stands there.
    [[nodiscard]] QString save(QWidget* parent, const QString& title, const QString& filter, const QString& name);

    /// What asks, for tests to answer.
    Ask ask = askForFiles;

private:
    [[nodiscard]] QStringList answer(QWidget* parent, FileRequest request);

    QString _folder;
};

} // namespace zdt
