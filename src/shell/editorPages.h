#pragma once

#include "kit/workbench.h"

#include <QObject>
#include <QString>

#include <map>
#include <vector>

class QStackedWidget;
class QWidget;

namespace zdt {

class CColorAndPictureManagerPage;
class CFullListPage;
class CProblemPage;
class ZCountButton;

/// The pages of the editor and the navigation that leads to them. A page is made when it is first shown; one whose
/// layout is damaged says so in its place.
///
/// A row of the navigation is a button with the property `module`: the module that it shows, or "all" for every key. A
/// module with shared settings has a page of screens, any other one the list of its keys.
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
    /// Gives the keyboard to the search over the keys of all modules.
    void searchAll();
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
    /// The page of screens of a module; null for a module without one, and for a page whose layout is damaged.
    CColorAndPictureManagerPage* screensPage(const QString& module);
    [[nodiscard]] bool hasScreens(const QString& module) const;
    void showList(const QString& module);
    [[nodiscard]] bool showsList() const;
    void showCounts();
    void checkRow(const QString& module);

    Workbench& _bench;
    QStackedWidget& _place;
    std::vector<ZCountButton*> _rows;
    CFullListPage* _list = nullptr;
    CProblemPage* _problems = nullptr;
    struct ScreensPlace {
        CColorAndPictureManagerPage* page = nullptr;
        QWidget* shown = nullptr; ///< The page, or what says why there is none.
    };
    std::map<QString, ScreensPlace> _screens; ///< By module.
    QWidget* _listPlace = nullptr;            ///< The page, or what says why there is none.
    QWidget* _problemPlace = nullptr;
};

} // namespace zdt
