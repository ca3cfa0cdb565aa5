#include "kit/fileChoice.h"

#include "kit/localisation.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>

#include <utility>

namespace zdt {

namespace {

/// Wide enough for a few columns of names, in logical pixels.
constexpr QSize chooserSize(760, 520);

QFileDialog::FileMode modeOf(FileRequest::Kind kind) {
    switch (kind) {
    case FileRequest::Kind::folder:
        return QFileDialog::Directory;
    case FileRequest::Kind::file:
        return QFileDialog::ExistingFile;
    case FileRequest::Kind::files:
        return QFileDialog::ExistingFiles;
    case FileRequest::Kind::save:
        return QFileDialog::AnyFile;
    }
    return QFileDialog::ExistingFile;
}

void sayWords(QFileDialog& dialog) {
    dialog.setLabelText(QFileDialog::Accept, Text("kFile_choose"));
    dialog.setLabelText(QFileDialog::Reject, Text("kCancel"));
    dialog.setLabelText(QFileDialog::LookIn, Text("kFile_look_in"));
    dialog.setLabelText(QFileDialog::FileName, Text("kFile_name"));
    dialog.setLabelText(QFileDialog::FileType, Text("kFile_type"));
}

void showFoldersAlone(QFileDialog& dialog) {
    dialog.setOption(QFileDialog::ShowDirsOnly);
    for (const char* row : {"fileTypeLabel", "fileTypeCombo"}) { // There is but one type of folder.
        if (auto* widget = dialog.findChild<QWidget*>(row))
            widget->hide();
    }
}

} // namespace

QStringList askForFiles(QWidget* parent, const FileRequest& request) {
    const QString start = QFileInfo(request.folder).isDir() ? request.folder : QDir::homePath();
    QFileDialog dialog(parent, request.title, start, request.filter);
    dialog.setObjectName("fileChoice");
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setViewMode(QFileDialog::List);
    dialog.resize(chooserSize);
    dialog.setFileMode(modeOf(request.kind));
    sayWords(dialog);
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
        button->setIcon({}); // The style's own, unlike any other of the window's.
    if (request.kind == FileRequest::Kind::folder)
        showFoldersAlone(dialog);
    if (request.kind == FileRequest::Kind::save) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setLabelText(QFileDialog::Accept, Text("kFile_save"));
        dialog.selectFile(request.name);
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

FileChoice::FileChoice(QStandardPaths::StandardLocation first)
    : _folder(QStandardPaths::writableLocation(first)) {}

QStringList FileChoice::answer(QWidget* parent, FileRequest request) {
    request.folder = _folder;
    const QStringList chosen = ask(parent, request);
    if (!chosen.isEmpty()) {
        const bool isFolder = request.kind == FileRequest::Kind::folder;
        _folder = isFolder ? chosen.front() : QFileInfo(chosen.front()).path();
    }
    return chosen;
}

QString FileChoice::folder(QWidget* parent, const QString& title) {
    return answer(parent, {FileRequest::Kind::folder, title, {}, {}, {}}).value(0);
}

QString FileChoice::file(QWidget* parent, const QString& title, const QString& filter) {
    return answer(parent, {FileRequest::Kind::file, title, filter, {}, {}}).value(0);
}

QStringList FileChoice::files(QWidget* parent, const QString& title, const QString& filter) {
    return answer(parent, {FileRequest::Kind::files, title, filter, {}, {}});
}

QString FileChoice::save(QWidget* parent, const QString& title, const QString& filter, const QString& name) {
    return answer(parent, {FileRequest::Kind::save, title, filter, {}, name}).value(0);
}

} // namespace zdt
