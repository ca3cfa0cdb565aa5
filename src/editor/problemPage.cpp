#include "editor/problemPage.h"

#include "editor/batchPlan.h"
#include "editor/codeWords.h"
#include "editor/problemList.h"
#include "editor/problemRestore.h"
#include "editor/problemWords.h"
#include "kit/countChip.h"
#include "kit/emptyState.h"
#include "kit/listView.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/tokens.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTime>

#include <algorithm>
#include <iterator>
#include <utility>

namespace zdt {

namespace {

/// Milliseconds after the last of some quick edits.
constexpr int checkDelay = 300;

} // namespace

CProblemPage::CProblemPage(Workbench& bench, QWidget* parent)
    : ZPage(bench, "problems.xml", parent)
    , _title(control<QLabel>("problemTitle"))
    , _checked(control<QLabel>("problemChecked"))
    , _hint(control<QLabel>("problemHint"))
    , _again(control<QPushButton>("problemCheckAgain"))
    , _stack(control<QStackedWidget>("problemStack"))
    , _region(control<QWidget>("ResEditErrorHorLayout"))
    , _view(control<ZListView>("problemList"))
    , _empty(control<ZEmptyState>("problemNone"))
    , _list(new ProblemList(this)) {
    constexpr int hintIcon = 16;
    control<QLabel>("problemHintIcon")
        .setPixmap(iconPixmap(Icon::InfoOutline, token::iconPlain, hintIcon, devicePixelRatioF()));
    _view.setSource(_list);
    makeChips();
    connectControls();
    say();
}

void CProblemPage::makeChips() {
    using Subject = ProblemSubject;
    const std::pair<const char*, std::optional<Subject>> chips[]{
        {"problemAll", {}},
        {"problemPictures", Subject::pictures},
        {"problemColours", Subject::colours},
        {"problemTexts", Subject::texts},
        {"problemFiles", Subject::files},
        {"problemLayouts", Subject::layout},
    };
    for (const auto& [name, subject] : chips) {
        auto* chip = &control<ZCountChip>(name);
        _chips.push_back({chip, subject});
        connect(chip, &ZCountChip::toggled, this, [this](bool on) {
            if (on)
                applyChoice();
        });
    }
    _chips.front().chip->setChecked(true);
}

void CProblemPage::connectControls() {
    _soon.setSingleShot(true);
    _soon.setInterval(checkDelay);
    connect(&_soon, &QTimer::timeout, this, &CProblemPage::check);
    connect(&_again, &QPushButton::clicked, this, [this] {
        _refused.clear();
        check();
    });
    connect(&_view, &ZListView::activated, this, &CProblemPage::goTo);
    connect(_list, &ProblemList::goToClicked, this, &CProblemPage::goTo);
    connect(_list, &ProblemList::restoreClicked, this, &CProblemPage::restore);
    connect(_list, &ProblemList::currentShown, this, &CProblemPage::keepTabOrder);
}

void CProblemPage::Notify(const Notification& message) {
    if (message.name == notify::Notify_Error_List_Msg && message.lParam != 0 && !message.async)
        takeProblems(*reinterpret_cast<const std::vector<Problem>*>(message.lParam));
    else if (message.name == notify::Notify_Error_List_refresh)
        reload();
    else
        ZPage::Notify(message);
}

void CProblemPage::reload() {
    if (isVisible())
        check();
    else
        _soon.start();
}

void CProblemPage::check() {
    _soon.stop();
    std::vector<Problem> problems;
    if (theme())
        static_cast<void>(theme()->checkFiles(problems));
    if (std::exchange(_theme, bench().themeSerial()) != bench().themeSerial())
        _refused.clear();
    problems.insert(problems.end(), _refused.begin(), _refused.end());
    showProblems(problems);
}

void CProblemPage::takeProblems(const std::vector<Problem>& problems) {
    _refused.clear();
    std::copy_if(problems.begin(), problems.end(), std::back_inserter(_refused),
                 [](const Problem& problem) { return batchReasonNumber(problem.code) != 0; });
    if (_refused.empty()) {
        _soon.stop();
        return showProblems(problems);
    }
    _theme = bench().themeSerial();
    check();
}

void CProblemPage::showProblems(const std::vector<Problem>& problems) {
    const std::optional<Problem> wanted = _wanted ? std::exchange(_wanted, {}) : currentProblem();
    const int index = _view.current();
    _rows = problemRows(theme(), problems);
    _time = theme() ? QTime::currentTime().toString("HH:mm") : QString();
    say();
    applyChoice();
    makeCurrent(wanted, index);
    emit countsChanged();
}

void CProblemPage::say() {
    const bool hasRows = !_rows.empty();
    const QString checked = _time.isEmpty() ? QString() : TextWith("kProblems_checked", _time);
    _title.setText(theme() ? countText(_rows.size()) : QString());
    _checked.setText(hasRows ? checked : QString());
    _hint.setText(Text(hasRows ? "kProblems_hint" : "kProblems_hint_none"));
    _empty.setIcon("check_circle", "ok");
    _empty.setTexts(Text("kProblems_none"), checked);
    const bool hadFocus = _view.isAncestorOf(QApplication::focusWidget()) || _view.hasFocus();
    _stack.setCurrentWidget(hasRows ? &_region : static_cast<QWidget*>(&_empty));
    if (hadFocus && !hasRows)
        _again.setFocus();
    sayChips();
    keepBarInside();
}

/// A chip that shows nothing is left out.
void CProblemPage::sayChips() {
    for (const Chip& each : _chips) {
        const auto count =
            std::count_if(_rows.begin(), _rows.end(), [&](const ProblemRow& row) { return each.shows(row); });
        each.chip->setCount(static_cast<int>(count));
        each.chip->setVisible(count > 0);
        if (count == 0 && each.chip->isChecked())
            _chips.front().chip->setChecked(true);
    }
}

void CProblemPage::applyChoice() {
    const auto chosen =
        std::find_if(_chips.begin(), _chips.end(), [](const Chip& each) { return each.chip->isChecked(); });
    _list->show(_rows, [&](const ProblemRow& row) { return chosen == _chips.end() || chosen->shows(row); });
}

/// Where the bar is short of room, the time of the check goes first.
void CProblemPage::keepBarInside() {
    _checked.show();
    auto& bar = control<QWidget>("problemBar");
    bar.layout()->activate();
    _checked.setVisible(bar.layout()->minimumSize().width() <= width());
}

void CProblemPage::resizeEvent(QResizeEvent* event) {
    ZPage::resizeEvent(event);
    keepBarInside();
}

std::optional<Problem> CProblemPage::currentProblem() const {
    const ProblemRow* row = _list->rowAt(_view.current());
    return row ? std::optional(row->problem) : std::nullopt;
}

void CProblemPage::makeCurrent(const std::optional<Problem>& wanted, int index) {
    const int found = wanted ? _list->indexOf(*wanted) : -1;
    if (found >= 0 || index < 0) {
        _view.setCurrent(found);
        return;
    }
    for (int at = std::min(index, _list->count() - 1); at >= 0; --at) {
        if (_list->isSelectable(at)) {
            _view.setCurrent(at);
            return;
        }
    }
}

void CProblemPage::keepTabOrder(QWidget* cell) {
    if (_tabCell == cell)
        return;
    _tabCell = cell;
    auto& goTo = FindControl<QPushButton>(cell, "goTo");
    setTabOrder(&_view, &goTo);
    setTabOrder(&goTo, &FindControl<QPushButton>(cell, "restore"));
}

void CProblemPage::keyPressEvent(QKeyEvent* event) {
    const bool inList = _view.hasFocus() || _view.isAncestorOf(QApplication::focusWidget());
    const bool isRestore = event->key() == Qt::Key_Delete || event->key() == Qt::Key_R;
    const ProblemRow* row = _list->rowAt(_view.current());
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (inList && isRestore && isPlain && row && row->restore != ProblemRestore::none)
        restore(_view.current());
    else
        ZPage::keyPressEvent(event);
}

void CProblemPage::goTo(int index) {
    const ProblemRow* row = _list->rowAt(index);
    if (!row)
        return;
    const QString key = QString::fromStdString(row->problem.key);
    _view.setCurrent(index);
    emit jumpRequested(key);
}

bool CProblemPage::mayRestore(const ProblemRow& row) {
    if (row.restore != ProblemRestore::lockDesign)
        return true;
    ZMessageBoxDlg::Message question;
    question.kind = ZMessageBoxDlg::Kind::Question;
    question.titleKey = "kProblems_new_design_title";
    question.textKey = "kProblems_new_design";
    question.acceptKey = "kProblems_new_design_start";
    question.rejectKey = "kCancel";
    question.rejectByDefault = true;
    return ZMessageBoxDlg::ask(question, Text, this);
}

void CProblemPage::restore(int index) {
    const ProblemRow* row = _list->rowAt(index);
    if (!row || !theme())
        return;
    // The list may become another one while the question stands.
    const ProblemRow mended = *row;
    if (!mayRestore(mended) || !theme())
        return;
    if (const int code = restoreProblem(*theme(), mended.problem)) {
        tellNote(this, codeKey(code));
        return;
    }
    followRestored(_list->indexOf(mended.problem));
    bench().notifications().SendNotify(this, notify::Notify_ReloadDataMsg);
}

/// The row behind the mended one becomes current, else the one before it.
void CProblemPage::followRestored(int index) {
    int next = index + 1;
    while (next < _list->count() && !_list->isSelectable(next))
        ++next;
    int before = index - 1;
    while (before >= 0 && !_list->isSelectable(before))
        --before;
    const ProblemRow* row = _list->rowAt(next < _list->count() ? next : before);
    _wanted = row ? std::optional(row->problem) : std::nullopt;
    // So that Delete goes on, whatever began it.
    _view.setFocus();
}

} // namespace zdt
