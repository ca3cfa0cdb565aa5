#include "modules/wallpaperNode.h"

#include "lockscreen/videoUnlockNode.h"
#include "modules/imageNode.h"

namespace zdt {

SizeRange wallpaperSize(std::string_view name, bool tall) {
    return {name == homeWallpaper ? 2 * screenWidth : screenWidth, tall ? tallScreenHeight : screenHeight};
}

ImageWallpaperNode::ImageWallpaperNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "image") {
    setPath("wallpaper/");
    const bool tall = (rootTypeMask() & typeMask::generation9) != 0;
    for (const std::string_view name : {homeWallpaper, unlockWallpaper}) {
        auto picture = std::make_unique<FileResNode>(std::string(name));
        picture->setPath(path());
        picture->setAllowedKinds(fileKind::jpeg);
        picture->setSizeRange(wallpaperSize(name, tall));
        adopt(std::move(picture));
    }
    loadChildrenFromTheme(*this);
}

WallpaperNode::WallpaperNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "wallpaper") {
    setPath("wallpaper/");
    emplaceChild<ImageWallpaperNode>();
    emplaceChild<VideoUnlockConfig>();
    emplaceChild<VideoUnlockImageSet>();
}

} // namespace zdt
