#pragma once

#include "editor/keyChange.h"
#include "editor/keyListSource.h"
#include "kit/fileChoice.h"
#include "kit/page.h"

#include <QColor>
#include <QElapsedTimer>
#include <QTimer>

#include <string>

class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace zdt {

class KeyEditor;
class KeyFacts;
class KeyPreview;
class ZElidedLabel;
class ZEmptyState;
class ZListView;
class ZSearchField;

/// The list of every key and file of the open theme, with a search, editing in the row, and what is known of the
/// current row beside it.
class CFullListPage : public ZPage {
    Q_OBJECT

public:
    CFullListPage(Workbench& bench, QWidget* parent);
    ~CFullListPage() override;

    /// Shows the keys of a module, `sharedModule` for those that all applications share; empty for everything. False,
    /// with nothing changed, for one that has no keys.
    bool showModule(const std::string& module);
    /// The module that is shown; empty for everything.
    [[nodiscard]] const std::string& module() const { return _table.filter().module; }
    /// Goes to a key, the names down to it joined by "/", and so to its module. False if the list has no such key.
    bool showLeaf(const std::string& keyText);
    void focusSearch();
    /// Reads the theme anew if it was told to while it was hidden. To be called before it is shown or asked.
    void bringUpToDate();
    /// Others have changed the theme.
    void setOld() { _isOld = true; }

    void Notify(const Notification& message) override;

    FileChoice fileChoice{QStandardPaths::PicturesLocation};

signals:
    void moduleChanged(const QString& module);

protected:
    void reload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void connectBar();
    void connectList();
    void connectEditor();

    // What is shown
    void readAll();
    void fillModules();
    void setFilter(const KeyFilter& filter);
    void showCounts();
    void showEmpty();
    void showRange();
    /// The line below the list: a reason that its row has no room for, else a hint.
    void showHint();
    void placeHead();
    void placeEditor();
    void showCurrent();
    void showDetails();
    /// Shows none, until those of the current row are there.
    void clearDetails();
    void showPreview();
    [[nodiscard]] bool hasCurrent() const;
    [[nodiscard]] int current() const;
    [[nodiscard]] int rowAt(const QPoint& position) const;

    // What is changed
    void enterValue(const QString& value, bool isWhole);
    void activate(int index);
    void moveAndEdit(int by);
    void chooseColour(int index);
    void tryColour(const std::string& key, const QColor& colour);
    void replaceByDialog();
    void replaceBy(int index, const QString& file);
    /// What was dropped on a row, -1 for none; says why it can't be taken.
    void takeDropped(int index, const QStringList& files);
    [[nodiscard]] bool mayReset(const KeyRow& row);
    void resetCurrent();
    void copyValue() const;
    void pasteValue();
    /// Shows what a change left, and lets others check.
    void changed(const std::string& key);
    bool listKey(const QKeyEvent& event);
    bool dropOnList(QEvent* event);

    KeyListSource _table;
    ZSearchField& _search;
    QComboBox& _modules;
    QPushButton& _changedOnly;
    QLabel& _count;
    QLabel& _changedCount;
    QWidget& _head;
    QPushButton& _headKey;
    QLabel& _headValue;
    QLabel& _headGenerations;
    QLabel& _headApplies;
    QStackedWidget& _stack;
    ZListView& _list;
    ZEmptyState& _empty;
    ZElidedLabel& _hint;
    QLabel& _range;
    ZElidedLabel& _name;
    QPushButton& _replace;
    QPushButton& _edit;
    QPushButton& _reset;
    KeyEditor* _editor;
    KeyPreview* _preview;
    KeyFacts* _facts;
    QLabel* _nothing;

    bool _isOld = false;
    std::string _theme;   ///< The name of the theme that is shown.
    std::string _current; ///< The key of the current row.
    std::string _edited;  ///< That of the row which the fields show, and which may just have been left.
    QString _editedName;
    QString _lost;       ///< Why a value wasn't stored whose row was left; until the next edit.
    QTimer _detailTimer; ///< Details follow the row when the keys are let go.
    QTimer _tryTimer;    ///< Colours that are tried are written at most thirty times a second.
    QColor _tried;
};

} // namespace zdt
