#include "editor/previewCard.h"

#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace zdt {

namespace {

constexpr QSize pictureSize(96, 192);
constexpr int sidePadding = 8;
constexpr int rowGap = 6;
constexpr int footHeight = 28;
constexpr int markHeight = 16;
constexpr int removeSide = 22;

} // namespace

PreviewPictureView::PreviewPictureView(QWidget* parent)
    : QWidget(parent) {
    setFixedSize(pictureSize);
}

void PreviewPictureView::setState(State state, const QImage& picture) {
    _state = state;
    if (state != State::loading) // What is shown stays until the new one is there.
        _picture = QPixmap::fromImage(picture);
    update();
}

void PreviewPictureView::setMark(const QString& mark) {
    _mark = mark;
    update();
}

void PreviewPictureView::paintPicture(QPainter& painter) const {
    if (_state == State::empty || _state == State::broken) {
        QPen dashes(token::fieldBorder, 1, Qt::DashLine);
        painter.setPen(dashes);
        painter.setBrush(token::fillOff);
        painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), token::radiusField, token::radiusField);
        const Icon sign = _state == State::empty ? Icon::AddPhotoAlternate : Icon::BrokenImage;
        paintIcon(painter, QRectF(rect().center() - QPoint(16, 16), QSize(32, 32)), sign, token::iconEmpty);
        return;
    }
    if (_picture.isNull()) {
        painter.fillRect(rect(), token::hairlineRow);
        return;
    }
    QRect place(QPoint(), _picture.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, _picture);
}

void PreviewPictureView::paintMark(QPainter& painter) const {
    const QFont font = textFont(10, QFont::DemiBold);
    painter.setFont(font);
    const int wanted = QFontMetrics(font).horizontalAdvance(_mark) + 10;
    const QRectF place(4, 4, std::min(wanted, width() - 8), markHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawRoundedRect(place, token::radiusField, token::radiusField);
    painter.setPen(token::text);
    painter.drawText(place, Qt::AlignCenter, _mark);
}

void PreviewPictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintPicture(painter);
    if (!_mark.isEmpty() && _state != State::empty)
        paintMark(painter);
}

PreviewCard::PreviewCard(QString name, bool isDrawn, QWidget* parent)
    : QFrame(parent)
    , _name(std::move(name))
    , _view(new PreviewPictureView(this))
    , _label(new ZElidedLabel(this))
    , _remove(new QToolButton(_view)) {
    setObjectName("card_" + _name);
    setFixedSize(width, height);
    _label->setProperty("type", "small");
    _label->setAlignment(Qt::AlignCenter);
    _label->setFixedHeight(16);
    if (isDrawn) {
        auto* size = new QLabel(this);
        size->setProperty("type", "hint");
        size->setAlignment(Qt::AlignCenter);
        _foot = size;
    } else {
        makeButton();
        _foot = _button;
        setAcceptDrops(true);
        _view->setCursor(Qt::PointingHandCursor);
    }
    makeRemove();
    _foot->setFixedHeight(footHeight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sidePadding, sidePadding, sidePadding, sidePadding);
    column->setSpacing(rowGap);
    column->addWidget(_view, 0, Qt::AlignHCenter);
    column->addWidget(_label);
    column->addWidget(_foot);
}

void PreviewCard::makeButton() {
    _button = new QPushButton(this);
    _button->setObjectName("replace_" + _name);
    _button->setProperty("scale", "small");
    _button->installEventFilter(this);
    connect(_button, &QPushButton::clicked, this, [this] { emit replaceAsked(_name); });
}

void PreviewCard::makeRemove() {
    _remove->setObjectName("remove_" + _name);
    _remove->setProperty("kind", "onPicture");
    _remove->setIcon(icon(Icon::Close, token::text));
    _remove->setIconSize({14, 14});
    _remove->setFocusPolicy(Qt::StrongFocus);
    _remove->setCursor(Qt::ArrowCursor);
    constexpr int distance = 4;
    const int side = removeSide + distance;
    _remove->setGeometry(pictureSize.width() - side, pictureSize.height() - side, removeSide, removeSide);
    _remove->hide();
    connect(_remove, &QToolButton::clicked, this, [this] { emit removeAsked(_name); });
}

void PreviewCard::setCaption(const QString& caption) {
    _caption = caption;
    retell();
}

void PreviewCard::setSizeText(const QString& text) {
    if (auto* size = qobject_cast<QLabel*>(_foot))
        size->setText(text);
    _view->setToolTip(_name + ", " + text);
}

void PreviewCard::setEmpty() {
    _view->setState(PreviewPictureView::State::empty);
    setRemovable(false);
    retell();
}

void PreviewCard::setLoading() {
    _view->setState(PreviewPictureView::State::loading);
    retell();
}

void PreviewCard::setPicture(const QImage& picture) {
    _view->setState(picture.isNull() ? PreviewPictureView::State::broken : PreviewPictureView::State::shown, picture);
}

void PreviewCard::setOwn(bool isOwn) {
    _isOwn = isOwn;
    retell();
}

void PreviewCard::setRemovable(bool isRemovable) {
    _remove->setVisible(isRemovable);
}

void PreviewCard::retell() {
    _label->setText(_caption);
    _view->setMark(_isOwn ? Text("kExport_own_picture") : QString());
    _view->setAccessibleName(_caption);
    if (!_button)
        return;
    _button->setText(Text(_view->state() == PreviewPictureView::State::empty ? "file_load" : "replace_file"));
    _button->setAccessibleName(_button->text() + ": " + _caption);
    _button->setToolTip(_button->accessibleName());
    _remove->setToolTip(Text("kExport_remove_preview"));
    _remove->setAccessibleName(_remove->toolTip() + ": " + _caption);
}

void PreviewCard::setCurrent(bool isCurrent) {
    _isCurrent = isCurrent;
    update();
}

void PreviewCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isMarked = _button && (_isCurrent || _isHovered);
    painter.setBrush(_isHovered && _button ? token::cardChosen : token::card);
    painter.setPen(isMarked ? token::accent : token::hairline);
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), token::radiusCard, token::radiusCard);
}

void PreviewCard::setHovered(bool isHovered) {
    _isHovered = isHovered;
    update();
}

void PreviewCard::enterEvent(QEnterEvent*) {
    setHovered(true);
}

void PreviewCard::leaveEvent(QEvent*) {
    setHovered(false);
}

void PreviewCard::mousePressEvent(QMouseEvent*) {
    if (_button)
        emit touched(_name);
}

void PreviewCard::mouseReleaseEvent(QMouseEvent* event) {
    if (_button && event->button() == Qt::LeftButton && _view->geometry().contains(event->position().toPoint()))
        emit replaceAsked(_name);
}

void PreviewCard::dragEnterEvent(QDragEnterEvent* event) {
    if (draggedFiles(*event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    setHovered(true);
}

void PreviewCard::dragLeaveEvent(QDragLeaveEvent*) {
    setHovered(false);
}

void PreviewCard::dropEvent(QDropEvent* event) {
    setHovered(false);
    event->acceptProposedAction();
    emit filesDropped(_name, draggedFiles(*event->mimeData()));
}

bool PreviewCard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        emit touched(_name);
    return QFrame::eventFilter(watched, event);
}

QStringList draggedFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            files += url.toLocalFile();
    }
    return files;
}

} // namespace zdt
