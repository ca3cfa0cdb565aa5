#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

namespace zdt::assets {

/// One picture of a moving picture.
struct GifFrame {
    QImage picture; ///< Indexed8. All have the same size and colours; the first colour is kept for "as before".
    int hundredths; ///< Of a second for which it stays.
};

/// An endless GIF; each frame holds only what differs from the one before. Empty if it can't be made.
[[nodiscard]] QByteArray encodeGif(const std::vector<GifFrame>& frames);

} // namespace zdt::assets
