#include "editor/batchCells.h"

#include "editor/batchWords.h"
#include "editor/pictureThumbnail.h"
#include "kit/labels.h"
#include "kit/localisation.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int refusedThumbnail = 40;
constexpr int padding = 12;
constexpr int buttonWidth = 120;

/// Shows the thumbnails that were made in all cells.
void followThumbnails(Thumbnails& thumbnails, CellSource* source) {
    QObject::connect(&thumbnails, &Thumbnails::ready, source, [source] {
        if (source->count() > 0)
            emit source->changed(0, source->count() - 1);
    });
}

/// A refused file. Children: `refusedPicture`, `refusedName`, `refusedWords`, `refusedAnother`.
class RefusedCell : public QWidget {
public:
    explicit RefusedCell(QWidget* parent)
        : QWidget(parent)
        , thumbnail(new PictureThumbnail(refusedThumbnail, this))
        , name(label("refusedName", "mono"))
        , words(label("refusedWords", "small"))
        , another(new QPushButton(this)) {
        thumbnail->setObjectName("refusedPicture");
        words->setProperty("state", "error");
        name->setElideMode(Qt::ElideMiddle);
        another->setObjectName("refusedAnother");
        another->setProperty("scale", "small");
        another->setMinimumWidth(buttonWidth);
        another->setAutoDefault(false);
        another->setFocusPolicy(Qt::NoFocus);
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(padding, 0, padding, 1);
        row->setSpacing(padding);
        row->addWidget(thumbnail);
        auto* texts = new QVBoxLayout;
        texts->setSpacing(2);
        texts->addStretch();
        texts->addWidget(name);
        texts->addWidget(words);
        texts->addStretch();
        row->addLayout(texts, 1);
        row->addWidget(another);
    }

    PictureThumbnail* thumbnail;
    ZElidedLabel* name;
    ZElidedLabel* words;
    QPushButton* another;

private:
    ZElidedLabel* label(const char* objectName, const char* type) {
        auto* made = new ZElidedLabel(this);
        made->setObjectName(objectName);
        made->setProperty("type", type);
        made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        return made;
    }
};

} // namespace

MatchedPictures::MatchedPictures(QObject* parent)
    : ZFlowViewDataSource(parent) {
    followThumbnails(_thumbnails, this);
}

void MatchedPictures::show(const std::vector<BatchMatch>& matched) {
    _matched = matched;
    emit reset();
}

QWidget* MatchedPictures::makeCell(int, QWidget* parent) {
    auto* cell = new QWidget(parent);
    auto* row = new QHBoxLayout(cell);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new PictureThumbnail(side, cell));
    row->addStretch();
    return cell;
}

void MatchedPictures::fillCell(QWidget* cell, int index) {
    const BatchMatch& match = _matched[static_cast<std::size_t>(index)];
    cell->findChild<PictureThumbnail*>()->show(_thumbnails, match.path);
    cell->setToolTip(accessibleName(index).toHtmlEscaped());
}

QString MatchedPictures::accessibleName(int index) const {
    return QString::fromStdString(_matched[static_cast<std::size_t>(index)].key);
}

RefusedPictures::RefusedPictures(QObject* parent)
    : ZListViewDataSource(parent) {
    followThumbnails(_thumbnails, this);
}

void RefusedPictures::show(const std::vector<BatchRefusal>& refused, const std::vector<QString>& words) {
    _refused = refused;
    _words = words;
    emit reset();
}

QWidget* RefusedPictures::makeCell(int, QWidget* parent) {
    auto* cell = new RefusedCell(parent);
    connect(cell->another, &QPushButton::clicked, this, [this, cell] {
        const int row = cell->property("row").toInt();
        if (lacksPlace(row))
            emit placeAsked(row, cell->another->mapToGlobal(QPoint(0, cell->another->height())));
        else
            emit anotherAsked(row);
    });
    return cell;
}

void RefusedPictures::fillCell(QWidget* widget, int index) {
    auto* cell = static_cast<RefusedCell*>(widget);
    const auto at = static_cast<std::size_t>(index);
    cell->setProperty("row", index);
    cell->thumbnail->show(_thumbnails, _refused[at].file.path);
    cell->name->setText(QString::fromStdString(_refused[at].file.name));
    cell->name->setToolTip(QString::fromStdString(_refused[at].file.path).toHtmlEscaped());
    cell->words->setText(_words[at]);
    cell->words->setToolTip(refusalReason(_refused[at]).toHtmlEscaped());
    const bool isPlace = lacksPlace(index);
    cell->another->setText(Text(isPlace ? "kBatch_place" : "kBatch_another"));
    cell->another->setToolTip(Text(isPlace ? "kBatch_place_tip" : "kBatch_another_tip"));
    cell->another->setVisible(isPlace || _refused[at].file.isClaimed());
}

bool RefusedPictures::lacksPlace(int index) const {
    return _refused[static_cast<std::size_t>(index)].code() == unclaimedCode;
}

/// Tab goes to the button of the current row.
void RefusedPictures::showState(QWidget* cell, int, const CellState& state) {
    static_cast<RefusedCell*>(cell)->another->setFocusPolicy(state.current ? Qt::TabFocus : Qt::NoFocus);
}

QString RefusedPictures::accessibleName(int index) const {
    const auto at = static_cast<std::size_t>(index);
    return QString::fromStdString(_refused[at].file.name) + ": " + _words[at];
}

} // namespace zdt
