#pragma once

#include "editor/colourItems.h"

#include <QScrollArea>
#include <QString>

#include <vector>

class QPropertyAnimation;
class QVBoxLayout;

namespace zdt {

class CColorItem;
class CPaintManagerUI;
class ThemeResource;
class ZEmptyState;

/// The list of a screen's colours: those of its own group, and below them the others that are seen on it.
class CColorSetPage : public QScrollArea {
    Q_OBJECT

public:
    /// @param name of the module and screen, joined by "|"
    CColorSetPage(const QString& name, CPaintManagerUI& notifications, QWidget* parent);

    /// Shows the rows with what the theme holds, in the language of the moment.
    void setRows(const ThemeResource& theme, const std::vector<ColourRow>& rows);
    /// Reads the theme anew for the row of a setting.
    void refresh(const ThemeResource& theme, const ItemPath& path);
    void setFilter(const QString& text, bool changedOnly);

    /// By the key in the names of its controls; null for none.
    [[nodiscard]] CColorItem* itemOf(const QString& key) const;
    /// By the key of its setting; null for none.
    [[nodiscard]] CColorItem* itemOf(const std::string& key) const;
    [[nodiscard]] const ColourRow* rowOf(const CColorItem& item) const;
    [[nodiscard]] int count() const { return static_cast<int>(_rows.size()); }
    [[nodiscard]] int changedCount() const;

    /// Scrolls to a row, marks it for a moment and puts the keyboard into it. Takes a filter away that hides it.
    void showItem(CColorItem& item);

signals:
    /// The keyboard is in a row now.
    void entered(CColorItem* item);
    /// A filter had to go.
    void filterDropped();

private:
    struct Row {
        ColourRow row;
        CColorItem* item;
        bool isShown = true;
    };

    void build(const std::vector<ColourRow>& rows);
    [[nodiscard]] CColorItem* makeItem(const ColourRow& row);
    void fill(const ThemeResource& theme, Row& row);
    void choose();
    void scrollTo(int y);

    QString _name;
    CPaintManagerUI& _notifications;
    QPropertyAnimation* _gliding;
    QVBoxLayout* _column;
    QWidget* _ownHead;
    QWidget* _otherHead;
    ZEmptyState* _empty;
    std::vector<Row> _rows;
    QString _filter;
    bool _changedOnly = false;
};

/// The name of a colour as its row says it.
[[nodiscard]] QString colourWords(const ColourRow& row);

} // namespace zdt
