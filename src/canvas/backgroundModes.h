#pragma once

#include "canvas/canvasGeometry.h"

#include <QRectF>
#include <QSize>

#include <optional>

/// Which part of a wallpaper is drawn where.
namespace zdt {

struct BackgroundModes {
    bool keepFull = false; ///< The upper 1920 rows, at their own size.
    bool cropTop = false;  ///< With `keepFull`: the middle 1920 rows of a high picture.
    bool fit = false;      ///< Scaled to the height of the screen.
    bool fitAlternate = false;
    bool noZoom = false; ///< Without the zoom with which the phone shows a lock screen.
    /// The part of the picture that fills the screen, whatever the rest says; where it reaches beyond the picture the
    /// screen stays empty.
    std::optional<EdgeRect> source = std::nullopt;

    friend bool operator==(const BackgroundModes&, const BackgroundModes&) = default;
};

/// A part of a picture and its place in the design space.
struct BackgroundPlace {
    QRectF source;
    QRectF target;

    friend bool operator==(const BackgroundPlace&, const BackgroundPlace&) = default;
};

/// Nothing for a picture that isn't drawn: of no known size, or with a source that lies outside it. A picture of 1920
/// rows is always fitted to the screen of 2160, and one that is two screens wide shows its middle.
[[nodiscard]] std::optional<BackgroundPlace> backgroundPlace(const QSize& picture, const BackgroundModes& modes,
                                                             const DesignSpace& space);

} // namespace zdt
