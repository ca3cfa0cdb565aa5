#include "canvas/drawPreview.h"
#include "canvas/groupParts.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <iterator>

/// What a hand and keys do to the canvas.
namespace zdt {

namespace {

constexpr int keyStep = 1;
constexpr int keyLeap = 10;

Qt::CursorShape cursorOf(PressEffect effect) {
    switch (effect) {
    case PressEffect::nothing:
        return Qt::ArrowCursor;
    case PressEffect::refused:
        return Qt::ForbiddenCursor;
    case PressEffect::move:
        return Qt::SizeAllCursor;
    case PressEffect::moveUpDown:
        return Qt::SizeVerCursor;
    case PressEffect::resizeFalling:
        return Qt::SizeFDiagCursor;
    case PressEffect::resizeRising:
        return Qt::SizeBDiagCursor;
    }
    return Qt::ArrowCursor;
}

QPoint wayOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    }
    return {};
}

Corner gripOf(const CDrawItem& item, const QPoint& point) {
    return item.canResize() ? cornerAt(item.rect(), point) : Corner::none;
}

QPoint clampedTo(const QRect& screen, const QPoint& point) {
    return {std::clamp(point.x(), screen.x(), screen.x() + screen.width()),
            std::clamp(point.y(), screen.y(), screen.y() + screen.height())};
}

/// Whether the release of a button may not reach the canvas after this.
bool takesHandAway(QEvent::Type type) {
    return type == QEvent::WindowDeactivate || type == QEvent::WindowBlocked || type == QEvent::UngrabMouse;
}

bool isSelectable(const std::unique_ptr<CDrawItem>& item) {
    return !item->locked;
}

} // namespace

CDrawItem* CDrawPreview::itemUnder(const QPoint& designPoint) const {
    std::vector<HitArea> areas;
    for (const auto& item : _items)
        areas.push_back({item->rect(), item.get() == _selected && item->canResize()});
    const int hit = itemAt(areas, designPoint);
    return hit < 0 ? nullptr : _items[static_cast<std::size_t>(hit)].get();
}

PressEffect CDrawPreview::pressEffect(const QPoint& point) const {
    const QPoint designPoint = toDesign(point, screenRect(), _space);
    const CDrawItem* item = isPlaying() || !screenRect().contains(point) ? nullptr : itemUnder(designPoint);
    if (!item || item->locked)
        return PressEffect::nothing;
    if (item->dragRefused)
        return PressEffect::refused;
    switch (gripOf(*item, designPoint)) {
    case Corner::none:
        return item->placement.fixedHorizontal ? PressEffect::moveUpDown : PressEffect::move;
    case Corner::topLeft:
    case Corner::bottomRight:
        return PressEffect::resizeFalling;
    case Corner::topRight:
    case Corner::bottomLeft:
        return PressEffect::resizeRising;
    }
    return PressEffect::nothing;
}

void CDrawPreview::showCursor(const QPoint& point) {
    const Qt::CursorShape shape = cursorOf(pressEffect(point));
    if (cursor().shape() != shape)
        setCursor(shape);
}

void CDrawPreview::selectByHand(CDrawItem& item) {
    setSelectedItem(&item);
    _restore = item.places();
    send(item.isVideoLayer ? notify::Nodfiy_SendMsg_Video_Select_Item : notify::Nodfiy_SendMsg_Select_Item, item);
}

void CDrawPreview::mousePressEvent(QMouseEvent* event) {
    const QRect screen = screenRect();
    if (event->button() != Qt::LeftButton || isPlaying() || screen.isEmpty())
        return;
    // A press without the release of the one before: that was lost.
    cancelDrag();
    orderItems();
    const QPoint point = event->position().toPoint();
    const QPoint designPoint = toDesign(point, screen, _space);
    CDrawItem* item = screen.contains(point) ? itemUnder(designPoint) : nullptr;
    if (!item) {
        setSelectedItem(nullptr);
    } else if (!item->locked) {
        selectByHand(*item);
        _hand.press(point, gripOf(*item, designPoint));
    }
}

void CDrawPreview::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    // The release may have gone elsewhere, to a box or another window.
    if (!event->buttons().testFlag(Qt::LeftButton))
        cancelDrag();
    if (_hand.isIdle())
        showCursor(point);
    else
        dragTo(clampedTo(screenRect(), point));
}

void CDrawPreview::dragTo(const QPoint& point) {
    if (!_hand.moveTo(point) || !_selected)
        return;
    if (_selected->dragRefused) {
        refuseDrag();
        return;
    }
    if (_selected->locked)
        return;
    const EdgeRect before = boundsOf(_selected->places());
    const QPoint way = wayInDesign(point - _hand.dragStart(), screenRect(), _space);
    // Always from where the drag began, so that what is lost of a pixel doesn't add up.
    _selected->setPlaces(_restore);
    if (_hand.state() == HandState::resizing) {
        const ResizeRule rule{_hand.corner(), _selected->ratioLocked, _selected->ratio};
        _selected->SetRect(resized(_restore.rect, rule, way, _space));
    } else {
        _selected->Move(_selected->placement.fixedHorizontal ? 0 : way.x(), way.y());
    }
    _frame.refresh(before);
    _frame.refresh(boundsOf(_selected->places()));
    update();
}

void CDrawPreview::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const HandState did = _hand.release();
    if (did != HandState::moving && did != HandState::resizing)
        return;
    update();
    if (_selected && keepPlace())
        send(did == HandState::moving ? notify::Nodfiy_SendMsg_MouseMove_Item : notify::Nodfiy_SendMsg_MouseSize_Item,
             *_selected);
    showCursor(event->position().toPoint());
}

void CDrawPreview::cancelDrag() {
    const bool dragged = _hand.drags();
    _hand.release();
    if (!dragged || !_selected)
        return;
    _selected->setPlaces(_restore);
    refresh();
}

bool CDrawPreview::placeSelected(const EdgeRect& rect) {
    if (!_selected)
        return false;
    cancelDrag();
    _restore = _selected->places();
    _selected->SetRect(rect);
    return keepPlace();
}

PlacementFault CDrawPreview::CheckPlacement(const CDrawItem& item, const EdgeRect& rect) const {
    return checkPlacement(rect, item.placement, _space, _enableHot);
}

bool CDrawPreview::keepPlace() {
    const PlacementFault fault = CheckPlacement(*_selected, _selected->rect());
    if (fault != PlacementFault::none) {
        refuse(messageOf(fault));
        return false;
    }
    if (!keepParts()) {
        refuse("kCanvas_parts_not_stored");
        return false;
    }
    _restore = _selected->places();
    refresh();
    return true;
}

bool CDrawPreview::keepParts() {
    if (!_groupParts || !_selected->isGroup || _selected->element.empty() || _selected->rect() == _restore.rect)
        return true;
    const std::vector<GroupPart> parts = _groupParts->read(_selected->element);
    return _groupParts->write(_selected->element, followingParts(parts, _restore.rect, _selected->rect()));
}

void CDrawPreview::refuse(const char* messageKey) {
    _selected->setPlaces(_restore);
    refresh();
    tell(messageKey);
}

void CDrawPreview::refuseDrag() {
    setSelectedItem(nullptr);
    tell("kTransformation_pendant_apply");
}

void CDrawPreview::tell(const char* messageKey) {
    if (_told)
        return;
    _told = messageKey;
    // Not from within the event of a mouse or key: the box waits, and the canvas may be gone behind it.
    QTimer::singleShot(0, this, &CDrawPreview::showTold);
}

void CDrawPreview::showTold() {
    const QPointer<CDrawPreview> canvas(this);
    tellNote(this, _told);
    if (canvas)
        canvas->_told = nullptr;
}

bool CDrawPreview::event(QEvent* event) {
    // While something follows the hand, Escape is the canvas's own and closes nothing around it.
    if (event->type() == QEvent::ShortcutOverride && !_hand.isIdle() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    if (takesHandAway(event->type()))
        cancelDrag();
    return QWidget::event(event);
}

void CDrawPreview::keyPressEvent(QKeyEvent* event) {
    const QPoint way = wayOf(event->key());
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->key() == Qt::Key_Escape && !_hand.isIdle())
        cancelDrag();
    else if (!way.isNull() && _selected && _hand.isIdle() && !isPlaying())
        moveByKeys(way * (shift ? keyLeap : keyStep));
    else if (event->key() == Qt::Key_Space && _hand.isIdle() && !isPlaying())
        selectNext(shift);
    else
        QWidget::keyPressEvent(event);
}

void CDrawPreview::moveByKeys(const QPoint& way) {
    if (_selected->dragRefused) {
        refuseDrag();
        return;
    }
    const int dx = _selected->placement.fixedHorizontal ? 0 : way.x();
    if (_selected->locked || (dx == 0 && way.y() == 0))
        return;
    _restore = _selected->places();
    _selected->Move(dx, way.y());
    if (keepPlace())
        send(notify::Nodfiy_SendMsg_MouseMove_Item, *_selected);
}

void CDrawPreview::selectNext(bool backwards) {
    orderItems();
    std::vector<CDrawItem*> selectable;
    for (const auto& item : _items) {
        if (isSelectable(item))
            selectable.push_back(item.get());
    }
    if (selectable.empty())
        return;
    if (backwards)
        std::ranges::reverse(selectable);
    const auto present = std::ranges::find(selectable, _selected);
    const bool hasNext = present != selectable.end() && std::next(present) != selectable.end();
    selectByHand(hasNext ? **std::next(present) : *selectable.front());
}

} // namespace zdt
