#pragma once

#include "editor/pictureEntry.h"
#include "editor/pictureSource.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace zdt {

class CellView;
class ZEmptyState;

/// The pictures of a screen, in groups, with what can be done with each: what the list and the grid share. It changes
/// no theme: it asks, and shows what it is given.
class PictureSet : public QWidget {
    Q_OBJECT

public:
    ~PictureSet() override;

    /// Whose controls are named by them: "<module>|<preview>|<key>|picture|button".
    void setScreen(const QString& module, const QString& preview) { _source->setScreen(module, preview); }
    void setGroups(std::vector<PictureGroup> groups) { _source->setGroups(std::move(groups)); }
    [[nodiscard]] const std::vector<PictureGroup>& groups() const { return _source->groups(); }
    /// Shows only what has the text in its name or words, and with `changedOnly` only what differs from the template.
    void setFilter(const QString& text, bool changedOnly) { _source->setFilter(text, changedOnly); }
    /// Shows an entry anew that was uploaded, reset or refused.
    void updateEntry(const PictureEntry& entry) { _source->update(entry); }
    [[nodiscard]] int entryCount() const { return _source->entryCount(); }
    /// As far as is known; `counted` follows when more is.
    [[nodiscard]] int changedCount() const { return _source->changedCount(); }
    /// Of the picture that is pointed at, "<sub-module>/<name>"; empty for none.
    [[nodiscard]] const QString& hoveredKey() const { return _source->hoveredKey(); }
    /// Scrolls to a picture and makes it current.
    void showPicture(const QString& key);
    /// Says all again in the language of the moment; entries bring their own words.
    void retell();

signals:
    void uploadRequested(const zdt::PictureEntry& entry);
    void saveRequested(const zdt::PictureEntry& entry);
    void resetRequested(const zdt::PictureEntry& entry);
    /// A picture is pointed at, by the pointer or by keys.
    void hovered(const QString& key);
    /// It became the current one.
    void chosen(const QString& key);
    void unhovered();
    /// One file was dropped on a picture.
    void dropped(const zdt::PictureEntry& entry, const QStringList& files);
    /// Several were, or a folder, or any beside the pictures: a batch.
    void batchDropped(const QStringList& files);
    /// The filter hides all, and is to be cleared.
    void filterCleared();
    void counted();

protected:
    PictureSet(PictureSource::MakeCell makeCell, int headSide, QWidget* parent);
    /// To be called once, with the view that shows `source`.
    void setView(CellView* view);
    [[nodiscard]] PictureSource& source() const { return *_source; }

    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void ask(int index, void (PictureSet::*request)(const PictureEntry&));
    void takeFiles(int index, const QStringList& files);
    void showMenu(int index, const QPoint& position);
    void showEmpty();
    void keepTabOrder(PictureCell* cell);

    PictureSource* _source;
    CellView* _view = nullptr;
    ZEmptyState* _empty;
    PictureCell* _tabCell = nullptr;
};

} // namespace zdt
