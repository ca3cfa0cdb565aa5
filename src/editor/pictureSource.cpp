#include "editor/pictureSource.h"

#include "editor/pictureItem.h"

#include <algorithm>
#include <utility>

namespace zdt {

PictureSource::PictureSource(MakeCell makeCell, int headSide, QObject* parent)
    : ZListViewDataSource(parent)
    , _makeCell(std::move(makeCell))
    , _headSide(headSide) {
    connect(&_thumbnails, &Thumbnails::ready, this, &PictureSource::showFiles);
    connect(&_changes, &FileChanges::known, this, [this] {
        if (_changedOnly)
            choose();
        else if (count() > 0)
            emit changed(0, count() - 1);
        emit counted();
    });
}

void PictureSource::setScreen(const QString& module, const QString& preview) {
    _module = module;
    _preview = preview;
}

void PictureSource::setGroups(std::vector<PictureGroup> groups) {
    _groups = std::move(groups);
    _thumbnails.dropWaiting();
    clearHover();
    choose();
    // What isn't shown is counted too.
    static_cast<void>(changedCount());
    emit counted();
}

void PictureSource::setFilter(const QString& text, bool changedOnly) {
    const QString wanted = text.trimmed();
    if (wanted == _text && changedOnly == _changedOnly)
        return;
    _text = wanted;
    _changedOnly = changedOnly;
    choose();
}

bool PictureSource::isChanged(const PictureEntry& entry) {
    bool differs = false;
    for (const KeyPlace& place : entry.places)
        differs = _changes.differs(place.value, place.fallback).value_or(false) || differs;
    return differs;
}

bool PictureSource::passes(const PictureEntry& entry) {
    const bool hasText = _text.isEmpty() || QString::fromStdString(entry.name).contains(_text, Qt::CaseInsensitive) ||
                         entry.text.contains(_text, Qt::CaseInsensitive);
    return hasText && (!_changedOnly || isChanged(entry));
}

void PictureSource::choose() {
    _lines.clear();
    for (std::size_t group = 0; group < _groups.size(); ++group) {
        const std::size_t head = _lines.size();
        _lines.push_back({group, -1, 0});
        const std::vector<PictureEntry>& entries = _groups[group].entries;
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            if (passes(entries[entry]))
                _lines.push_back({group, static_cast<int>(entry), 0});
        }
        _lines[head].count = static_cast<int>(_lines.size() - head - 1);
        if (_lines[head].count == 0)
            _lines.pop_back();
    }
    emit reset();
    _changes.start();
}

void PictureSource::update(const PictureEntry& entry) {
    for (PictureGroup& group : _groups) {
        for (PictureEntry& each : group.entries) {
            if (each.key() == entry.key())
                each = entry;
        }
    }
    // Its row may have another height, or pass the filter no more.
    choose();
    static_cast<void>(changedCount());
    emit counted();
}

const PictureEntry* PictureSource::entryAt(int index) const {
    if (index < 0 || index >= count() || line(index).entry < 0)
        return nullptr;
    return &_groups[line(index).group].entries[static_cast<std::size_t>(line(index).entry)];
}

const PictureGroup* PictureSource::headAt(int index) const {
    const bool isHead = index >= 0 && index < count() && line(index).entry < 0;
    return isHead ? &_groups[line(index).group] : nullptr;
}

int PictureSource::indexOf(const std::string& key) const {
    for (int index = 0; index < count(); ++index) {
        const PictureEntry* entry = entryAt(index);
        if (entry && entry->key() == key)
            return index;
    }
    return -1;
}

int PictureSource::entryCount() const {
    std::size_t all = 0;
    for (const PictureGroup& group : _groups)
        all += group.entries.size();
    return static_cast<int>(all);
}

int PictureSource::changedCount() {
    std::ptrdiff_t all = 0;
    for (const PictureGroup& group : _groups)
        all += std::count_if(group.entries.begin(), group.entries.end(),
                             [this](const PictureEntry& entry) { return isChanged(entry); });
    _changes.start();
    return static_cast<int>(all);
}

QWidget* PictureSource::makeCell(int kind, QWidget* parent) {
    if (kind == headKind)
        return new PictureHead(_headSide, parent);
    PictureCell* cell = _makeCell(parent);
    const auto indexOfCell = [cell] { return cell->property("row").toInt(); };
    connect(cell, &PictureCell::uploadClicked, this, [=, this] { emit uploadClicked(indexOfCell()); });
    connect(cell, &PictureCell::resetClicked, this, [=, this] { emit resetClicked(indexOfCell()); });
    connect(cell, &PictureCell::saveClicked, this, [=, this] { emit saveClicked(indexOfCell()); });
    connect(cell, &PictureCell::filesDropped, this,
            [=, this](const QStringList& files) { emit filesDropped(indexOfCell(), files); });
    return cell;
}

void PictureSource::fillCell(QWidget* cell, int index) {
    const PictureEntry* entry = entryAt(index);
    if (!entry) {
        static_cast<PictureHead*>(cell)->fill(*headAt(index), line(index).count);
        return;
    }
    cell->setProperty("row", index);
    const QString key = QString::fromStdString(entry->name);
    const QString name = QStringList{_module, _preview, key, "picture", "button"}.join("|");
    static_cast<PictureCell*>(cell)->fill({*entry, isChanged(*entry), name}, _thumbnails);
    _changes.start();
}

void PictureSource::showState(QWidget* cell, int index, const CellState& state) {
    const PictureEntry* entry = entryAt(index);
    if (!entry)
        return;
    static_cast<PictureCell*>(cell)->setState(state);
    if (state.current)
        emit currentShown(static_cast<PictureCell*>(cell));
    const QString key = QString::fromStdString(entry->key());
    const auto follow = [&key](QString& which, bool isOn) {
        if (isOn)
            which = key;
        else if (which == key)
            which.clear();
    };
    follow(_pointed, state.hovered);
    follow(_ringed, state.ringed);
    tellHover();
}

/// The pointer wins over the keys.
void PictureSource::tellHover() {
    const QString& key = _pointed.isEmpty() ? _ringed : _pointed;
    if (std::exchange(_told, key) == key)
        return;
    if (key.isEmpty())
        emit unhovered();
    else
        emit hovered(key);
}

void PictureSource::clearHover() {
    _pointed.clear();
    _ringed.clear();
    tellHover();
}

QString PictureSource::accessibleName(int index) const {
    const PictureEntry* entry = entryAt(index);
    if (!entry)
        return headAt(index)->title;
    QStringList parts{QString::fromStdString(entry->name), entry->text, entry->sizeHint, entry->error};
    parts.removeAll(QString());
    return parts.join(", ");
}

int PictureSource::rowHeight(int index) const {
    const PictureEntry* entry = entryAt(index);
    if (!entry)
        return headHeight;
    const bool hasThirdLine = !entry->error.isEmpty() || !entry->uploadedPath.empty();
    return hasThirdLine ? CPictureItem::tallHeight : CPictureItem::plainHeight;
}

void PictureSource::showFiles(const QStringList& files) {
    for (int index = 0; index < count(); ++index) {
        const PictureEntry* entry = entryAt(index);
        if (entry && files.contains(QString::fromStdString(entry->file())))
            emit changed(index, index);
    }
}

} // namespace zdt
