#pragma once

#include "editor/problemRows.h"
#include "kit/cellSource.h"

#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QWidget>

namespace zdt {

class ZElidedLabel;

/// What stands for a problem's picture: itself on a checkerboard, its colour, or an icon where there is nothing to
/// show. 40 square.
class ProblemThumbnail : public QWidget {
    Q_OBJECT

public:
    explicit ProblemThumbnail(QWidget* parent);

    /// @param picture null for one that can't be shown
    void show(const ProblemRow& row, const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap _picture;
    QColor _colour;
    ProblemSubject _subject = ProblemSubject::files;
    bool _isMissing = false;
};

/// Where a row stands in the card of its group.
struct CardPlace {
    bool first = false;
    bool last = false;
};

/// A row of the list. Children: `reason`, `detail`, `place`, `goTo`, `restore`.
class ProblemCell : public QWidget {
    Q_OBJECT

public:
    static constexpr int height = 60; ///< The hairline below it included.

    explicit ProblemCell(QWidget* parent);

    void fill(const ProblemRow& row, const QPixmap& picture, CardPlace place);
    void setState(const CellState& state);

signals:
    void goToClicked();
    void restoreClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void sayDetail();
    QPushButton* makeButton(const char* name, int width);

    CardPlace _place;
    CellState _state;
    QString _detailWords;
    ProblemThumbnail* _thumbnail;
    ZElidedLabel* _reason;
    ZElidedLabel* _detail;
    ZElidedLabel* _placeWords;
    QPushButton* _goTo;
    QPushButton* _restore;
};

/// The head of a group: its icon, its word and how many problems it has. Children: `groupName`, `groupCount`.
class ProblemHead : public QWidget {
    Q_OBJECT

public:
    static constexpr int height = 52; ///< The space around its 32 included.

    explicit ProblemHead(QWidget* parent);

    void fill(const std::string& group, int count);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* _icon;
    QLabel* _name;
    QLabel* _count;
};

} // namespace zdt
