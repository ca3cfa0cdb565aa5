#include "canvas/canvasHand.h"

#include <utility>

namespace zdt {

void CanvasHand::press(const QPoint& point, Corner corner) {
    _state = HandState::pressed;
    _corner = corner;
    _dragStart = point;
}

bool CanvasHand::moveTo(const QPoint& point) {
    if (_state == HandState::pressed && (point - _dragStart).manhattanLength() >= shortestDrag)
        _state = _corner == Corner::none ? HandState::moving : HandState::resizing;
    return drags();
}

HandState CanvasHand::release() {
    return std::exchange(_state, HandState::idle);
}

} // namespace zdt
