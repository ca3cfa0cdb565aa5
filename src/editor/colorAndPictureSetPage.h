#pragma once

#include "editor/colourItems.h"

#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace zdt {

class CColorSetPage;
class CPaintManagerUI;
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
    /// Puts the page of the pictures, with what stands below it, onto the second tab.
    void setPictures(QWidget* pictures);
    void setPictureCounts(int count, int changed);

    [[nodiscard]] int tab() const;
    void selectTab(int tab);
    /// Takes the filter away.
    void clearFilter();
    void focusSearch();
    [[nodiscard]] QString filterText() const;
    [[nodiscard]] bool isChangedOnly() const;

signals:
    /// The filter is another one; the colours have it already.
    void filterChanged();

private:
    void relabel();
    void filter();
    void showCounts();

    QString _name;
    ScreenTab* _colourTab;
    ScreenTab* _pictureTab;
    ZSearchField* _search;
    QPushButton* _changedOnly;
    QStackedWidget* _stack;
    CColorSetPage* _colours;
    QWidget* _pictures = nullptr;
    QLabel* _foot;
};

} // namespace zdt
