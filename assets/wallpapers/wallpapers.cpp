#include "assets/wallpapers/wallpapers.h"

#include "assets/wallpapers/motifs.h"
#include "modules/wallpaperNode.h"

#include <array>

namespace zdt::assets {

namespace {

struct Motifs {
    DeepImage (*lock)(QSize);
    DeepImage (*home)(QSize);
};

/// In the order of the languages.
constexpr std::array<Motifs, 3> motifs{{{paperLock, paperHome}, {duneLock, duneHome}, {auroraLock, auroraHome}}};

} // namespace

QImage drawWallpaper(std::string_view name, QSize size, const Generation& generation) {
    const Motifs& pair = motifs[static_cast<std::size_t>(generation.language)];
    return finish(name == homeWallpaper ? pair.home(size) : pair.lock(size));
}

} // namespace zdt::assets
