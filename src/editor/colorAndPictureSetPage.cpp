#include "editor/colorAndPictureSetPage.h"

#include "editor/changedMark.h"
#include "editor/colorSetPage.h"
#include "editor/pictureCell.h"
#include "editor/screenPictures.h"
#include "editor/screenTab.h"
#include "kit/exclusiveFocus.h"
#include "kit/icons.h"
#include "kit/lateSignals.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/notifications.h"
#include "kit/searchField.h"
#include "kit/tokens.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace zdt {

namespace {

/// The page's own line at its left.
constexpr int edge = 1;
constexpr int side = 16;
constexpr int tabGap = 24;
constexpr int barHeight = 48;
constexpr int footHeight = 32;

/// A bar of the page's width with a hairline at its edge, and its row.
QHBoxLayout* addBar(QVBoxLayout& column, const char* region, int height, int gap) {
    auto* bar = new QFrame;
    bar->setProperty("region", region);
    bar->setFixedHeight(height);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(side, 0, side, 0);
    row->setSpacing(gap);
    column.addWidget(bar);
    return row;
}

} // namespace

CColorAndPictureSetPage::CColorAndPictureSetPage(const QString& name, CPaintManagerUI& notifications, QWidget* parent)
    : QWidget(parent)
    , _name(name)
    , _colourTab(new ScreenTab(this))
    , _pictureTab(new ScreenTab(this))
    , _search(new ZSearchField(this))
    , _changedOnly(new QPushButton(this))
    , _form(new QPushButton(this))
    , _stack(new QStackedWidget(this))
    , _colours(new CColorSetPage(name, notifications, this))
    , _foot(new QLabel(this)) {
    setAcceptDrops(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(edge, 0, 0, 0);
    column->setSpacing(0);
    QHBoxLayout* tabs = addBar(*column, "sideHead", barHeight, tabGap);
    tabs->addWidget(_colourTab);
    tabs->addWidget(_pictureTab);
    tabs->addStretch();
    QHBoxLayout* find = addBar(*column, "sideHead", barHeight, side / 2);
    find->addWidget(_search, 1);
    find->addWidget(_changedOnly);
    find->addWidget(_form);
    setProperty("region", "side");
    setAttribute(Qt::WA_StyledBackground);
    _stack->addWidget(_colours);
    column->addWidget(_stack, 1);
    addBar(*column, "foot", footHeight, 0)->addWidget(_foot, 1, Qt::AlignRight);
    _foot->setProperty("type", "hint");

    _colourTab->setObjectName(name + "|color|option");
    _pictureTab->setObjectName(name + "|picture|option");
    _search->setObjectName(name + "|find");
    _changedOnly->setObjectName(name + "|changed");
    _form->setObjectName(name + "|pictures as");
    _form->setProperty("kind", "quiet");
    _form->hide();
    connect(_form, &QPushButton::clicked, this, [this] { emit gridChosen(!_isGrid); });
    _colourTab->setChecked(true);
    tabToChosen({_colourTab, _pictureTab});
    for (ScreenTab* tab : {_colourTab, _pictureTab}) {
        connect(tab, &QAbstractButton::clicked, this,
                [&notifications, tab] { notifications.SendNotify(tab, notify::click); });
    }
    _changedOnly->setCheckable(true);
    _changedOnly->setProperty("kind", "toggle");
    setChangedMark(*_changedOnly);
    connect(_search, &QLineEdit::textChanged, this, &CColorAndPictureSetPage::filter);
    connect(_changedOnly, &QPushButton::toggled, this, &CColorAndPictureSetPage::filter);
    connect(_colours, &CColorSetPage::filterDropped, this, &CColorAndPictureSetPage::clearFilter);
}

CColorAndPictureSetPage::~CColorAndPictureSetPage() {
    hearNoChildren(this);
}

void CColorAndPictureSetPage::relabel() {
    _colourTab->setText(Text("kColours"));
    _pictureTab->setText(Text("kPictures"));
    const bool isColours = tab() == colourTab;
    _search->setPlaceholderText(Text(isColours ? "kColours_find" : "kPictures_find"));
    _search->setAccessibleName(_search->placeholderText());
    _search->setClearTip(Text("kList_clear_search"));
    _changedOnly->setText(Text("kList_changed"));
    _changedOnly->setToolTip(Text("kList_changed_help"));
    _form->setToolTip(Text(_isGrid ? "kPictures_as_list" : "kPictures_as_grid"));
    _form->setAccessibleName(_form->toolTip());
    _form->setIcon(icon(_isGrid ? Icon::ListAlt : Icon::GridView, token::iconPlain));
}

void CColorAndPictureSetPage::showColours(const ThemeResource& theme, const std::vector<ColourRow>& rows) {
    relabel();
    _colours->setRows(theme, rows);
    showCounts();
}

void CColorAndPictureSetPage::refreshColour(const ThemeResource& theme, const ItemPath& path) {
    _colours->refresh(theme, path);
    showCounts();
}

void CColorAndPictureSetPage::showCounts() {
    _colourTab->setCount(_colours->count());
    const int count = _colours->count();
    _foot->setText((count == 1 ? Text("kColours_count_one") : TextWith("kColours_count", count)) +
                   TextWith("kList_changed_count", _colours->changedCount()));
}

void CColorAndPictureSetPage::setPictures(ScreenPictures* pictures) {
    _pictures = pictures;
    _stack->addWidget(pictures);
}

void CColorAndPictureSetPage::showPictures(const std::vector<PictureGroup>& groups) {
    _pictures->setGroups(groups);
    _pictures->retell();
    _pictureTab->setCount(_pictures->count());
}

int CColorAndPictureSetPage::tab() const {
    return _pictureTab->isChecked() ? pictureTab : colourTab;
}

void CColorAndPictureSetPage::selectTab(int tab) {
    (tab == pictureTab ? _pictureTab : _colourTab)->setChecked(true);
    _stack->setCurrentWidget(tab == pictureTab ? static_cast<QWidget*>(_pictures) : _colours);
    _foot->parentWidget()->setVisible(tab == colourTab);
    _form->setVisible(tab == pictureTab);
    relabel();
    filter();
}

void CColorAndPictureSetPage::filter() {
    const bool isChanged = _changedOnly->isChecked();
    _colours->setFilter(tab() == colourTab ? _search->text() : QString(), isChanged);
    _pictures->setFilter(tab() == pictureTab ? _search->text() : QString(), isChanged);
}

void CColorAndPictureSetPage::clearFilter() {
    _changedOnly->setChecked(false);
    _search->clear();
}

void CColorAndPictureSetPage::focusSearch() {
    _search->setFocus(Qt::ShortcutFocusReason);
    _search->selectAll();
}

/// What isn't taken here goes on to the window.
void CColorAndPictureSetPage::dragEnterEvent(QDragEnterEvent* event) {
    const bool isTaken = tab() == pictureTab && !draggedPictures(*event->mimeData()).isEmpty();
    event->setAccepted(isTaken);
    if (isTaken)
        event->acceptProposedAction();
}

void CColorAndPictureSetPage::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    // The program that the files come from waits for the end of the drop.
    QMetaObject::invokeMethod(
        this, [this, files = draggedPictures(*event->mimeData())] { emit filesDropped(files); }, Qt::QueuedConnection);
}

void CColorAndPictureSetPage::setGrid(bool isGrid) {
    _isGrid = isGrid;
    _pictures->setGrid(isGrid);
    relabel();
}

} // namespace zdt
