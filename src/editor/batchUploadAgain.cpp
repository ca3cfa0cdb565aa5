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

namespace {

constexpr const char* pngPattern = " (*.png)";
constexpr const char* ninePatchPattern = " (*.9.png)";

} // namespace

PictureRefusal BatchUpload::replaceOne(PictureEntry& entry, const std::string& path) {
    PreparedPicture prepared;
    const std::string workspace = workspaceFolder();
    const auto prepare = [&] { prepared = preparePicture(entry, path, compiler, workspace); };
    if (entry.isNinePatch()) {
        ZProgressDialog dialog(Text("kIcon_Simple_BatchUpload_Loading"), _page.window());
        static_cast<void>(dialog.run([&](const Progress&) {
            prepare();
            return true;
        }));
    } else {
        prepare();
    }
    if (!_bench.theme() || _theme != _bench.themeSerial())
        return {"kBatch_reason_41", {}};
    return finishUpload(*_bench.theme(), entry, path, prepared, pictureChanged);
}

void BatchUpload::chooseAnother(BatchDialog& dialog, int index) {
    const BatchFile file = dialog.result().refused[static_cast<std::size_t>(index)].file;
    PictureEntry* entry = findEntry(_groups, file.key);
    if (!entry)
        return;
    const QString pattern = entry->isNinePatch() ? ninePatchPattern : pngPattern;
    const QString path = pictureChoice.file(&dialog, Text("kBatch_choose_one"), Text("kBatch_filter") + pattern);
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
    const PictureRefusal refusal = replaceOne(entry, path);
    if (!refusal.isNone()) {
        QString words = Text(refusal.message);
        for (const QString& argument : refusal.arguments)
            words = words.arg(argument);
        return dialog.setReason(index, words);
    }
    problemFiles.erase(entry.name);
    dialog.setStored(index, {entry.name, path, wasOwn});
    emit replaced(QString::fromStdString(entry.name));
}

} // namespace zdt
