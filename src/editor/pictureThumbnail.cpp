#include "editor/pictureThumbnail.h"

#include "kit/checker.h"
#include "kit/icons.h"
#include "kit/tokens.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace zdt {

namespace {

constexpr int signSide = 24;
/// Between the border and the picture.
constexpr int padding = 2;

} // namespace

PictureThumbnail::PictureThumbnail(int side, QWidget* parent)
    : QWidget(parent) {
    setFixedSize(side, side);
}

void PictureThumbnail::show(Thumbnails& thumbnails, const std::string& file) {
    const double ratio = devicePixelRatioF();
    _picture = file.empty() ? QImage() : thumbnails.find(file, (size() - QSize(2 * padding, 2 * padding)) * ratio);
    if (_picture)
        _picture->setDevicePixelRatio(ratio);
    update();
}

void PictureThumbnail::setAlarmed(bool alarmed) {
    _isAlarmed = alarmed;
    update();
}

void PictureThumbnail::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void PictureThumbnail::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF place(rect());
    paintChecker(painter, place, token::radiusField);
    if (_picture && _picture->isNull()) {
        const double from = (width() - signSide) / 2.0;
        paintIcon(painter, QRectF(from, from, signSide, signSide), Icon::BrokenImage, token::textOff);
    } else if (_picture) {
        const QSizeF fitted = _picture->deviceIndependentSize();
        QPainterPath corners;
        corners.addRoundedRect(place, token::radiusField, token::radiusField);
        painter.setClipPath(corners);
        painter.drawImage(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), *_picture);
        painter.setClipping(false);
    }
    painter.setPen(_isAlarmed ? token::danger : token::hairline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(.5, .5, -.5, -.5), token::radiusField - .5, token::radiusField - .5);
}

} // namespace zdt
