#include "shell/themeCards.h"

#include "kit/localisation.h"
#include "shell/themeCardCell.h"

#include <QImage>

#include <algorithm>
#include <optional>
#include <utility>

namespace zdt {

namespace {

/// A card's width varies a little with the window; its cover is decoded once, for the widest.
constexpr QSize largestCover(216, 384);
/// 250 covers at a device pixel ratio of 1.
constexpr int coverKilobytes = 64 * 1024;

} // namespace

ThemeCards::ThemeCards(const std::string& root, double ratio, QObject* parent)
    : ZFlowViewDataSource(parent)
    , _ratio(ratio)
    , _covers(coverKilobytes)
    , _sizes(root) {
    connect(&_covers, &Thumbnails::ready, this, &ThemeCards::refresh);
    connect(&_sizes, &ThemeSizes::known, this, [this](const QString& name) {
        const int index = indexOf(name.toStdString());
        if (index >= 0)
            emit changed(index, index);
    });
}

void ThemeCards::setThemes(std::vector<ThemeCard> themes) {
    _themes = std::move(themes);
    find();
}

void ThemeCards::setSearch(const QString& text) {
    _search = text.trimmed().toStdString();
    find();
}

void ThemeCards::refresh() {
    if (count() > 0)
        emit changed(0, count() - 1);
}

void ThemeCards::find() {
    _found.clear();
    for (std::size_t index = 0; index < _themes.size(); ++index) {
        if (matchesSearch(_themes[index], _search))
            _found.push_back(index);
    }
    emit reset();
}

bool ThemeCards::isThere(const std::string& name) const {
    return std::any_of(_themes.begin(), _themes.end(), [&](const ThemeCard& card) { return card.name == name; });
}

int ThemeCards::indexOf(const std::string& name) const {
    const auto found =
        std::find_if(_found.begin(), _found.end(), [&](std::size_t index) { return _themes[index].name == name; });
    return found == _found.end() ? -1 : static_cast<int>(found - _found.begin());
}

QSize ThemeCards::cellSize() const {
    return {cardLeastWidth, cardHeight};
}

QWidget* ThemeCards::makeCell(int, QWidget* parent) {
    auto* cell = new ThemeCardCell(parent);
    connect(cell, &ThemeCardCell::openRequested, this, &ThemeCards::openRequested);
    connect(cell, &ThemeCardCell::menuRequested, this, &ThemeCards::menuRequested);
    return cell;
}

void ThemeCards::fillCell(QWidget* cell, int index) {
    const ThemeCard& card = theme(index);
    const std::optional<QImage> cover = _covers.find(card.cover, largestCover * _ratio);
    static_cast<ThemeCardCell*>(cell)->show(index, card, cover, _sizes.find(card.name, card.changedAt));
}

QString ThemeCards::accessibleName(int index) const {
    const ThemeCard& card = theme(index);
    const QString name = QString::fromStdString(card.name);
    return card.chineseTitle.empty() ? name : name + ", " + QString::fromStdString(card.chineseTitle);
}

void ThemeCards::showState(QWidget* cell, int, const CellState& state) {
    static_cast<ThemeCardCell*>(cell)->showState(state);
}

} // namespace zdt
