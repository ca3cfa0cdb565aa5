#pragma once

#include "kit/fileChoice.h"
#include "kit/notifications.h"
#include "kit/window.h"
#include "kit/workbench.h"
#include "shell/newThemeDialog.h"

#include <QKeySequence>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <string>

class QAbstractButton;
class QLabel;
class QStackedWidget;

namespace zdt {

class CAboutPage;
class CEditorPages;
class CResEditOutPutDlg;
class CStartPage;
class DropVeil;
class ZBadge;
class ZCountButton;

/// The program's one window: the start page, or the editor with an open theme. It makes, opens, imports and deletes
/// themes, chooses the language, and leads to the pages.
class CMainFrameWnd : public ZWindow, public INotifyUI {
    Q_OBJECT

public:
    /// @throws LayoutError if the window's own layout can't be used
    explicit CMainFrameWnd(Workbench& bench);
    ~CMainFrameWnd() override;

    void Notify(const Notification& message) override;

    /// Opens a theme in the editor. What stands in the way is said, and the start page stays.
    void openTheme(const std::string& name);
    /// Imports packages and folders of themes.
    void importPaths(const QStringList& paths);
    void deleteTheme(const std::string& name);
    void returnToStart();
    void openExport();
    /// Chooses a language and writes the choice down.
    void chooseLanguage(int language);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    [[nodiscard]] bool mayClose() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Tab { start, editor, exporting, about };

    void makePages();
    void connectButtons();
    void connectKeys();
    void takeDropped(const QStringList& paths);
    void chooseFirstLanguage();
    void showTab(Tab tab);
    [[nodiscard]] Tab tab() const;
    void openAbout();
    void takeQtWords(int language);
    void newTheme();
    void createTheme(const ThemeWish& wanted);
    void chooseImport();
    void enterEditor();
    [[nodiscard]] bool askGeneration(const std::string& name);
    void exportEnded(int result);
    /// Lets every page read the theme anew, whose values and generation are other ones.
    void tellThemeChanged();
    void showProblems();
    void findProblems();
    void showFolder(const std::string& path);
    void showTitle();
    void showKind();
    void showCounts();
    void find();

    Workbench& _bench;
    QStackedWidget& _tabs;
    QStackedWidget& _titles;
    QLabel& _title;
    QLabel& _exportTheme; ///< The title again, where the export page is shown.
    ZBadge& _kind;
    ZCountButton& _problems;
    QAbstractButton& _chinese;
    QAbstractButton& _english;
    CStartPage* _start = nullptr;
    CResEditOutPutDlg* _export = nullptr;
    std::unique_ptr<CEditorPages> _pages;
    std::unique_ptr<DropVeil> _veil;
    FileChoice _importChoice{QStandardPaths::DownloadLocation};
    QTranslator _qtWords;       ///< Those of the file dialogs.
    QSet<QKeySequence> _keys;   ///< Of the window.
    bool _problemsCame = false; ///< A list of problems was handed over and is to be shown.
    bool _asksToClose = false;
};

} // namespace zdt
