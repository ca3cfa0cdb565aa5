#pragma once

#include "kit/page.h"
#include "shell/themeCards.h"

#include <QString>

class QComboBox;
class QLabel;
class QStackedWidget;

namespace zdt {

class ZEmptyState;
class ZFlowView;
class ZSearchField;

/// The themes of the author as cards, and the way to a first one. It asks the frame for whatever changes a theme.
class CStartPage : public ZPage {
    Q_OBJECT

public:
    CStartPage(Workbench& bench, QWidget* parent);
    ~CStartPage() override;

    /// Hears `Reload_history_themes` as well.
    void Notify(const Notification& message) override;

    /// Reads the list of themes anew. The current card stays current.
    void refill();
    void focusSearch();
    /// Gives the cards the keyboard. False if there are none.
    bool focusCards();
    /// Makes a theme's card the current one and shows it.
    void select(const std::string& name);

signals:
    void newRequested();
    void importRequested();
    void openRequested(const QString& name);
    void deleteRequested(const QString& name);
    void folderRequested(const QString& name);

protected:
    void reload() override;

private:
    void makeSteps();
    void showFound();
    void showOrders();
    void showMenu(int index, const QPoint& position);

    QStackedWidget& _tabs;
    QStackedWidget& _found;
    QLabel& _count;
    QLabel& _drop;
    QComboBox& _order;
    ZSearchField& _search;
    ZFlowView& _view;
    ZEmptyState& _nothing;
    ThemeCards _cards;
};

} // namespace zdt
