#include "editor/pictureSet.h"

#include "editor/keyWords.h"
#include "kit/cellView.h"
#include "kit/emptyState.h"
#include "kit/localisation.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QVBoxLayout>

#include <utility>

namespace zdt {

PictureSet::PictureSet(PictureSource::MakeCell makeCell, int headSide, QWidget* parent)
    : QWidget(parent)
    , _source(new PictureSource(std::move(makeCell), headSide, this))
    , _empty(new ZEmptyState(this)) {
    setAcceptDrops(true);
    _empty->setObjectName("picturesEmpty");
    _empty->hide();
    // What asks waits until the cell is done with its mouse and its drop: the answer may take the cell away, and the
    // program that a file comes from waits.
    const auto late = Qt::QueuedConnection;
    connect(
        _source, &PictureSource::uploadClicked, this, [this](int index) { ask(index, &PictureSet::uploadRequested); },
        late);
    connect(
        _source, &PictureSource::resetClicked, this, [this](int index) { ask(index, &PictureSet::resetRequested); },
        late);
    connect(
        _source, &PictureSource::saveClicked, this, [this](int index) { ask(index, &PictureSet::saveRequested); },
        late);
    connect(_source, &PictureSource::filesDropped, this, &PictureSet::takeFiles, late);
    connect(_source, &PictureSource::hovered, this, &PictureSet::hovered);
    connect(_source, &PictureSource::unhovered, this, &PictureSet::unhovered);
    connect(_source, &PictureSource::counted, this, &PictureSet::counted);
    connect(_source, &PictureSource::reset, this, &PictureSet::showEmpty);
    connect(_source, &PictureSource::currentShown, this, &PictureSet::keepTabOrder);
    connect(_empty, &ZEmptyState::actionClicked, this, &PictureSet::filterCleared);
}

/// The cells tell that they are left when they go.
PictureSet::~PictureSet() {
    disconnect(_source, nullptr, this, nullptr);
}

void PictureSet::setView(CellView* view) {
    _view = view;
    setFocusProxy(view);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(view);
    column->addWidget(_empty);
    connect(view, &CellView::activated, this, [this](int index) { ask(index, &PictureSet::uploadRequested); });
    connect(view, &CellView::currentChanged, this, [this](int index) {
        if (const PictureEntry* entry = _source->entryAt(index))
            emit chosen(QString::fromStdString(entry->key()));
    });
    connect(view, &CellView::menuRequested, this, &PictureSet::showMenu);
    retell();
}

void PictureSet::retell() {
    _view->setAccessibleName(Text("kPicture_list"));
    showEmpty();
    if (_source->count() > 0)
        emit _source->changed(0, _source->count() - 1);
}

void PictureSet::showPicture(const QString& key) {
    _view->setCurrent(_source->indexOf(key.toStdString()));
}

void PictureSet::ask(int index, void (PictureSet::*request)(const PictureEntry&)) {
    // A copy: the answer may replace what is shown.
    if (const PictureEntry* found = _source->entryAt(index)) {
        const PictureEntry entry = *found;
        emit(this->*request)(entry);
    }
}

void PictureSet::takeFiles(int index, const QStringList& files) {
    const PictureEntry* found = _source->entryAt(index);
    if (!found || files.size() != 1 || QFileInfo(files.front()).isDir()) {
        emit batchDropped(files);
        return;
    }
    const PictureEntry entry = *found;
    emit dropped(entry, files);
}

void PictureSet::showMenu(int index, const QPoint& position) {
    const PictureEntry* entry = _source->entryAt(index);
    if (!entry)
        return;
    const bool isChanged = _source->isChanged(*entry);
    const std::string key = entry->key();
    QMenu menu(this);
    const QAction* upload = menu.addAction(Text(isChanged ? "replace_file" : "file_load"));
    const QAction* save = menu.addAction(Text("kPicture_save"));
    QAction* reset = menu.addAction(Text("kPicture_reset_tip"));
    reset->setEnabled(isChanged);
    const QAction* chosen = menu.exec(position);
    const int at = _source->indexOf(key);
    if (chosen == upload)
        ask(at, &PictureSet::uploadRequested);
    else if (chosen == save)
        ask(at, &PictureSet::saveRequested);
    else if (chosen == reset)
        ask(at, &PictureSet::resetRequested);
}

void PictureSet::showEmpty() {
    if (!_view)
        return;
    const bool isEmpty = _source->count() == 0;
    _view->setVisible(!isEmpty);
    _empty->setVisible(isEmpty);
    if (_source->entryCount() == 0) {
        _empty->setIcon("image");
        _empty->setTexts(Text("kPicture_none"), Text("kPicture_none_hint"));
    } else if (!_source->filterText().isEmpty()) {
        _empty->setIcon("search");
        _empty->setTexts(nothingCalled(_source->filterText()), {}, Text("kList_clear_search"));
    } else {
        _empty->setIcon("image");
        _empty->setTexts(Text("kList_nothing_changed"), Text("kList_nothing_changed_hint"));
    }
}

void PictureSet::keepTabOrder(PictureCell* cell) {
    if (_tabCell == cell || !_view)
        return;
    _tabCell = cell;
    QWidget* before = _view;
    for (QWidget* control : cell->controls()) {
        setTabOrder(before, control);
        before = control;
    }
}

/// Delete puts the current picture back.
void PictureSet::keyPressEvent(QKeyEvent* event) {
    const PictureEntry* entry = _source->entryAt(_view->current());
    if (event->key() == Qt::Key_Delete && entry && _source->isChanged(*entry))
        ask(_view->current(), &PictureSet::resetRequested);
    else
        QWidget::keyPressEvent(event);
}

void PictureSet::leaveEvent(QEvent* event) {
    _source->clearHover();
    QWidget::leaveEvent(event);
}

void PictureSet::hideEvent(QHideEvent* event) {
    _source->clearHover();
    QWidget::hideEvent(event);
}

void PictureSet::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedPictures(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PictureSet::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QStringList files = draggedPictures(*event->mimeData());
    QMetaObject::invokeMethod(
        this, [this, files] { emit batchDropped(files); }, Qt::QueuedConnection);
}

} // namespace zdt
