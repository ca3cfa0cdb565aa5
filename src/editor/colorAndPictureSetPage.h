#pragma once

#include "editor/colourItems.h"
#include "editor/pictureEntry.h"

#include <QStringList>
#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace zdt {

class CColorSetPage;
class CPaintManagerUI;
class ScreenPictures;
class ScreenTab;
class ThemeResource;
class ZSearchField;

/// What can be changed on one screen: its colours on one tab, its pictures on the other, with a search above them.
///
/// Its controls are named by the module and the screen: "<module>|<screen>|color|option" and
/// "<module>|<screen>|picture|option" are the tabs.
class CColorAndPictureSetPage : public QWidget {
    Q_OBJECT

public:
    static constexpr int colourTab = 0;
    static constexpr int pictureTab = 1;

    /// @param name of the module and screen, joined by "|"
    CColorAndPictureSetPage(const QString& name, CPaintManagerUI& notifications, QWidget* parent);
    ~CColorAndPictureSetPage() override;

    /// Shows the colours of the screen, in the language of the moment.
    void showColours(const ThemeResource& theme, const std::vector<ColourRow>& rows);
    /// Reads the theme anew for the row of a setting.
    void refreshColour(const ThemeResource& theme, const ItemPath& path);

    [[nodiscard]] CColorSetPage& colours() { return *_colours; }
    /// What stands on the second tab; to be set once.
    void setPictures(ScreenPictures* pictures);
    [[nodiscard]] ScreenPictures* pictures() const { return _pictures; }
    void showPictures(const std::vector<PictureGroup>& groups);

    [[nodiscard]] int tab() const;
    void selectTab(int tab);
    /// Takes the filter away.
    void clearFilter();
    void focusSearch();
    /// Shows the pictures as a grid or as a list.
    void setGrid(bool isGrid);

signals:
    /// The author wants the other of the two.
    void gridChosen(bool isGrid);
    /// Files were dropped beside the pictures, while these are shown.
    void filesDropped(const QStringList& files);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void relabel();
    void filter();
    void showCounts();

    QString _name;
    ScreenTab* _colourTab;
    ScreenTab* _pictureTab;
    ZSearchField* _search;
    QPushButton* _changedOnly;
    QPushButton* _form;
    bool _isGrid = false;
    QStackedWidget* _stack;
    CColorSetPage* _colours;
    ScreenPictures* _pictures = nullptr;
    QLabel* _foot;
};

} // namespace zdt
