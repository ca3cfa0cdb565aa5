#include "editor/colorSetPage.h"

#include "editor/colorItem.h"
#include "editor/groupHead.h"
#include "editor/keyWords.h"
#include "editor/moduleWords.h"
#include "kit/emptyState.h"
#include "kit/kitStyle.h"
#include "kit/localisation.h"
#include "store/themeResource.h"

#include <QPropertyAnimation>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {

/// Of the keys that a colour sets, as many as its tip names.
constexpr std::size_t namedKeys = 12;
/// Milliseconds.
constexpr int glideTime = 160;

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

/// The third part of the names of a row's controls: the item alone where its group is the screen's.
QString nameOf(const ColourRow& row) {
    return shown(row.isOfScreen ? row.path.item : row.path.key());
}

QString tipOf(const ThemeResource& theme, const ColourRow& row) {
    const std::vector<std::string> keys = keysOfItem(theme, row.path);
    QStringList names;
    for (std::size_t index = 0; index < std::min(keys.size(), namedKeys); ++index)
        names.append(shown(keys[index]));
    if (keys.size() > namedKeys)
        names.append("…");
    const QString place = moduleWord(row.path.module) + " › " + KeyedText(shown(row.path.group));
    return place + "\n" + TextWith("kColours_sets_keys", static_cast<int>(keys.size())) + "\n" + names.join("\n");
}

} // namespace

QString colourWords(const ColourRow& row) {
    const QString word = KeyedText(shown(row.path.item));
    const QString name = word.isEmpty() ? shown(row.path.item) : word;
    return row.isForeign ? name + " · " + moduleWord(row.path.module) : name;
}

CColorSetPage::CColorSetPage(const QString& name, CPaintManagerUI& notifications, QWidget* parent)
    : QScrollArea(parent)
    , _name(name)
    , _notifications(notifications)
    , _gliding(new QPropertyAnimation(verticalScrollBar(), "value", this)) {
    setObjectName(name + "|colours");
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* body = new QWidget;
    body->setProperty("region", "panel");
    body->setAttribute(Qt::WA_StyledBackground);
    _column = new QVBoxLayout(body);
    _column->setContentsMargins(0, 0, 0, 0);
    _column->setSpacing(0);
    _ownHead = new GroupHead(body);
    _otherHead = new GroupHead(body);
    _empty = new ZEmptyState(body);
    _empty->setIcon("search");
    for (QWidget* head : {_ownHead, _otherHead})
        head->setFixedHeight(GroupHead::height);
    connect(_empty, &ZEmptyState::actionClicked, this, &CColorSetPage::filterDropped);
    setWidget(body);
    _gliding->setDuration(glideTime);
}

void CColorSetPage::build(const std::vector<ColourRow>& rows) {
    for (const Row& row : _rows)
        row.item->deleteLater();
    _rows.clear();
    while (QLayoutItem* item = _column->takeAt(0))
        delete item;
    _column->addWidget(_ownHead);
    bool isBelow = false;
    for (const ColourRow& row : rows) {
        if (!row.isOfScreen && !isBelow)
            _column->addWidget(_otherHead);
        isBelow = isBelow || !row.isOfScreen;
        _rows.push_back({row, makeItem(row)});
        _column->addWidget(_rows.back().item);
    }
    _column->addWidget(_empty, 1);
    _column->addStretch();
}

CColorItem* CColorSetPage::makeItem(const ColourRow& row) {
    auto* item = new CColorItem(_name + "|" + nameOf(row), _notifications, widget());
    connect(item, &CColorItem::entered, this, [this, item] {
        ensureWidgetVisible(item, 0, 0);
        emit entered(item);
    });
    return item;
}

void CColorSetPage::setRows(const ThemeResource& theme, const std::vector<ColourRow>& rows) {
    const auto isSame = [](const Row& standing, const ColourRow& wanted) {
        return standing.row.path == wanted.path && standing.row.isOfScreen == wanted.isOfScreen &&
               standing.row.switchItem == wanted.switchItem;
    };
    if (_column->isEmpty() || !std::equal(_rows.begin(), _rows.end(), rows.begin(), rows.end(), isSame))
        build(rows);
    for (Row& row : _rows)
        fill(theme, row);
    choose();
}

void CColorSetPage::fill(const ThemeResource& theme, Row& row) {
    ColourContent content;
    content.label = colourWords(row.row);
    content.tip = tipOf(theme, row.row);
    content.colour = itemColour(theme, row.row.path);
    content.isChanged = isItemChanged(theme, row.row.path);
    if (!row.row.switchItem.empty()) {
        const ItemPath switchPath{row.row.path.module, row.row.path.group, row.row.switchItem};
        content.isOn = isItemOn(theme, switchPath);
        content.isChanged = content.isChanged || isItemChanged(theme, switchPath);
    }
    row.item->setContent(content);
}

void CColorSetPage::refresh(const ThemeResource& theme, const ItemPath& path) {
    const auto found = std::find_if(_rows.begin(), _rows.end(), [&](const Row& row) { return row.row.path == path; });
    if (found != _rows.end())
        fill(theme, *found);
}

void CColorSetPage::setFilter(const QString& text, bool changedOnly) {
    _filter = text.trimmed();
    _changedOnly = changedOnly;
    choose();
}

void CColorSetPage::choose() {
    int own = 0;
    int others = 0;
    for (Row& row : _rows) {
        const ColourContent& content = row.item->content();
        const bool isFound = _filter.isEmpty() || content.label.contains(_filter, Qt::CaseInsensitive) ||
                             content.tip.contains(_filter, Qt::CaseInsensitive) ||
                             content.colour.name(QColor::HexArgb).contains(_filter, Qt::CaseInsensitive);
        // A row that is being edited stays, whatever it holds now.
        row.isShown = isFound && (!_changedOnly || content.isChanged || row.item->isAncestorOf(focusWidget()));
        row.item->setVisible(row.isShown);
        (row.row.isOfScreen ? own : others) += row.isShown ? 1 : 0;
    }
    static_cast<GroupHead*>(_ownHead)->setContent(Text("kColours_this_screen"), own);
    static_cast<GroupHead*>(_otherHead)->setContent(Text("kColours_also_here"), others);
    _ownHead->setVisible(own > 0);
    _otherHead->setVisible(others > 0);
    const bool isEmpty = own + others == 0;
    _empty->setVisible(isEmpty);
    if (_rows.empty())
        _empty->setTexts(Text("kColours_none"), Text("kColours_none_hint"));
    else if (!_filter.isEmpty())
        _empty->setTexts(nothingCalled(_filter), {}, Text("kList_clear_search"));
    else
        _empty->setTexts(Text("kList_nothing_changed"), {}, Text("kList_show_all"));
}

CColorItem* CColorSetPage::itemOf(const QString& key) const {
    const auto found = std::find_if(_rows.begin(), _rows.end(), [&](const Row& row) { return nameOf(row.row) == key; });
    return found == _rows.end() ? nullptr : found->item;
}

CColorItem* CColorSetPage::itemOf(const std::string& key) const {
    const auto found =
        std::find_if(_rows.begin(), _rows.end(), [&](const Row& row) { return row.row.path.key() == key; });
    return found == _rows.end() ? nullptr : found->item;
}

const ColourRow* CColorSetPage::rowOf(const CColorItem& item) const {
    const auto found = std::find_if(_rows.begin(), _rows.end(), [&](const Row& row) { return row.item == &item; });
    return found == _rows.end() ? nullptr : &found->row;
}

int CColorSetPage::changedCount() const {
    return static_cast<int>(
        std::count_if(_rows.begin(), _rows.end(), [](const Row& row) { return row.item->content().isChanged; }));
}

void CColorSetPage::showItem(CColorItem& item) {
    if (item.isHidden())
        emit filterDropped();
    widget()->layout()->activate();
    scrollTo(item.y() - (viewport()->height() - item.height()) / 2);
    item.edit();
    item.flash();
}

void CColorSetPage::scrollTo(int y) {
    QScrollBar* bar = verticalScrollBar();
    if (reducedMotion()) {
        bar->setValue(y);
        return;
    }
    _gliding->stop();
    _gliding->setEndValue(std::clamp(y, bar->minimum(), bar->maximum()));
    _gliding->start();
}

} // namespace zdt
