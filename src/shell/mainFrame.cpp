#include "shell/mainFrame.h"

#include "editor/exportPage.h"
#include "kit/controlSearch.h"
#include "kit/countButton.h"
#include "kit/exclusiveFocus.h"
#include "kit/icons.h"
#include "kit/labels.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/skinFolder.h"
#include "kit/tokens.h"
#include "shell/aboutPage.h"
#include "shell/dropVeil.h"
#include "shell/editorPages.h"
#include "shell/pageMaker.h"
#include "shell/programIcon.h"
#include "shell/startPage.h"
#include "shell/themeList.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>

#include <utility>

/// The window and the ways between its pages; what it does with themes stands in mainFrameThemes.cpp.
namespace zdt {

namespace {

/// The smallest window in which every page is whole, in logical pixels.
constexpr QSize smallestWindow(1024, 740);

/// Milliseconds.
constexpr int preparePause = 250;
/// The program's sign in the title bar, and between it and the name.
constexpr int logoSide = 24;
constexpr int logoGap = 8;

/// The program's sign at the left of a wider place, which leaves the gap. It keeps its colours under a dialog.
QIcon titleSign(double ratio) {
    QPixmap place(QSize(logoSide + logoGap, logoSide) * ratio);
    place.setDevicePixelRatio(ratio);
    place.fill(Qt::transparent);
    QPainter painter(&place);
    paintProgramSign(painter, QRectF(0, 0, logoSide, logoSide));
    painter.end();
    QIcon sign(place);
    sign.addPixmap(place, QIcon::Disabled);
    return sign;
}

/// The window's own layout, without which there is no window.
QWidget* loadFrame(Workbench& bench, ZWindow& window) {
    SkinLoader::Result loaded = bench.layouts().load("skin.xml");
    if (!loaded.widget)
        throw LayoutError(loaded.error);
    QWidget* frame = loaded.widget.release();
    window.setFrame(frame);
    return frame;
}

} // namespace

CMainFrameWnd::CMainFrameWnd(Workbench& bench)
    : _bench(bench)
    , _tabs(FindControl<QStackedWidget>(loadFrame(bench, *this), "MainFrameTab"))
    , _titles(FindControl<QStackedWidget>(this, "titleTabs"))
    , _title(FindControl<QLabel>(this, "ThemeTitle"))
    , _exportTheme(FindControl<QLabel>(this, "exportTheme"))
    , _kind(FindControl<ZBadge>(this, "themeKind"))
    , _problems(FindControl<ZCountButton>(this, "ResGlobleErrorBtn"))
    , _chinese(FindControl<QAbstractButton>(this, "ch_btn"))
    , _english(FindControl<QAbstractButton>(this, "en_btn"))
    , _pages(std::make_unique<CEditorPages>(bench, this))
    , _veil(std::make_unique<DropVeil>(this)) {
    if (_tabs.count() <= static_cast<int>(Tab::about) || _titles.count() <= static_cast<int>(Tab::about))
        throw LayoutError("skin.xml: MainFrameTab and titleTabs need a page each for start, editor, export and about");
    setWindowTitle("zdtTool");
    setMinimumSize(smallestWindow);
    setAcceptDrops(true);
    bench.notifications().AddNotifier(*this);
    LoadKeys();
    chooseFirstLanguage();
    makePages();
    connectButtons();
    connectKeys();
    showTab(Tab::start);
    bench.notifications().SendNotify(this, notify::windowinit);
}

CMainFrameWnd::~CMainFrameWnd() = default;

void CMainFrameWnd::makePages() {
    auto& startPlace = FindControl<QWidget>(this, "startPlace");
    QWidget* shown = nullptr;
    _start = makePageIn<CStartPage>(startPlace, shown, _bench);
    if (_start) {
        connect(_start, &CStartPage::newRequested, this, &CMainFrameWnd::newTheme);
        connect(_start, &CStartPage::importRequested, this, &CMainFrameWnd::chooseImport);
        connect(_start, &CStartPage::openRequested, this,
                [this](const QString& name) { openTheme(name.toStdString()); });
        connect(_start, &CStartPage::deleteRequested, this,
                [this](const QString& name) { deleteTheme(name.toStdString()); });
        connect(_start, &CStartPage::folderRequested, this,
                [this](const QString& name) { showFolder(_bench.root() + "res/" + name.toStdString()); });
        _start->refill();
    }
    connect(_pages.get(), &CEditorPages::changed, this, &CMainFrameWnd::showCounts);
    connect(_pages.get(), &CEditorPages::descriptionRequested, this, &CMainFrameWnd::openExport);
    // Pages of the editor are made before they are asked for, once the start page is seen.
    QTimer::singleShot(preparePause, this, [this] {
        setWindowIcon(programIcon());
        _pages->prepare();
    });
}

void CMainFrameWnd::openAbout() {
    QWidget* place = _tabs.widget(static_cast<int>(Tab::about));
    if (!place->layout()) {
        QWidget* shown = nullptr;
        if (auto* about = makePageIn<CAboutPage>(*place, shown, _bench)) {
            connect(about, &CAboutPage::themesRequested, this, [this] { showTab(Tab::start); });
            connect(about, &CAboutPage::folderRequested, this, [this] { showFolder(_bench.root() + "res"); });
        }
    }
    showTab(Tab::about);
}

void CMainFrameWnd::connectButtons() {
    const auto onClick = [this](const char* name, auto action) {
        connect(&FindControl<QAbstractButton>(this, name), &QAbstractButton::clicked, this, action);
    };
    auto& about = FindControl<QPushButton>(this, "aboutBtn");
    about.setIcon(titleSign(devicePixelRatioF()));
    about.setIconSize(QSize(logoSide + logoGap, logoSide));
    FindControl<QLabel>(this, "exportChevron")
        .setPixmap(iconPixmap(Icon::ChevronRight, token::iconPlain, 18, devicePixelRatioF()));
    onClick("aboutBtn", &CMainFrameWnd::openAbout);
    onClick("aboutbackBtn", [this] { showTab(Tab::start); });
    onClick("ThemePreviewBackBtn", &CMainFrameWnd::returnToStart);
    onClick("ResPreviewReturn", &CMainFrameWnd::returnToStart);
    onClick("ResGlobleErrorBtn", &CMainFrameWnd::findProblems);
    onClick("exportBtn", &CMainFrameWnd::openExport);
    onClick("btnClose", [this] {
        if (_export)
            _export->close();
        else
            showTab(Tab::editor);
    });
    tabToChosen({&_chinese, &_english});
    onClick("ch_btn", [this] { chooseLanguage(chineseLanguage); });
    onClick("en_btn", [this] { chooseLanguage(englishLanguage); });
}

void CMainFrameWnd::connectKeys() {
    qApp->installEventFilter(this);
    const auto onKey = [this](const QKeySequence& keys, auto action) {
        _keys.insert(keys);
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    const auto onStart = [this](void (CMainFrameWnd::*action)()) {
        return [this, action] {
            if (tab() == Tab::start)
                (this->*action)();
        };
    };
    onKey(QKeySequence("Ctrl+N"), onStart(&CMainFrameWnd::newTheme));
    onKey(QKeySequence("Ctrl+I"), onStart(&CMainFrameWnd::chooseImport));
    onKey(QKeySequence("Ctrl+F"), &CMainFrameWnd::find);
    onKey(QKeySequence("Ctrl+E"), [this] {
        if (tab() == Tab::editor)
            openExport();
    });
    onKey(QKeySequence("Ctrl+P"), [this] {
        if (tab() == Tab::editor)
            findProblems();
    });
    onKey(QKeySequence("Alt+Left"), [this] {
        if (tab() == Tab::editor)
            returnToStart();
        else if (tab() == Tab::exporting && _export)
            _export->close();
        else
            showTab(tab() == Tab::exporting ? Tab::editor : Tab::start);
    });
    onKey(QKeySequence("F5"), [this] {
        if (tab() == Tab::start && _start)
            _start->refill();
    });
}

bool CMainFrameWnd::eventFilter(QObject* watched, QEvent* event) {
    // A field would keep some of the window's keys for itself: Ctrl+E goes to the end of its line.
    if (event->type() == QEvent::ShortcutOverride && !hasDialog()) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const auto* key = static_cast<QKeyEvent*>(event);
        if (widget && widget->window() == this && _keys.contains(QKeySequence(key->keyCombination()))) {
            event->ignore();
            return true;
        }
    }
    return ZWindow::eventFilter(watched, event);
}

void CMainFrameWnd::find() {
    if (tab() == Tab::start && _start)
        _start->focusSearch();
    else if (tab() == Tab::editor)
        _pages->searchAll();
}

CMainFrameWnd::Tab CMainFrameWnd::tab() const {
    return static_cast<Tab>(_tabs.currentIndex());
}

void CMainFrameWnd::showTab(Tab tab) {
    _tabs.setCurrentIndex(static_cast<int>(tab));
    _titles.setCurrentIndex(static_cast<int>(tab));
    // What has the keyboard must be on the page that is seen: the first thing that takes it.
    QWidget* page = _tabs.currentWidget();
    if (page->isAncestorOf(focusWidget()))
        return;
    if (tab == Tab::start && _start && _start->focusCards())
        return;
    for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        if (page->isAncestorOf(next) && next->isVisible() && next->isEnabled() &&
            (next->focusPolicy() & Qt::TabFocus)) {
            next->setFocus();
            return;
        }
    }
}

void CMainFrameWnd::showTitle() {
    const ThemeResource* theme = _bench.theme();
    _title.setText(theme ? QString::fromStdString(titlePrefix(theme->version()) + theme->name()) : QString());
    _exportTheme.setText(_title.text());
}

void CMainFrameWnd::showKind() {
    const bool isBig = _bench.theme() && _bench.theme()->isBigTheme();
    _kind.setText(Text(isBig ? "kTheme_big" : "kTheme_small"));
    _pages->showKind();
}

void CMainFrameWnd::showCounts() {
    _problems.setCount(_pages->problemCount());
    _problems.setChecked(_pages->showsProblems());
}

void CMainFrameWnd::showProblems() {
    _pages->showProblems();
    showTab(Tab::editor);
}

void CMainFrameWnd::findProblems() {
    _pages->checkProblems();
    showProblems();
}

void CMainFrameWnd::showFolder(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QDir(QString::fromStdString(path)).absolutePath()));
}

void CMainFrameWnd::Notify(const Notification& message) {
    if (message.name == notify::Notify_ChangeTheme || message.name == notify::Notify_ReloadTopTitleText) {
        showTitle();
    } else if (message.name == notify::Notify_ReloadBigorSmall) {
        showKind();
    } else if (message.name == notify::Notify_SetFirstPage) {
        _pages->showFirst();
    } else if (message.name == notify::Notify_Error_List_Msg) {
        // The export page is left first.
        _problemsCame = tab() == Tab::exporting;
        if (!_problemsCame)
            showProblems();
    }
}

bool CMainFrameWnd::mayClose() {
    if (_title.text().isEmpty())
        return true;
    if (_asksToClose)
        return false;
    _asksToClose = true;
    const bool closes = askYesNo(this, "kWarn_make_sure_close");
    _asksToClose = false;
    return closes;
}

} // namespace zdt
