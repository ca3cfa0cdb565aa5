#include "assets/drawing.h"

#include "assets/dialKeys.h"
#include "assets/iconPictures.h"
#include "assets/panels.h"
#include "assets/previews.h"
#include "assets/symbols.h"
#include "assets/wallpapers.h"
#include "assets/weather.h"
#include "modules/iconsNode.h"
#include "modules/tables/pictureRow.h"

namespace zdt::assets {

QImage draw(const Demand& demand, const Generation& generation) {
    const std::string_view directory = demand.directory;
    if (directory.starts_with("wallpaper/"))
        return drawWallpaper(demand.size, generation);
    if (directory.starts_with("preview/"))
        return drawPreview(demand.name, demand.size, generation);
    if (directory.starts_with(dynamicIconsDirectory) && directory.ends_with(std::string(weatherPackage) + "/"))
        return drawWeather(demand.name, demand.size);
    if (directory.starts_with(iconsDirectory))
        return drawIcon(demand.name, demand.size);
    if (demand.name.ends_with(".9.png"))
        return drawPanel(demand.name);
    if (QImage key = drawDialKey(demand.name); !key.isNull())
        return key;
    return drawSymbol(demand.name, demand.size, directory.ends_with(tables::mirroredHdpi));
}

} // namespace zdt::assets
