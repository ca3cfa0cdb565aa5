#pragma once

#include "editor/problemRows.h"
#include "kit/page.h"

#include <QPointer>
#include <QString>
#include <QTimer>

#include <map>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace zdt {

class ProblemList;
class ZCountChip;
class ZEmptyState;
class ZListView;

/// The list of what keeps a theme from an export, with a way to each place and the template's own to put back.
///
/// Hears `Notify_Error_List_Msg`, whose `lParam` points to a `const std::vector<Problem>` that is shown as it is, and
/// `Notify_Error_List_refresh`, on which the theme is checked again, as on `Notify_ReloadDataMsg`.
class CProblemPage : public ZPage {
    Q_OBJECT

public:
    /// @throws LayoutError as `ZPage`
    CProblemPage(Workbench& bench, QWidget* parent);

    void Notify(const Notification& message) override;

    /// Checks the theme at once and shows what came of it; nothing without a theme.
    void check();
    /// Of all problems, whatever the chips show.
    [[nodiscard]] int count() const { return static_cast<int>(_rows.size()); }
    /// By the first name of the key, "commonSetting" for the shared settings of any module, and "" for the description.
    [[nodiscard]] std::map<std::string, int> countsByModule() const { return countByGroup(_rows); }

signals:
    /// The key of what is wrong; empty for the description.
    void jumpRequested(const QString& keyText);
    void countsChanged();

protected:
    /// Checks at once while the page is seen, else soon: another page, or a row of quick edits, comes first then.
    void reload() override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Chip {
        ZCountChip* chip;
        std::optional<ProblemSubject> subject; ///< That it lets through; nothing for all.

        [[nodiscard]] bool shows(const ProblemRow& row) const { return !subject || row.subject == *subject; }
    };

    void makeChips();
    void connectControls();
    void showProblems(const std::vector<Problem>& problems);
    /// Those that another page found. Files that a batch refused stay in the list until they are checked away.
    void takeProblems(const std::vector<Problem>& problems);
    void say();
    void sayChips();
    void keepBarInside();
    void applyChoice();
    void makeCurrent(const std::optional<Problem>& wanted, int index);
    [[nodiscard]] std::optional<Problem> currentProblem() const;
    void keepTabOrder(QWidget* cell);
    void goTo(int index);
    void restore(int index);
    [[nodiscard]] bool mayRestore(const ProblemRow& row);
    void followRestored(int index);

    QLabel& _title;
    QLabel& _checked;
    QLabel& _hint;
    QPushButton& _again;
    QStackedWidget& _stack;
    QWidget& _region;
    ZListView& _view;
    ZEmptyState& _empty;
    ProblemList* _list;
    std::vector<Chip> _chips;
    std::vector<ProblemRow> _rows;
    std::optional<Problem> _wanted; ///< To become current with the next list.
    QPointer<QWidget> _tabCell;
    QTimer _soon;
    std::vector<Problem> _refused; ///< Files of a batch.
    std::uint64_t _theme = 0;      ///< The serial of the theme to which they belong.
    QString _time;                 ///< Of the last check; empty before it.
};

} // namespace zdt
