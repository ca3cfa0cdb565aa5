#include "canvas/drawPictureCell.h"

#include "canvas/drawPictrue.h"
#include "kit/fonts.h"
#include "kit/tokens.h"

#include <QPainter>

#include <utility>

namespace zdt {

namespace {

constexpr QSize borderSize(88, 166);
constexpr QSize pictureSize(78, 156);
constexpr int pictureRadius = 4;
constexpr int captionGap = 4;
constexpr int captionHeight = 16;

} // namespace

CCDrawPictureCell::CCDrawPictureCell(QWidget* parent)
    : QWidget(parent)
    , _picture(new CDrawPictrue(this)) {
    setMinimumSize(leastWidth, cellHeight);
    _picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    _picture->setRadius(pictureRadius);
}

void CCDrawPictureCell::setComposition(std::shared_ptr<PreviewComposition> composition) {
    _picture->setComposition(std::move(composition));
}

void CCDrawPictureCell::refresh() {
    _picture->refresh();
}

void CCDrawPictureCell::setCaption(const QString& caption) {
    _caption = caption;
    showCaption();
}

void CCDrawPictureCell::setState(const CellState& state) {
    _state = state;
    showCaption();
}

void CCDrawPictureCell::setHighlighted(bool isHighlighted) {
    _isHighlighted = isHighlighted;
    update();
}

QRect CCDrawPictureCell::framePlace() const {
    return {QPoint((width() - borderSize.width()) / 2, 0), borderSize};
}

QFont CCDrawPictureCell::captionFont() const {
    return textFont(token::textBody, _state.current ? QFont::DemiBold : QFont::Normal);
}

void CCDrawPictureCell::showCaption() {
    const bool isCut = QFontMetrics(captionFont()).horizontalAdvance(_caption) > width();
    setToolTip(isCut ? _caption : QString());
    update();
}

void CCDrawPictureCell::resizeEvent(QResizeEvent*) {
    QRect place(QPoint(), pictureSize);
    place.moveCenter(framePlace().center());
    _picture->setGeometry(place);
    showCaption();
}

void CCDrawPictureCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isMarked = _state.current || _isHighlighted;
    if (isMarked || _state.hovered) {
        const double half = isMarked ? 1 : 0.5;
        painter.setBrush(_state.hovered && !isMarked ? token::rowHover : token::card);
        painter.setPen(QPen(isMarked ? token::accent : token::fieldBorderHover, 2 * half));
        painter.drawRoundedRect(QRectF(framePlace()).adjusted(half, half, -half, -half), token::radiusField,
                                token::radiusField);
    }
    painter.setFont(captionFont());
    painter.setPen(_state.current ? token::accentText : token::textLabel);
    const QRect line(0, borderSize.height() + captionGap, width(), captionHeight);
    painter.drawText(line, Qt::AlignCenter, painter.fontMetrics().elidedText(_caption, Qt::ElideRight, line.width()));
}

} // namespace zdt
