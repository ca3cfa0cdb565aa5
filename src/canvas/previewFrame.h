#pragma once

#include "canvas/backgroundModes.h"
#include "canvas/canvasGeometry.h"
#include "canvas/drawItem.h"
#include "canvas/scaledPictures.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <memory>
#include <vector>

namespace zdt {

class ItemPainter;

using DrawItems = std::vector<std::unique_ptr<CDrawItem>>;

/// What a canvas shows. It points to what the canvas owns.
struct PreviewScene {
    DesignSpace space;
    const QImage& background; ///< Null for none.
    BackgroundModes modes;
    const DrawItems& items;              ///< In the order of painting.
    const CDrawItem* selected = nullptr; ///< Gets its marks, above everything.
    const CDrawItem* lifted = nullptr;   ///< Follows the hand now.
    bool playing = false;
};

/// The composed canvas, in the pixels in which it is shown. While an item follows the hand, what lies below it and
/// above it is drawn once, and of the rest only what the item left and reached.
class PreviewFrame {
public:
    /// Brings the frame up to date.
    /// @param size in pixels of the screen, not empty
    /// @param pixelRatio how many of those are one of the control's
    const QImage& compose(const PreviewScene& scene, const QSize& size, double pixelRatio);

    /// Everything is to be drawn anew.
    void refresh() { _isWhole = false; }
    /// Of a lifted item, what was or is in this place of the design space.
    void refresh(const EdgeRect& place) { _dirty.push_back(place); }

private:
    void composeWhole(const PreviewScene& scene, double pixelRatio);
    void lift(const PreviewScene& scene, double pixelRatio);
    void composeLifted(const PreviewScene& scene, double pixelRatio);
    [[nodiscard]] QRect takeDirty(const DesignSpace& space);

    QImage _frame;
    QImage _below; ///< The background and the items below the lifted one; opaque.
    QImage _above;
    const CDrawItem* _lifted = nullptr; ///< Compared alone.
    ScaledPictures _pictures;
    std::vector<EdgeRect> _dirty;
    int _selectionMargin = 0; ///< How far the marks of a selection reach beyond it, as it was composed last.
    bool _isWhole = false;
};

/// The canvas at the phone's own size, without marks and areas.
[[nodiscard]] QImage captureOf(const PreviewScene& scene);

} // namespace zdt
