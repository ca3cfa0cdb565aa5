#include "editor/keyListSource.h"

#include "editor/fileWords.h"
#include "kit/colourText.h"
#include "kit/localisation.h"
#include "model/pictureSize.h"
#include "modules/themeNode.h"
#include "store/themeResource.h"
#include "support/fileComparison.h"
#include "support/files.h"

#include <QCache>

#include <algorithm>
#include <map>
#include <set>

namespace zdt {

namespace {

constexpr int opaque = 255;
constexpr int mostFacts = 4096;

PictureSize sizeOf(const std::string& path) {
    const PictureSize png = pngSize(path);
    return png == PictureSize() ? jpegSize(path) : png;
}

} // namespace

std::optional<QColor> colourOfRow(const KeyRow& row) {
    return row.kind == KeyKind::colour ? colourOf(QString::fromStdString(row.value())) : std::nullopt;
}

QString fileFacts(const std::string& path) {
    static QCache<QString, QString> read(mostFacts);
    const QString stamp = QString::fromStdString(fileStamp(path));
    if (stamp.isEmpty() || !isPlainFile(path))
        return {};
    if (const QString* known = read.object(stamp))
        return *known;
    const std::string bytes = bytesText(fileSize(path));
    const PictureSize size = sizeOf(path);
    const QString facts = QString::fromStdString(size == PictureSize() ? bytes : pixelsText(size) + ", " + bytes);
    read.insert(stamp, new QString(facts));
    return facts;
}

KeyListSource::KeyListSource(QObject* parent)
    : ZListViewDataSource(parent) {
    connect(&_changes, &FileChanges::known, this, [this] {
        findChanges();
        if (_filter.changedOnly)
            choose();
        else if (count() > 0)
            emit changed(0, count() - 1);
        emit counted();
    });
    connect(&_thumbnails, &Thumbnails::ready, this, &KeyListSource::showPictures);
}

void KeyListSource::showPictures(const QStringList& files) {
    std::set<std::string> made;
    for (const QString& file : files)
        made.insert(file.toStdString());
    for (int index = 0; index < count(); ++index) {
        if (row(index).kind == KeyKind::picture && made.contains(row(index).value()))
            emit changed(index, index);
    }
}

void KeyListSource::load(const ThemeResource* theme) {
    const std::string directory = theme ? theme->tree().path() : std::string();
    if (directory != _theme)
        _changes.forget();
    _theme = directory;
    _rows = theme ? keyRowsOf(*theme) : std::vector<KeyRow>();
    _words.assign(_rows.size(), {});
    _hasWords.assign(_rows.size(), false);
    _changed.assign(_rows.size(), {});
    _wasCompared.assign(_rows.size(), false);
    choose();
}

const KeyWords& KeyListSource::wordsAt(std::size_t at) const {
    if (!_hasWords[at]) {
        _words[at] = wordsOf(_rows[at]);
        _hasWords[at] = true;
    }
    return _words[at];
}

void KeyListSource::findChange(std::size_t at) {
    const KeyRow& row = _rows[at];
    _wasCompared[at] = true;
    _changed[at] = false;
    for (const KeyPlace& place : row.places) {
        const std::optional<bool> differs = isFile(row.kind)
                                                ? _changes.differs(place.value, place.fallback)
                                                : std::optional(!sameText(row.kind, place.value, place.fallback));
        if (differs.value_or(false)) {
            _changed[at] = true;
            return;
        }
        if (!differs)
            _changed[at].reset();
    }
}

void KeyListSource::findChanges() {
    for (std::size_t at = 0; at < _rows.size(); ++at) {
        if (_wasCompared[at])
            findChange(at);
    }
    _changes.start();
}

void KeyListSource::setFilter(const KeyFilter& filter) {
    _filter = filter;
    choose();
}

void KeyListSource::choose() {
    KeyFilter all = _filter;
    all.changedOnly = false;
    if (!all.text.isEmpty()) {
        for (std::size_t at = 0; at < _rows.size(); ++at)
            static_cast<void>(wordsAt(at));
    }
    _filtered = shownRows(_rows, _words, all, {});
    for (const int at : _filtered) {
        if (!_wasCompared[static_cast<std::size_t>(at)])
            findChange(static_cast<std::size_t>(at));
    }
    _changes.start();
    _shown = _filtered;
    if (_filter.changedOnly)
        std::erase_if(_shown, [&](int at) { return !_changed[static_cast<std::size_t>(at)].value_or(false); });
    emit reset();
    emit counted();
}

std::optional<int> KeyListSource::changedCount() const {
    int changes = 0;
    for (const int at : _filtered) {
        const std::optional<bool>& changed = _changed[static_cast<std::size_t>(at)];
        if (!changed)
            return std::nullopt;
        changes += *changed ? 1 : 0;
    }
    return changes;
}

const KeyRow* KeyListSource::find(const std::string& key) const {
    const auto rowWith = [&](const auto& isMeant) -> const KeyRow* {
        const auto found = std::find_if(_rows.begin(), _rows.end(), [&](const KeyRow& row) {
            return std::any_of(row.places.begin(), row.places.end(), isMeant);
        });
        return found == _rows.end() ? nullptr : &*found;
    };
    if (const KeyRow* exact = rowWith([&](const KeyPlace& place) { return place.key() == key; }))
        return exact;
    // Of namesakes that one is meant which takes part in the theme.
    return rowWith([&](const KeyPlace& place) { return joinKeyPath(place.path()) == key; });
}

int KeyListSource::indexOf(const std::string& key) const {
    for (int index = 0; index < count(); ++index) {
        if (row(index).key == key)
            return index;
    }
    return -1;
}

QList<QColor> KeyListSource::commonColours() const {
    std::map<QRgb, int> counts;
    for (const KeyRow& row : _rows) {
        if (const std::optional<QColor> colour = colourOfRow(row))
            ++counts[colour->rgba()];
    }
    std::vector<std::pair<QRgb, int>> sorted(counts.begin(), counts.end());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& one, const auto& other) { return one.second > other.second; });
    QList<QColor> colours;
    for (const auto& [colour, times] : sorted)
        colours.append(QColor::fromRgba(colour));
    return colours;
}

void KeyListSource::refresh(const ThemeResource& theme, const std::string& key) {
    const KeyRow* meant = find(key);
    if (!meant)
        return;
    const KeyPath path = meant->places.front().path();
    for (std::size_t at = 0; at < _rows.size(); ++at) {
        if (_rows[at].places.front().path() != path)
            continue;
        refreshRow(theme, _rows[at]);
        findChange(at);
        const auto shown = std::find(_shown.begin(), _shown.end(), static_cast<int>(at));
        if (shown == _shown.end())
            continue;
        const int index = static_cast<int>(shown - _shown.begin());
        emit changed(index, index);
    }
    _changes.start();
    emit counted();
}

QWidget* KeyListSource::makeCell(int /*kind*/, QWidget* parent) {
    auto* cell = new KeyCell(parent);
    connect(cell, &KeyCell::swatchClicked, this, [this, cell] { emit swatchClicked(cell->property("index").toInt()); });
    connect(cell, &KeyCell::valueClicked, this, [this, cell] { emit valueClicked(cell->property("index").toInt()); });
    return cell;
}

void KeyListSource::fillFile(KeyCellContent& content, const KeyRow& row, double ratio) {
    content.icon = row.kind == KeyKind::video ? Icon::Movie : row.kind == KeyKind::picture ? Icon::Image : Icon::Folder;
    content.value = fileFacts(row.value());
    content.isMuted = content.value.isEmpty();
    if (content.isMuted)
        content.value = Text("kList_no_file");
    if (row.kind != KeyKind::picture || row.value().empty())
        return;
    content.thumbnail = _thumbnails.picture(row.value(), QSize(swatchSide, swatchSide) * ratio);
    content.thumbnail.setDevicePixelRatio(ratio);
}

void KeyListSource::fillCell(QWidget* widget, int index) {
    auto* cell = static_cast<KeyCell*>(widget);
    const KeyRow& row = this->row(index);
    KeyCellContent content;
    content.name = words(index).name;
    content.changed = isChanged(index);
    content.generations = row.generations;
    content.appliesTo = words(index).appliesTo;
    content.colour = colourOfRow(row);
    content.value = QString::fromStdString(row.value());
    if (content.colour) {
        content.value = "#" + shownDigits(*content.colour);
        if (content.colour->alpha() < opaque)
            content.detail = QString("%1%").arg(percentOf(*content.colour));
    } else if (isFile(row.kind)) {
        fillFile(content, row, cell->devicePixelRatioF());
    }
    cell->setProperty("index", index);
    cell->setChangedTip(Text("kList_changed_tip"));
    cell->setContent(content);
}

void KeyListSource::showState(QWidget* cell, int /*index*/, const CellState& state) {
    static_cast<KeyCell*>(cell)->setState(state);
}

QString KeyListSource::accessibleName(int index) const {
    const KeyRow& row = this->row(index);
    QStringList parts{words(index).name};
    parts.append(isFile(row.kind) ? fileFacts(row.value()) : QString::fromStdString(row.value()));
    parts.append(words(index).appliesTo);
    if (isChanged(index))
        parts.append(Text("kList_changed_tip"));
    parts.removeAll(QString());
    return parts.join(listSeparator());
}

} // namespace zdt
