#include "editor/pictureItem.h"

#include "editor/changedMark.h"
#include "editor/pictureThumbnail.h"
#include "editor/sizeHint.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {

constexpr int thumbnailSide = 56;
constexpr int padding = 16;
constexpr int top = 10;
constexpr int gap = 12;
constexpr int nameHeight = 24;
constexpr int buttonHeight = 28;
constexpr int buttonWidth = 76;
constexpr int dotSide = 6;
constexpr int signSide = 14;
constexpr int pathHeight = 18;
/// The least room at the right of a row beside a scroll bar.
constexpr int leastPadding = 6;

ZElidedLabel* elided(QWidget* parent, const char* name, const char* type) {
    auto* label = new ZElidedLabel(parent);
    label->setObjectName(name);
    label->setProperty("type", type);
    return label;
}

} // namespace

CPictureItem::CPictureItem(QWidget* parent)
    : PictureCell(parent)
    , _thumbnail(new PictureThumbnail(thumbnailSide, this))
    , _name(elided(this, "pictureName", "mono"))
    , _dot(new QLabel(this))
    , _format(new ZBadge(this))
    , _size(elided(this, "pictureSize", "monoHint"))
    , _reset(new QPushButton(this))
    , _upload(new QPushButton(this))
    , _errorSign(new QLabel(this))
    , _error(elided(this, "pictureError", "small"))
    , _path(new QLineEdit(this)) {
    makeControls();
    auto* nameRow = new QHBoxLayout;
    nameRow->setSpacing(6);
    nameRow->addWidget(_name);
    nameRow->addWidget(_dot);
    nameRow->addStretch();
    nameRow->addWidget(_format);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->setSpacing(8);
    buttonRow->addWidget(_size, 1);
    buttonRow->addWidget(_reset);
    buttonRow->addWidget(_upload);
    auto* errorRow = new QHBoxLayout;
    errorRow->setSpacing(4);
    errorRow->addWidget(_errorSign);
    errorRow->addWidget(_error, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addLayout(nameRow);
    column->addLayout(buttonRow);
    column->addLayout(errorRow);
    column->addWidget(_path);
    column->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(padding, top, padding, 0);
    row->setSpacing(gap);
    row->addWidget(_thumbnail, 0, Qt::AlignTop);
    row->addLayout(column, 1);
}

void CPictureItem::makeControls() {
    _name->setFixedHeight(nameHeight);
    _name->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    _name->setElideMode(Qt::ElideMiddle);
    _dot->setPixmap(changedDot(dotSide, devicePixelRatioF()));
    _dot->setFixedWidth(dotSide);
    _format->setObjectName("pictureFormat");
    _reset->setObjectName("pictureReset");
    _reset->setProperty("kind", "quiet");
    _reset->setProperty("scale", "small");
    _reset->setFixedSize(buttonHeight, buttonHeight);
    setButtonIcon(_reset, Icon::SettingsBackupRestore, 16);
    _upload->setProperty("scale", "small");
    _upload->setFixedSize(buttonWidth, buttonHeight);
    for (QPushButton* button : {_reset, _upload}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(true);
    }
    _errorSign->setPixmap(iconPixmap(Icon::Error, token::danger, signSide, devicePixelRatioF()));
    _errorSign->setFixedWidth(signSide);
    _error->setProperty("state", "error");
    _path->setObjectName("picturePath");
    _path->setProperty("kind", "path");
    _path->setReadOnly(true);
    _path->setFrame(false);
    // A line edit begins so much beside its edge.
    _path->setTextMargins(-2, 0, 0, 0);
    _path->setFixedHeight(pathHeight);
    // What is dropped on it is for the row.
    _path->setAcceptDrops(false);
    _path->setFocusPolicy(Qt::NoFocus);
    _path->setContextMenuPolicy(Qt::NoContextMenu);
    _thumbnail->setObjectName("pictureThumbnail");
    _thumbnail->setCursor(Qt::PointingHandCursor);
    connect(_thumbnail, &PictureThumbnail::clicked, this, &PictureCell::saveClicked);
    connect(_reset, &QPushButton::clicked, this, &PictureCell::resetClicked);
    connect(_upload, &QPushButton::clicked, this, &PictureCell::uploadClicked);
}

QList<QWidget*> CPictureItem::controls() const {
    return {_reset, _upload};
}

void CPictureItem::fill(const PictureCellContent& content, Thumbnails& thumbnails) {
    const PictureEntry& entry = content.entry;
    _isChanged = content.changed;
    _isFailed = !entry.error.isEmpty();
    const std::size_t bare = entry.name.size() - entry.format.size();
    _name->setText(QString::fromStdString(entry.name.substr(0, bare)));
    _name->setToolTip(pictureTip(content));
    _thumbnail->show(thumbnails, entry.file());
    _thumbnail->setAlarmed(_isFailed);
    _thumbnail->setToolTip(Text("kPicture_save_tip"));
    _dot->setVisible(_isChanged);
    _dot->setToolTip(Text("kList_changed_tip"));
    _format->setText(QString::fromStdString(entry.format));
    _format->setKind(entry.isNinePatch() ? "generation8" : "plain");
    // Beside words there is no room for another.
    const bool isNumber = entry.sizeHint.isEmpty() || parseSizeHint(entry.sizeHint.toStdString()) != SizeRule();
    const QString unchanged = _isChanged || !isNumber ? QString() : Text("kPicture_default");
    _size->setText(QStringList{entry.sizeHint, unchanged}.join(entry.sizeHint.isEmpty() ? "" : "  ").trimmed());
    _upload->setObjectName(content.controlName);
    _upload->setText(Text(_isChanged ? "replace_file" : "file_load"));
    _upload->setToolTip(Text(entry.isNinePatch() ? "kPicture_upload_patch_tip" : "kPicture_upload_tip"));
    _upload->setAccessibleName(_upload->text() + " " + QString::fromStdString(entry.name));
    _reset->setToolTip(Text("kPicture_reset_tip"));
    _reset->setAccessibleName(Text("kPicture_reset_tip"));
    _errorSign->setVisible(_isFailed);
    _error->setVisible(_isFailed);
    _error->setText(entry.error);
    _given = QString::fromStdString(entry.uploadedPath);
    _path->setVisible(!_given.isEmpty() && !_isFailed);
    _path->setToolTip(_given.toHtmlEscaped());
    _path->setAccessibleName(TextWith("kPicture_given", _given));
    showPath();
    showReset();
    update();
}

void CPictureItem::setState(const CellState& state) {
    _state = state;
    for (QPushButton* button : {_reset, _upload})
        button->setFocusPolicy(state.current ? Qt::TabFocus : Qt::NoFocus);
    showReset();
    update();
}

void CPictureItem::showReset() {
    QSizePolicy kept = _reset->sizePolicy();
    kept.setRetainSizeWhenHidden(_isChanged);
    _reset->setSizePolicy(kept);
    _reset->setVisible(_isChanged && (_state.hovered || _state.current));
}

void CPictureItem::showPath() {
    const int begin = padding + thumbnailSide + gap;
    // A line edit keeps a pixel or two at its ends for the cursor.
    constexpr int cursorRoom = 8;
    const int room = width() - begin - layout()->contentsMargins().right() - cursorRoom;
    _path->setText(_path->fontMetrics().elidedText(_given, Qt::ElideRight, room));
    _path->setCursorPosition(0);
}

/// The controls stay where they are when a scroll bar comes.
void CPictureItem::resizeEvent(QResizeEvent* event) {
    PictureCell::resizeEvent(event);
    const QWidget* view = parentWidget() ? parentWidget()->parentWidget() : nullptr;
    const int bar = view ? std::max(0, view->width() - width()) : 0;
    layout()->setContentsMargins(padding, top, std::max(leastPadding, padding - bar), 0);
    showPath();
}

void CPictureItem::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect ground = rect().adjusted(0, 0, 0, -1);
    if (_isFailed)
        painter.fillRect(ground, token::dangerBack);
    else if (_state.current)
        painter.fillRect(ground, token::rowSelected);
    else if (_state.hovered)
        painter.fillRect(ground, token::rowHover);
    else
        painter.fillRect(ground, token::card);
    if (isDropTarget()) {
        painter.setPen(QPen(token::accent, 2));
        painter.drawRect(ground.adjusted(1, 1, -1, -1));
    }
}

} // namespace zdt
