#include "canvas/previewComposition.h"

#include "canvas/imagePoints.h"
#include "canvas/overlayPainting.h"
#include "support/fileComparison.h"

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

/// Of all pixels that the layers of a composition keep; beyond, those that weren't used for longest are read again.
constexpr std::size_t maxHeldBytes = std::size_t{96} << 20;
/// Compositions whose changes are remembered; a view that is further behind draws all.
constexpr std::size_t maxChanges = 64;
/// Rows that are composed at once, so that they stay in the processor's cache while layer by layer is put on them.
constexpr int bandHeight = 32;
/// A region of more pieces is taken as a whole.
constexpr int maxPieces = 40;

/// Transparent black stands for no colour.
QRgb shownColour(QRgb colour) {
    return colour == 0 ? 0x00ffffff : colour;
}

/// A key that is transparent must not fall back to the bare picture, which has no colour.
void keepTransparent(PreviewDescription& description) {
    for (PreviewPart& part : description.parts) {
        if (!part.isColorFill || part.key.empty())
            continue;
        part.colorNormal = shownColour(part.colorNormal);
        part.colorAlternate = shownColour(part.colorAlternate);
    }
}

/// Whether two parts paint the same in the same colour.
bool paintsAlike(const PreviewPart& one, const PreviewPart& other) {
    return one.place() == other.place() && one.picture == other.picture && one.isColorFill == other.isColorFill &&
           one.isWallpaper == other.isWallpaper;
}

QRegion simplified(const QRegion& region) {
    const QRegion seen = region & previewFrame;
    return seen.rectCount() > maxPieces ? QRegion(seen.boundingRect()) : seen;
}

} // namespace

PreviewComposition::PreviewComposition(ImagePoints& points)
    : _points(points)
    , _slots(1)
    , _dirty(previewFrame) {}

PreviewComposition::PreviewComposition()
    : PreviewComposition(imagePoints()) {}

void PreviewComposition::setDescription(PreviewDescription description) {
    keepTransparent(description);
    const PreviewDescription before = std::exchange(_description, std::move(description));
    if (!std::ranges::equal(before.parts, parts(), {}, &PreviewPart::key, &PreviewPart::key))
        ++_listSerial;
    std::vector<Slot> fresh(_description.parts.size() + 1);
    for (std::size_t slot = 0; slot < std::min(fresh.size(), _slots.size()); ++slot) {
        const bool isSame = slot == 0 ? before.background == _description.background
                                      : paintsAlike(before.parts[slot - 1], _description.parts[slot - 1]);
        if (isSame && _slots[slot].isHeld && _slots[slot].stamp == fileStamp(fileOf(slot)))
            fresh[slot] = std::move(_slots[slot]);
    }
    _slots = std::move(fresh);
    for (std::size_t part = 0; part < parts().size(); ++part) {
        if (before.parts.size() > part && before.parts[part].colour() != parts()[part].colour())
            recolour(part);
    }
    _hasUnread = true;
    _dirty = previewFrame;
}

void PreviewComposition::setOverlays(std::vector<OverlayPart> overlays) {
    for (const std::vector<OverlayPart>* list : {&std::as_const(_overlays), &std::as_const(overlays)}) {
        for (const OverlayPart& overlay : *list)
            _dirty += overlayReach(overlay) & previewFrame;
    }
    _overlays = std::move(overlays);
    _overlayPictures.clear();
    for (OverlayPart overlay : _overlays) {
        overlay.picture = _points.fileOf(overlay.picture);
        _overlayPictures.push_back(overlayPicture(overlay));
    }
}

bool PreviewComposition::isSeen(std::size_t slot) const {
    return slot == 0 || _description.parts[slot - 1].isVisible;
}

/// Lets a layer be read again.
void PreviewComposition::forget(std::size_t slot) {
    if (isSeen(slot))
        _dirty += _slots[slot].ink;
    _slots[slot] = Slot();
    _hasUnread = true;
}

void PreviewComposition::recolour(std::size_t part) {
    Slot& slot = _slots[part + 1];
    if (!slot.isHeld || !slot.layer.setColour(_description.parts[part].colour()))
        forget(part + 1);
    else if (isSeen(part + 1))
        _dirty += slot.ink;
}

void PreviewComposition::setColour(std::string_view key, QRgb colour) {
    for (const std::size_t part : partsOf(key)) {
        const QRgb before = std::exchange(_description.parts[part].colorNormal, shownColour(colour));
        if (before != shownColour(colour) && !_description.parts[part].preferAlternate)
            recolour(part);
    }
}

void PreviewComposition::setPreferAlternate(std::string_view key, bool prefer) {
    for (const std::size_t part : partsOf(key)) {
        if (std::exchange(_description.parts[part].preferAlternate, prefer) != prefer)
            recolour(part);
    }
}

void PreviewComposition::setPicture(std::string_view key, const std::string& file) {
    for (const std::size_t part : partsOf(key)) {
        _description.parts[part].picture = file;
        forget(part + 1);
    }
}

void PreviewComposition::setBackground(const std::string& file) {
    _description.background = file;
    forget(0);
}

void PreviewComposition::setVisible(std::size_t part, bool isVisible) {
    if (part >= parts().size() || std::exchange(_description.parts[part].isVisible, isVisible) == isVisible)
        return;
    _dirty += _slots[part + 1].ink;
    _hasUnread = _hasUnread || !_slots[part + 1].isRead;
}

void PreviewComposition::setVisible(std::string_view key, bool isVisible) {
    for (const std::size_t part : partsOf(key))
        setVisible(part, isVisible);
}

std::vector<std::size_t> PreviewComposition::partsOf(std::string_view key) const {
    std::vector<std::size_t> found;
    for (std::size_t part = 0; part < parts().size() && !key.empty(); ++part) {
        if (parts()[part].key == key)
            found.push_back(part);
    }
    return found;
}

std::vector<std::size_t> PreviewComposition::partsAt(const QPoint& point) {
    std::vector<std::size_t> found;
    for (std::size_t part = parts().size(); part-- > 0;) {
        if (!isSeen(part + 1) || !inkOf(part).contains(point))
            continue;
        hold(part + 1);
        if (_slots[part + 1].layer.paintsAt(point))
            found.push_back(part);
    }
    trim();
    return found;
}

QRect PreviewComposition::inkOf(std::size_t part) {
    if (part >= parts().size() || !isSeen(part + 1))
        return {};
    if (!_slots[part + 1].isRead) {
        hold(part + 1);
        trim();
    }
    return _slots[part + 1].ink;
}

std::string PreviewComposition::fileOf(std::size_t slot) const {
    const std::string& picture = slot == 0 ? _description.background : parts()[slot - 1].picture;
    return picture.empty() ? picture : _points.fileOf(picture);
}

PreviewLayer PreviewComposition::readLayer(std::size_t slot) const {
    if (slot == 0)
        return PreviewLayer::background(fileOf(slot));
    PreviewPart part = parts()[slot - 1];
    part.picture = fileOf(slot);
    return {part, _points};
}

/// Reads a layer's pixels if they aren't there.
void PreviewComposition::hold(std::size_t index) {
    Slot& slot = _slots[index];
    slot.usedAt = _serial;
    if (slot.isHeld)
        return;
    const QRect before = slot.ink;
    const std::string stamp = std::exchange(slot.stamp, fileStamp(fileOf(index)));
    slot.layer = readLayer(index);
    slot.ink = slot.layer.ink();
    slot.isHeld = true;
    // What is read again after it was given up paints the same, unless its file was replaced.
    if (isSeen(index) && (!slot.isRead || slot.stamp != stamp))
        _dirty += QRegion(before) + slot.ink;
    slot.isRead = true;
}

/// Finds out what the visible layers cover.
void PreviewComposition::readAll() {
    for (std::size_t slot = 0; slot < _slots.size() && _hasUnread; ++slot) {
        if (isSeen(slot) && !_slots[slot].isRead)
            hold(slot);
    }
    _hasUnread = false;
}

const QImage& PreviewComposition::frame() {
    readAll();
    if (_dirty.isEmpty())
        return _frame;
    if (_frame.isNull())
        _frame = QImage(previewFrame.size(), QImage::Format_RGB32);
    ++_serial;
    QRegion composed;
    // A layer that is read again meanwhile and turns out to be another marks what it touches.
    while (!_dirty.isEmpty()) {
        const QRegion region = simplified(std::exchange(_dirty, QRegion()));
        compose(region);
        composed += region;
    }
    note(simplified(composed));
    trim();
    return _frame;
}

void PreviewComposition::compose(const QRegion& region) {
    const FrameLines lines(_frame);
    for (const QRect& piece : region) {
        for (int top = piece.top(); top <= piece.bottom(); top += bandHeight) {
            const int bottom = std::min(top + bandHeight - 1, piece.bottom());
            composeBand(lines, QRect(QPoint(piece.left(), top), QPoint(piece.right(), bottom)));
        }
    }
    for (std::size_t i = 0; i < _overlays.size(); ++i)
        paintOverlay(_frame, region, _overlays[i], _overlayPictures[i]);
}

void PreviewComposition::composeBand(const FrameLines& lines, const QRect& area) {
    std::size_t first = _slots.size();
    bool isHidden = false;
    while (first > 0 && !isHidden) {
        --first;
        if (isSeen(first) && _slots[first].ink.intersects(area)) {
            hold(first);
            isHidden = _slots[first].layer.hides(area);
        }
    }
    if (!isHidden)
        paintFill(lines, area, 0xffffffff);
    for (std::size_t slot = first; slot < _slots.size(); ++slot) {
        if (isSeen(slot) && _slots[slot].ink.intersects(area))
            _slots[slot].layer.paint(lines, area);
    }
}

/// Gives up pixels beyond the bound.
void PreviewComposition::trim() {
    std::size_t total = 0;
    for (const Slot& slot : _slots)
        total += slot.layer.bytes();
    while (total > maxHeldBytes) {
        Slot* oldest = nullptr;
        for (Slot& slot : _slots) {
            if (slot.layer.bytes() > 0 && (!oldest || slot.usedAt < oldest->usedAt))
                oldest = &slot;
        }
        if (!oldest)
            return;
        total -= std::min(total, oldest->layer.bytes());
        oldest->layer = PreviewLayer();
        oldest->isHeld = false;
    }
}

void PreviewComposition::note(const QRegion& region) {
    _changes.push_back({_serial, region});
    if (_changes.size() > maxChanges)
        _changes.pop_front();
}

QRegion PreviewComposition::changedSince(std::uint64_t serial) const {
    if (serial == _serial && serial != 0)
        return {};
    if (serial == 0 || serial > _serial || _changes.empty() || _changes.front().serial > serial + 1)
        return previewFrame;
    QRegion region;
    for (const Change& change : _changes) {
        if (change.serial > serial)
            region += change.region;
    }
    return simplified(region);
}

} // namespace zdt
