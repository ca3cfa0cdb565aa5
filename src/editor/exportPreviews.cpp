#include "editor/exportPreviews.h"

#include "editor/exportValues.h"
#include "editor/previewCard.h"
#include "editor/stateLine.h"
#include "kit/controlSearch.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/progressDialog.h"
#include "kit/workbench.h"
#include "model/fileResNode.h"
#include "model/template.h"
#include "store/themeLayout.h"
#include "support/files.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>
#include <optional>

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
    , _drawn(FindControl<StateLine>(&page, "previewsDrawn")) {
    FindControl<QScrollArea>(&page, "ResEditOutPutThemeList").setWidget(_board);
    // What asks waits until the card is done with its mouse and its drop: the answer may take the card away, and the
    // program that a file comes from waits.
    connect(_board, &PreviewBoard::replaceAsked, this, &ExportPreviews::askReplace, Qt::QueuedConnection);
    connect(_board, &PreviewBoard::removeAsked, this, &ExportPreviews::askRemove, Qt::QueuedConnection);
    connect(_board, &PreviewBoard::filesDropped, this, &ExportPreviews::takeFiles, Qt::QueuedConnection);
    connect(&FindControl<QPushButton>(&page, "drawPreviews"), &QPushButton::clicked, this, [this] {
        if (!_isLocked)
            refresh();
    });
    connect(&_pictures, &PreviewPictures::measured, this, &ExportPreviews::measured);
    connect(&_pictures, &PreviewPictures::ready, this, &ExportPreviews::showPicture);
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

void ExportPreviews::queue(std::function<void()> start) {
    _waiting.push_back({_bench.themeSerial(), std::move(start)});
    startNext();
}

void ExportPreviews::startNext() {
    while (!_work.isBusy() && !_waiting.empty()) {
        const Waiting next = std::move(_waiting.front());
        _waiting.pop_front();
        if (_bench.theme() && next.theme == _bench.themeSerial())
            next.start();
    }
}

void ExportPreviews::run(std::function<Result()> work) {
    _work.start(std::move(work), [this, round = _round, theme = _bench.themeSerial()](const Result& result) {
        if (round == _round && theme == _bench.themeSerial())
            result();
        startNext();
    });
}

void ExportPreviews::refresh() {
    if (!_bench.theme())
        return clear();
    _madeCount = -1;
    list();
    if (std::exchange(_drawingWaits, _bench.themeSerial()) != _bench.themeSerial())
        queue([this] { startDrawing(); });
}

void ExportPreviews::startDrawing() {
    _drawingWaits = 0;
    const std::shared_ptr<QTemporaryDir> folder = workPlace();
    const std::string source = _bench.theme()->getValue(previewKey, unlockPreview);
    run([this, folder, source, wanted = targets()] {
        // The folder stays until its pictures are stored.
        return
            [this, folder, pictures = renderPreviews(source, wanted, folderPath(*folder))] { storeDrawing(pictures); };
    });
}

void ExportPreviews::finish() {
    while (_work.isBusy()) {
        ZProgressDialog progress(Text("kExport_drawing"), _page.window());
        static_cast<void>(progress.run([wait = _work.waiter()](const Progress&) {
            wait();
            return true;
        }));
    }
}

void ExportPreviews::drop() {
    ++_round;
    _waiting.clear();
    _drawingWaits = 0;
}

void ExportPreviews::clear() {
    _pictures.restart();
    _board->setSections({});
    _madeCount = -1;
    retell();
}

void ExportPreviews::storeDrawing(const std::vector<RenderedPicture>& pictures) {
    _targetCount = static_cast<int>(pictures.size());
    _madeCount = 0;
    for (const RenderedPicture& picture : pictures) {
        const bool isNew = picture.isMade && !picture.file.empty();
        const bool isStored = isNew && _bench.theme()->setValue(previewKey, picture.name, picture.file) == 0;
        _madeCount += isNew ? isStored : picture.isMade;
        _hasChanged = _hasChanged || isStored;
    }
    list();
    emit changed();
}

void ExportPreviews::list() {
    // Of another theme nothing stays, not even until its pictures are read.
    if (std::exchange(_listed, _bench.themeSerial()) != _bench.themeSerial())
        _board->setSections({});
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

void ExportPreviews::showPicture(const QString& name, const QImage& picture, bool isOwn) {
    PreviewCard* card = _board->card(name);
    if (!card)
        return;
    const std::optional<NumberedPreview> numbered = numberedPreview(name.toStdString());
    card->setPicture(picture);
    card->setOwn(isOwn);
    card->setRemovable(isOwn && numbered && numbered->number > 0);
}

void ExportPreviews::askReplace(const QString& name) {
    if (_isLocked || !_bench.theme())
        return;
    const std::uint64_t theme = _bench.themeSerial();
    const QString filter = Text("kExport_pictures_filter") + " (*.jpg *.png)";
    const QString file = pictureChoice.file(_page.window(), Text("replace_picture_file"), filter);
    if (!file.isEmpty() && theme == _bench.themeSerial())
        replace(name, file);
}

void ExportPreviews::askRemove(const QString& name) {
    if (_isLocked || !_bench.theme())
        return;
    const std::uint64_t theme = _bench.themeSerial();
    if (!askYesNo(_page.window(), "kExport_remove_question", {}, true) || theme != _bench.themeSerial())
        return;
    const int code = _bench.theme()->deletePreview(_bench.theme()->getValue(previewKey, name.toStdString()));
    if (code != 0)
        return tellNote(_page.window(), "kProblem_" + QString::number(-code));
    _hasChanged = true;
    list();
    emit changed();
}

void ExportPreviews::takeFiles(const QString& name, const QStringList& files) {
    if (_isLocked)
        return;
    if (files.size() == 1)
        replace(name, files.front());
    else
        tellNote(_page.window(), "kExport_drop_one");
}

void ExportPreviews::takeDropped(const QStringList& files) {
    if (files.isEmpty() || _isLocked)
        return;
    if (_board->current().isEmpty())
        return tellNote(_page.window(), "kExport_drop_where");
    takeFiles(_board->current(), files);
}

void ExportPreviews::replace(const QString& name, const QString& file) {
    if (!_isLocked && _bench.theme())
        queue([this, name, file] { startUpload(name, file); });
}

void ExportPreviews::startUpload(const QString& name, const QString& file) {
    const PreviewTarget target{name.toStdString(), isTall(*_bench.theme())};
    const std::shared_ptr<QTemporaryDir> folder = workPlace();
    run([this, name, target, folder, path = file.toStdString()] {
        return [this, name, folder, prepared = preparePreview(path, target, folderPath(*folder))] {
            storeUpload(name, prepared);
        };
    });
}

int ExportPreviews::storePicture(const std::string& name, const std::string& file) {
    ThemeResource& theme = *_bench.theme();
    const std::optional<NumberedPreview> numbered = numberedPreview(name);
    if (theme.findLeaf(previewKey, name) || !numbered)
        return theme.setValue(previewKey, name, file);
    std::string path;
    return theme.setPreview(file, numbered->prefix, numbered->number, path);
}

void ExportPreviews::storeUpload(const QString& name, const PreparedPreview& prepared) {
    if (!prepared.message.empty())
        return tellNote(_page.window(), QString::fromStdString(prepared.message));
    const int code = storePicture(name.toStdString(), prepared.file);
    if (code != 0)
        return tellNote(_page.window(), "kProblem_" + QString::number(-code));
    _hasChanged = true;
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
    std::ptrdiff_t all = 0;
    for (const PreviewSection& section : _board->sections())
        all += std::count_if(section.pictures.begin(), section.pictures.end(),
                             [](const PreviewPicture& picture) { return !picture.isSpare; });
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
    _drawn.tell(areAllMade ? "ok" : "warn", result);
}

void ExportPreviews::retell() {
    _board->retell();
    sayReady();
    sayDrawn();
}

} // namespace zdt
