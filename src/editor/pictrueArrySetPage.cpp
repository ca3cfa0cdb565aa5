#include "editor/pictrueArrySetPage.h"

#include "editor/pictureThumbnail.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {

constexpr int sideMargin = 16;
constexpr int thumbnailSide = 56;
constexpr int resetSide = 24;
constexpr int inset = 4;
constexpr int dotSide = 6;

ZElidedLabel* elided(QWidget* parent, const char* name, const char* type) {
    auto* label = new ZElidedLabel(parent);
    label->setObjectName(name);
    label->setProperty("type", type);
    label->setAlignment(Qt::AlignCenter);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

} // namespace

CPictrueArryItem::CPictrueArryItem(QWidget* parent)
    : PictureCell(parent)
    , _thumbnail(new PictureThumbnail(thumbnailSide, this))
    , _reset(new QPushButton(this))
    , _name(elided(this, "pictureName", "small"))
    , _size(elided(this, "pictureSize", "monoHint"))
    , _upload(new QPushButton(this)) {
    _thumbnail->setObjectName("pictureThumbnail");
    _thumbnail->setCursor(Qt::PointingHandCursor);
    _reset->setObjectName("pictureReset");
    _reset->setProperty("scale", "row");
    _reset->setFixedSize(resetSide, resetSide);
    setButtonIcon(_reset, Icon::SettingsBackupRestore, 16);
    _upload->setProperty("scale", "small");
    for (QPushButton* button : {_reset, _upload}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(true);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(inset, 8, inset, 8);
    column->setSpacing(2);
    column->addWidget(_thumbnail, 0, Qt::AlignHCenter);
    column->addSpacing(4);
    column->addWidget(_name);
    column->addWidget(_size);
    column->addStretch();
    column->addWidget(_upload);
    _reset->move(gridCellWidth - resetSide - inset, inset);
    connect(_thumbnail, &PictureThumbnail::clicked, this, &PictureCell::saveClicked);
    connect(_reset, &QPushButton::clicked, this, &PictureCell::resetClicked);
    connect(_upload, &QPushButton::clicked, this, &PictureCell::uploadClicked);
}

QList<QWidget*> CPictrueArryItem::controls() const {
    return {_reset, _upload};
}

void CPictrueArryItem::fill(const PictureCellContent& content, Thumbnails& thumbnails) {
    const PictureEntry& entry = content.entry;
    _isChanged = content.changed;
    const bool isFailed = !entry.error.isEmpty();
    _thumbnail->show(thumbnails, entry.file());
    _thumbnail->setAlarmed(isFailed);
    _thumbnail->setToolTip(Text("kPicture_save_tip"));
    const QString file = QString::fromStdString(entry.name.substr(0, entry.name.size() - entry.format.size()));
    _name->setText(entry.text.isEmpty() ? file : entry.text);
    _name->setToolTip(pictureTip(content));
    _size->setText(isFailed ? entry.error : entry.isNinePatch() ? QString(".9.png") : entry.sizeHint);
    setStyleProperty(_size, "state", isFailed ? "error" : "");
    _upload->setObjectName(content.controlName);
    _upload->setText(Text(_isChanged ? "replace_file" : "file_load"));
    _upload->setToolTip(Text(entry.isNinePatch() ? "kPicture_upload_patch_tip" : "kPicture_upload_tip"));
    _upload->setAccessibleName(_upload->text() + " " + QString::fromStdString(entry.name));
    _reset->setToolTip(Text("kPicture_reset_tip"));
    _reset->setAccessibleName(Text("kPicture_reset_tip"));
    setState(_state);
}

void CPictrueArryItem::setState(const CellState& state) {
    _state = state;
    for (QPushButton* button : {_reset, _upload})
        button->setFocusPolicy(state.current ? Qt::TabFocus : Qt::NoFocus);
    _reset->setVisible(_isChanged && (state.hovered || state.current));
    update();
}

void CPictrueArryItem::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(isDropTarget() ? QPen(token::accent, 2) : QPen(Qt::NoPen));
    painter.setBrush(_state.current ? token::rowSelected : _state.hovered ? token::rowHover : QColor(Qt::transparent));
    painter.drawRoundedRect(place, token::radiusField, token::radiusField);
    if (!_isChanged)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::accent);
    painter.drawEllipse(QRectF(inset, inset, dotSide, dotSide));
}

PictureGridView::PictureGridView(QWidget* parent)
    : CellView(parent) {}

void PictureGridView::setSource(PictureSource* source) {
    setCellSource(source);
}

void PictureGridView::measure() {
    const auto* source = static_cast<const PictureSource*>(cellSource());
    std::vector<int> counts;
    for (int index = 0; index < count(); ++index) {
        if (source->headAt(index))
            counts.push_back(0);
        else
            ++counts.back();
    }
    // The margin of one side is where the scroll bar stands.
    _columns = gridColumns(width(), sideMargin, verticalScrollBar()->sizeHint().width());
    _layout = layOutGrid(counts, _columns, sideMargin, viewport()->width());
}

QRect PictureGridView::cellPlace(int index) const {
    return _layout.places[static_cast<std::size_t>(index)];
}

int PictureGridView::firstBelow(int y) const {
    const auto found = std::partition_point(_layout.places.begin(), _layout.places.end(),
                                            [y](const QRect& place) { return place.top() + place.height() <= y; });
    return static_cast<int>(found - _layout.places.begin());
}

/// To the picture above or below that lies nearest, over the heads between.
int PictureGridView::rowStep(int direction) const {
    if (current() < 0)
        return direction;
    const QRect from = cellPlace(current());
    int best = current();
    for (int index = current() + direction; index >= 0 && index < count(); index += direction) {
        const QRect place = cellPlace(index);
        if (!cellSource()->isSelectable(index) || place.top() == from.top())
            continue;
        if (best != current() && place.top() != cellPlace(best).top())
            break;
        if (best == current() || std::abs(place.left() - from.left()) < std::abs(cellPlace(best).left() - from.left()))
            best = index;
    }
    return best - current();
}

int PictureGridView::stepOf(int key) const {
    const int rows = std::max(1, viewport()->height() / gridRowPitch);
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
        return rowStep(-1);
    case Qt::Key_Down:
        return rowStep(1);
    case Qt::Key_PageUp:
        return -rows * _columns;
    case Qt::Key_PageDown:
        return rows * _columns;
    default:
        return 0;
    }
}

int PictureGridView::ringRadius() const {
    return token::radiusField;
}

CPictrueArrySetPage::CPictrueArrySetPage(QWidget* parent)
    : PictureSet([](QWidget* cellParent) { return new CPictrueArryItem(cellParent); }, sideMargin, parent) {
    auto* grid = new PictureGridView(this);
    grid->setObjectName("pictureGrid");
    grid->setSource(&source());
    setView(grid);
}

void* CPictrueArrySetPage::GetInterface(const QString& name) {
    return name == "CPictrueArrySetPage" || name == "IContainer" ? this : nullptr;
}

} // namespace zdt
