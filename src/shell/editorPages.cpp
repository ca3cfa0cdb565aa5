#include "shell/editorPages.h"

#include "editor/fullListPage.h"
#include "editor/moduleWords.h"
#include "editor/problemPage.h"
#include "editor/simplePages.h"
#include "kit/controlSearch.h"
#include "kit/countButton.h"
#include "kit/exclusiveFocus.h"
#include "shell/pageMaker.h"

#include <QAbstractButton>
#include <QStackedWidget>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace zdt {

namespace {

constexpr const char* allKeys = "all";
/// The navigation has no rows of their own for these: they belong to what the author calls contacts.
constexpr std::array<const char*, 3> partsOfContacts{"phone", "recorder", "telecom"};
/// What a small theme has.
constexpr std::array<const char*, 5> partsOfSmall{"icons", "wallpaper", "unlock", "preview", allKeys};

QString moduleOf(const ZCountButton& row) {
    return row.property("module").toString();
}

/// Makes the page of screens of a module.
using MakeScreens = CColorAndPictureManagerPage* (*)(QStackedWidget&, QWidget*&, Workbench&);

template <typename Page>
CColorAndPictureManagerPage* makeScreens(QStackedWidget& stack, QWidget*& shown, Workbench& bench) {
    return makePage<Page>(stack, shown, bench);
}

struct ScreensModule {
    const char* module;
    MakeScreens make;
};

constexpr std::array screensModules{
    ScreensModule{"commonSetting", makeScreens<CSimpleGoblePage>},
    ScreensModule{"launcher", makeScreens<CSimpleLauncherPage>},
    ScreensModule{"contacts", makeScreens<CSimpleContactsPage>},
    ScreensModule{"mms", makeScreens<CSimpleMmsPage>},
    ScreensModule{"systemui", makeScreens<CSimpleSystemPage>},
};

const ScreensModule* screensModule(const QString& module) {
    const auto found = std::find_if(screensModules.begin(), screensModules.end(),
                                    [&](const ScreensModule& each) { return module == each.module; });
    return found == screensModules.end() ? nullptr : &*found;
}

/// The key under which a page of screens shows a picture of the tree: its module and file. Others stay as they are.
std::string pageKeyOf(const std::string& key) {
    const std::string file = key.substr(key.rfind('/') + 1);
    return file.ends_with(".png") ? groupOf(key) + "/" + file : key;
}

/// The row for what the list shows: its module, if that has no page of its own, or everything.
QString rowFor(const CFullListPage& list) {
    const QString module = QString::fromStdString(list.module());
    return module.isEmpty() || screensModule(module) ? QString(allKeys) : module;
}

} // namespace

CEditorPages::CEditorPages(Workbench& bench, QWidget* frame)
    : QObject(frame)
    , _bench(bench)
    , _place(FindControl<QStackedWidget>(frame, "ResMainBussinessLayout")) {
    for (ZCountButton* row : frame->findChildren<ZCountButton*>()) {
        if (moduleOf(*row).isEmpty())
            continue;
        _rows.push_back(row);
        connect(row, &QAbstractButton::clicked, this, [this, row] { showModule(moduleOf(*row)); });
        tabToChosen({row});
    }
}

void CEditorPages::makeList() {
    if (_list)
        _list->bringUpToDate();
    if (_listPlace)
        return;
    _list = makePage<CFullListPage>(_place, _listPlace, _bench);
    if (!_list)
        return;
    connect(_list, &CFullListPage::moduleChanged, this, [this] {
        if (showsList())
            checkRow(rowFor(*_list));
    });
}

void CEditorPages::makeProblems() {
    if (_problemPlace)
        return;
    _problems = makePage<CProblemPage>(_place, _problemPlace, _bench);
    if (!_problems)
        return;
    connect(_problems, &CProblemPage::jumpRequested, this, &CEditorPages::showKey);
    connect(_problems, &CProblemPage::countsChanged, this, &CEditorPages::showCounts);
}

bool CEditorPages::hasScreens(const QString& module) const {
    return screensModule(module) && _bench.theme() && _bench.theme()->isBigTheme() &&
           _bench.theme()->version() != unknownGeneration;
}

CColorAndPictureManagerPage* CEditorPages::screensPage(const QString& module) {
    const ScreensModule* row = screensModule(module);
    if (!row)
        return nullptr;
    ScreensPlace& place = _screens[module];
    if (place.shown)
        return place.page;
    place.page = row->make(_place, place.shown, _bench);
    if (place.page) {
        connect(place.page, &CColorAndPictureManagerPage::edited, this, [this] {
            if (_list)
                _list->setOld();
        });
        connect(place.page, &CColorAndPictureManagerPage::keyRequested, this, &CEditorPages::showKey);
    }
    return place.page;
}

void CEditorPages::prepare() {
    if (!_listPlace)
        makeList();
    makeProblems();
    static_cast<void>(screensPage(screensModules.front().module));
}

void CEditorPages::showFirst() {
    const bool isBig = _bench.theme() && _bench.theme()->isBigTheme();
    showModule(isBig ? "commonSetting" : "icons");
}

void CEditorPages::showModule(const QString& module) {
    if (hasScreens(module)) {
        static_cast<void>(screensPage(module));
        _place.setCurrentWidget(_screens[module].shown);
        checkRow(module);
        emit changed();
        return;
    }
    makeList();
    if (_list && (module == allKeys || !_list->showModule(module.toStdString())))
        _list->showModule({});
    showList(module);
}

void CEditorPages::showList(const QString& module) {
    _place.setCurrentWidget(_listPlace);
    checkRow(_list ? rowFor(*_list) : module);
    emit changed();
}

void CEditorPages::showProblems() {
    makeProblems();
    checkRow({});
    _place.setCurrentWidget(_problemPlace);
    emit changed();
}

bool CEditorPages::showsList() const {
    return _list && _place.currentWidget() == _listPlace;
}

void CEditorPages::checkProblems() {
    makeProblems();
    if (_problems)
        _problems->check();
}

bool CEditorPages::showsProblems() const {
    return _problemPlace && _place.currentWidget() == _problemPlace;
}

void CEditorPages::showKey(const QString& key) {
    const QString module = QString::fromStdString(groupOf(key.toStdString()));
    if (module.isEmpty()) {
        emit descriptionRequested();
        return;
    }
    const std::string pageKey = pageKeyOf(key.toStdString());
    if (hasScreens(module) && pageKey != key.toStdString()) {
        // Seen first: a page reads everything anew when it is shown.
        showModule(module);
        if (CColorAndPictureManagerPage* page = screensPage(module); page && page->showKey(pageKey))
            return;
    }
    makeList();
    // Not all that can be wrong is a key: a whole file can't be read, or the lock screen's design lacks a picture.
    if (_list && _list->showLeaf(key.toStdString()))
        showList(module);
    else
        showModule(module);
}

void CEditorPages::searchAll() {
    if (!showsList() || rowFor(*_list) != allKeys)
        showModule(allKeys);
    if (_list)
        _list->focusSearch();
}

void CEditorPages::checkRow(const QString& module) {
    const bool isPart = std::find(partsOfContacts.begin(), partsOfContacts.end(), module) != partsOfContacts.end();
    const QString shown = isPart ? QString("contacts") : module;
    for (ZCountButton* row : _rows) {
        // Of exclusive buttons one is always checked, unless none is exclusive for a moment.
        row->setAutoExclusive(false);
        row->setChecked(moduleOf(*row) == shown);
    }
    for (ZCountButton* row : _rows)
        row->setAutoExclusive(true);
}

void CEditorPages::showKind() {
    const bool isBig = _bench.theme() && _bench.theme()->isBigTheme();
    for (ZCountButton* row : _rows) {
        const bool inSmall = std::find(partsOfSmall.begin(), partsOfSmall.end(), moduleOf(*row)) != partsOfSmall.end();
        row->setVisible(isBig || inSmall);
    }
}

int CEditorPages::problemCount() const {
    return _problems ? _problems->count() : 0;
}

void CEditorPages::showCounts() {
    const std::map<std::string, int> counts = _problems->countsByModule();
    for (ZCountButton* row : _rows) {
        const auto found = counts.find(moduleOf(*row).toStdString());
        int count = found == counts.end() ? 0 : found->second;
        if (moduleOf(*row) == "contacts") {
            for (const char* part : partsOfContacts) {
                const auto more = counts.find(part);
                count += more == counts.end() ? 0 : more->second;
            }
        }
        row->setCount(count);
    }
    emit changed();
}

} // namespace zdt
