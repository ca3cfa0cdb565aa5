#include "canvas/previewFrame.h"

#include "canvas/itemPainter.h"

#include <QPainter>

#include <algorithm>
#include <optional>
#include <utility>

namespace zdt {

namespace {

void paintBackground(ItemPainter& painter, const PreviewScene& scene) {
    const std::optional<BackgroundPlace> place = backgroundPlace(scene.background.size(), scene.modes, scene.space);
    if (place)
        painter.drawStretched(scene.background, place->source, place->target);
}

/// The items from one place up to another, exclusive.
void paintItems(ItemPainter& painter, const PreviewScene& scene, std::size_t first, std::size_t end) {
    for (std::size_t index = first; index < end; ++index)
        scene.items[index]->Draw(painter, scene.playing);
}

void paintMarks(ItemPainter& painter, const PreviewScene& scene) {
    const CDrawItem* item = scene.selected;
    if (item && !scene.playing)
        painter.drawSelection(item->rect(), item->outlineColor, item->handleColor, item->canResize());
}

std::size_t placeOf(const DrawItems& items, const CDrawItem* item) {
    const auto found = std::ranges::find(items, item, &std::unique_ptr<CDrawItem>::get);
    return static_cast<std::size_t>(found - items.begin());
}

} // namespace

const QImage& PreviewFrame::compose(const PreviewScene& scene, const QSize& size, double pixelRatio) {
    if (_frame.size() != size) {
        _frame = QImage(size, QImage::Format_RGB32);
        _isWhole = false;
    }
    const CDrawItem* liftedBefore = std::exchange(_lifted, scene.lifted);
    if (scene.lifted) {
        if (!_isWhole || liftedBefore != scene.lifted)
            lift(scene, pixelRatio);
        composeLifted(scene, pixelRatio);
    } else if (!_isWhole || liftedBefore) {
        composeWhole(scene, pixelRatio);
    }
    _dirty.clear();
    _isWhole = true;
    return _frame;
}

void PreviewFrame::composeWhole(const PreviewScene& scene, double pixelRatio) {
    _frame.fill(Qt::white);
    QPainter surface(&_frame);
    ItemPainter painter(surface, _frame.size(), scene.space, pixelRatio, _pictures);
    paintBackground(painter, scene);
    paintItems(painter, scene, 0, scene.items.size());
    paintMarks(painter, scene);
    _selectionMargin = painter.selectionMargin();
}

void PreviewFrame::lift(const PreviewScene& scene, double pixelRatio) {
    const std::size_t place = placeOf(scene.items, scene.lifted);
    if (_below.size() != _frame.size()) {
        _below = QImage(_frame.size(), QImage::Format_RGB32);
        _above = QImage(_frame.size(), QImage::Format_ARGB32_Premultiplied);
    }
    _below.fill(Qt::white);
    QPainter belowSurface(&_below);
    ItemPainter below(belowSurface, _below.size(), scene.space, pixelRatio, _pictures);
    paintBackground(below, scene);
    paintItems(below, scene, 0, place);
    _above.fill(Qt::transparent);
    QPainter aboveSurface(&_above);
    ItemPainter above(aboveSurface, _above.size(), scene.space, pixelRatio, _pictures);
    paintItems(above, scene, std::min(place + 1, scene.items.size()), scene.items.size());
    _selectionMargin = below.selectionMargin();
    _isWhole = false;
}

QRect PreviewFrame::takeDirty(const DesignSpace& space) {
    if (!_isWhole)
        return _frame.rect();
    QRectF all;
    for (const EdgeRect& place : _dirty) {
        const EdgeRect grown = place.grownBy(_selectionMargin);
        all |= QRectF(QPointF(grown.left, grown.top), QPointF(grown.right, grown.bottom));
    }
    const double x = static_cast<double>(_frame.width()) / DesignSpace::width;
    const double y = static_cast<double>(_frame.height()) / space.height;
    const QRectF onSurface(all.x() * x, all.y() * y, all.width() * x, all.height() * y);
    return onSurface.toAlignedRect().adjusted(-1, -1, 1, 1) & _frame.rect();
}

void PreviewFrame::composeLifted(const PreviewScene& scene, double pixelRatio) {
    const QRect dirty = takeDirty(scene.space);
    QPainter surface(&_frame);
    surface.setClipRect(dirty);
    surface.drawImage(dirty, _below, dirty);
    ItemPainter painter(surface, _frame.size(), scene.space, pixelRatio, _pictures);
    scene.lifted->Draw(painter, scene.playing);
    surface.drawImage(dirty, _above, dirty);
    paintMarks(painter, scene);
}

QImage captureOf(const PreviewScene& scene) {
    QImage captured(scene.space.size(), QImage::Format_RGB32);
    captured.fill(Qt::white);
    QPainter surface(&captured);
    ScaledPictures pictures;
    ItemPainter painter(surface, captured.size(), scene.space, 1, pictures);
    paintBackground(painter, scene);
    for (const auto& item : scene.items) {
        if (!item->isArea)
            item->Draw(painter, false);
    }
    return captured;
}

} // namespace zdt
