#include "editor/batchUpload.h"

#include "editor/batchCompile.h"
#include "editor/batchDialog.h"
#include "editor/batchWords.h"
#include "editor/pictureTable.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/progressDialog.h"
#include "kit/skinFolder.h"
#include "kit/workbench.h"
#include "support/files.h"

#include <QTemporaryDir>

#include <utility>

namespace zdt {

namespace {

/// Of the progress, what compiling takes where there is something to compile.
constexpr double compilingShare = 0.7;
/// Milliseconds between two looks at whether the author cancelled.
constexpr int cancelStep = 50;

std::string compileFolder() {
    const std::string folder = workspaceFolder() + "Temp9Png/";
    static_cast<void>(makePath(folder));
    return folder;
}

} // namespace

/// A batch that is under way.
struct BatchUpload::Work {
    std::vector<std::string> given;
    std::vector<PictureGroup> groups;
    std::vector<BatchFile> files;
    std::vector<BatchMatch> matched;
    std::size_t leftOut = 0;
};

BatchUpload::BatchUpload(Workbench& bench, std::string module, QWidget& page)
    : _bench(bench)
    , _module(std::move(module))
    , _page(page) {
    _bench.notifications().AddNotifier(*this);
}

BatchUpload::~BatchUpload() = default;

void BatchUpload::askFiles() {
    const std::uint64_t theme = _bench.themeSerial();
    const QStringList files = pictureChoice.files(_page.window(), Text("kBatch_choose"), pictureFilter(false));
    if (theme == _bench.themeSerial())
        start(files);
}

void BatchUpload::tellHow() {
    ZMessageBoxDlg::tell(
        {ZMessageBoxDlg::Kind::Info, "kDialog_Title_Desc_Info", "kCommon_upload_picture_info", {}, "kConfirm", {}},
        Text, _page.window());
}

void BatchUpload::start(const QStringList& files) {
    if (_isBusy || files.isEmpty() || !_bench.theme())
        return;
    _pendingFiles = files;
    _theme = _bench.themeSerial();
    _bench.notifications().SendNotify(this, notify::Notify_Drag_File_Simple, compiling, 0, true);
}

void BatchUpload::Notify(const Notification& message) {
    if (message.name == notify::Reload_history_themes)
        forgetAll();
    if (message.sender != this)
        return;
    if (message.name == notify::Notify_Drag_File_Simple_9PNG)
        workerEnded(static_cast<std::size_t>(message.wParam));
    else if (message.name != notify::Notify_Drag_File_Simple)
        return;
    else if (message.wParam == storing)
        _storing.release();
    else if (!_isBusy && !_pendingFiles.isEmpty())
        // Others hear of it before it ends.
        QMetaObject::invokeMethod(this, &BatchUpload::run, Qt::QueuedConnection);
}

void BatchUpload::workerEnded(std::size_t run) {
    _workerDone[run] = true;
    if (_workerDone.size() == _runs)
        _bench.notifications().SendNotify(this, notify::Notify_Drag_File_Simple, storing);
}

void BatchUpload::run() {
    const QStringList files = std::exchange(_pendingFiles, {});
    if (_isBusy || files.isEmpty() || !_bench.theme() || _theme != _bench.themeSerial())
        return;
    const QPointer<BatchUpload> self(this);
    _isBusy = true;
    _workerDone.clear();
    _runs = 0;
    static_cast<void>(_storing.tryAcquire(_storing.available()));
    Work batch;
    for (const QString& file : files)
        batch.given.push_back(file.toStdString());
    batch.groups = pictureGroupsOf(*_bench.theme(), _module);
    bool isWhole = false;
    {
        ZProgressDialog dialog(Text("kIcon_Simple_BatchUpload_Loading"), _page.window());
        dialog.offerCancel(Text("kCancel"));
        isWhole = dialog.run([&](const Progress& progress) { return work(batch, dialog, progress); });
    }
    if (!self)
        return;
    takeResult(batch, !isWhole);
    _isBusy = false;
    _bench.notifications().SendNotify(this, notify::Notify_ReloadDataMsg, 0, 0, true);
    emit finished(_result);
    if (self)
        showResult();
}

/// On the thread of the progress dialog. The theme is touched on the interface thread alone.
bool BatchUpload::work(Work& batch, ZProgressDialog& dialog, const Progress& progress) {
    const QPointer<QObject> self(this);
    const QTemporaryDir folder(QString::fromStdString(compileFolder()) + "many-XXXXXX");
    std::vector<std::string> files = expandFiles(batch.given);
    batch.leftOut = cutToBatch(files);
    batch.files = planBatch(files, _module, batch.groups);
    const std::vector<std::size_t> patches = ninePatchesOf(batch.files);
    _runs = patches.empty() ? 0 : workerCount(patches.size());
    BatchCompiling with{compiler, folder.path().toStdString() + "/", &dialog.cancelFlag(), [&](std::size_t run) {
                            _bench.notifications().SendNotifyFrom(self, notify::Notify_Drag_File_Simple_9PNG,
                                                                  static_cast<std::intptr_t>(run));
                        }};
    if (!compileBatch(batch.files, patches, with, [&](double done) { progress(done * compilingShare); }))
        return false;
    if (patches.empty())
        _bench.notifications().SendNotifyFrom(self, notify::Notify_Drag_File_Simple, storing);
    if (!waitForStoring(dialog))
        return false;
    const double begin = patches.empty() ? 0 : compilingShare;
    for (std::size_t at = 0; at < batch.files.size(); ++at) {
        if (dialog.cancelRequested())
            return false;
        if (batch.files[at].isFit())
            QMetaObject::invokeMethod(
                this, [&] { storeOne(batch, batch.files[at]); }, Qt::BlockingQueuedConnection);
        progress(begin + (1 - begin) * static_cast<double>(at + 1) / static_cast<double>(batch.files.size()));
    }
    return true;
}

bool BatchUpload::waitForStoring(const ZProgressDialog& dialog) {
    while (!dialog.cancelRequested()) {
        if (_storing.tryAcquire(1, cancelStep))
            return true;
    }
    return false;
}

void BatchUpload::storeOne(Work& batch, BatchFile& file) {
    PictureEntry* entry = findEntry(batch.groups, file.key);
    if (!entry || !_bench.theme() || _theme != _bench.themeSerial()) {
        file.state = BatchState::unreadable;
        return;
    }
    const bool wasOwn = hasOwnPicture(*entry);
    file.state = stateOfCode(storePicture(*_bench.theme(), *entry, file.file, pictureChanged).code());
    if (file.state == BatchState::fine)
        batch.matched.push_back({file.key, file.path, wasOwn});
}

void BatchUpload::takeResult(const Work& batch, bool cancelled) {
    _result = {};
    _result.matched = batch.matched;
    _result.leftOut = batch.leftOut;
    _result.cancelled = cancelled;
    _result.refused = refusalsOf(_module, batch.files);
    _groups = batch.groups;
    const bool isSameTheme = _bench.theme() && _theme == _bench.themeSerial();
    for (const BatchRefusal& refusal : _result.refused) {
        _result.typeMismatches += refusal.file.state == BatchState::wrongType ? 1 : 0;
        if (refusal.file.isClaimed() && isSameTheme)
            problemFiles[refusal.file.key] = refusal;
    }
    for (const BatchMatch& match : _result.matched) {
        problemFiles.erase(match.key);
        PictureEntry* entry = isSameTheme ? findEntry(_groups, match.key) : nullptr;
        if (!entry)
            continue;
        uploadedFiles[entry->key()] = match.path;
        refreshEntry(*_bench.theme(), *entry);
    }
    markEntries(_groups);
}

void BatchUpload::showResult() {
    if (_result.cancelled && _result.matched.empty())
        return;
    if (_result.refused.empty()) {
        const auto words = [this](const QString& key) {
            return key == "kIcon_Simple_BatchUpload_Situation" ? situationText(_result) : Text(key);
        };
        ZMessageBoxDlg::tell({ZMessageBoxDlg::Kind::Success,
                              "kDialog_Title_Desc_Info",
                              "kIcon_Simple_BatchUpload_Situation",
                              {},
                              "kConfirm",
                              {}},
                             words, _page.window());
        return;
    }
    int answer = BatchDialog::done;
    try {
        BatchDialog dialog(_bench, _result, _page.window());
        connect(&dialog, &BatchDialog::anotherAsked, this, [&](int index) { chooseAnother(dialog, index); });
        connect(&dialog, &BatchDialog::placeAsked, this,
                [&](int index, const QPoint& position) { choosePlace(dialog, index, position); });
        answer = dialog.exec();
        _result = dialog.result();
    } catch (const LayoutError& error) {
        tellNote(_page.window(), "kWindow_layout_damaged", {QString::fromUtf8(error.what())});
    }
    if (answer == BatchDialog::showProblems)
        listProblems();
    else if (answer == BatchDialog::uploadMore)
        askFiles();
}

void BatchUpload::listProblems() {
    const std::vector<Problem> problems = problemsOf(_result, _groups);
    _bench.notifications().SendNotify(this, notify::Notify_Error_List_Msg, 0,
                                      reinterpret_cast<std::intptr_t>(&problems));
}

void BatchUpload::markEntries(std::vector<PictureGroup>& groups) const {
    for (PictureGroup& group : groups) {
        for (PictureEntry& entry : group.entries) {
            const auto given = uploadedFiles.find(entry.key());
            entry.uploadedPath = given == uploadedFiles.end() ? std::string() : given->second;
        }
    }
    for (const auto& [name, refusal] : problemFiles) {
        if (PictureEntry* entry = findEntry(groups, name)) {
            entry->failed = true;
            entry->error = refusalWords(refusal);
        }
    }
}

void BatchUpload::forget(const PictureEntry& entry) {
    problemFiles.erase(entry.name);
    uploadedFiles.erase(entry.key());
}

void BatchUpload::forgetAll() {
    problemFiles.clear();
    uploadedFiles.clear();
}

} // namespace zdt
