#include "editor/problemList.h"

#include "editor/moduleWords.h"
#include "editor/problemCell.h"
#include "editor/problemWords.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr int thumbnailSide = 40;

} // namespace

ProblemList::ProblemList(QObject* parent)
    : ZListViewDataSource(parent) {
    connect(&_thumbnails, &Thumbnails::ready, this, [this] {
        if (count() > 0)
            emit changed(0, count() - 1);
    });
}

void ProblemList::show(const std::vector<ProblemRow>& rows, const Filter& filter) {
    _rows.clear();
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(_rows), filter);
    const std::map<std::string, int> counts = countByGroup(_rows);
    _lines.clear();
    for (std::size_t at = 0; at < _rows.size(); ++at) {
        const std::string& group = _rows[at].group;
        if (at == 0 || _rows[at - 1].group != group)
            _lines.push_back({group, counts.at(group), -1});
        _lines.push_back({group, 0, static_cast<int>(at)});
    }
    emit reset();
}

const ProblemRow* ProblemList::rowAt(int index) const {
    if (index < 0 || index >= count() || line(index).row < 0)
        return nullptr;
    return &_rows[static_cast<std::size_t>(line(index).row)];
}

int ProblemList::indexOf(const Problem& problem) const {
    for (int index = 0; index < count(); ++index) {
        const ProblemRow* row = rowAt(index);
        if (row && row->problem.key == problem.key && row->problem.path == problem.path)
            return index;
    }
    return -1;
}

int ProblemList::rowHeight(int index) const {
    if (isHead(index))
        return ProblemHead::height;
    // The first has the card's upper edge as well.
    return ProblemCell::height + (isHead(index - 1) ? 1 : 0);
}

QString ProblemList::accessibleName(int index) const {
    const ProblemRow* row = rowAt(index);
    if (!row)
        return moduleWord(line(index).group);
    return reasonText(row->reason) + " " + QString::fromStdString(row->detail) + ", " + placeText(*row);
}

QWidget* ProblemList::makeCell(int kind, QWidget* parent) {
    if (kind == 1)
        return new ProblemHead(parent);
    auto* cell = new ProblemCell(parent);
    connect(cell, &ProblemCell::goToClicked, this, [this, cell] { emit goToClicked(cell->property("row").toInt()); });
    connect(cell, &ProblemCell::restoreClicked, this,
            [this, cell] { emit restoreClicked(cell->property("row").toInt()); });
    return cell;
}

QPixmap ProblemList::thumbnail(const std::string& path, double ratio) {
    const std::optional<QImage> found = _thumbnails.find(path, QSize(thumbnailSide, thumbnailSide) * ratio);
    QPixmap picture = QPixmap::fromImage(found.value_or(QImage()));
    if (!found) {
        // A cell takes a null picture for a broken one.
        picture = QPixmap(1, 1);
        picture.fill(Qt::transparent);
    }
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void ProblemList::fillCell(QWidget* cell, int index) {
    const ProblemRow* row = rowAt(index);
    if (!row) {
        static_cast<ProblemHead*>(cell)->fill(line(index).group, line(index).count);
        return;
    }
    cell->setProperty("row", index);
    static_cast<ProblemCell*>(cell)->fill(*row, thumbnail(row->picture, cell->devicePixelRatioF()),
                                          {isHead(index - 1), isHead(index + 1)});
}

void ProblemList::showState(QWidget* cell, int index, const CellState& state) {
    if (!rowAt(index))
        return;
    static_cast<ProblemCell*>(cell)->setState(state);
    if (state.current)
        emit currentShown(cell);
}

} // namespace zdt
