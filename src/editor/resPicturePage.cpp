#include "editor/resPicturePage.h"

#include "editor/frameIntake.h"
#include "editor/previewCard.h"
#include "kit/flowView.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/progressDialog.h"
#include "kit/skinFolder.h"
#include "kit/workbench.h"
#include "packaging/frameList.h"
#include "packaging/pictureCheck.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr const char* framePattern = " (*.png *.jpg *.gif)";
constexpr const char* stillPattern = " (*.png *.jpg)";

} // namespace

ZResPicturePage::ZResPicturePage(Workbench& bench, const QString& key, QWidget* parent)
    : QWidget(parent)
    , _bench(bench)
    , _source(new CPictureViewDataSource(key, this))
    , _view(new ZFlowView(this)) {
    setAcceptDrops(true);
    setFocusProxy(_view);
    _view->setObjectName(key + "_view");
    _view->setSource(_source);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_view);
    // Each may take the cell away that it comes from.
    const auto late = Qt::QueuedConnection;
    connect(_source, &CPictureViewDataSource::addClicked, this, &ZResPicturePage::askFiles, late);
    connect(_source, &CPictureViewDataSource::replaceClicked, this, &ZResPicturePage::replace, late);
    connect(_source, &CPictureViewDataSource::deleteClicked, this, &ZResPicturePage::remove, late);
    connect(_source, &CPictureViewDataSource::checkClicked, this, &ZResPicturePage::pictureChosen, late);
    connect(_view, &ZFlowView::activated, this, &ZResPicturePage::activate);
    _bench.notifications().AddNotifier(*this);
    rebuild();
}

ZResPicturePage::~ZResPicturePage() = default;

void ZResPicturePage::setFiles(const std::vector<std::string>& files) {
    _files = files;
    rebuild();
}

void ZResPicturePage::setMode(int mode) {
    _mode = mode;
    rebuild();
}

void ZResPicturePage::rebuild() {
    _view->setAccessibleName(Text("kFrames_list"));
    _source->show(_files, hasRoomForFrame(_files.size(), _mode));
}

void ZResPicturePage::Notify(const Notification& message) {
    const bool isOwn = message.name == notify::Reload_Picture_Lists && message.sender == this;
    if (isOwn || message.name == notify::Notify_ReloadDataMsg)
        rebuild();
}

void ZResPicturePage::change() {
    _bench.notifications().SendNotify(this, notify::Reload_Picture_Lists);
    emit filesChanged(_files);
}

void ZResPicturePage::askFiles() {
    addFiles(pictureChoice.files(window(), Text("kFrames_add"), Text("kFrames_filter") + framePattern));
}

void ZResPicturePage::addFiles(const QStringList& files) {
    if (files.isEmpty())
        return;
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(file.toStdString());
    FrameFiles taken;
    const std::string workspace = workspaceFolder();
    const auto take = [&](const Progress& progress) {
        taken = takeFrames(paths, _files.size(), _mode, workspace, progress);
        return true;
    };
    if (paths.size() == 1 && hasGifEnding(paths.front()))
        static_cast<void>(ZProgressDialog(Text("kFrames_reading"), window()).run(take));
    else
        static_cast<void>(take({}));
    _files.insert(_files.end(), taken.frames.begin(), taken.frames.end());
    if (!taken.frames.empty())
        change();
    if (!taken.leftOut.empty())
        tellNote(window(), "kFrames_left_out", {QString::fromStdString(taken.leftOut), Text(taken.message)});
    else if (!taken.message.isEmpty())
        tellNote(window(), taken.message);
}

void ZResPicturePage::replace(int index) {
    const QString file = pictureChoice.file(window(), Text("kFrames_replace"), Text("kFrames_filter") + stillPattern);
    if (file.isEmpty() || index >= static_cast<int>(_files.size()))
        return;
    const FrameFiles taken = takeFrame(file.toStdString());
    if (taken.frames.empty())
        return tellNote(window(), taken.message);
    _files[static_cast<std::size_t>(index)] = taken.frames.front();
    change();
}

void ZResPicturePage::remove(int index) {
    if (index < 0 || index >= static_cast<int>(_files.size()))
        return;
    _files.erase(_files.begin() + index);
    change();
}

void ZResPicturePage::activate(int index) {
    if (_source->isAdding(index))
        askFiles();
    else
        emit pictureChosen(index);
}

void ZResPicturePage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete)
        remove(_view->current());
    else
        QWidget::keyPressEvent(event);
}

void ZResPicturePage::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ZResPicturePage::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QStringList files = draggedFiles(*event->mimeData());
    QMetaObject::invokeMethod(
        this, [this, files] { addFiles(files); }, Qt::QueuedConnection);
}

} // namespace zdt
