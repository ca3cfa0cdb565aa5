#include "canvas/itemPainter.h"

#include "canvas/drawItem.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zdt {

namespace {

constexpr double linePixels = 3;
constexpr double handlePen = 5;
constexpr double handleDiameter = 20;
constexpr double outerOffset = 3;
constexpr double innerInset = 5;
// A canvas that is a quarter of the phone's size would draw the marks too fine to be seen and taken hold of.
constexpr double leastLine = 1;
constexpr double leastHandle = 6;

QRectF rectOf(const EdgeRect& rect) {
    return {QPointF(rect.left, rect.top), QPointF(rect.right, rect.bottom)};
}

int alignmentOf(ItemTextAlign align) {
    switch (align) {
    case ItemTextAlign::left:
        return Qt::AlignLeft;
    case ItemTextAlign::center:
        return Qt::AlignHCenter;
    case ItemTextAlign::right:
        return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

} // namespace

ItemPainter::ItemPainter(QPainter& painter, const QSize& surface, const DesignSpace& space, double pixelRatio,
                         ScaledPictures& pictures)
    : _painter(painter)
    , _scaleX(static_cast<double>(surface.width()) / DesignSpace::width)
    , _scaleY(static_cast<double>(surface.height()) / space.height)
    , _pixelRatio(pixelRatio)
    , _pictures(pictures) {
    _painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
}

QRectF ItemPainter::onSurface(const QRectF& rect) const {
    return {QPointF(rect.left() * _scaleX, rect.top() * _scaleY),
            QPointF(rect.right() * _scaleX, rect.bottom() * _scaleY)};
}

void ItemPainter::fill(const EdgeRect& rect, QRgb color) {
    _painter.fillRect(onSurface(rectOf(rect)), QColor::fromRgba(color));
}

void ItemPainter::drawFitted(const QImage& picture, const QSize& size, const EdgeRect& rect) {
    drawStretched(picture, picture.rect(), fittedPlace(size, rect));
}

void ItemPainter::drawStretched(const QImage& picture, const QRectF& part, const EdgeRect& rect) {
    drawStretched(picture, part, rectOf(rect));
}

void ItemPainter::drawStretched(const QImage& picture, const QRectF& part, const QRectF& rect) {
    const QRectF exact = onSurface(rect);
    if (picture.isNull() || exact.isEmpty())
        return;
    // On whole pixels, so that a picture is scaled once and stays sharp.
    const QPoint corner(qRound(exact.left()), qRound(exact.top()));
    const QSize size =
        QSize(qRound(exact.right()) - corner.x(), qRound(exact.bottom()) - corner.y()).expandedTo(QSize(1, 1));
    if (ScaledPictures::canHold(size))
        _painter.drawImage(corner, _pictures.scaled(picture, part.toAlignedRect() & picture.rect(), size));
    else
        _painter.drawImage(exact, picture, part);
}

void ItemPainter::drawText(const QString& text, const ItemTextStyle& style, const EdgeRect& rect) {
    if (style.size <= 0 || rect.width() <= 0 || rect.height() <= 0)
        return;
    QFont font(style.font);
    font.setPixelSize(style.size);
    // Hinted for the size on the phone, the letters would stand unevenly in another.
    font.setHintingPreference(QFont::PreferNoHinting);
    _painter.save();
    _painter.scale(_scaleX, _scaleY);
    _painter.setClipRect(rectOf(rect), Qt::IntersectClip);
    _painter.setFont(font);
    _painter.setPen(QColor::fromRgba(style.color));
    _painter.drawText(rectOf(rect), alignmentOf(style.align) | Qt::AlignVCenter | Qt::TextSingleLine, text);
    _painter.restore();
}

double ItemPainter::atLeast(double length, double controlPixels) const {
    return std::max(length * _scaleX, controlPixels * _pixelRatio);
}

double ItemPainter::handleSize() const {
    return atLeast(handleDiameter, leastHandle);
}

int ItemPainter::selectionMargin() const {
    return static_cast<int>(std::ceil((handleSize() + atLeast(handlePen, leastLine)) / std::min(_scaleX, _scaleY)));
}

void ItemPainter::drawOutline(const QRectF& rect, QRgb color) {
    _painter.setBrush(Qt::NoBrush);
    _painter.setPen(
        QPen(QColor::fromRgba(color), atLeast(linePixels, leastLine), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    _painter.drawRect(rect);
}

void ItemPainter::drawHandles(const QRectF& rect, QRgb outline, QRgb handle) {
    _painter.setPen(QPen(QColor::fromRgba(outline), atLeast(handlePen, leastLine)));
    _painter.setBrush(QColor::fromRgba(handle));
    const double radius = handleSize() / 2;
    for (const QPointF& corner : {rect.topLeft(), rect.topRight(), rect.bottomLeft(), rect.bottomRight()})
        _painter.drawEllipse(corner, radius, radius);
}

void ItemPainter::drawSelection(const EdgeRect& rect, QRgb outline, QRgb handle, bool handles) {
    const QRectF whole = rectOf(rect);
    _painter.save();
    drawOutline(onSurface(whole.adjusted(-outerOffset, -outerOffset, outerOffset, outerOffset)), handle);
    drawOutline(onSurface(whole.adjusted(0, 0, -innerInset, -innerInset)), outline);
    if (handles)
        drawHandles(onSurface(whole), outline, handle);
    _painter.restore();
}

ItemPainter::Animated::Animated(ItemPainter& painter, const QTransform& transform, double opacity)
    : _painter(painter) {
    const QTransform toSurface = QTransform::fromScale(painter._scaleX, painter._scaleY);
    painter._painter.save();
    painter._painter.setTransform(toSurface.inverted() * transform * toSurface, true);
    painter._painter.setOpacity(painter._painter.opacity() * std::clamp(opacity, 0.0, 1.0));
}

ItemPainter::Animated::~Animated() {
    _painter._painter.restore();
}

} // namespace zdt
