#pragma once

#include "editor/fileChanges.h"
#include "editor/pictureCell.h"
#include "kit/cellSource.h"
#include "kit/thumbnails.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace zdt {

/// The groups of pictures of a screen as a view shows them: a head, and behind it the pictures that a filter leaves.
class PictureSource : public ZListViewDataSource {
    Q_OBJECT

public:
    static constexpr int headHeight = 32;
    static constexpr int entryKind = 0;
    static constexpr int headKind = 1;

    using MakeCell = std::function<PictureCell*(QWidget* parent)>;
    PictureSource(MakeCell makeCell, int headSide, QObject* parent);

    void setScreen(const QString& module, const QString& preview);
    void setGroups(std::vector<PictureGroup> groups);
    [[nodiscard]] const std::vector<PictureGroup>& groups() const { return _groups; }
    /// @param text is looked for in file names and words; empty for all
    void setFilter(const QString& text, bool changedOnly);
    [[nodiscard]] const QString& filterText() const { return _text; }
    [[nodiscard]] bool isFilteredByChange() const { return _changedOnly; }
    /// Shows an entry that is different now.
    void update(const PictureEntry& entry);

    /// Null for a head.
    [[nodiscard]] const PictureEntry* entryAt(int index) const;
    /// -1 for a key that isn't shown.
    [[nodiscard]] int indexOf(const std::string& key) const;
    /// The group of a head; null for an entry.
    [[nodiscard]] const PictureGroup* headAt(int index) const;
    [[nodiscard]] bool isChanged(const PictureEntry& entry);
    /// How many pictures there are at all, and how many of them differ from the template's as far as is known.
    [[nodiscard]] int entryCount() const;
    [[nodiscard]] int changedCount();

    [[nodiscard]] int count() const override { return static_cast<int>(_lines.size()); }
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    void showState(QWidget* cell, int index, const CellState& state) override;
    [[nodiscard]] QString accessibleName(int index) const override;
    [[nodiscard]] int kindOf(int index) const override { return entryAt(index) ? entryKind : headKind; }
    [[nodiscard]] bool isSelectable(int index) const override { return entryAt(index) != nullptr; }
    [[nodiscard]] int rowHeight(int index) const override;

    /// The key of the picture that is pointed at; empty for none.
    [[nodiscard]] const QString& hoveredKey() const { return _told; }
    /// No row is under the pointer any more.
    void clearHover();

signals:
    void uploadClicked(int index);
    void resetClicked(int index);
    void saveClicked(int index);
    void filesDropped(int index, const QStringList& files);
    void hovered(const QString& key);
    void unhovered();
    /// The cell of the current row was filled or became current.
    void currentShown(zdt::PictureCell* cell);
    /// The counts may be different.
    void counted();

private:
    struct Line {
        std::size_t group = 0;
        int entry = -1; ///< -1 for the head.
        int count = 0;  ///< Of a head's group.
    };

    [[nodiscard]] const Line& line(int index) const { return _lines[static_cast<std::size_t>(index)]; }
    [[nodiscard]] bool passes(const PictureEntry& entry);
    void choose();
    void showFiles(const QStringList& files);
    void tellHover();

    MakeCell _makeCell;
    int _headSide;
    QString _module;
    QString _preview;
    std::vector<PictureGroup> _groups;
    std::vector<Line> _lines;
    QString _text;
    bool _changedOnly = false;
    QString _pointed; ///< The key of the picture under the pointer.
    QString _ringed;  ///< Of the one that the keys stand on.
    QString _told;    ///< Of the one of which was told last.
    FileChanges _changes;
    Thumbnails _thumbnails;
};

} // namespace zdt
