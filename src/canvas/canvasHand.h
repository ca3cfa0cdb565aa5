#pragma once

#include "canvas/canvasGeometry.h"

#include <QPoint>

namespace zdt {

/// What the hand is doing on the canvas.
enum class HandState {
    idle,
    pressed, ///< On an item, and not gone far enough to take it along.
    moving,
    resizing,
};

/// The hand from a press to its release. Control pixels.
class CanvasHand {
public:
    [[nodiscard]] HandState state() const { return _state; }
    [[nodiscard]] bool isIdle() const { return _state == HandState::idle; }
    /// Whether an item follows the hand.
    [[nodiscard]] bool drags() const { return _state == HandState::moving || _state == HandState::resizing; }
    [[nodiscard]] Corner corner() const { return _corner; }
    /// Where it was pressed.
    [[nodiscard]] const QPoint& dragStart() const { return _dragStart; }

    /// @param corner that was taken hold of; `none` to move the item
    void press(const QPoint& point, Corner corner);
    /// True if the item follows to this point.
    [[nodiscard]] bool moveTo(const QPoint& point);
    /// Gives what it was doing, and lets go.
    HandState release();

private:
    HandState _state = HandState::idle;
    Corner _corner = Corner::none;
    QPoint _dragStart;
};

/// A press that trembles by less than this doesn't move what it selects.
inline constexpr int shortestDrag = 3;

/// What a press would do, for the cursor.
enum class PressEffect { nothing, refused, move, moveUpDown, resizeFalling, resizeRising };

} // namespace zdt
