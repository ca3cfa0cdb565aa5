#include "canvas/screens/screenTable.h"

#include "canvas/screens/screenLists.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zdt {

namespace {

std::vector<Screen> makeScreens() {
    std::vector<Screen> all;
    for (const auto& screens : {commonSettingScreens, launcherScreens, contactsScreens, mmsScreens, systemuiScreens}) {
        for (Screen& screen : screens())
            all.push_back(std::move(screen));
    }
    return all;
}

} // namespace

std::span<const Screen> allScreens() {
    static const std::vector<Screen> screens = makeScreens();
    return screens;
}

std::span<const Screen> screensOf(std::string_view module) {
    const std::span<const Screen> all = allScreens();
    const auto isOfModule = [module](const Screen& screen) { return screen.module == module; };
    const auto first = std::find_if(all.begin(), all.end(), isOfModule);
    return {first, std::find_if_not(first, all.end(), isOfModule)};
}

std::pair<KeyPath, std::string> pictureLeaf(std::string_view key) {
    const std::size_t slash = key.find('/');
    if (slash == std::string_view::npos)
        return {{"wallpaper", "image"}, std::string(key)};
    const std::string module(key.substr(0, slash));
    std::string name(key.substr(slash + 1));
    if (module == "icons")
        return {{module, "system", "static"}, std::move(name)};
    if (module == "commonSetting")
        return {{"contacts", module, "image"}, std::move(name)};
    return {{module, "image"}, std::move(name)};
}

std::string layerFile(const Screen& screen, const ScreenLayer& layer, bool chinese) {
    std::string file = chinese ? "simplepic/cn/" : "simplepic/en/";
    return file.append(screen.module).append("/").append(screen.name).append("/").append(layer.name).append(".png");
}

} // namespace zdt
