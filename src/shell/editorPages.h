#pragma once

#include "kit/workbench.h"

#include <QObject>
#include <QString>

#include <map>
#include <vector>

class QStackedWidget;
class QWidget;

namespace zdt {

class CFullListPage;
class CProblemPage;
class ZCountButton;

/// The pages of the editor and the navigation that leads to them. A page is made when it is first shown; one whose
/// layout is damaged says so in its place.
///
/// A row of the navigation is a button with the property `module`: the module whose keys it shows, or "all".
class CEditorPages : public QObject {
    Q_OBJECT

public:
    /// @param frame holds the rows and, named `ResMainBussinessLayout`, the place of the pages
    CEditorPages(Workbench& bench, QWidget* frame);

    /// Shows the first page of the open theme.
    void showFirst();
    void showModule(const QString& module);
    /// Shows the problems as they were last found or handed over.
    void showProblems();
    void checkProblems();
    /// Shows the page that has a key, given as its path, and the key in it; that of its module, if it has no place
    /// there.
    void showKey(const QString& key);
    /// Gives the search field of the page the keyboard.
    void focusSearch();
    /// Shows what a big or a small theme has.
    void showKind();
    /// Makes what isn't made yet, so that the first visit is quick.
    void prepare();
    [[nodiscard]] bool showsProblems() const;
    [[nodiscard]] int problemCount() const;

signals:
    /// Another page is shown, or the number of problems is another one.
    void changed();
    /// A key of the theme's description is to be shown, which stands on the export page.
    void descriptionRequested();

private:
    void makeList();
    void makeProblems();
    void showList(const QString& module);
    [[nodiscard]] bool showsList() const;
    void showCounts();
    void checkRow(const QString& module);

    Workbench& _bench;
    QStackedWidget& _place;
    std::vector<ZCountButton*> _rows;
    CFullListPage* _list = nullptr;
    CProblemPage* _problems = nullptr;
    QWidget* _listPlace = nullptr; ///< The page, or what says why there is none.
    QWidget* _problemPlace = nullptr;
};

} // namespace zdt
