#include "editor/exportPreviews.h"

#include "editor/exportValues.h"
#include "editor/previewCard.h"
#include "editor/stateLine.h"
#include "kit/controlSearch.h"
#include "kit/localisation.h"
#include "kit/messageBoxDlg.h"
#include "kit/workbench.h"
#include "model/fileResNode.h"
#include "model/template.h"
#include "store/themeLayout.h"
#include "support/files.h"

#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardPaths>

#include <algorithm>

namespace zdt {

namespace {

const KeyPath previewKey{"preview"};
constexpr const char* unlockPreview = "preview_unlock_0.jpg";
constexpr QSize pictureBounds(96, 192);

bool isTall(const ThemeResource& theme) {
    return theme.version() == generation9Index;
}

QSize sizeOfPreview(const std::string& name, bool tall) {
    const SizeRange range = previewSize(name, tall);
    return {static_cast<int>(range.minWidth), static_cast<int>(range.minHeight)};
}

QString sizeText(const QSize& size) {
    return QString("%1*%2").arg(size.width()).arg(size.height());
}

/// Empty if the folder couldn't be made.
std::string folderPath(const QTemporaryDir& folder) {
    return folder.isValid() ? folder.path().toStdString() + "/" : std::string();
}

} // namespace

ExportPreviews::ExportPreviews(Workbench& bench, QWidget& page)
    : _bench(bench)
    , _page(page)
    , _board(new PreviewBoard)
    , _ready(FindControl<QLabel>(&page, "previewsReady"))
    , _drawn(FindControl<StateLine>(&page, "previewsDrawn"))
    , _lastFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)) {
    FindControl<QScrollArea>(&page, "ResEditOutPutThemeList").setWidget(_board);
    connect(_board, &PreviewBoard::replaceAsked, this, &ExportPreviews::askReplace);
    connect(_board, &PreviewBoard::filesDropped, this, &ExportPreviews::takeFiles);
    connect(&FindControl<QPushButton>(&page, "drawPreviews"), &QPushButton::clicked, this, &ExportPreviews::refresh);
    connect(&_pictures, &PreviewPictures::measured, this, &ExportPreviews::measured);
    connect(&_pictures, &PreviewPictures::ready, this, [this](const QString& name, const QImage& picture, bool isOwn) {
        if (PreviewCard* card = _board->card(name)) {
            card->setPicture(picture);
            card->setOwn(isOwn);
        }
    });
}

ExportPreviews::~ExportPreviews() = default;

std::shared_ptr<QTemporaryDir> ExportPreviews::workPlace() const {
    const std::string work = workFolder(_bench.root());
    static_cast<void>(makePath(work));
    return std::make_shared<QTemporaryDir>(QString::fromStdString(work) + "previews-XXXXXX");
}

std::vector<RenderTarget> ExportPreviews::targets() const {
    std::vector<RenderTarget> targets;
    for (const auto& [name, file] : _bench.theme()->childPairs(previewKey)) {
        if (isProtectedPreview(name))
            targets.push_back({name, sizeOfPreview(name, isTall(*_bench.theme())), file});
    }
    return targets;
}

void ExportPreviews::refresh() {
    finish();
    if (!_bench.theme())
        return clear();
    _madeCount = -1;
    list();
    const std::shared_ptr<QTemporaryDir> folder = workPlace();
    const std::string source = _bench.theme()->getValue(previewKey, unlockPreview);
    _drawing.start(
        [folder, source, wanted = targets(), theme = _bench.theme()->name()] {
            return Drawing{renderPreviews(source, wanted, folderPath(*folder)), folder, theme};
        },
        [this](const Drawing& drawing) { storeDrawing(drawing); });
}

void ExportPreviews::finish() {
    _upload.finish();
    _drawing.finish();
}

void ExportPreviews::clear() {
    _pictures.restart();
    _board->setSections({});
    _madeCount = -1;
    retell();
}

void ExportPreviews::storeDrawing(const Drawing& drawing) {
    ThemeResource* theme = _bench.theme();
    if (!theme || theme->name() != drawing.theme)
        return;
    _targetCount = static_cast<int>(drawing.pictures.size());
    _madeCount = 0;
    for (const RenderedPicture& picture : drawing.pictures) {
        const bool isStored =
            picture.isMade && (picture.file.empty() || theme->setValue(previewKey, picture.name, picture.file) == 0);
        _madeCount += isStored;
    }
    list();
    emit changed();
}

void ExportPreviews::list() {
    const ThemeResource& theme = *_bench.theme();
    _board->setSections(previewSections(theme.childPairs(previewKey), theme.version(), hasReducedPreviews(theme)));
    readPictures();
    _pictures.measure(theme.name(), _bench.root());
    sayReady();
    sayDrawn();
}

void ExportPreviews::readPictures() {
    const ThemeResource& theme = *_bench.theme();
    const std::string templates =
        theme.version() == unknownGeneration ? std::string() : locateTemplate(_bench.root(), theme.version());
    _pictures.restart();
    for (const PreviewSection& section : _board->sections()) {
        for (const PreviewPicture& picture : section.pictures) {
            const QString name = QString::fromStdString(picture.name);
            PreviewCard* card = _board->card(name);
            card->setSizeText(sizeText(sizeOfPreview(picture.name, isTall(theme))));
            const bool isEmpty = picture.file.empty();
            isEmpty ? card->setEmpty() : card->setLoading();
            const bool isCompared = !section.isDrawn && !templates.empty();
            if (!isEmpty)
                _pictures.read({name, picture.file,
                                isCompared ? templateFile(templates, "preview/" + picture.name) : std::string(),
                                pictureBounds * _page.devicePixelRatioF()});
        }
    }
}

void ExportPreviews::askReplace(const QString& name) {
    const QString file = choosePicture(_page.window(), _lastFolder);
    if (file.isEmpty())
        return;
    _lastFolder = QFileInfo(file).path();
    replace(name, file);
}

void ExportPreviews::takeFiles(const QString& name, const QStringList& files) {
    if (files.size() == 1)
        replace(name, files.front());
    else
        warn("kExport_drop_one");
}

void ExportPreviews::takeDropped(const QStringList& files) {
    if (files.isEmpty())
        return;
    if (_board->current().isEmpty())
        return warn("kExport_drop_where");
    takeFiles(_board->current(), files);
}

void ExportPreviews::replace(const QString& name, const QString& file) {
    finish();
    const ThemeResource* theme = _bench.theme();
    if (!theme)
        return;
    const PreviewTarget target{name.toStdString(), isTall(*theme)};
    const std::shared_ptr<QTemporaryDir> folder = workPlace();
    _upload.start(
        [name, target, folder, path = file.toStdString(), themeName = theme->name()] {
            return Upload{name, preparePreview(path, target, folderPath(*folder)), folder, themeName};
        },
        [this](const Upload& upload) { storeUpload(upload); });
}

void ExportPreviews::storeUpload(const Upload& upload) {
    ThemeResource* theme = _bench.theme();
    if (!theme || theme->name() != upload.theme)
        return;
    if (!upload.prepared.message.empty())
        return warn(QString::fromStdString(upload.prepared.message));
    const std::string name = upload.name.toStdString();
    const int code = theme->setValue(previewKey, name, upload.prepared.file);
    if (code != 0)
        return warn("kProblem_" + QString::number(-code));
    if (name == unlockPreview)
        return refresh();
    list();
    emit changed();
}

int ExportPreviews::readyCount() const {
    int count = 0;
    for (const PreviewSection& section : _board->sections())
        count += static_cast<int>(std::count_if(section.pictures.begin(), section.pictures.end(),
                                                [](const PreviewPicture& picture) { return !picture.file.empty(); }));
    return count;
}

void ExportPreviews::sayReady() {
    if (!_bench.theme() || _board->sections().empty())
        return _ready.clear();
    std::size_t all = 0;
    for (const PreviewSection& section : _board->sections())
        all += section.pictures.size();
    const QString share = QString("%1/%2").arg(readyCount()).arg(all);
    _ready.setText(TextWith("kExport_ready", share) + ", " + sizeText(uploadSize(isTall(*_bench.theme()))));
}

void ExportPreviews::sayDrawn() {
    if (_madeCount < 0)
        return _drawn.tell({}, {});
    const bool areAllMade = _madeCount == _targetCount;
    const QString result = areAllMade
                               ? TextWith("kTransformation_lock_picture_wallpapers_batch_result_suc", 0)
                               : TextWith("kTransformation_lock_picture_time_cut_batch_upload_result", _madeCount);
    _drawn.tell(areAllMade ? "ok" : "warn", TextWith("kExport_drawing_ended", result));
}

void ExportPreviews::retell() {
    _board->retell();
    sayReady();
    sayDrawn();
}

void ExportPreviews::warn(const QString& key) {
    ZMessageBoxDlg::tell({ZMessageBoxDlg::Kind::Warning, "kDialog_Title_Waning_Info", key, {}, "kConfirm", {}, false},
                         Text, _page.window());
}

} // namespace zdt
