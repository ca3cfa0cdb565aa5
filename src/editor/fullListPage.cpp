#include "editor/fullListPage.h"

#include "editor/keyDetails.h"
#include "editor/keyEditor.h"
#include "kit/colourText.h"
#include "kit/emptyState.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/listView.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/searchField.h"
#include "kit/tokens.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {

constexpr int hintIcon = 16;
constexpr int headIcon = 14;
constexpr int headInset = 4; ///< Of the button's text.
constexpr int detailDelay = 40;
constexpr int editorInset = 9;

struct ModuleIcon {
    const char* module;
    Icon icon;
};

constexpr ModuleIcon moduleIcons[] = {
    {"", Icon::ListAlt},
    {sharedModule, Icon::Language},
    {"launcher", Icon::Apps},
    {"contacts", Icon::PersonOutline},
    {"mms", Icon::ChatBubbleOutline},
    {"systemui", Icon::Tune},
    {"phone", Icon::Smartphone},
    {"recorder", Icon::MusicNote},
    {"telecom", Icon::PhonelinkSetup},
    {"icons", Icon::GridView},
    {"wallpaper", Icon::Wallpaper},
    {"unlock", Icon::LockOutline},
    {"preview", Icon::FilterNone},
};

QIcon iconOf(const std::string& module) {
    const auto* const known = std::find_if(std::begin(moduleIcons), std::end(moduleIcons),
                                           [&](const ModuleIcon& row) { return row.module == module; });
    return icon(known == std::end(moduleIcons) ? Icon::Category : known->icon, token::iconPlain);
}

/// The dot that marks what is changed, as an icon.
QIcon dotIcon(double ratio) {
    constexpr int side = 14;
    constexpr double radius = 3;
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::accent);
    painter.drawEllipse(QPointF(side / 2.0, side / 2.0), radius, radius);
    return picture;
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
    , _range(control<QLabel>("keyRange"))
    , _name(control<ZElidedLabel>("detailName"))
    , _replace(control<QPushButton>("detailReplace"))
    , _edit(control<QPushButton>("detailEdit"))
    , _reset(control<QPushButton>("detailReset"))
    , _editor(new KeyEditor(_list.viewport()))
    , _preview(new KeyPreview)
    , _facts(new KeyFacts)
    , _nothing(new QLabel) {
    control<QLabel>("keyHintIcon")
        .setPixmap(iconPixmap(Icon::InfoOutline, token::iconNavigation, hintIcon, devicePixelRatioF()));
    _nothing->setProperty("type", "hint");
    _nothing->setWordWrap(true);
    auto& details = *static_cast<QVBoxLayout*>(control<QWidget>("detailBody").layout());
    details.insertWidget(0, _nothing);
    details.insertWidget(0, _facts);
    details.insertWidget(0, _preview);
    connectBar();
    connectList();
    connectEditor();
    reload();
}

CFullListPage::~CFullListPage() {
    _list.setSource(nullptr);
}

void CFullListPage::connectBar() {
    _changedOnly.setIcon(dotIcon(devicePixelRatioF()));
    setStyleProperty(&_changedOnly, "withIcon", "text");
    connect(&_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        KeyFilter filter = _table.filter();
        filter.text = text;
        setFilter(filter);
    });
    connect(&_modules, &QComboBox::activated, this,
            [this](int index) { showModule(_modules.itemData(index).toString().toStdString()); });
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
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, &CFullListPage::focusSearch);
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
    connect(_editor, &KeyEditor::resetClicked, this, &CFullListPage::resetCurrent);
    connect(_editor, &KeyEditor::finished, this, [this] { _list.setFocus(Qt::ShortcutFocusReason); });
    connect(_editor, &KeyEditor::moveAsked, this, &CFullListPage::moveAndEdit);
    connect(&_replace, &QPushButton::clicked, this, &CFullListPage::replaceByDialog);
    connect(&_edit, &QPushButton::clicked, this, [this] { chooseColour(current()); });
    connect(&_reset, &QPushButton::clicked, this, &CFullListPage::resetCurrent);
    _tryTimer.setSingleShot(true);
    _tryTimer.setInterval(token::progressInterval);
}

void CFullListPage::reload() {
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
    _modules.addItem(iconOf(""), Text("kList_everything"), QString());
    for (const std::string& module : modules)
        _modules.addItem(iconOf(module), moduleWord(module), QString::fromStdString(module));
    _modules.setMaxVisibleItems(_modules.count());
    if (isGone && !modules.empty())
        showModule("");
    _modules.setCurrentIndex(std::max(0, _modules.findData(QString::fromStdString(_table.filter().module))));
    placeHead();
}

void CFullListPage::showModule(const std::string& module) {
    const int index = module.empty() ? 0 : _modules.findData(QString::fromStdString(module));
    if (index < 0)
        return;
    _modules.setCurrentIndex(index);
    KeyFilter filter = _table.filter();
    if (filter.module == module)
        return;
    filter.module = module;
    _table.dropWaiting();
    setFilter(filter);
}

void CFullListPage::setFilter(const KeyFilter& filter) {
    const std::string key = _current;
    const bool isSorting = filter.descending != _table.filter().descending;
    _table.setFilter(filter);
    const int index = _table.indexOf(key);
    if (index < 0 || !isSorting)
        _list.verticalScrollBar()->setValue(0);
    _list.setCurrent(index >= 0 ? index : std::min(0, _table.count() - 1));
    placeHead();
    showCurrent();
}

bool CFullListPage::showLeaf(const std::string& keyText) {
    const KeyRow* row = _table.find(keyText);
    if (!row)
        return false;
    const std::string key = row->key;
    KeyFilter filter = _table.filter();
    filter.module = filter.module.empty() ? filter.module : row->module;
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

void CFullListPage::showCounts() {
    const int count = _table.filteredCount();
    _count.setText(count == 1 ? Text("kList_count_one") : TextWith("kList_count", count));
    const std::optional<int> changed = _table.changedCount();
    _changedCount.setText(changed ? TextWith("kList_changed_count", *changed) : QString());
    showRange();
}

void CFullListPage::showEmpty() {
    const bool isEmpty = _table.count() == 0;
    _stack.setCurrentWidget(isEmpty ? static_cast<QWidget*>(&_empty) : &_list);
    if (!isEmpty)
        return;
    const KeyFilter& filter = _table.filter();
    if (!filter.text.trimmed().isEmpty()) {
        _empty.setIcon("search");
        _empty.setTexts(TextWith("kList_nothing_called", filter.text.trimmed()), {}, Text("kList_clear_search"));
    } else if (filter.changedOnly) {
        _empty.setIcon("list_alt");
        _empty.setTexts(Text("kList_nothing_changed"), Text("kList_nothing_changed_hint"), Text("kList_show_all"));
    } else {
        _empty.setIcon("list_alt");
        _empty.setTexts(Text("kList_no_keys"), {});
    }
}

void CFullListPage::showRange() {
    const int top = _list.verticalScrollBar()->value();
    const int first = top / keyRowHeight + 1;
    const int last = std::min(_table.count(), (top + _list.viewport()->height()) / keyRowHeight);
    _range.setText(_table.count() == 0 ? QString()
                                       : TextWith("kList_range", first) + TextWith("kList_range_to", last) +
                                             TextWith("kList_range_of", _table.count()));
}

void CFullListPage::placeHead() {
    const KeyColumns columns = keyColumns(_list.viewport()->width());
    const int height = _head.height() - 1;
    const bool down = _table.filter().descending;
    _headKey.setIcon(icon(down ? Icon::ArrowDownward : Icon::ArrowUpward, token::iconPlain));
    _headKey.setIconSize({headIcon, headIcon});
    _headKey.setGeometry(columns.key - headInset, (height - 24) / 2, _headKey.sizeHint().width(), 24);
    _headValue.setGeometry(columns.value, 0, columns.valueWidth, height);
    _headGenerations.setGeometry(columns.generations, 0, columns.applies - columns.generations, height);
    _headApplies.setGeometry(columns.applies, 0, columns.appliesWidth, height);
    _headApplies.setVisible(columns.appliesWidth > 0);
}

bool CFullListPage::hasCurrent() const {
    return current() >= 0 && current() < _table.count();
}

int CFullListPage::current() const {
    return _list.current();
}

int CFullListPage::rowAt(const QPoint& position) const {
    const int index = (position.y() + _list.verticalScrollBar()->value()) / keyRowHeight;
    return position.y() >= 0 && index < _table.count() ? index : -1;
}

void CFullListPage::placeEditor() {
    if (!hasCurrent() || isFile(_table.row(current()).kind)) {
        _editor->hide();
        return;
    }
    const KeyColumns columns = keyColumns(_list.viewport()->width());
    const int left = columns.value - editorInset;
    _editor->setGeometry(left, current() * keyRowHeight - _list.verticalScrollBar()->value(),
                         _list.viewport()->width() - left, keyRowHeight - 1);
    _editor->setWidths(columns.valueWidth, _list.viewport()->width() - left);
    // The ring of the row lies over everything else.
    _editor->show();
    _editor->raise();
    if (auto* ring = _list.viewport()->findChild<QWidget*>("cellRing"))
        ring->raise();
}

void CFullListPage::showCurrent() {
    if (hasCurrent()) {
        const KeyRow& row = _table.row(current());
        _current = row.key;
        const QString value = QString::fromStdString(row.value);
        const std::optional<QColor> colour = row.kind == KeyKind::colour ? colourOf(value) : std::nullopt;
        _editor->setResettable(canReset(row, _table.isChanged(current())));
        if (colour)
            _editor->showColour(*colour);
        else if (!isFile(row.kind))
            _editor->showText(value);
    }
    placeEditor();
    _detailTimer.start();
}

void CFullListPage::showDetails() {
    const bool has = hasCurrent();
    for (QWidget* part : {static_cast<QWidget*>(_preview), static_cast<QWidget*>(_facts)})
        part->setVisible(has);
    _nothing->setVisible(!has);
    _name.setText(has ? _table.words(current()).name : QString());
    const KeyRow* row = has ? &_table.row(current()) : nullptr;
    _replace.setVisible(row && isFile(row->kind));
    _edit.setVisible(row && row->kind == KeyKind::colour);
    _reset.setVisible(row && canReset(*row, _table.isChanged(current())));
    if (!row || !theme())
        return;
    _editor->setResettable(canReset(*row, _table.isChanged(current())));
    _facts->setFacts(factsOf(*row, _table.words(current()), differingCopies(*theme(), *row)));
    showPreview();
}

void CFullListPage::showPreview() {
    if (!hasCurrent())
        return;
    const KeyRow& row = _table.row(current());
    const std::optional<QColor> colour =
        row.kind == KeyKind::colour ? colourOf(QString::fromStdString(row.value)) : std::nullopt;
    _preview->setVisible(colour || (row.kind == KeyKind::picture && !row.value.empty()));
    if (colour)
        _preview->showColour(*colour);
    else if (row.kind == KeyKind::picture)
        _preview->showPicture(_table.thumbnails().picture(row.value, _preview->size() * devicePixelRatioF()));
}

void CFullListPage::hideEvent(QHideEvent* event) {
    _table.dropWaiting();
    ZPage::hideEvent(event);
}

} // namespace zdt
