#include "canvas/drawPictrue.h"

#include "canvas/previewComposition.h"
#include "kit/focusRing.h"
#include "kit/kitStyle.h"
#include "kit/tokens.h"
#include "packaging/pictureConversion.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace zdt {

namespace {

constexpr int air = 3;
constexpr double lineWidth = 1.5;
constexpr int outlineRadius = 3;
constexpr int ringReach = token::ringGap + token::ringWidth;
constexpr int pulseTime = 900;

/// From nothing to all and back, twice.
double pulseStrength(double time) {
    const double wave = std::sin(2 * std::numbers::pi * time);
    return wave * wave;
}

QPainterPath screenPath(const QRect& screen, int radius) {
    QPainterPath path;
    path.addRoundedRect(screen, radius, radius);
    return path;
}

} // namespace

CDrawPictrue::CDrawPictrue(QWidget* parent)
    : QWidget(parent) {
    setProperty("focusRing", false);
    setFocusPolicy(Qt::NoFocus);
    _pulse.setStartValue(0.0);
    _pulse.setEndValue(1.0);
    _pulse.setDuration(pulseTime);
    connect(&_pulse, &QVariantAnimation::valueChanged, this, [this] { updatePlaces(_pulsing); });
    connect(&_pulse, &QVariantAnimation::finished, this, [this] { updatePlaces(std::exchange(_pulsing, {})); });
}

CDrawPictrue::~CDrawPictrue() = default;

void CDrawPictrue::setComposition(std::shared_ptr<PreviewComposition> composition) {
    dropOutlines();
    _press.reset();
    _composition = std::move(composition);
    _listSerial = _composition ? _composition->listSerial() : 0;
    if (_composition && _scaled.lock() != _composition) {
        _screen.forget();
        _scaled = _composition;
    }
    update();
}

void CDrawPictrue::dropOutlines() {
    _pulse.stop();
    _isWalking = false;
    point(std::nullopt);
    _stack.reset();
    _outlined.clear();
    _pulsing.clear();
}

/// Brings the scaled image up to date, and tells what of the widget is different.
QRegion CDrawPictrue::follow() {
    const double ratio = devicePixelRatioF();
    const QSize device(qRound(width() * ratio), qRound(height() * ratio));
    QRegion changed;
    for (const QRect& piece : _screen.follow(*_composition, device, _radius * ratio, ratio))
        changed +=
            QRectF(piece.x() / ratio, piece.y() / ratio, piece.width() / ratio, piece.height() / ratio).toAlignedRect();
    return changed;
}

void CDrawPictrue::refresh() {
    if (!_composition)
        return;
    if (std::exchange(_listSerial, _composition->listSerial()) != _composition->listSerial()) {
        dropOutlines();
        update();
    }
    // One that isn't seen catches up when it is painted.
    if (!isVisible()) {
        update();
        return;
    }
    update(follow());
    // Outlines follow what may have become larger or smaller.
    if (!_outlined.empty() || !_pulsing.empty() || _pointed)
        update();
}

void CDrawPictrue::setRadius(int radius) {
    _radius = std::max(radius, 0);
    update();
}

QRect CDrawPictrue::placeOf(std::size_t part) const {
    const QRect ink = _composition ? _composition->inkOf(part) : QRect();
    if (ink.isEmpty())
        return {};
    const double across = static_cast<double>(width()) / previewFrame.width();
    const double down = static_cast<double>(height()) / previewFrame.height();
    return QRectF(ink.x() * across, ink.y() * down, ink.width() * across, ink.height() * down).toAlignedRect();
}

QPoint CDrawPictrue::toFrame(const QPoint& point) const {
    return rect().contains(point)
               ? QPoint(point.x() * previewFrame.width() / width(), point.y() * previewFrame.height() / height())
               : QPoint(-1, -1);
}

void CDrawPictrue::updatePlaces(const std::vector<std::size_t>& parts) {
    constexpr int reach = air + ringReach + 2;
    for (const std::size_t part : parts)
        update(placeOf(part).adjusted(-reach, -reach, reach, reach));
}

void CDrawPictrue::setOutlined(std::vector<std::size_t> parts) {
    updatePlaces(_outlined);
    _outlined = std::move(parts);
    updatePlaces(_outlined);
}

void CDrawPictrue::pulseParts(std::vector<std::size_t> parts) {
    _pulse.stop();
    updatePlaces(_pulsing);
    _pulsing = std::move(parts);
    if (!_pulsing.empty())
        _pulse.start();
}

void CDrawPictrue::setInspecting(bool isInspecting) {
    if (_isInspecting == isInspecting)
        return;
    point(std::nullopt);
    _stack.reset();
    _isInspecting = isInspecting;
    setMouseTracking(isInspecting);
    setFocusPolicy(isInspecting ? Qt::StrongFocus : Qt::NoFocus);
    if (isInspecting)
        setCursor(Qt::CrossCursor);
    else
        unsetCursor();
    if (!isInspecting)
        clearFocus();
}

bool CDrawPictrue::savePreview(const std::string& path, int quality) {
    return _composition && writeJpeg(path, _composition->frame(), quality);
}

bool CDrawPictrue::showsRing() const {
    return _isWalking && hasFocus() && FocusRing::byKeyboard();
}

void CDrawPictrue::paintEvent(QPaintEvent* event) {
    if (!_composition || rect().isEmpty())
        return;
    if (const QRegion late = follow() - event->region(); !late.isEmpty())
        update(late);
    QPainter painter(this);
    // As a whole, clipped to the region: no piece has edges of its own, which a fractional ratio would round.
    painter.drawImage(QPoint(), _screen.image());
    if (_outlined.empty() && _pulsing.empty() && !_pointed)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    if (_radius > 0)
        painter.setClipPath(screenPath(rect(), _radius), Qt::IntersectClip);
    for (const std::size_t part : _outlined)
        paintOutline(painter, part, 1);
    const bool isStill = reducedMotion();
    for (const std::size_t part : _pulsing)
        paintOutline(painter, part, isStill ? 1 : pulseStrength(_pulse.currentValue().toDouble()));
    if (_pointed && showsRing())
        paintRing(painter);
    else if (_pointed && std::find(_outlined.begin(), _outlined.end(), *_pointed) == _outlined.end())
        paintOutline(painter, *_pointed, 1);
}

void CDrawPictrue::paintOutline(QPainter& painter, std::size_t part, double strength) const {
    const QRect place = placeOf(part);
    if (place.isEmpty())
        return;
    const QRectF inside = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QRectF line = QRectF(place).adjusted(-air, -air, air, air) & inside;
    const double radius = line == inside ? std::max(_radius - 1, outlineRadius) : outlineRadius;
    painter.setOpacity(strength);
    painter.setPen(QPen(token::outlineLine, lineWidth));
    // What lies over most of the screen would hide the colour that is judged.
    const bool isLarge = 4 * std::int64_t{place.width()} * place.height() > std::int64_t{width()} * height();
    painter.setBrush(isLarge ? Qt::NoBrush : QBrush(token::outlineFill));
    painter.drawRoundedRect(line, radius, radius);
    painter.setOpacity(1);
}

void CDrawPictrue::paintRing(QPainter& painter) const {
    constexpr double half = token::ringWidth / 2.0;
    constexpr int reach = ringReach - half;
    const QRectF inside = QRectF(rect()).adjusted(half, half, -half, -half);
    const QRectF line = QRectF(placeOf(*_pointed)).adjusted(-reach, -reach, reach, reach) & inside;
    const double radius = line == inside ? std::max(_radius - 1, outlineRadius) : outlineRadius;
    painter.setPen(QPen(token::accent, token::ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(line, radius, radius);
}

} // namespace zdt
