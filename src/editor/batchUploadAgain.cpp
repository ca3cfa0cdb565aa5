#include "editor/batchDialog.h"
#include "editor/batchUpload.h"
#include "editor/pictureTable.h"
#include "kit/localisation.h"
#include "kit/progressDialog.h"
#include "kit/skinFolder.h"
#include "kit/workbench.h"

#include <QMenu>

/// What the summary of a batch offers for a refused file.
namespace zdt {

UploadResult BatchUpload::upload(QWidget* window, PictureEntry& entry, const std::string& path) {
    const std::uint64_t serial = _bench.themeSerial();
    PreparedPicture prepared;
    {
        ZProgressDialog dialog(Text("kIcon_Simple_BatchUpload_Loading"), window);
        dialog.showLate();
        static_cast<void>(dialog.run([&](const Progress&) {
            prepared = preparePicture(entry, path, compiler, workspaceFolder());
            return true;
        }));
    }
    if (!_bench.theme() || serial != _bench.themeSerial())
        return {};
    UploadResult result = finishUpload(*_bench.theme(), entry, path, prepared, pictureChanged);
    if (result.isStored) {
        problemFiles.erase(entry.name);
        uploadedFiles[entry.key()] = path;
    }
    return result;
}

void BatchUpload::chooseAnother(BatchDialog& dialog, int index) {
    const BatchFile file = dialog.result().refused[static_cast<std::size_t>(index)].file;
    PictureEntry* entry = findEntry(_groups, file.key);
    if (!entry)
        return;
    const QString path = pictureChoice.file(&dialog, Text("kBatch_choose_one"), pictureFilter(entry->isNinePatch()));
    if (path.isEmpty())
        return;
    replaceRefused(dialog, index, *entry, path.toStdString());
}

void BatchUpload::choosePlace(BatchDialog& dialog, int index, const QPoint& position) {
    const std::string path = dialog.result().refused[static_cast<std::size_t>(index)].file.path;
    QMenu menu(&dialog);
    for (PictureGroup& group : _groups) {
        QMenu* places = nullptr;
        for (PictureEntry& entry : group.entries) {
            if (entry.isNinePatch() != path.ends_with(".9.png"))
                continue;
            places = places ? places : menu.addMenu(group.title);
            places->addAction(QString::fromStdString(entry.name))->setData(QString::fromStdString(entry.name));
        }
    }
    const QAction* chosen = menu.exec(position);
    PictureEntry* entry = chosen ? findEntry(_groups, chosen->data().toString().toStdString()) : nullptr;
    if (entry)
        replaceRefused(dialog, index, *entry, path);
}

void BatchUpload::replaceRefused(BatchDialog& dialog, int index, PictureEntry& entry, const std::string& path) {
    const bool wasOwn = hasOwnPicture(entry);
    const bool isSameTheme = _bench.theme() && _theme == _bench.themeSerial();
    const UploadResult uploaded = isSameTheme ? upload(_page.window(), entry, path) : UploadResult();
    if (!uploaded.isStored) {
        QString words = Text(uploaded.refusal.isNone() ? "kBatch_reason_41" : uploaded.refusal.message);
        for (const QString& argument : uploaded.refusal.arguments)
            words = words.arg(argument);
        return dialog.setReason(index, words);
    }
    dialog.setStored(index, {entry.name, path, wasOwn});
    emit replaced(entry);
}

} // namespace zdt
