#pragma once

#include "editor/fileChanges.h"
#include "editor/keyCell.h"
#include "editor/keyFilter.h"
#include "editor/keyRows.h"
#include "editor/keyWords.h"
#include "kit/cellSource.h"
#include "kit/thumbnails.h"

#include <QColor>
#include <QList>

#include <optional>
#include <string>
#include <vector>

namespace zdt {

class ThemeResource;

/// The rows of the full list, as a filter leaves them. An index is a place in what is shown.
class KeyListSource : public ZListViewDataSource {
    Q_OBJECT

public:
    explicit KeyListSource(QObject* parent = nullptr);

    /// Reads a theme, which may be none, and says its rows in the language of the moment. `reset` follows.
    void load(const ThemeResource* theme);
    void setFilter(const KeyFilter& filter);
    [[nodiscard]] const KeyFilter& filter() const { return _filter; }

    [[nodiscard]] const KeyRow& row(int index) const { return _rows[place(index)]; }
    [[nodiscard]] const KeyWords& words(int index) const { return wordsAt(place(index)); }
    [[nodiscard]] bool isChanged(int index) const { return _changed[place(index)].value_or(false); }
    /// Of all rows that are shown but for the choice of changed ones; nothing while it is being found out.
    [[nodiscard]] std::optional<int> changedCount() const;
    /// Of the same rows.
    [[nodiscard]] int filteredCount() const { return static_cast<int>(_filtered.size()); }
    [[nodiscard]] std::vector<std::string> modules() const { return modulesOf(_rows); }

    /// The row of a key, which may name any of a shared row's copies; null if the list has none.
    [[nodiscard]] const KeyRow* find(const std::string& key) const;
    /// Where a row is shown, by the key of its first place; -1 if it isn't.
    [[nodiscard]] int indexOf(const std::string& key) const;
    /// The colours that most keys of the theme have, the commonest first.
    [[nodiscard]] QList<QColor> commonColours() const;

    /// Reads the value of a row and of its namesakes anew.
    void refresh(const ThemeResource& theme, const std::string& key);
    /// Lets go of pictures that nobody waits for.
    void dropWaiting() { _thumbnails.dropWaiting(); }
    [[nodiscard]] Thumbnails& thumbnails() { return _thumbnails; }

    [[nodiscard]] int count() const override { return static_cast<int>(_shown.size()); }
    [[nodiscard]] int rowHeight(int /*index*/) const override { return keyRowHeight; }
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    void showState(QWidget* cell, int index, const CellState& state) override;
    [[nodiscard]] QString accessibleName(int index) const override;

signals:
    void swatchClicked(int index);
    void valueClicked(int index);
    /// The counts may be different.
    void counted();

private:
    [[nodiscard]] std::size_t place(int index) const {
        return static_cast<std::size_t>(_shown[static_cast<std::size_t>(index)]);
    }
    [[nodiscard]] const KeyWords& wordsAt(std::size_t at) const;
    void findChange(std::size_t at);
    void findChanges();
    void choose();
    void showPictures(const QStringList& files);
    void fillFile(KeyCellContent& content, const KeyRow& row, double ratio);

    std::string _theme; ///< The directory of the theme that is shown.
    std::vector<KeyRow> _rows;
    // Found out for the rows that are shown or searched, not for all at once.
    mutable std::vector<KeyWords> _words;
    mutable std::vector<bool> _hasWords;
    std::vector<std::optional<bool>> _changed; ///< Nothing while two files are compared.
    std::vector<bool> _wasCompared;
    KeyFilter _filter;
    std::vector<int> _filtered;
    std::vector<int> _shown;
    FileChanges _changes;
    Thumbnails _thumbnails;
};

/// The colour of a row of one; nothing for another row, or a value that is no colour.
[[nodiscard]] std::optional<QColor> colourOfRow(const KeyRow& row);

/// The pixels and the bytes of a picture that stands at a path, or its bytes alone for another file; empty for none.
/// What was read is kept for the state that the file is in, so that it may be asked for at will on the interface
/// thread.
[[nodiscard]] QString fileFacts(const std::string& path);

} // namespace zdt
