#include "shell/startPage.h"

#include "kit/emptyState.h"
#include "kit/flowView.h"
#include "kit/icons.h"
#include "kit/localisation.h"
#include "kit/menuUI.h"
#include "kit/notificationNames.h"
#include "kit/searchField.h"
#include "kit/tokens.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <algorithm>
#include <array>

namespace zdt {

namespace {

/// Logical pixels; with the window's edge, cards stand 48 from its sides.
constexpr int sideMargin = 47;
constexpr int endMargin = 12;

constexpr std::array<Icon, 3> stepIcons{Icon::Smartphone, Icon::Palette, Icon::Output};

enum Tab { themesTab, firstVisitTab };
enum Found { cardsFound, nothingFound };

} // namespace

CStartPage::CStartPage(Workbench& bench, QWidget* parent)
    : ZPage(bench, "start.xml", parent)
    , _tabs(control<QStackedWidget>("startTab"))
    , _found(control<QStackedWidget>("themesFound"))
    , _count(control<QLabel>("themeCount"))
    , _drop(control<QLabel>("dropText"))
    , _order(control<QComboBox>("themeOrder"))
    , _search(control<ZSearchField>("themeSearch"))
    , _view(control<ZFlowView>("MainWelecomeTab"))
    , _nothing(control<ZEmptyState>("nothingFound"))
    , _cards(bench.root(), devicePixelRatioF()) {
    makeSteps();
    _view.setMargins(sideMargin, endMargin);
    _view.setSource(&_cards);
    for (const char* name : {"ThemeResNewBtn", "firstNewBtn"})
        connect(&control<QPushButton>(name), &QPushButton::clicked, this, &CStartPage::newRequested);
    for (const char* name : {"ThemeResLoadBtn", "firstImportBtn"})
        connect(&control<QPushButton>(name), &QPushButton::clicked, this, &CStartPage::importRequested);
    const auto open = [this](int index) { emit openRequested(QString::fromStdString(_cards.theme(index).name)); };
    connect(&_view, &CellView::activated, this, open);
    connect(&_cards, &ThemeCards::openRequested, this, open);
    connect(&_view, &CellView::menuRequested, this, &CStartPage::showMenu);
    connect(&_cards, &ThemeCards::menuRequested, this, &CStartPage::showMenu);
    connect(&_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        _cards.setSearch(text);
        showFound();
    });
    connect(&_nothing, &ZEmptyState::actionClicked, &_search, &QLineEdit::clear);
    connect(&_order, &QComboBox::currentIndexChanged, this, &CStartPage::refill);
    auto* remove = new QShortcut(QKeySequence::Delete, &_view, nullptr, nullptr, Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, [this] {
        if (_view.current() >= 0)
            emit deleteRequested(QString::fromStdString(_cards.theme(_view.current()).name));
    });
    _order.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    reload();
}

CStartPage::~CStartPage() {
    _view.setSource(nullptr);
}

void CStartPage::makeSteps() {
    for (std::size_t step = 0; step < stepIcons.size(); ++step)
        control<QLabel>(QString("step%1Icon").arg(step + 1))
            .setPixmap(iconPixmap(stepIcons[step], token::accentText, 20, devicePixelRatioF()));
    control<QLabel>("dropIcon")
        .setPixmap(iconPixmap(Icon::DriveFolderUpload, token::iconPlain, 18, devicePixelRatioF()));
    _nothing.setIcon("search");
}

void CStartPage::Notify(const Notification& message) {
    ZPage::Notify(message);
    if (message.name == notify::Reload_history_themes)
        refill();
}

void CStartPage::reload() {
    showOrders();
    _search.setClearTip(Text("kStart_search_clear"));
    _cards.refresh();
    showFound();
}

void CStartPage::showOrders() {
    const QSignalBlocker quiet(_order);
    const int chosen = std::max(0, _order.currentIndex());
    _order.clear();
    _order.addItems({Text("kStart_order_change"), Text("kStart_order_name")});
    _order.setCurrentIndex(chosen);
}

void CStartPage::refill() {
    const int current = _view.current();
    const std::string name = current >= 0 ? _cards.theme(current).name : std::string();
    _cards.setThemes(
        readThemeCards(bench().root(), _order.currentIndex() == 1 ? ThemeOrder::byName : ThemeOrder::byChange));
    if (_cards.indexOf(name) >= 0)
        select(name);
    showFound();
}

void CStartPage::select(const std::string& name) {
    // A theme that just came is to be seen, whatever was searched for.
    if (_cards.isThere(name) && _cards.indexOf(name) < 0)
        _search.clear();
    const int index = _cards.indexOf(name);
    if (index >= 0)
        _view.setCurrent(index);
}

void CStartPage::showFound() {
    _tabs.setCurrentIndex(_cards.themeCount() == 0 ? firstVisitTab : themesTab);
    _found.setCurrentIndex(_cards.count() == 0 ? nothingFound : cardsFound);
    _drop.setText(Text(_cards.themeCount() == 0 ? "kStart_first_drop" : "kStart_drop"));
    _count.setText(QString::number(_cards.count()));
    _nothing.setTexts(TextWith("kStart_nothing", _search.text().trimmed()), {}, Text("kStart_search_clear"));
}

bool CStartPage::focusCards() {
    if (_cards.count() > 0)
        _view.setFocus();
    return _cards.count() > 0;
}

void CStartPage::focusSearch() {
    if (_tabs.currentIndex() != themesTab)
        return;
    _search.setFocus(Qt::ShortcutFocusReason);
    _search.selectAll();
}

void CStartPage::showMenu(int index, const QPoint& position) {
    _view.setCurrent(index);
    const QString name = QString::fromStdString(_cards.theme(index).name);
    ZMenuUI menu(this);
    QAction* open = menu.addRow(Icon::FolderOpen, Text("kStart_open"));
    open->setShortcut(Qt::Key_Return);
    QAction* folder = menu.addRow(Icon::FolderZip, Text("kStart_show_folder"));
    menu.addSeparator();
    QAction* remove = menu.addRow(Icon::DeleteOutline, Text("kStart_delete"), true);
    remove->setShortcut(Qt::Key_Delete);
    // What was chosen may open another window or page: only once the menu is gone.
    const QAction* chosen = menu.exec(position);
    if (chosen == open)
        emit openRequested(name);
    else if (chosen == folder)
        emit folderRequested(name);
    else if (chosen == remove)
        emit deleteRequested(name);
}

} // namespace zdt
