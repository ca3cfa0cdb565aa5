#include "editor/exportPage.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/progressDialog.h"
#include "kit/segmentedControl.h"
#include "kit/skinFolder.h"
#include "kit/textLookup.h"
#include "shell/dropVeil.h"
#include "shell/editorPages.h"
#include "shell/languageChoice.h"
#include "shell/mainFrame.h"
#include "shell/pageMaker.h"
#include "shell/startPage.h"
#include "shell/themeImport.h"
#include "support/atomicFile.h"
#include "support/files.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLibraryInfo>
#include <QLocale>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QUrl>

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>

/// What the main window does with themes: makes, opens, imports, exports and deletes them, and the language.
namespace zdt {

namespace {

QStringList localPaths(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths += url.toLocalFile();
    }
    return paths;
}

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

void CMainFrameWnd::newTheme() {
    std::optional<ThemeWish> wanted;
    try {
        wanted = CNewThemeDialog::ask(_bench, ThemeResource::listThemes(_bench.root()), this);
    } catch (const LayoutError& error) {
        tellNote(this, "kWindow_layout_damaged", {QString::fromUtf8(error.what())});
    }
    if (wanted)
        createTheme(*wanted);
}

void CMainFrameWnd::createTheme(const ThemeWish& wanted) {
    _bench.closeTheme();
    const bool isChinese = GetLanguage() == chineseLanguage;
    const auto make = [&](const Progress&) {
        const auto made = ThemeResource::createTheme(wanted.name, wanted.generation, wanted.small ? 1 : 0, false,
                                                     isChinese, _bench.root());
        if (!made)
            return false;
        std::map<std::string, std::string> names{{"title", wanted.name}};
        if (!wanted.chineseName.empty())
            names["title-cn"] = wanted.chineseName;
        const auto codes = made->setValues({}, names);
        const bool taken = std::all_of(codes.begin(), codes.end(), [](const auto& code) { return code.second == 0; });
        // Its settings, its kind above all, are on disk as soon as it is closed.
        return taken && made->applyNode({});
    };
    if (ZProgressDialog(Text("kStart_creating"), this).run(make))
        openTheme(wanted.name);
    else
        tellNote(this, "kStart_create_failed");
}

void CMainFrameWnd::openTheme(const std::string& name) {
    if (!isFolder(_bench.root() + "res/" + name)) {
        tellNote(this, "kStart_gone", {shown(name)});
        if (_start)
            _start->refill();
        return;
    }
    _bench.closeTheme();
    try {
        _bench.takeTheme(ThemeResource::openTheme(name, GetLanguage() == chineseLanguage, _bench.root()));
    } catch (const std::invalid_argument&) {
        tellNote(this, "kStart_damaged", {shown(name)});
        return;
    }
    if (!_bench.theme())
        tellNote(this, "kStart_open_failed", {shown(name)});
    else if (_bench.theme()->version() != unknownGeneration || askGeneration(name))
        enterEditor();
    else
        _bench.closeTheme();
}

bool CMainFrameWnd::askGeneration(const std::string& name) {
    ZBaseDialog dialog(this);
    dialog.setObjectName("generationDialog");
    dialog.setTitle(Text("kStart_choose_generation_title"));
    dialog.setMinimumWidth(400);
    auto* sentence = new QLabel(Text("kStart_choose_generation").arg(shown(name)));
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    auto* choice = new ZSegmented;
    choice->setObjectName("generationChoice");
    choice->setAccessibleName(Text("kStart_choose_generation_title"));
    dialog.setCloseTip(Text("kWindow_close"));
    choice->setLabels({"OVUI5.0", "OVUI8.0", "OVUI9.1"});
    choice->setCurrentIndex(generation9Index);
    dialog.body()->setSpacing(16);
    dialog.body()->addWidget(sentence);
    dialog.body()->addWidget(choice);
    connect(dialog.addButton(Text("kCancel"), "generationCancel"), &QPushButton::clicked, &dialog, &QDialog::reject);
    QPushButton* accept = dialog.addButton(Text("kConfirm"), "generationAccept", "filled");
    accept->setDefault(true);
    connect(accept, &QPushButton::clicked, &dialog, &QDialog::accept);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (_bench.theme()->changeGeneration(static_cast<unsigned>(choice->currentIndex())))
        return true;
    tellNote(this, "kStart_open_failed", {shown(name)});
    return false;
}

void CMainFrameWnd::enterEditor() {
    CPaintManagerUI& hub = _bench.notifications();
    hub.SendNotify(this, notify::Notify_ChangeTheme);
    _pages->prepare();
    hub.SendNotify(this, notify::Notify_ReloadDataMsg);
    showKind();
    _pages->showFirst();
    showTab(Tab::editor);
}

void CMainFrameWnd::returnToStart() {
    CPaintManagerUI& hub = _bench.notifications();
    hub.SendNotify(this, notify::Reload_change_unlock_ratio);
    const std::string name = _bench.theme() ? _bench.theme()->name() : std::string();
    _title.clear();
    showTab(Tab::start);
    hub.SendNotify(this, notify::Reload_history_themes);
    if (_start)
        _start->select(name);
    hub.SendNotify(this, notify::Reload_change_unlock_pendant_ratio);
    if (!name.empty() && !isFolder(_bench.root() + "res/" + name)) {
        _bench.closeTheme();
        tellNote(this, "kStart_gone", {shown(name)});
    }
}

void CMainFrameWnd::deleteTheme(const std::string& name) {
    ZMessageBoxDlg::Message question;
    question.kind = ZMessageBoxDlg::Kind::Warning;
    question.titleKey = "kStart_delete_title";
    question.textKey = "kStart_delete_question";
    question.arguments = QStringList{shown(name)};
    question.acceptKey = "kStart_delete";
    question.rejectKey = "kCancel";
    question.rejectByDefault = true;
    if (!ZMessageBoxDlg::ask(question, Text, this))
        return;
    if (_bench.theme() && _bench.theme()->name() == name)
        _bench.closeTheme();
    if (!ThemeResource::deleteTheme(name, _bench.root()))
        tellNote(this, "kStart_delete_failed", {shown(name)});
    _bench.notifications().SendNotify(this, notify::Reload_history_themes);
}

void CMainFrameWnd::chooseImport() {
    const QString filter = Text("kStart_import_filter") + " (*.zdt *.ZDT)";
    const QStringList chosen = _importChoice.files(this, Text("kStart_import"), filter);
    if (!chosen.isEmpty())
        importPaths(chosen);
}

void CMainFrameWnd::importPaths(const QStringList& paths) {
    const std::vector<std::string> sources = importableAmong(paths);
    if (sources.empty()) {
        tellNote(this, "kStart_no_package");
        return;
    }
    const std::vector<std::string> imported = importThemes(_bench, this, sources, [this] { returnToStart(); });
    if (imported.empty())
        return;
    _bench.notifications().SendNotify(this, notify::Reload_history_themes);
    if (_start)
        _start->select(imported.front());
}

void CMainFrameWnd::openExport() {
    if (!_bench.theme())
        return;
    QWidget* place = _tabs.widget(static_cast<int>(Tab::exporting));
    if (!place->layout()) {
        QWidget* shownPage = nullptr;
        _export = makePageIn<CResEditOutPutDlg>(*place, shownPage, _bench);
        if (_export) {
            connect(_export, &CResEditOutPutDlg::done, this, &CMainFrameWnd::exportEnded);
            connect(_export, &CResEditOutPutDlg::valuesStored, this, &CMainFrameWnd::tellThemeChanged);
            connect(_export, &CResEditOutPutDlg::previewsChanged, this,
                    [this] { _bench.notifications().SendNotify(this, notify::Notify_ReloadDataMsg); });
        }
    }
    _problemsCame = false;
    showTab(Tab::exporting);
    if (_export)
        _export->open();
}

void CMainFrameWnd::exportEnded(int result) {
    showTab(Tab::editor);
    if (result == CResEditOutPutDlg::ended) {
        tellThemeChanged();
        _bench.notifications().SendNotify(this, notify::Notify_SetFirstPage);
    }
    if (std::exchange(_problemsCame, false))
        showProblems();
}

void CMainFrameWnd::tellThemeChanged() {
    for (const char* name :
         {notify::Notify_ReloadDataMsg, notify::Notify_ReloadBigorSmall, notify::Notify_ReloadTopTitleText})
        _bench.notifications().SendNotify(this, name);
}

void CMainFrameWnd::chooseFirstLanguage() {
    const std::string setting = languageSetting(loadConfig());
    const std::optional<int> chosen =
        languageAtStart(setting, isSimplifiedChinese(QLocale::system().name().toStdString()));
    if (chosen) {
        chooseLanguage(*chosen);
    } else {
        SetLanguage(GetLanguage());
        takeQtWords(GetLanguage());
        relabel(this, Text);
    }
    _chinese.setChecked(GetLanguage() == chineseLanguage);
    _english.setChecked(GetLanguage() == englishLanguage);
}

void CMainFrameWnd::takeQtWords(int language) {
    QCoreApplication::removeTranslator(&_qtWords);
    const bool loaded = language == chineseLanguage &&
                        _qtWords.load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (loaded)
        QCoreApplication::installTranslator(&_qtWords);
}

void CMainFrameWnd::chooseLanguage(int language) {
    writeConfig(language);
    takeQtWords(language);
    CPaintManagerUI& hub = _bench.notifications();
    hub.SendNotify(this, notify::Reload_change_unlock_ratio);
    _chinese.setChecked(language == chineseLanguage);
    _english.setChecked(language == englishLanguage);
    SetLanguage(language);
    if (_bench.theme())
        _bench.theme()->setLanguageBit(language == chineseLanguage);
    relabel(this, Text);
    showKind();
    hub.SendNotify(this, notify::Notify_ReloadDataMsg);
    hub.SendNotify(this, notify::Notify_Error_List_refresh);
}

void CMainFrameWnd::dragEnterEvent(QDragEnterEvent* event) {
    const QStringList paths = localPaths(*event->mimeData());
    if (hasDialog() || QApplication::activeModalWidget() || paths.isEmpty())
        return;
    event->acceptProposedAction();
    if (!importableAmong(paths).empty())
        _veil->present(Text("kWindow_drop_release"));
}

void CMainFrameWnd::dragLeaveEvent(QDragLeaveEvent*) {
    _veil->hide();
}

void CMainFrameWnd::dropEvent(QDropEvent* event) {
    _veil->hide();
    const QStringList paths = localPaths(*event->mimeData());
    event->acceptProposedAction();
    // What follows may ask: only once the program that dragged has its answer.
    QMetaObject::invokeMethod(
        this, [this, paths] { takeDropped(paths); }, Qt::QueuedConnection);
}

void CMainFrameWnd::takeDropped(const QStringList& paths) {
    if (tab() == Tab::start || tab() == Tab::about || !importableAmong(paths).empty())
        importPaths(paths);
    else
        _bench.notifications().SendNotify(this, notify::Notify_Drag_File, 0, reinterpret_cast<std::intptr_t>(&paths));
}

} // namespace zdt
