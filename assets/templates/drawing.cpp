#include "assets/templates/drawing.h"

#include "assets/controls/dialKeys.h"
#include "assets/controls/panels.h"
#include "assets/controls/symbols.h"
#include "assets/icons/iconPictures.h"
#include "assets/icons/weather.h"
#include "assets/wallpapers/wallpapers.h"
#include "modules/iconsNode.h"
#include "modules/tables/pictureRow.h"

namespace zdt::assets {

QImage draw(const Demand& demand, const Generation& generation) {
    const std::string_view directory = demand.directory;
    if (directory.starts_with("wallpaper/"))
        return drawWallpaper(demand.name, demand.size, generation);
    if (directory.starts_with(dynamicIconsDirectory) && directory.ends_with(std::string(weatherPackage) + "/"))
        return drawWeather(demand.name, demand.size, generation);
    if (directory.starts_with(iconsDirectory))
        return drawIcon(demand.name, demand.size, generation);
    if (demand.name.ends_with(".9.png"))
        return drawPanel(demand.name, generation);
    if (QImage key = drawDialKey(demand.name, generation); !key.isNull())
        return key;
    return drawSymbol(demand.name, demand.size, directory.ends_with(tables::mirroredHdpi), generation);
}

} // namespace zdt::assets
