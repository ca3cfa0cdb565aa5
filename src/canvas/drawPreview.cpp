#include "canvas/drawPreview.h"

#include "canvas/paintOrder.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/notifications.h"
#include "packaging/pictureConversion.h"

#include <QHideEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

/// Pixels of the control at the window's base size, by the height of the design.
constexpr int lowBaseWidth = 285;
constexpr int highBaseWidth = 252;

constexpr const char* nameKey = "kCanvas_name";

int baseWidth(const DesignSpace& space) {
    return space.height == DesignSpace::highHeight ? highBaseWidth : lowBaseWidth;
}

const char* captureMessage(int kind) {
    return kind == 3 || kind == 4 ? notify::Notify_ScreenCapture_VideoUnlockMsg
                                  : notify::Notify_ScreenCapture_ChangeUnlockMsg;
}

} // namespace

CDrawPreview::CDrawPreview(QWidget* parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setProperty("accessibleKey", nameKey);
    setAccessibleName(Text(nameKey));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    _passes.setInterval(animationPass);
    connect(&_passes, &QTimer::timeout, this, &CDrawPreview::passAnimations);
}

CDrawPreview::~CDrawPreview() = default;

void CDrawPreview::setDesignHeight(int height) {
    cancelDrag();
    _space.height = height;
    updateGeometry();
    refresh();
}

void CDrawPreview::setMode2(bool isMode2) {
    _space.isMode2 = isMode2;
    refresh();
}

void CDrawPreview::setBackgroundPicture(const std::string& path) {
    _background = paintable(loadPicture(path));
    refresh();
}

void CDrawPreview::setBackgroundModes(const BackgroundModes& modes) {
    _modes = modes;
    refresh();
}

void CDrawPreview::setBackgroundRect(const std::optional<EdgeRect>& source) {
    _modes.source = source;
    refresh();
}

CDrawItem& CDrawPreview::addItem(std::unique_ptr<CDrawItem> item) {
    Q_ASSERT(item);
    _items.push_back(std::move(item));
    CDrawItem& added = *_items.back();
    orderItems();
    refresh();
    return added;
}

void CDrawPreview::removeItem(CDrawItem& item) {
    const auto place = std::ranges::find(_items, &item, &std::unique_ptr<CDrawItem>::get);
    if (place == _items.end())
        return;
    endAnimation();
    if (_selected == &item)
        setSelectedItem(nullptr);
    _deletedNames += item.name();
    _items.erase(place);
    refresh();
}

void CDrawPreview::removeAllItems() {
    endAnimation();
    setSelectedItem(nullptr);
    _items.clear();
    _deletedNames.clear();
    refresh();
}

CDrawItem* CDrawPreview::findItem(const QString& name) const {
    CDrawItem* found = nullptr;
    for (const auto& item : _items) {
        if (item->name() == name && (!found || item->id() > found->id()))
            found = item.get();
    }
    return found;
}

CDrawItem* CDrawPreview::findItem(std::intptr_t id) const {
    const auto found = std::ranges::find(_items, id, [](const auto& item) { return item->id(); });
    return found == _items.end() ? nullptr : found->get();
}

QString CDrawPreview::nameOf(std::intptr_t id) const {
    const CDrawItem* item = findItem(id);
    return item ? item->name() : QString();
}

void CDrawPreview::refresh() {
    _frame.refresh();
    update();
}

void CDrawPreview::orderItems() {
    std::vector<OrderFlags> flags;
    for (const auto& item : _items)
        flags.push_back(item->orderFlags());
    const std::vector<std::size_t> order = paintOrder(flags);
    if (order.size() != _items.size() || std::ranges::is_sorted(order))
        return;
    DrawItems ordered;
    for (const std::size_t place : order)
        ordered.push_back(std::move(_items[place]));
    _items = std::move(ordered);
    _frame.refresh();
}

void CDrawPreview::setSelectedItem(CDrawItem* item) {
    Q_ASSERT(!item || findItem(item->id()) == item);
    cancelDrag();
    if (item == _selected)
        return;
    _selected = item;
    if (item)
        _restore = item->places();
    refresh();
}

PlacementFault CDrawPreview::checkNew(const EdgeRect& rect, const auto& isLeftOut) const {
    if (!isOnScreen(rect, _space))
        return PlacementFault::safeScreen;
    if (!isClearOfUnlock(rect, _space))
        return PlacementFault::safeArea;
    const bool covers = std::ranges::any_of(_items, [&](const auto& item) {
        return item->placement.safeAreaChecked && !isLeftOut(*item) && overlap(item->rect(), rect);
    });
    return covers ? PlacementFault::duplicate : PlacementFault::none;
}

PlacementFault CDrawPreview::CheckRect(const EdgeRect& rect) const {
    return checkNew(rect, [this](const CDrawItem& item) { return &item == _selected; });
}

PlacementFault CDrawPreview::CheckRect(const EdgeRect& rect, int withoutListOrder) const {
    return checkNew(rect, [withoutListOrder](const CDrawItem& item) {
        return item.listOrder >= 0 && item.listOrder == withoutListOrder;
    });
}

PreviewScene CDrawPreview::scene() const {
    return {_space, _background, _modes, _items, _selected, _hand.drags() ? _selected : nullptr, isPlaying()};
}

void CDrawPreview::paintEvent(QPaintEvent* /*event*/) {
    const QRect screen = screenRect();
    if (!screen.isEmpty()) {
        orderItems();
        QPainter painter(this);
        // That of the surface: a picture of the canvas may be finer than the screen.
        const double pixelRatio = painter.deviceTransform().m11();
        const QSize pixels = (QSizeF(screen.size()) * pixelRatio).toSize();
        painter.drawImage(QRectF(screen), _frame.compose(scene(), pixels, pixelRatio));
    }
    sendCaptures();
}

void CDrawPreview::send(const char* name, const CDrawItem& item) {
    if (_hub && _notifySelect)
        _hub->SendNotify(this, name, item.id(), 0, true);
}

void CDrawPreview::requestCapture(int captureKind) {
    _captureKinds.insert(captureKind);
    if (visibleRegion().isEmpty() || window()->isMinimized())
        sendCaptures();
    else
        update();
}

void CDrawPreview::sendCaptures() {
    for (const int kind : std::exchange(_captureKinds, {})) {
        if (_hub)
            _hub->SendNotify(this, captureMessage(kind), kind, 0, true);
    }
}

QImage CDrawPreview::composed() const {
    return captureOf(scene());
}

bool CDrawPreview::saveJpeg(const std::string& path, int quality) const {
    return writeJpeg(path, composed(), quality);
}

ItemAnimations CDrawPreview::animations() const {
    ItemAnimations all;
    for (const auto& item : _items) {
        const ItemAnimations ofItem = item->allAnimations();
        all.insert(all.end(), ofItem.begin(), ofItem.end());
    }
    return all;
}

void CDrawPreview::startAnimation(QObject* owner) {
    setSelectedItem(nullptr);
    _playOwner = owner ? owner : this;
    _clock.start();
    _run.start(animations(), 0);
    _passes.start();
    refresh();
}

void CDrawPreview::stopAnimation() {
    _passes.stop();
    _run.stop(animations());
    refresh();
}

void CDrawPreview::endAnimation() {
    if (!_passes.isActive())
        return;
    stopAnimation();
    if (_hub && _playOwner)
        _hub->SendNotify(_playOwner, notify::Notify_Pendatn_Play_Stop_Msg, 0, 0, true);
}

void CDrawPreview::passAnimations() {
    switch (_run.pass(animations(), _clock.elapsed())) {
    case AnimationRun::Pass::unchanged:
        break;
    case AnimationRun::Pass::changed:
        refresh();
        break;
    case AnimationRun::Pass::ended:
        endAnimation();
        break;
    }
}

QSize CDrawPreview::sizeHint() const {
    const int width = baseWidth(_space);
    return {width, heightForWidth(width)};
}

QSize CDrawPreview::minimumSizeHint() const {
    return sizeHint() / 2;
}

int CDrawPreview::heightForWidth(int width) const {
    return width * _space.height / DesignSpace::width;
}

void CDrawPreview::hideEvent(QHideEvent* event) {
    cancelDrag();
    sendCaptures();
    QWidget::hideEvent(event);
}

} // namespace zdt
