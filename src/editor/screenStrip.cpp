#include "editor/screenStrip.h"

#include "canvas/drawPictureCell.h"

#include <utility>

namespace zdt {

void ScreenStrip::setEntries(std::vector<Entry> entries) {
    _entries = std::move(entries);
    emit reset();
}

void ScreenStrip::setComposition(int index, std::shared_ptr<PreviewComposition> composition) {
    if (!has(index))
        return;
    _entries[static_cast<std::size_t>(index)].composition = std::move(composition);
    emit changed(index, index);
}

void ScreenStrip::setMarked(int index, bool isMarked) {
    if (!has(index) || std::exchange(_entries[static_cast<std::size_t>(index)].isMarked, isMarked) == isMarked)
        return;
    emit changed(index, index);
}

QSize ScreenStrip::cellSize() const {
    return {CCDrawPictureCell::leastWidth, CCDrawPictureCell::cellHeight};
}

QWidget* ScreenStrip::makeCell(int /*kind*/, QWidget* parent) {
    return new CCDrawPictureCell(parent);
}

void ScreenStrip::fillCell(QWidget* cell, int index) {
    if (!has(index))
        return;
    auto* picture = static_cast<CCDrawPictureCell*>(cell);
    const Entry& entry = _entries[static_cast<std::size_t>(index)];
    picture->setObjectName(entry.name);
    picture->setCaption(entry.caption);
    picture->setComposition(entry.composition);
    picture->setHighlighted(entry.isMarked);
    picture->refresh();
}

void ScreenStrip::showState(QWidget* cell, int /*index*/, const CellState& state) {
    static_cast<CCDrawPictureCell*>(cell)->setState(state);
}

QString ScreenStrip::accessibleName(int index) const {
    return _entries[static_cast<std::size_t>(index)].caption;
}

} // namespace zdt
