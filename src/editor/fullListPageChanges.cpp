#include "editor/codeWords.h"
#include "editor/fullListPage.h"
#include "editor/keyDefaults.h"
#include "editor/keyEditor.h"
#include "editor/previewCard.h"
#include "kit/colourDialog.h"
#include "kit/colourText.h"
#include "kit/listView.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "kit/searchField.h"
#include "model/returnCode.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>
#include <bit>

/// What the author changes in the list.
namespace zdt {

namespace {

/// Whether a drop is for the window: packages and folders of themes are imported there.
bool holdsThemes(const QStringList& files) {
    return std::any_of(files.begin(), files.end(), [](const QString& file) {
        return file.endsWith(".zdt", Qt::CaseInsensitive) || QFileInfo(file).isDir();
    });
}

QString reasonWords(const KeyRow& row, int code) {
    const bool isKind = row.key == lockStyleKey && code == returnCode::notAllowed;
    return Text(isKind ? QString("kList_lock_kinds") : codeKey(code));
}

/// What a file dialog offers for a row.
QString nameFilter(const KeyRow& row) {
    QStringList patterns;
    if (row.kind == KeyKind::video)
        patterns.append("*.mp4");
    else if (row.name().ends_with(".9.png"))
        patterns.append("*.9.png");
    else if (row.kind == KeyKind::picture)
        patterns.append(row.kinds == fileKind::png ? QStringList{"*.png"} : QStringList{"*.jpg", "*.png"});
    else
        patterns.append("*");
    return QString("%1 (%2)").arg(Text("kList_files"), patterns.join(' '));
}

} // namespace

void CFullListPage::activate(int index) {
    if (index < 0 || index >= _table.count())
        return;
    _list.setCurrent(index);
    if (isFile(_table.row(index).kind))
        replaceByDialog();
    else
        _editor->edit();
}

void CFullListPage::moveAndEdit(int by) {
    const int index = current() + by;
    if (index < 0 || index >= _table.count())
        return;
    _list.setCurrent(index);
    if (isFile(_table.row(index).kind))
        _list.setFocus(Qt::ShortcutFocusReason);
    else
        _editor->edit();
}

void CFullListPage::enterValue(const QString& value, bool isWhole) {
    const KeyRow* edited = _table.find(_edited);
    if (!theme() || !edited)
        return;
    const KeyRow row = *edited;
    if (!isWhole)
        return _editor->showReason(Text("kColour_form"));
    if (const int code = changeKey(*theme(), row, value.toStdString()))
        _editor->showReason(reasonWords(row, code));
    else
        changed(row.key);
}

void CFullListPage::changed(const std::string& key) {
    _lost.clear();
    // What else is written, and needed, depends on the kind of lock screen.
    if (key == lockStyleKey)
        return bench().notifications().SendNotify(this, notify::Notify_ReloadDataMsg);
    if (theme())
        _table.refresh(*theme(), key);
    if (key == _current)
        showCurrent();
    bench().notifications().SendNotify(this, notify::Notify_Error_List_refresh);
}

void CFullListPage::tryColour(const std::string& key, const QColor& colour) {
    _tried = colour;
    if (_tryTimer.isActive() || !theme())
        return;
    const KeyRow* row = _table.find(key);
    if (!row || changeKey(*theme(), KeyRow(*row), colourText(colour).toStdString()) != returnCode::success)
        return;
    _table.refresh(*theme(), key);
    if (key == _current)
        showCurrent();
    _tryTimer.start();
}

void CFullListPage::chooseColour(int index) {
    if (!theme() || index < 0 || index >= _table.count())
        return;
    _list.setCurrent(index);
    const KeyRow row = _table.row(index);
    const std::optional<QColor> before = colourOf(QString::fromStdString(row.value()));
    if (row.kind != KeyKind::colour || !before)
        return isFile(row.kind) ? replaceByDialog() : _editor->edit();
    const ZColourDialog::Request request{*before, colourOf(QString::fromStdString(row.fallback())),
                                         _table.commonColours()};
    // The last colour tried is written even if the author stops within the interval.
    const QMetaObject::Connection late = connect(&_tryTimer, &QTimer::timeout, this, [this, key = row.key] {
        const KeyRow* now = _table.find(key);
        if (now && !sameText(KeyKind::colour, now->value(), colourText(_tried).toStdString()))
            tryColour(key, _tried);
    });
    bool wasTried = false;
    const std::optional<QColor> chosen =
        ZColourDialog::choose(request, Text, this, [this, &wasTried, key = row.key](const QColor& colour) {
            wasTried = true;
            tryColour(key, colour);
        });
    disconnect(late);
    _tryTimer.stop();
    if (!theme() || !_table.find(row.key) || (!chosen && !wasTried))
        return;
    const KeyRow& now = *_table.find(row.key);
    const std::string value = chosen ? colourText(*chosen).toStdString() : std::string();
    int code = returnCode::success;
    if (!chosen && wasTried)
        code = restoreKey(*theme(), row);
    else if (chosen && !sameText(KeyKind::colour, now.value(), value))
        code = changeKey(*theme(), row, value);
    changed(row.key);
    if (code != returnCode::success)
        tellNote(this, codeKey(code));
}

void CFullListPage::replaceByDialog() {
    if (!theme() || !hasCurrent() || !isFile(_table.row(current()).kind))
        return;
    if (_table.row(current()).isDrawn)
        return tellNote(this, "kList_drawn");
    const std::string key = _current;
    const QString file = fileChoice.file(this, Text("kList_choose_file"), nameFilter(_table.row(current())));
    const int index = _table.indexOf(key);
    if (file.isEmpty() || index < 0)
        return;
    replaceBy(index, file);
}

void CFullListPage::replaceBy(int index, const QString& file) {
    if (!theme() || index < 0 || index >= _table.count() || !isFile(_table.row(index).kind))
        return;
    _list.setCurrent(index);
    const KeyRow row = _table.row(index);
    const FileRefusal refusal = replaceFile(*theme(), row, file.toStdString());
    if (refusal.isNone()) {
        changed(row.key);
        return;
    }
    const QString reason = refusal.message.empty() ? codeKey(refusal.code) : QString::fromStdString(refusal.message);
    const QString allowed = row.isDrawn ? QString() : allowedWords(row);
    if (allowed.isEmpty())
        tellNote(this, reason);
    else
        tellNote(this, "kList_refused_allowed", {Text(reason), allowed});
}

void CFullListPage::takeDropped(int index, const QStringList& files) {
    if (!theme())
        return;
    if (files.size() != 1)
        tellNote(this, "kList_drop_one");
    else if (index < 0 || index >= _table.count() || !isFile(_table.row(index).kind))
        tellNote(this, "kList_drop_no_file");
    else
        replaceBy(index, QString(files.first()));
}

bool CFullListPage::mayReset(const KeyRow& row) {
    // A file that doesn't fit its place has no value, and nobody misses it. Another is the author's work.
    return !isFile(row.kind) || row.value().empty() ||
           askYesNo(this, "kList_reset_question", {QString::fromStdString(row.name())});
}

void CFullListPage::resetCurrent() {
    if (!theme() || !hasCurrent())
        return;
    const KeyRow row = _table.row(current());
    // The theme may be another one after the question.
    if (!canReset(row, _table.isChanged(current())) || !mayReset(row) || !theme() || !_table.find(row.key))
        return;
    if (const int code = resetKey(*theme(), row))
        return tellNote(this, codeKey(code));
    changed(row.key);
    _list.setFocus(Qt::OtherFocusReason);
}

void CFullListPage::copyValue() const {
    if (!hasCurrent())
        return;
    const KeyRow& row = _table.row(current());
    QApplication::clipboard()->setText(
        QString::fromStdString(isFile(row.kind) ? row.places.front().file : row.value()));
}

void CFullListPage::pasteValue() {
    if (!hasCurrent() || _table.row(current()).kind != KeyKind::colour)
        return;
    const std::optional<QColor> colour = colourOf(QApplication::clipboard()->text());
    enterValue(colour ? colourText(*colour) : QString(), colour.has_value());
}

bool CFullListPage::listKey(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy))
        copyValue();
    else if (event.matches(QKeySequence::Paste))
        pasteValue();
    else if (event.key() == Qt::Key_F2)
        activate(current());
    else if (event.key() == Qt::Key_Delete)
        resetCurrent();
    else
        return false;
    return true;
}

bool CFullListPage::dropOnList(QEvent* event) {
    auto* drop = static_cast<QDropEvent*>(event); // The move and enter events are drops, too.
    const QStringList files = draggedFiles(*drop->mimeData());
    drop->setAccepted(!files.isEmpty() && !holdsThemes(files));
    if (!drop->isAccepted() || event->type() != QEvent::Drop)
        return true;
    drop->acceptProposedAction();
    const int index = rowAt(drop->position().toPoint());
    const std::string key = index < 0 ? std::string() : _table.row(index).key;
    // The program that the file comes from waits until the drop is done; a box must not keep it.
    QTimer::singleShot(0, this, [this, key, files] { takeDropped(_table.indexOf(key), files); });
    return true;
}

void CFullListPage::Notify(const Notification& message) {
    ZPage::Notify(message);
    const bool isDrop = message.name == notify::Notify_Drag_File && message.wParam == 0 && message.lParam != 0;
    if (isDrop && !message.async && isVisible())
        takeDropped(current(), QStringList(*std::bit_cast<const QStringList*>(message.lParam)));
}

bool CFullListPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &_list && event->type() == QEvent::KeyPress)
        return listKey(*static_cast<QKeyEvent*>(event));
    if (watched == &_search && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down && _table.count() > 0) {
        _list.setFocus(Qt::TabFocusReason);
        return true;
    }
    if (watched == _list.viewport()) {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return dropOnList(event);
        case QEvent::Resize:
            QTimer::singleShot(0, this, [this] {
                placeHead();
                placeEditor();
                showRange();
            });
            break;
        default:
            break;
        }
    }
    return ZPage::eventFilter(watched, event);
}

} // namespace zdt
