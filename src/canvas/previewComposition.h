#pragma once

#include "canvas/previewLayer.h"
#include "canvas/previewPart.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRegion>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zdt {

class ImagePoints;

/// The image of a phone's screen, put together from layers on white: the background, the parts from the lowest on, the
/// overlays. Pictures are read when they are first needed. A change marks what it touches, and the next `frame` draws
/// that alone. For the interface's thread; shared by all views of the same screen.
class PreviewComposition {
public:
    explicit PreviewComposition(ImagePoints& points);
    /// Takes shapes from the process's own store of them.
    PreviewComposition();

    /// Replaces all parts and the background. What takes the colour of a key takes transparent black, which would be
    /// none, for another transparent one. A part that stays what it was but for its colours, and whose file is
    /// unchanged, isn't read again.
    void setDescription(PreviewDescription description);
    /// Replaces the rectangles over the parts. A colour with `cover` counts as opaque. A picture that is larger than
    /// its rectangle is scaled down in its proportions, and lies in the middle.
    void setOverlays(std::vector<OverlayPart> overlays);

    [[nodiscard]] const std::vector<PreviewPart>& parts() const { return _description.parts; }
    /// Other for another list: an index of a part means the same, or one of the same key, while this is the same.
    [[nodiscard]] std::uint64_t listSerial() const { return _listSerial; }
    [[nodiscard]] const std::vector<OverlayPart>& overlays() const { return _overlays; }
    [[nodiscard]] const std::string& backgroundFile() const { return _description.background; }

    /// Gives all parts of a key a colour, and takes transparent black, which would be none, for another transparent
    /// one.
    void setColour(std::string_view key, QRgb colour);
    void setPreferAlternate(std::string_view key, bool prefer);
    /// Gives all parts of a key a picture, which is read again even if the path is the same.
    void setPicture(std::string_view key, const std::string& file);
    void setBackground(const std::string& file);
    void setVisible(std::size_t part, bool isVisible);
    /// Of all parts of a key.
    void setVisible(std::string_view key, bool isVisible);

    /// Indices of the parts of a key, the lowest first; none for an empty key.
    [[nodiscard]] std::vector<std::size_t> partsOf(std::string_view key) const;
    /// Indices of the visible parts that paint anything at a point of the frame, the topmost first.
    [[nodiscard]] std::vector<std::size_t> partsAt(const QPoint& point);
    /// The tight bounds of what a visible part paints, in the frame, whatever its colour's alpha. Empty for a hidden
    /// one and for one that has nothing to paint.
    [[nodiscard]] QRect inkOf(std::size_t part);

    /// The composed image: opaque, 1080 by 2160. What was given stays until the next call of anything here.
    [[nodiscard]] const QImage& frame();
    /// Whether nothing changed since `frame` was called last.
    [[nodiscard]] bool isComposed() const { return _dirty.isEmpty() && !_hasUnread; }
    /// Counts the compositions: what `frame` gives is the same for the same number.
    [[nodiscard]] std::uint64_t serial() const { return _serial; }
    /// What of the frame is different since the composition of that number, which may be 0: all.
    [[nodiscard]] QRegion changedSince(std::uint64_t serial) const;

private:
    /// A layer and what is known of it. That of the background stands before those of the parts.
    struct Slot {
        PreviewLayer layer;
        std::string stamp;   ///< Of the picture's file when it was read.
        QRect ink;           ///< Also while the pixels were given up.
        bool isRead = false; ///< Its ink is known.
        bool isHeld = false; ///< Its pixels are there.
        std::uint64_t usedAt = 0;
    };

    [[nodiscard]] bool isSeen(std::size_t slot) const;
    void forget(std::size_t slot);
    void recolour(std::size_t part);
    [[nodiscard]] std::string fileOf(std::size_t slot) const;
    [[nodiscard]] PreviewLayer readLayer(std::size_t slot) const;
    void hold(std::size_t slot);
    void readAll();
    void compose(const QRegion& region);
    void composeBand(const FrameLines& lines, const QRect& area);
    void trim();
    void note(const QRegion& region);

    ImagePoints& _points;
    PreviewDescription _description;
    std::vector<OverlayPart> _overlays;
    std::vector<QImage> _overlayPictures;
    std::vector<Slot> _slots;
    QImage _frame;
    QRegion _dirty;
    bool _hasUnread = true;
    std::uint64_t _serial = 0;
    std::uint64_t _listSerial = 0;
    struct Change {
        std::uint64_t serial;
        QRegion region;
    };
    std::deque<Change> _changes;
};

} // namespace zdt
