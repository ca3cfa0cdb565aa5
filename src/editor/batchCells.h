#pragma once

#include "editor/batchPlan.h"
#include "kit/cellSource.h"
#include "kit/thumbnails.h"

#include <QString>

#include <string>
#include <utility>
#include <vector>

namespace zdt {

/// The pictures that a batch stored, as small squares.
class MatchedPictures : public ZFlowViewDataSource {
    Q_OBJECT

public:
    static constexpr int side = 48;

    explicit MatchedPictures(QObject* parent);

    void show(const std::vector<BatchMatch>& matched);

    [[nodiscard]] int count() const override { return static_cast<int>(_matched.size()); }
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    [[nodiscard]] QString accessibleName(int index) const override;
    [[nodiscard]] QSize cellSize() const override { return {side, side}; }
    [[nodiscard]] int gap() const override { return 8; }

private:
    std::vector<BatchMatch> _matched;
    Thumbnails _thumbnails;
};

/// The files that a batch refused, each with its reason and a way out.
class RefusedPictures : public ZListViewDataSource {
    Q_OBJECT

public:
    static constexpr int height = 56; ///< The hairline below included.

    explicit RefusedPictures(QObject* parent);

    /// @param words the reasons in a few words, one for each
    void show(const std::vector<BatchRefusal>& refused, const std::vector<QString>& words);
    /// Whether a row may be chosen for the file.
    [[nodiscard]] bool lacksPlace(int index) const;

    [[nodiscard]] int count() const override { return static_cast<int>(_refused.size()); }
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    void showState(QWidget* cell, int index, const CellState& state) override;
    [[nodiscard]] QString accessibleName(int index) const override;
    [[nodiscard]] int rowHeight(int /*index*/) const override { return height; }

signals:
    void anotherAsked(int index);
    void placeAsked(int index, const QPoint& position);

private:
    std::vector<BatchRefusal> _refused;
    std::vector<QString> _words;
    Thumbnails _thumbnails;
};

} // namespace zdt
