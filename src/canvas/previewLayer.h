#pragma once

#include "canvas/layerPainting.h"
#include "canvas/previewPart.h"
#include "canvas/tint.h"

#include <QImage>
#include <QPoint>
#include <QRect>

#include <cstddef>
#include <memory>
#include <string>

namespace zdt {

class ImagePoints;
class InkMask;

/// The frame on which the layers lie: the screen of the phone in pixels of the design space.
inline constexpr QRect previewFrame(0, 0, 1080, 2160);

/// What a part of a composed preview paints, read and scaled.
class PreviewLayer {
public:
    /// Paints nothing.
    PreviewLayer() = default;
    /// Reads a part's picture. A part without a colour and a picture, whose picture can't be read, or whose shape
    /// doesn't fit the frame paints nothing; the last is told to the debugger.
    PreviewLayer(const PreviewPart& part, ImagePoints& points);

    /// A picture that fills the frame, below all parts. One of a wallpaper's sizes is cut like a wallpaper, any other
    /// one as little as it takes to cover the frame.
    [[nodiscard]] static PreviewLayer background(const std::string& picture);

    /// The tight bounds of what is painted, in the frame; with a colour that is seen. Empty if nothing is.
    [[nodiscard]] const QRect& ink() const { return _ink; }
    /// The bytes of pixels that it alone keeps.
    [[nodiscard]] std::size_t bytes() const;

    /// Gives another colour to a layer that has one. False if the part must be read again for it.
    [[nodiscard]] bool setColour(QRgb colour);

    /// Whether nothing below can be seen in `area`.
    [[nodiscard]] bool hides(const QRect& area) const;
    /// Whether anything is painted there.
    [[nodiscard]] bool paintsAt(const QPoint& point) const;
    void paint(const FrameLines& frame, const QRect& area) const;

private:
    enum class Kind { nothing, fill, shape, picture };

    void readShape(const PreviewPart& part, ImagePoints& points);
    void readPicture(const PreviewPart& part);
    void take(QImage image, const QPoint& origin);

    Kind _kind = Kind::nothing;
    QRgb _colour = 0;
    QRect _ink;
    QPoint _origin; ///< Where the shape or the image begins.
    std::shared_ptr<const InkMask> _shape;
    TintTable _table{};
    QImage _image;
};

} // namespace zdt
