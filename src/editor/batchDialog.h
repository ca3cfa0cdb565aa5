#pragma once

#include "editor/batchPlan.h"
#include "kit/baseDialog.h"

#include <QString>

#include <vector>

namespace zdt {

class MatchedPictures;
class RefusedPictures;
class Workbench;

/// What became of a batch: how many pictures were stored, which, and why others were refused.
class BatchDialog : public ZBaseDialog {
    Q_OBJECT

public:
    enum Answer { done = Accepted, uploadMore = 2, showProblems = 3 };

    /// @throws LayoutError if the layout can't be loaded
    BatchDialog(Workbench& bench, const BatchResult& result, QWidget* parent);
    ~BatchDialog() override;

    [[nodiscard]] const BatchResult& result() const { return _result; }
    /// A refused file was replaced by another, which was stored.
    void setStored(int index, const BatchMatch& match);
    /// So was tried, and refused again, for this reason.
    void setReason(int index, const QString& words);

signals:
    /// Another file is wanted for the row of a refused one.
    void anotherAsked(int index);
    /// A row is to be chosen for a file that no row claimed.
    /// @param position of the menu, global
    void placeAsked(int index, const QPoint& position);

private:
    void makeButtons();
    void say();
    void fitLists();
    void copyList();

    BatchResult _result;
    std::vector<QString> _words; ///< The reason of each refusal.
    MatchedPictures* _matched;
    RefusedPictures* _refused;
};

} // namespace zdt
