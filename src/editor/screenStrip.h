#pragma once

#include "canvas/previewComposition.h"
#include "kit/cellSource.h"

#include <QString>

#include <memory>
#include <vector>

namespace zdt {

/// The small previews of a module's screens, one above the other.
class ScreenStrip : public ZFlowViewDataSource {
    Q_OBJECT

public:
    struct Entry {
        QString name;    ///< Of the cell: "<module>|<screen>|preview|button".
        QString caption; ///< In the language of the moment.
        /// Null until it is put together.
        std::shared_ptr<PreviewComposition> composition;
        bool isMarked = false; ///< A picture of it is pointed at.
    };

    using ZFlowViewDataSource::ZFlowViewDataSource;

    void setEntries(std::vector<Entry> entries);
    /// Nothing for an index that isn't there: the strip is empty while its page is hidden.
    void setComposition(int index, std::shared_ptr<PreviewComposition> composition);
    void setMarked(int index, bool isMarked);
    [[nodiscard]] const std::vector<Entry>& entries() const { return _entries; }

    [[nodiscard]] int count() const override { return static_cast<int>(_entries.size()); }
    [[nodiscard]] QSize cellSize() const override;
    [[nodiscard]] int gap() const override { return 8; }
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    void showState(QWidget* cell, int index, const CellState& state) override;
    [[nodiscard]] QString accessibleName(int index) const override;

private:
    [[nodiscard]] bool has(int index) const { return index >= 0 && index < count(); }

    std::vector<Entry> _entries;
};

} // namespace zdt
