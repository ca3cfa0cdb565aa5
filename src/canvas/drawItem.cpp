#include "canvas/drawItem.h"

#include "canvas/groupParts.h"
#include "canvas/itemPainter.h"
#include "canvas/paintOrder.h"
#include "packaging/pictureConversion.h"

#include <QSize>
#include <QTransform>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

constexpr QSize largestPicture(2 * DesignSpace::width, 2 * DesignSpace::highHeight);

// Items belong to the interface thread.
std::intptr_t nextId() {
    static std::intptr_t last = 0;
    return ++last;
}

} // namespace

EdgeRect boundsOf(const ItemPlaces& places) {
    EdgeRect all = places.rect;
    for (const ItemPlaces& part : places.parts) {
        const EdgeRect inner = boundsOf(part);
        all = {std::min(all.left, inner.left), std::min(all.top, inner.top), std::max(all.right, inner.right),
               std::max(all.bottom, inner.bottom)};
    }
    return all;
}

CDrawItem::CDrawItem(QString itemName)
    : _name(std::move(itemName))
    , _id(nextId()) {}

CDrawItem::~CDrawItem() = default;

void CDrawItem::SetRect(const EdgeRect& rect) {
    _rect = bounded(rect);
}

void CDrawItem::Move(int dx, int dy) {
    _rect = _rect.movedBy({dx, dy});
}

void CDrawItem::Draw(ItemPainter& painter, bool /*playing*/) const {
    drawContent(painter, _picture);
}

void CDrawItem::drawContent(ItemPainter& painter, const QImage& picture) const {
    if (!text.isEmpty()) {
        painter.drawText(text, textStyle, _rect);
        return;
    }
    if (fillColor > 0 && !noFill && !locked)
        painter.fill(_rect, static_cast<QRgb>(fillColor));
    painter.drawFitted(picture, {imageWidth, imageHeight}, _rect);
}

ItemPlaces CDrawItem::places() const {
    return {_rect, {}};
}

void CDrawItem::setPlaces(const ItemPlaces& places) {
    _rect = places.rect;
}

ItemAnimations CDrawItem::allAnimations() const {
    return {};
}

bool CDrawItem::setPicture(const std::string& path) {
    setPicture(loadThumbnail(path, largestPicture));
    return !_picture.isNull();
}

void CDrawItem::setPicture(const QImage& picture) {
    _picture = paintable(picture);
    if (keepSize)
        return;
    imageWidth = picture.width();
    imageHeight = picture.height();
}

OrderFlags CDrawItem::orderFlags() const {
    return {listOrder, layer, isBackdrop, isArea, alwaysLast};
}

void CDrawPendant::Draw(ItemPainter& painter, bool playing) const {
    if (!playing || animations.empty()) {
        CDrawItem::Draw(painter, playing);
        return;
    }
    QTransform transform;
    AnimatedLook look{&transform};
    for (const auto& animation : animations)
        animation->apply(look);
    const ItemPainter::Animated animated(painter, transform, look.opacity);
    drawContent(painter, look.frame ? *look.frame : picture());
}

ItemAnimations CDrawPendant::allAnimations() const {
    ItemAnimations all;
    for (const auto& animation : animations)
        all.push_back(animation.get());
    return all;
}

void CDrawContainer::SetRect(const EdgeRect& rect) {
    const EdgeRect before = CDrawItem::rect();
    CDrawItem::SetRect(rect);
    for (const auto& child : children)
        child->SetRect(followingPart(child->rect(), before, CDrawItem::rect()));
}

void CDrawContainer::Move(int dx, int dy) {
    CDrawItem::Move(dx, dy);
    for (const auto& child : children)
        child->Move(dx, dy);
}

void CDrawContainer::Draw(ItemPainter& painter, bool playing) const {
    painter.drawStretched(framePicture, framePicture.rect(), rect());
    CDrawItem::Draw(painter, playing);
    for (const auto& child : children)
        child->Draw(painter, playing);
}

ItemPlaces CDrawContainer::places() const {
    ItemPlaces all{rect(), {}};
    for (const auto& child : children)
        all.parts.push_back(child->places());
    return all;
}

void CDrawContainer::setPlaces(const ItemPlaces& places) {
    CDrawItem::setPlaces(places);
    for (std::size_t index = 0; index < std::min(children.size(), places.parts.size()); ++index)
        children[index]->setPlaces(places.parts[index]);
}

ItemAnimations CDrawContainer::allAnimations() const {
    ItemAnimations all;
    for (const auto& child : children) {
        const ItemAnimations ofChild = child->allAnimations();
        all.insert(all.end(), ofChild.begin(), ofChild.end());
    }
    return all;
}

} // namespace zdt
