#include "canvas/drawPictrue.h"
#include "canvas/phoneView.h"
#include "canvas/previewComposition.h"
#include "editor/batchUpload.h"
#include "editor/codeWords.h"
#include "editor/colorAndPictureManagerPage.h"
#include "editor/colorAndPictureSetPage.h"
#include "editor/pictureSet.h"
#include "editor/pictureTable.h"
#include "editor/pictureUpload.h"
#include "editor/previewCapture.h"
#include "editor/screenParts.h"
#include "editor/screenPictures.h"
#include "kit/localisation.h"
#include "kit/messageBoxDlg.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/skinFolder.h"
#include "model/returnCode.h"

#include <QFileInfo>

/// What the author does with the pictures of a screen.
namespace zdt {

void CColorAndPictureManagerPage::connectBatch() {
    connect(_batch.get(), &BatchUpload::finished, this, [this] {
        for (int index = 0; index < screenCount(); ++index)
            fillPictures(index);
        emit edited();
    });
    connect(_batch.get(), &BatchUpload::replaced, this, &CColorAndPictureManagerPage::entryChanged);
    _batch->pictureChanged = [this](const std::string& name, const std::string& path) {
        return OnPictureChanged(_screen, name, path);
    };
}

int CColorAndPictureManagerPage::OnPictureChanged(int /*preview*/, const std::string& /*name*/,
                                                  const std::string& /*path*/) {
    return returnCode::success;
}

void CColorAndPictureManagerPage::showAsGrid(bool isGrid) {
    _isGrid = isGrid;
    for (const View& view : _views) {
        if (view.set)
            view.set->setGrid(isGrid);
    }
}

ScreenPictures* CColorAndPictureManagerPage::makePictures(const Screen& screen, CColorAndPictureSetPage& set) {
    auto* pictures =
        new ScreenPictures(QString::fromStdString(_module), QString::fromStdString(std::string(screen.name)),
                           bench().notifications(), &set);
    for (PictureSet* each : pictures->sets()) {
        connect(each, &PictureSet::uploadRequested, this, &CColorAndPictureManagerPage::choosePicture);
        connect(each, &PictureSet::saveRequested, this, &CColorAndPictureManagerPage::savePicture);
        connect(each, &PictureSet::resetRequested, this, &CColorAndPictureManagerPage::resetEntry);
        connect(each, &PictureSet::dropped, this, [this](const PictureEntry& entry, const QStringList& files) {
            uploadPictureFile(entry, files.value(0));
        });
        connect(each, &PictureSet::batchDropped, _batch.get(), &BatchUpload::start);
        connect(each, &PictureSet::hovered, this,
                [this, each] { bench().notifications().SendNotify(each, notify::Notify_Pic_Hint); });
        connect(each, &PictureSet::chosen, this, &CColorAndPictureManagerPage::pulsePicture);
        connect(each, &PictureSet::unhovered, this,
                [this, each] { bench().notifications().SendNotify(each, notify::Notify_Pic_Hint_Reset); });
        connect(each, &PictureSet::filterCleared, &set, &CColorAndPictureSetPage::clearFilter);
    }
    connect(&set, &CColorAndPictureSetPage::filesDropped, _batch.get(), &BatchUpload::start);
    return pictures;
}

void CColorAndPictureManagerPage::fillPictures(int index) {
    const View& each = _views[static_cast<std::size_t>(index)];
    if (!theme() || !each.set)
        return;
    std::vector<PictureGroup> groups = pictureGroupsOf(*theme(), _module, each.screen->name);
    _batch->markEntries(groups);
    each.set->showPictures(groups);
}

void CColorAndPictureManagerPage::hintPicture(const std::string& key) {
    if (!hasScreen() || !isVisible())
        return;
    pointAt(key);
    for (int index = 0; index < screenCount(); ++index) {
        const auto& composition = _views[static_cast<std::size_t>(index)].composition;
        _strip.setMarked(index, composition && !composition->partsOf(key).empty());
    }
}

void CColorAndPictureManagerPage::clearPictureHint() {
    pointAtNothing();
    for (int index = 0; index < _strip.count(); ++index)
        _strip.setMarked(index, false);
}

void CColorAndPictureManagerPage::pulsePicture(const QString& key) {
    if (hasScreen() && isVisible() && view().composition)
        _phone->picture().pulseParts(view().composition->partsOf(key.toStdString()));
}

void CColorAndPictureManagerPage::choosePicture(const PictureEntry& entry) {
    const std::uint64_t serial = bench().themeSerial();
    const QString path = pictureChoice.file(window(), Text("kBatch_choose_one"), pictureFilter(entry.isNinePatch()));
    if (serial == bench().themeSerial() && !path.isEmpty())
        uploadPictureFile(entry, path);
}

void CColorAndPictureManagerPage::uploadPictureFile(PictureEntry entry, const QString& path) {
    if (!theme() || !QFileInfo::exists(path))
        return;
    const UploadResult uploaded = _batch->upload(window(), entry, path.toStdString());
    if (uploaded.isStored)
        entryChanged(entry);
    else if (!uploaded.refusal.isNone())
        tellNote(window(), uploaded.refusal.message, uploaded.refusal.arguments);
}

void CColorAndPictureManagerPage::resetEntry(PictureEntry entry) {
    if (!theme())
        return;
    const std::uint64_t serial = bench().themeSerial();
    if (!askYesNo(window(), "kList_reset_question", {QString::fromStdString(entry.name)}, true))
        return;
    if (!theme() || serial != bench().themeSerial())
        return;
    if (const int code = resetPicture(*theme(), entry, _batch->pictureChanged))
        return tellNote(window(), codeKey(code));
    _batch->forget(entry);
    entryChanged(entry);
}

void CColorAndPictureManagerPage::savePicture(const PictureEntry& entry) {
    const QString path = pictureChoice.save(window(), Text("kPicture_save"), pictureFilter(entry.isNinePatch()),
                                            QString::fromStdString(entry.name));
    if (path.isEmpty())
        return;
    const PictureRefusal refusal = savePictureAs(entry, path.toStdString());
    if (!refusal.isNone())
        tellNote(window(), refusal.message, refusal.arguments);
}

void CColorAndPictureManagerPage::entryChanged(const PictureEntry& entry) {
    for (const View& view : _views) {
        if (view.set)
            view.set->pictures()->updateEntry(entry);
    }
    pictureChanged(entry.key());
}

void CColorAndPictureManagerPage::pictureChanged(const std::string& key) {
    if (!theme() || !hasScreen())
        return;
    for (View& each : _views) {
        if (each.composition)
            each.composition->setPicture(key, pictureOf(*theme(), key));
    }
    _phone->picture().refresh();
    _stripTimer.start();
    emit edited();
    bench().notifications().SendNotify(this, notify::Notify_Error_List_refresh);
}

void CColorAndPictureManagerPage::captureScreen() {
    if (!theme() || !hasScreen() || !hasCapture(_module))
        return;
    const PreviewCapture capture =
        capturePreview(*theme(), workspaceFolder(), _module, _screen, composition(_screen).frame());
    if (!capture.message.isEmpty())
        ZMessageBoxDlg::tell({capture.stored ? ZMessageBoxDlg::Kind::Success : ZMessageBoxDlg::Kind::Warning,
                              "kDialog_Title_Desc_Info",
                              capture.message,
                              {},
                              "kConfirm",
                              {}},
                             Text, window());
    if (!capture.stored)
        return;
    emit edited();
    bench().notifications().SendNotify(this, notify::Notify_Error_List_refresh);
}

} // namespace zdt
