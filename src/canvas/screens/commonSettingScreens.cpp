#include "canvas/screens/screenLists.h"

namespace zdt {

std::vector<Screen> commonSettingScreens() {
    return {};
}

} // namespace zdt
