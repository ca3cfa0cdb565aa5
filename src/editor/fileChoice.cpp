#include "editor/fileChoice.h"

#include "kit/localisation.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace zdt {

namespace {

/// A folder that is there, to begin in.
QString standing(const QString& folder) {
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

void sayWords(QFileDialog& dialog, const QString& title, const QString& acceptKey) {
    dialog.setWindowTitle(Text(title));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setViewMode(QFileDialog::List);
    dialog.setLabelText(QFileDialog::Accept, Text(acceptKey));
    dialog.setLabelText(QFileDialog::Reject, Text("kCancel"));
    dialog.setLabelText(QFileDialog::LookIn, Text("kExport_look_in"));
    dialog.setLabelText(QFileDialog::FileName, Text("kExport_file_name"));
    dialog.setLabelText(QFileDialog::FileType, Text("kExport_file_type"));
}

QString answerOf(QFileDialog& dialog) {
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString chooseFolder(QWidget* parent, const QString& start) {
    QFileDialog dialog(parent, {}, standing(start));
    dialog.setObjectName("chooseFolder");
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    sayWords(dialog, "kExport_choose_folder", "kExport_choose");
    for (const char* row : {"fileTypeLabel", "fileTypeCombo"}) { // There is but one type of folder.
        if (auto* widget = dialog.findChild<QWidget*>(row))
            widget->hide();
    }
    return answerOf(dialog);
}

QString choosePicture(QWidget* parent, const QString& start) {
    QFileDialog dialog(parent, {}, standing(start), Text("kExport_pictures_filter") + " (*.jpg *.png)");
    dialog.setObjectName("choosePicture");
    dialog.setFileMode(QFileDialog::ExistingFile);
    sayWords(dialog, "replace_picture_file", "kExport_choose");
    return answerOf(dialog);
}

} // namespace zdt
