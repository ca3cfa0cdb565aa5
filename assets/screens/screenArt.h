#pragma once

#include "canvas/screens/screenLayer.h"

#include <QImage>
#include <QString>

namespace zdt::assets {

// All of it needs a QGuiApplication.

/// The picture of a shape, white, or of an art in its colours, as large as its place. May be called on any thread. Null
/// if the layer says nothing that can be drawn.
[[nodiscard]] QImage drawLayer(const ScreenLayer& layer, bool chinese);

/// The ink of a text's whole line as it would lie in the layer's picture without its edges: for tests.
[[nodiscard]] QRectF textExtent(const ScreenLayer& layer, bool chinese);

} // namespace zdt::assets
