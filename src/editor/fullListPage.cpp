#include "editor/fullListPage.h"

#include "editor/changedMark.h"
#include "editor/keyDetails.h"
#include "editor/keyEditor.h"
#include "editor/moduleWords.h"
#include "kit/emptyState.h"
#include "kit/icons.h"
#include "kit/labels.h"
#include "kit/layoutError.h"
#include "kit/listView.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/searchField.h"
#include "kit/tokens.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

constexpr int hintIcon = 16;
constexpr int detailDelay = 40;

QIcon iconOf(Icon sign) {
    return icon(sign, token::iconPlain);
}

} // namespace

CFullListPage::CFullListPage(Workbench& bench, QWidget* parent)
    : ZPage(bench, "fullList.xml", parent)
    , _search(control<ZSearchField>("keySearch"))
    , _modules(control<QComboBox>("keyModule"))
    , _changedOnly(control<QPushButton>("keyChanged"))
    , _count(control<QLabel>("keyCount"))
    , _changedCount(control<QLabel>("keyChangedCount"))
    , _head(control<QWidget>("keyHead"))
    , _headKey(control<QPushButton>("headKey"))
    , _headValue(control<QLabel>("headValue"))
    , _headGenerations(control<QLabel>("headGenerations"))
    , _headApplies(control<QLabel>("headApplies"))
    , _stack(control<QStackedWidget>("keyStack"))
    , _list(control<ZListView>("keyList"))
    , _empty(control<ZEmptyState>("keyEmpty"))
    , _hint(control<ZElidedLabel>("keyHint"))
    , _range(control<QLabel>("keyRange"))
    , _name(control<ZElidedLabel>("detailName"))
    , _replace(control<QPushButton>("detailReplace"))
    , _edit(control<QPushButton>("detailEdit"))
    , _reset(control<QPushButton>("detailReset"))
    , _editor(new KeyEditor(_list.viewport()))
    , _preview(new KeyPreview(this))
    , _facts(new KeyFacts(this))
    , _nothing(new QLabel(this)) {
    control<QLabel>("keyHintIcon")
        .setPixmap(iconPixmap(Icon::InfoOutline, token::iconNavigation, hintIcon, devicePixelRatioF()));
    _nothing->setProperty("type", "hint");
    _nothing->setWordWrap(true);
    auto* details = qobject_cast<QVBoxLayout*>(control<QWidget>("detailBody").layout());
    if (!details)
        throw LayoutError("fullList.xml: detailBody has no QVBoxLayout");
    details->insertWidget(0, _nothing);
    details->insertWidget(0, _facts);
    details->insertWidget(0, _preview);
    connectBar();
    connectList();
    connectEditor();
    readAll();
}

CFullListPage::~CFullListPage() {
    _list.setSource(nullptr);
}

void CFullListPage::connectBar() {
    setChangedMark(_changedOnly);
    connect(&_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        KeyFilter filter = _table.filter();
        filter.text = text;
        setFilter(filter);
    });
    connect(&_modules, &QComboBox::activated, this,
            [this](int index) { static_cast<void>(showModule(_modules.itemData(index).toString().toStdString())); });
    connect(&_changedOnly, &QPushButton::toggled, this, [this](bool only) {
        KeyFilter filter = _table.filter();
        filter.changedOnly = only;
        setFilter(filter);
    });
    connect(&_headKey, &QPushButton::clicked, this, [this] {
        KeyFilter filter = _table.filter();
        filter.descending = !filter.descending;
        setFilter(filter);
    });
    connect(&_empty, &ZEmptyState::actionClicked, this, [this] {
        if (!_search.text().isEmpty())
            _search.clear();
        else
            _changedOnly.setChecked(false);
        _search.setFocus();
    });
    _search.installEventFilter(this);
}

void CFullListPage::connectList() {
    _detailTimer.setSingleShot(true);
    _detailTimer.setInterval(detailDelay);
    connect(&_detailTimer, &QTimer::timeout, this, &CFullListPage::showDetails);
    connect(&_table, &KeyListSource::counted, this, [this] {
        showCounts();
        showEmpty();
        _detailTimer.start();
    });
    connect(&_table, &KeyListSource::swatchClicked, this, &CFullListPage::chooseColour);
    connect(&_table, &KeyListSource::valueClicked, this, &CFullListPage::activate);
    connect(&_table.thumbnails(), &Thumbnails::ready, this, &CFullListPage::showPreview);
    connect(&_list, &CellView::activated, this, &CFullListPage::activate);
    connect(&_list, &CellView::currentChanged, this, &CFullListPage::showCurrent);
    connect(_list.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        placeEditor();
        showRange();
    });
    _list.setSource(&_table);
    _list.installEventFilter(this);
    _list.viewport()->installEventFilter(this);
    _list.viewport()->setAcceptDrops(true);
}

void CFullListPage::connectEditor() {
    _editor->hide();
    connect(_editor, &KeyEditor::valueEntered, this, &CFullListPage::enterValue);
    connect(_editor, &KeyEditor::edited, this, [this] {
        _lost.clear();
        showHint();
    });
    connect(_editor, &KeyEditor::reasonChanged, this, &CFullListPage::showHint);
    connect(_editor, &KeyEditor::resetClicked, this, &CFullListPage::resetCurrent);
    connect(_editor, &KeyEditor::finished, this, [this] { _list.setFocus(Qt::ShortcutFocusReason); });
    connect(_editor, &KeyEditor::moveAsked, this, &CFullListPage::moveAndEdit);
    QWidget* before = &_list;
    for (const char* name : {"editHex", "editPercent", "editText", "editReset", "detailReplace"}) {
        auto& next = control<QWidget>(name);
        setTabOrder(before, &next);
        before = &next;
    }
    connect(&_replace, &QPushButton::clicked, this, &CFullListPage::replaceByDialog);
    connect(&_edit, &QPushButton::clicked, this, [this] { chooseColour(current()); });
    connect(&_reset, &QPushButton::clicked, this, &CFullListPage::resetCurrent);
    _tryTimer.setSingleShot(true);
    _tryTimer.setInterval(token::progressInterval);
}

void CFullListPage::bringUpToDate() {
    if (std::exchange(_isOld, false))
        readAll();
}

void CFullListPage::reload() {
    _isOld = true;
    if (isVisible())
        bringUpToDate();
    else
        clearDetails();
}

void CFullListPage::readAll() {
    const std::string name = theme() ? theme()->name() : std::string();
    if (name != _theme)
        _current.clear();
    _theme = name;
    const std::string key = _current;
    const int scrolled = _list.verticalScrollBar()->value();
    _editor->relabel();
    _search.setClearTip(Text("kList_clear_search"));
    _nothing->setText(Text("kList_choose_key"));
    _table.load(theme());
    fillModules();
    const int index = _table.indexOf(key);
    _list.verticalScrollBar()->setValue(scrolled);
    _list.setCurrent(index >= 0 ? index : std::min(0, _table.count() - 1));
    if (index >= 0)
        _list.verticalScrollBar()->setValue(scrolled);
    showCurrent();
}

void CFullListPage::fillModules() {
    const std::vector<std::string> modules = _table.modules();
    const bool isGone = std::find(modules.begin(), modules.end(), _table.filter().module) == modules.end();
    _modules.clear();
    _modules.addItem(iconOf(Icon::ListAlt), Text("kList_everything"), QString());
    for (const std::string& module : modules)
        _modules.addItem(iconOf(moduleIcon(module)), moduleWord(module), QString::fromStdString(module));
    _modules.setMaxVisibleItems(_modules.count());
    if (isGone && !modules.empty())
        static_cast<void>(showModule(""));
    _modules.setCurrentIndex(std::max(0, _modules.findData(QString::fromStdString(_table.filter().module))));
    placeHead();
}

bool CFullListPage::showModule(const std::string& module) {
    const int index = module.empty() ? 0 : _modules.findData(QString::fromStdString(module));
    if (index < 0)
        return false;
    _modules.setCurrentIndex(index);
    // Who goes to another part of the theme looks for something else there.
    if (module != _table.filter().module)
        _search.clear();
    KeyFilter filter = _table.filter();
    if (filter.module == module)
        return true;
    filter.module = module;
    _table.dropWaiting();
    setFilter(filter);
    return true;
}

void CFullListPage::setFilter(const KeyFilter& filter) {
    const std::string key = _current;
    const bool isOtherModule = filter.module != _table.filter().module;
    const bool isSorting = filter.descending != _table.filter().descending;
    _table.setFilter(filter);
    const int index = _table.indexOf(key);
    if (index < 0 || !isSorting)
        _list.verticalScrollBar()->setValue(0);
    _list.setCurrent(index >= 0 ? index : std::min(0, _table.count() - 1));
    placeHead();
    showCurrent();
    if (isOtherModule)
        emit moduleChanged(QString::fromStdString(filter.module));
}

bool CFullListPage::showLeaf(const std::string& keyText) {
    const KeyRow* row = _table.find(keyText);
    if (!row)
        return false;
    const std::string key = row->key;
    KeyFilter filter = _table.filter();
    filter.module = row->module;
    filter.text.clear();
    filter.changedOnly = false;
    const QSignalBlocker quietSearch(_search);
    const QSignalBlocker quietChanged(_changedOnly);
    _search.clear();
    _changedOnly.setChecked(false);
    _modules.setCurrentIndex(std::max(0, _modules.findData(QString::fromStdString(filter.module))));
    setFilter(filter);
    const int index = _table.indexOf(key);
    _list.setCurrent(index);
    // With a few rows around it, as far as there are.
    const int middle = index * keyRowHeight - (_list.viewport()->height() - keyRowHeight) / 2;
    _list.verticalScrollBar()->setValue(middle);
    _list.setFocus(Qt::OtherFocusReason);
    return index >= 0;
}

void CFullListPage::focusSearch() {
    _search.setFocus(Qt::ShortcutFocusReason);
    _search.selectAll();
}

void CFullListPage::showEvent(QShowEvent* event) {
    ZPage::showEvent(event);
    bringUpToDate();
}

void CFullListPage::hideEvent(QHideEvent* event) {
    _table.dropWaiting();
    ZPage::hideEvent(event);
}

} // namespace zdt
