#include "editor/exportPage.h"

#include "editor/exportValues.h"
#include "editor/previewCard.h"
#include "editor/stateLine.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/progressDialog.h"
#include "store/themeLayout.h"
#include "support/files.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QUrl>

namespace zdt {

namespace {

using Box = ZMessageBoxDlg;

/// The page's own controls, known before its layout is read.
Workbench& withControls(Workbench& bench) {
    bench.layouts().registerControl("StateLine", [](QWidget* parent) { return new StateLine(parent); });
    return bench;
}

/// A count in words: the text of `key`, or of `key` and "_one".
QString countText(const QString& key, int count) {
    return TextWith(count == 1 ? key + "_one" : key, count);
}

QString megabytes(quint64 bytes) {
    constexpr double mega = 1024.0 * 1024.0;
    return QString::number(static_cast<double>(bytes) / mega, 'f', 1) + " MB";
}

const QStringList* listOf(const Notification& message) {
    return reinterpret_cast<const QStringList*>(message.lParam); // NOLINT(performance-no-int-to-ptr)
}

} // namespace

CResEditOutPutDlg::CResEditOutPutDlg(Workbench& bench, QWidget* parent)
    : ZPage(withControls(bench), "export.xml", parent)
    , showFolder([](const QString& folder) { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); })
    , _fields(*this)
    , _previews(bench, *this)
    , _size(control<QLabel>("ResOutDlgSize"))
    , _openPoints(control<StateLine>("ResOutDlgOpenPoints"))
    , _ok(control<QPushButton>("ResOutDlgOKBtn")) {
    connect(&_ok, &QPushButton::clicked, this, &CResEditOutPutDlg::tryExport);
    connect(&_fields, &ExportFields::confirmed, this, &CResEditOutPutDlg::tryExport);
    connect(&_fields, &ExportFields::checked, this, &CResEditOutPutDlg::sayFoot);
    connect(&_previews, &ExportPreviews::changed, this, &CResEditOutPutDlg::countProblems);
    connect(&_previews, &ExportPreviews::measured, this, [this](quint64 bytes) {
        _bytes = bytes;
        sayFoot();
    });
}

CResEditOutPutDlg::~CResEditOutPutDlg() = default;

void CResEditOutPutDlg::open() {
    const ThemeResource* opened = theme();
    _ok.setEnabled(opened);
    _problems = 0;
    _fields.fill(opened ? exportFormOf(*opened) : ExportForm(), opened && hasVideoLock(*opened));
    _previews.refresh();
    sayFoot();
}

void CResEditOutPutDlg::close() {
    if (_previews.takeChanged())
        emit previewsChanged();
    emit done(closed);
}

void CResEditOutPutDlg::hideEvent(QHideEvent* event) {
    ZPage::hideEvent(event);
    if (!event->spontaneous()) // A window that is only put away keeps its page.
        _previews.drop();
}

void CResEditOutPutDlg::reload() {
    _fields.setVideoLock(theme() && hasVideoLock(*theme()));
    _fields.retell();
    _previews.retell();
    sayFoot();
}

void CResEditOutPutDlg::Notify(const Notification& message) {
    ZPage::Notify(message);
    if (message.name == notify::Notify_ChangeTheme) {
        _previews.drop();
        static_cast<void>(_previews.takeChanged());
    }
    if (!theme() || _isExporting)
        return;
    if (message.name == notify::Add_Multi_Wallpaper_Notify && isVisible()) {
        _previews.refresh();
    } else if (message.name == notify::Replace_Picture_Notify && message.lParam != 0 && !message.async) {
        const QStringList& parts = *listOf(message);
        const PreviewCard* card = parts.size() == 2 ? _previews.board().card(parts[0]) : nullptr;
        if (card && !card->isDrawn())
            _previews.replace(parts[0], parts[1]);
    } else if (message.name == notify::Notify_Drag_File && message.lParam != 0 && !message.async && isVisible()) {
        _previews.takeDropped(*listOf(message));
    }
}

void CResEditOutPutDlg::tryExport() {
    if (!theme() || _isExporting)
        return;
    const QScopedValueRollback exporting(_isExporting, true);
    _exported = bench().themeSerial();
    _fields.setAsking(true);
    _previews.setLocked(true);
    Outcome outcome = Outcome::stopped;
    // What was begun fits the generation that the theme has now.
    if (isFormRight() && finishPreviews() && storeValues()) {
        outcome = writePackage();
        if (outcome == Outcome::stopped)
            emit valuesStored();
    }
    _previews.setLocked(false);
    _fields.setAsking(false);
    if (outcome == Outcome::stopped || !isThemeOpen())
        return;
    static_cast<void>(_previews.takeChanged());
    emit done(ended);
}

bool CResEditOutPutDlg::isFormRight() {
    _fields.check();
    const std::vector<FormProblem> problems = exportProblems(_fields.form());
    if (problems.empty())
        return true;
    warn(QString::fromUtf8(problems.front().message));
    _fields.focus(problems.front().field);
    return false;
}

bool CResEditOutPutDlg::finishPreviews() {
    _previews.finish();
    return isThemeOpen();
}

bool CResEditOutPutDlg::storeValues() {
    const unsigned before = theme()->version();
    const bool isStored = storeExportValues(*theme(), _fields.form());
    const bool isMoved = theme()->version() != before;
    if (isMoved) // Other sizes are asked for, and other previews shown.
        _previews.refresh();
    if (!isStored)
        warn("kExport_not_stored");
    if (!isStored && isMoved)
        emit valuesStored();
    return isStored;
}

QString CResEditOutPutDlg::askFolder() {
    for (;;) {
        QString folder = folderChoice.folder(window(), Text("kExport_choose_folder"));
        if (folder.isEmpty() || !isThemeOpen())
            return {};
        if (!isStorePath(bench().root(), packagePath(folder.toStdString(), _fields.form())))
            return folder;
        warn("kExport_store_folder");
    }
}

CResEditOutPutDlg::Outcome CResEditOutPutDlg::writePackage() {
    const QString folder = askFolder();
    if (folder.isEmpty() || !isThemeOpen())
        return Outcome::stopped;
    const QString path = QString::fromStdString(packagePath(folder.toStdString(), _fields.form()));
    if (!mayWriteTo(path))
        return Outcome::stopped;
    return finishPreviews() ? checkAndWrite(path) : Outcome::stopped;
}

CResEditOutPutDlg::Outcome CResEditOutPutDlg::checkAndWrite(const QString& path) {
    std::vector<Problem> problems;
    if (!theme()->checkFiles(problems)) {
        warn("kWarn_export_theme_error");
        if (isThemeOpen())
            bench().notifications().SendNotify(this, notify::Notify_Error_List_Msg, 0,
                                               reinterpret_cast<std::intptr_t>(&problems));
        return Outcome::incomplete;
    }
    if (!runExport(path.toStdString())) {
        warn("kWarn_popout_failed");
        return Outcome::stopped;
    }
    tellSuccess(path);
    return Outcome::written;
}

bool CResEditOutPutDlg::mayWriteTo(const QString& path) {
    if (!isTaken(path.toStdString()))
        return true;
    // The question stands behind the file's name.
    const auto words = [](const QString& key) { return key == "kZdt_ReName_Info" ? "%1" + Text(key) : Text(key); };
    const Box::Message message{Box::Kind::Question,
                               "kDialog_Title_Waning_Info",
                               "kZdt_ReName_Info",
                               {QFileInfo(path).fileName()},
                               "replace_file",
                               "kCancel",
                               false};
    return Box::ask(message, words, window());
}

bool CResEditOutPutDlg::runExport(const std::string& path) {
    ZProgressDialog progress(Text("kExport_progress"), window());
    // The thread alone touches the theme, while the dialog keeps everything else from it.
    ThemeResource& exported = *theme();
    return progress.run([&](const Progress& tell) { return exported.exportTo(path, tell); });
}

void CResEditOutPutDlg::tellSuccess(const QString& path) {
    Box box({Box::Kind::Success,
             "kDialog_Title_Desc_Info",
             "kWarn_popout_sucess",
             {QDir::toNativeSeparators(path)},
             "kConfirm",
             {},
             false},
            Text, window());
    QPushButton* show = box.addButton(Text("kExport_open_folder"), "messageOpenFolder", {}, 0);
    show->setAutoDefault(false);
    connect(show, &QPushButton::clicked, &box, [&] {
        showFolder(QFileInfo(path).path());
        box.accept();
    });
    box.exec();
}

void CResEditOutPutDlg::warn(const QString& key) {
    tellNote(window(), key);
}

void CResEditOutPutDlg::countProblems() {
    std::vector<Problem> problems;
    if (theme())
        static_cast<void>(theme()->checkFiles(problems));
    _problems = static_cast<int>(problems.size());
    sayFoot();
}

void CResEditOutPutDlg::sayFoot() {
    if (!theme()) {
        _size.clear();
        return _openPoints.tell({}, {});
    }
    const QString previews = countText("kExport_previews", _previews.readyCount());
    _size.setText(_bytes == 0 ? previews : megabytes(_bytes) + ", " + previews);
    QStringList open;
    if (const int wrong = _fields.wrongFields(); wrong > 0)
        open += countText("kExport_fields", wrong);
    if (_problems > 0)
        open += countText("kExport_problems", _problems);
    _openPoints.setVisible(!open.isEmpty());
    _openPoints.tell("error", open.isEmpty() ? QString() : TextWith("kExport_solve_first", open.join(", ")));
}

} // namespace zdt
