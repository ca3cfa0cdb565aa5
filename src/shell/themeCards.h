#pragma once

#include "kit/cellSource.h"
#include "kit/thumbnails.h"
#include "shell/themeList.h"
#include "shell/themeSizes.h"

#include <QString>

#include <string>
#include <vector>

namespace zdt {

/// The cards of the start page: one for each theme that the search finds.
class ThemeCards : public ZFlowViewDataSource {
    Q_OBJECT

public:
    /// @param ratio device pixels to a logical one, of the screen
    ThemeCards(const std::string& root, double ratio, QObject* parent = nullptr);

    void setThemes(std::vector<ThemeCard> themes);
    void setSearch(const QString& text);
    /// Shows the cards again, in another language say.
    void refresh();

    [[nodiscard]] std::size_t themeCount() const { return _themes.size(); }
    [[nodiscard]] const ThemeCard& theme(int index) const { return _themes[_found[static_cast<std::size_t>(index)]]; }
    /// Whether there is a theme of that name, found or not.
    [[nodiscard]] bool isThere(const std::string& name) const;
    /// Where a theme's card is; -1 if it isn't among the found ones.
    [[nodiscard]] int indexOf(const std::string& name) const;

    [[nodiscard]] int count() const override { return static_cast<int>(_found.size()); }
    [[nodiscard]] QSize cellSize() const override;
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    [[nodiscard]] QString accessibleName(int index) const override;
    void showState(QWidget* cell, int index, const CellState& state) override;

signals:
    void openRequested(int index);
    void menuRequested(int index, const QPoint& position);

private:
    void find();

    std::vector<ThemeCard> _themes;
    std::vector<std::size_t> _found;
    std::string _search;
    double _ratio;
    Thumbnails _covers;
    ThemeSizes _sizes;
};

} // namespace zdt
