#include "canvas/drawPictrue.h"
#include "canvas/previewComposition.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

/// Logical pixels that a hand may move during a click.
constexpr int clickReach = 3;

} // namespace

/// Moves what is pointed at, and tells.
void CDrawPictrue::point(std::optional<std::size_t> part) {
    if (_pointed == part)
        return;
    if (_pointed)
        updatePlaces({*_pointed});
    _pointed = part;
    if (!part) {
        emit unpointed();
        return;
    }
    updatePlaces({*part});
    emit pointed(QString::fromStdString(_composition->parts()[*part].key), placeOf(*part));
}

void CDrawPictrue::pickPart(std::optional<std::size_t> part) {
    if (part && *part < _composition->parts().size())
        emit picked(QString::fromStdString(_composition->parts()[*part].key));
}

/// Leaves the keyboard's ring for the pointer's outline.
void CDrawPictrue::stopWalking() {
    if (std::exchange(_isWalking, false) && _pointed)
        updatePlaces({*_pointed});
}

void CDrawPictrue::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    _press = event->position().toPoint();
}

void CDrawPictrue::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (!_isInspecting || !_composition || (_pointed && !_isWalking && _stack.isAtClick(at))) {
        event->setAccepted(_press.has_value());
        return;
    }
    stopWalking();
    // A click picks what is pointed at now, and nothing below.
    _stack.reset();
    const std::vector<std::size_t> parts = keyedPartsAt(*_composition, toFrame(at));
    point(parts.empty() ? std::nullopt : std::optional(parts.front()));
}

void CDrawPictrue::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPoint at = event->position().toPoint();
    const std::optional<QPoint> press = std::exchange(_press, std::nullopt);
    if (!press || !_composition || (*press - at).manhattanLength() > clickReach || !rect().contains(at))
        return;
    const std::optional<std::size_t> part = _stack.pick(*_composition, at, toFrame(at));
    stopWalking();
    if (_isInspecting)
        point(part);
    pickPart(part);
}

void CDrawPictrue::resizeEvent(QResizeEvent*) {
    _stack.reset();
}

void CDrawPictrue::leaveEvent(QEvent*) {
    _stack.reset();
    if (!_isWalking)
        point(std::nullopt);
}

void CDrawPictrue::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        walkTo(event->key());
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        pickPart(_pointed);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

/// From key to key, with an end at both ends.
void CDrawPictrue::walkTo(int key) {
    if (!_composition || !_isInspecting)
        return;
    const std::vector<std::size_t> walk = walkOf(*_composition);
    if (walk.empty())
        return;
    const std::vector<PreviewPart>& parts = _composition->parts();
    const std::size_t pointed = _pointed.value_or(walk.front());
    const auto isPointed = [&](std::size_t part) { return part == pointed || parts[part].key == parts[pointed].key; };
    const auto found = std::ranges::find_if(walk, isPointed);
    const auto last = static_cast<std::ptrdiff_t>(walk.size()) - 1;
    std::ptrdiff_t at = found == walk.end() ? 0 : found - walk.begin();
    if (key == Qt::Key_Home)
        at = 0;
    else if (key == Qt::Key_End)
        at = last;
    else if (_isWalking)
        at += key == Qt::Key_Right || key == Qt::Key_Down ? 1 : -1;
    _isWalking = true;
    _stack.reset();
    const std::size_t reached = walk[static_cast<std::size_t>(std::clamp(at, std::ptrdiff_t{0}, last))];
    emit walked(placeOf(reached));
    point(reached);
    if (_pointed)
        updatePlaces({*_pointed});
}

void CDrawPictrue::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        walkTo(Qt::Key_Home);
    QWidget::focusInEvent(event);
}

void CDrawPictrue::focusOutEvent(QFocusEvent* event) {
    if (std::exchange(_isWalking, false))
        point(std::nullopt);
    QWidget::focusOutEvent(event);
}

} // namespace zdt
