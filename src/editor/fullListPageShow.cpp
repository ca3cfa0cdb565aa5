#include "editor/fullListPage.h"
#include "editor/keyDetails.h"
#include "editor/keyEditor.h"
#include "editor/keyWords.h"
#include "kit/emptyState.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/listView.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

/// What the list shows around its rows, and beside them.
namespace zdt {

namespace {

constexpr int headIcon = 14;
constexpr int headHeight = 24;
constexpr int headInset = 4;            ///< Of the button's text.
constexpr int editorInset = 9;          ///< The fields begin before the value, so that the digits stay where they are.
constexpr int widthForBothCounts = 600; ///< In a narrower bar the search needs the room.

} // namespace

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
        _empty.setTexts(nothingCalled(filter.text.trimmed()), {}, Text("kList_clear_search"));
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

void CFullListPage::showHint() {
    const QString reason = _editor->hasReason() ? _editor->cutReason() : _lost;
    _hint.setText(reason.isEmpty() ? Text("kList_hint") : reason);
    setStyleProperty(&_hint, "state", reason.isEmpty() ? "" : "error");
}

void CFullListPage::placeHead() {
    const KeyColumns columns = keyColumns(_list.viewport()->width());
    const int height = _head.height() - 1;
    _changedCount.setVisible(_list.viewport()->width() >= widthForBothCounts);
    const bool down = _table.filter().descending;
    _headKey.setIcon(icon(down ? Icon::ArrowDownward : Icon::ArrowUpward, token::iconPlain));
    _headKey.setIconSize({headIcon, headIcon});
    _headKey.setGeometry(columns.key - headInset, (height - headHeight) / 2, _headKey.sizeHint().width(), headHeight);
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
        if (_editor->hasReason() && row.key != _edited)
            _lost = Text("kList_not_stored").arg(_editedName, _editor->reason());
        _current = row.key;
        _editedName = _table.words(current()).name;
        _edited = isFile(row.kind) ? std::string() : row.key;
        const std::optional<QColor> colour = colourOfRow(row);
        _editor->setResettable(canReset(row, _table.isChanged(current())));
        if (colour)
            _editor->showColour(*colour);
        else if (!isFile(row.kind))
            _editor->showText(QString::fromStdString(row.value()));
    }
    placeEditor();
    _detailTimer.start();
}

void CFullListPage::showDetails() {
    const bool has = hasCurrent();
    _facts->setVisible(has);
    _preview->setVisible(has);
    _nothing->setVisible(!has);
    _name.setText(has ? _table.words(current()).name : QString());
    const KeyRow* row = has ? &_table.row(current()) : nullptr;
    _replace.setVisible(row && isFile(row->kind) && !row->isDrawn);
    _edit.setVisible(row && row->kind == KeyKind::colour);
    _reset.setVisible(row && canReset(*row, _table.isChanged(current())));
    if (!row || !theme())
        return;
    _editor->setResettable(canReset(*row, _table.isChanged(current())));
    _facts->setFacts(factsOf(*row, _table.words(current()), differingCopies(*row)));
    showPreview();
}

void CFullListPage::clearDetails() {
    for (QWidget* part :
         {static_cast<QWidget*>(_facts), static_cast<QWidget*>(_preview), static_cast<QWidget*>(_nothing),
          static_cast<QWidget*>(&_replace), static_cast<QWidget*>(&_edit), static_cast<QWidget*>(&_reset)})
        part->hide();
    _name.setText({});
}

void CFullListPage::showPreview() {
    if (!hasCurrent())
        return;
    const KeyRow& row = _table.row(current());
    const std::optional<QColor> colour = colourOfRow(row);
    _preview->setVisible(colour || (row.kind == KeyKind::picture && !row.value().empty()));
    if (colour)
        _preview->showColour(*colour);
    else if (row.kind == KeyKind::picture)
        _preview->showPicture(_table.thumbnails().picture(row.value(), _preview->size() * devicePixelRatioF()));
}

} // namespace zdt
